#include "desktop/windows/Bindings.h"

#include "desktop/windows/DialogTable.h"
#include "desktop/windows/FieldTable.h"
#include "tests/desktop/SampleWindow.h"

#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

class BindingsTest : public testing::Test, protected SampleWindow {
  protected:
    Desktop program{folder.path()}; // lends its machine
    FrmPadrao form{program.form().platform};
    WorkbenchWindow main;
};

template <typename Widget>
static bool is(const QWidget& widget) {
    return qobject_cast<const Widget*>(&widget) != nullptr;
}

// True for a widget of a kind that fields are shown in; the text of a list is a part of the list.
static bool canShowAField(const QWidget& widget) {
    if (is<QComboBox>(*widget.parentWidget())) {
        return false;
    }
    return is<QLabel>(widget) || is<QLineEdit>(widget) || is<QComboBox>(widget) ||
           is<QGroupBox>(widget) || is<QPushButton>(widget);
}

// The widgets that show no field and no caption of one, so that they would stay as designed.
static QStringList unboundWidgets(const BridgedWindow& table) {
    QStringList names;
    for (const QWidget* const widget : table.window->findChildren<QWidget*>()) {
        const auto shows = [widget](const FieldRow& row) {
            return row.widget == widget ||
                   row.widget->objectName() + u"_caption"_s == widget->objectName();
        };
        if (canShowAField(*widget) && std::ranges::none_of(table.rows, shows)) {
            names << widget->objectName();
        }
    }
    return names;
}

// What a screen reader tells of a field; of a list the toolkit tells the text there.
static QString spokenName(QWidget& widget) {
    return is<QComboBox>(widget)
               ? widget.accessibleName()
               : QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

// The fields for typing and choosing that show and that a screen reader has no name for.
static QStringList unnamedFields(const BridgedWindow& table) {
    QStringList names;
    for (const FieldRow& row : table.rows) {
        if (row.pull && !row.widget->isHidden() && spokenName(*row.widget).isEmpty()) {
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
}

TEST_F(BindingsTest, bindEachWidgetOfTheWorkbench) {
    expectComplete(fieldTable(form, main));
}

TEST_F(BindingsTest, bindEachWidgetOfTheDialogs) {
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
        EXPECT_STREQ(fault.what(), "Faltam na janela FrmPadrao: QLineEdit txtnumero_13, "
                                   "QLabel txtcor_caption, QComboBox CMBPRINTER, QLabel pctimage");
    }
}

} // namespace etiquetas::test
