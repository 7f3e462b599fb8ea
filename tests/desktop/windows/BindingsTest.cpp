#include "desktop/windows/Bindings.h"

#include "desktop/windows/DialogTable.h"
#include "desktop/windows/FieldTable.h"
#include "tests/desktop/SampleWindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace etiquetas::test {

class BindingsTest : public testing::Test, protected SampleWindow {
  protected:
    Desktop program{folder.path()}; // lends its machine
    FrmPadrao form{program.form().platform};
    WorkbenchWindow main;
};

// True for a widget of a kind that fields are shown in; the text of a list is a part of the list,
// and the foot of the window tells what no field holds.
static bool canShowAField(const QWidget& widget) {
    const std::vector<const char*> kinds{"QLabel", "QLineEdit", "QComboBox", "QGroupBox",
                                         "QPushButton"};
    return !widget.parentWidget()->inherits("QComboBox") &&
           !widget.parentWidget()->inherits("etiquetas::StatusLine") &&
           std::ranges::any_of(kinds, [&](const char* kind) { return widget.inherits(kind); });
}

// The names of the widgets that show no field and no caption of one, so that they would stay as
// designed.
static QStringList unboundWidgets(const BridgedWindow& table) {
    QSet<QString> bound;
    for (const FieldRow& row : table.rows) {
        bound << row.widget->objectName() << row.widget->objectName() + u"_caption"_s;
    }
    QStringList names;
    for (const QWidget* const widget : table.window->findChildren<QWidget*>()) {
        const bool of_form = widget->window() == table.window && canShowAField(*widget);
        if (of_form && !bound.contains(widget->objectName())) {
            names << widget->objectName();
        }
    }
    return names;
}

// What a screen reader tells of a widget; of a list, of the line in it.
static QString spokenName(QWidget& widget) {
    auto* const list = qobject_cast<QComboBox*>(&widget);
    QWidget* const told = list != nullptr ? list->lineEdit() : &widget;
    return QAccessible::queryAccessibleInterface(told)->text(QAccessible::Name);
}

// The letters that press the commands of a window together with Alt.
static QStringList mnemonics(const QWidget& window) {
    QStringList letters;
    for (const QPushButton* const command : window.findChildren<QPushButton*>()) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(command->text());
        letters << (mnemonic.isEmpty() ? QStringList() : QStringList(mnemonic.toString()));
    }
    return letters;
}

// The fields, pictures and commands that show and that a screen reader has no name for.
static QStringList unnamedFields(const BridgedWindow& table) {
    QStringList names;
    for (const FieldRow& row : table.rows) {
        const bool told = !row.widget->isHidden() && row.widget->objectName() != u"Frame2"_s;
        if (told && spokenName(*row.widget).isEmpty()) {
            names << row.widget->objectName();
        }
    }
    return names;
}

static void expectComplete(const BridgedWindow& table) {
    for (const FieldRow& row : table.rows) {
        row.push();
    }
    EXPECT_EQ(unboundWidgets(table), QStringList());
    EXPECT_EQ(unnamedFields(table), QStringList());
    EXPECT_EQ(mnemonics(*table.window).removeDuplicates(), 0);
    const bool is_dialog = qobject_cast<DialogWindow*>(table.window) != nullptr;
    EXPECT_EQ(QAccessible::queryAccessibleInterface(table.window)->role(),
              is_dialog ? QAccessible::Dialog : QAccessible::Window);
}

TEST_F(BindingsTest, bindEachWidgetOfTheWindows) {
    expectComplete(fieldTable(form, main));
    MarginWindow margins(u"margins"_s);
    expectComplete(marginTable(form, form.FrmMargensOcultaZPL2, margins, main));
    expectComplete(marginTable(form, form.FrmMargensCxZPL45, margins, main));
    expectComplete(marginTable(form, form.FrmMargensPackZPL, margins, main));
    ParameterWindow parameters;
    expectComplete(parameterTable(form, parameters, main));
}

TEST_F(BindingsTest, nameAllWidgetsThatAWindowLacks) {
    main.findChild<QLineEdit*>(u"txtnumero_13"_s)->setObjectName(u"txtnumero_14"_s);
    main.findChild<QLabel*>(u"txtcor_caption"_s)->setObjectName(u"cor"_s);
    main.findChild<QLabel*>(u"pctimage"_s)->setObjectName(u"CMBPRINTER"_s);
    delete main.findChild<QComboBox*>(u"CMBPRINTER"_s); // leaves a label of that name
    try {
        const BridgedWindow table = fieldTable(form, main);
        FAIL() << "bound " << table.rows.size() << " fields";
    } catch (const std::logic_error& fault) {
        EXPECT_STREQ(fault.what(), "Faltam na janela FrmPadrao: etiquetas::FieldEdit txtnumero_13, "
                                   "QLabel txtcor_caption, QComboBox CMBPRINTER, "
                                   "etiquetas::PictureLabel pctimage");
    }
}

} // namespace etiquetas::test
