#include "support/Cases.h"
#include "tests/desktop/PdfTools.h"
#include "tests/desktop/SampleWindow.h"

#include <QLineEdit>
#include <gtest/gtest.h>

#include <algorithm>

namespace etiquetas::test {

// A margin of the sample settings, changed in its dialog, and a text of the label that it moves.
struct Calibration {
    const char* name;
    LabelKind kind;
    QString dialog;
    QString field;
    QString stored;
    QString changed;
    QByteArray setting; // the line that is stored
    QString text;
    QPointF baseline; // of the text with the sample margins, millimetres
    QPointF shift;
};

static QPointF baseline(double left, double top, const QString& face, double points) {
    return {left, top + riseOf(face, points)};
}

static const QString calibri = u"Calibri"_s;
static const QString franklin = u"Franklin Gothic Medium"_s;

// clang-format off
static const std::vector<Calibration> calibrations{
    // name, kind, dialog, field, stored, changed, setting, text, baseline, shift
    {"hidden_left", oculta, u"FrmMargensOcultaZPL2"_s, u"txtmargem1"_s, u"3"_s, u"5,5"_s, "Margem_oculta1=5,5", u"527"_s, baseline(33.3, 2, calibri, 20), {2.5, 0}},
    {"accessory_right", acessorio, u"FrmMargensOcultaZPL2"_s, u"txtmargem2"_s, u"45"_s, u"44"_s, "Margem_oculta11=44", u"5201104"_s, baseline(50.5, 13.8, franklin, 5), {-1, 0}},
    {"box_front_top", frente_de_caixa, u"FrmMargensCxZPL45"_s, u"txtmargemsuperior"_s, u"3"_s, u"4,25"_s, "Mx4045=4,25", u"3104527001"_s, baseline(2.3, 21, franklin, 7), {0, 1.25}},
    {"carton_left", corrugado, u"FrmMargensPackZPL"_s, u"txtmargem1"_s, u"3"_s, u"10"_s, "PackX=10", u"3104527001"_s, baseline(58, 29.7, franklin, 20), {7, 0}},
};
// clang-format on

class DialogWindowTest : public testing::TestWithParam<Calibration>, protected SampleWindow {
  protected:
    DialogWindowTest() { open(); }

    void openDialog(const Calibration& calibration) {
        worker.turnTo(u"FrmPadrao"_s);
        worker.click(u"cmd_calibra"_s);
        worker.turnTo(calibration.dialog);
    }

    void change(const Calibration& calibration) {
        worker.type(calibration.field, QString(calibration.changed).replace(u',', u'.'));
    }

    [[nodiscard]] bool isOpen(const QString& name) {
        return std::ranges::any_of(desktop->dialogs(), [&name](const DialogWindow* dialog) {
            return dialog->objectName() == name && dialog->isVisible();
        });
    }

    // How far the text is from its place with the margins as they were, moved by a shift.
    static double apart(const QString& pdf, const Calibration& calibration, QPointF shift) {
        return distanceTo(pageTexts(pdf).at(0), calibration.text, calibration.baseline + shift);
    }
};

TEST_P(DialogWindowTest, testsAMarginWithoutStoringItAndStoresItForTheNextJob) {
    const Calibration& calibration = GetParam();
    const QString print = u"cmd_printacessorio"_s;
    load(calibration.kind, "1400050831");
    const QByteArray before = settings();
    openDialog(calibration);
    EXPECT_EQ(worker.text(calibration.field), calibration.stored);
    change(calibration);
    EXPECT_EQ(worker.text(calibration.field), calibration.changed) << "a point is a comma";
    EXPECT_LT(apart(writtenBy(u"cmd_teste"_s), calibration, calibration.shift), 0.1);
    EXPECT_EQ(settings(), before);

    worker.turnTo(u"FrmPadrao"_s);
    EXPECT_TRUE(isOpen(calibration.dialog)) << "the main window is usable beside it";
    EXPECT_LT(apart(writtenBy(print), calibration, {}), 0.1) << "the test is forgotten";
    EXPECT_FALSE(isOpen(calibration.dialog));

    load(calibration.kind, "1400050831");
    openDialog(calibration);
    EXPECT_EQ(worker.text(calibration.field), calibration.stored);
    change(calibration);
    worker.press(Qt::Key_Escape);
    EXPECT_FALSE(isOpen(calibration.dialog));
    EXPECT_EQ(settings(), before);
    openDialog(calibration);
    change(calibration);
    worker.click(u"cmd_gravar"_s);
    EXPECT_FALSE(isOpen(calibration.dialog));
    EXPECT_TRUE(settings().contains("\r\n" + calibration.setting + "\r\n"))
        << settings().toStdString();
    worker.turnTo(u"FrmPadrao"_s);
    EXPECT_LT(apart(writtenBy(print), calibration, calibration.shift), 0.1);
}

INSTANTIATE_TEST_SUITE_P(Margins, DialogWindowTest, testing::ValuesIn(calibrations), CaseName());

// The parts of a window that an operator works, and those that tell something, have names for
// screen readers.
static void expectSpoken(QAccessibleInterface& part) {
    static const QList<QAccessible::Role> told{QAccessible::EditableText, QAccessible::ComboBox,
                                               QAccessible::Button, QAccessible::Graphic};
    if (part.state().invisible) {
        return;
    }
    EXPECT_FALSE(told.contains(part.role()) && part.text(QAccessible::Name).isEmpty())
        << part.object()->objectName().toStdString();
    for (int i = 0; part.role() != QAccessible::ComboBox && i < part.childCount(); ++i) {
        if (QAccessibleInterface* const child = part.child(i)) {
            expectSpoken(*child);
        }
    }
}

TEST_F(DialogWindowTest, tellsScreenReadersTheNamesOfAllParts) {
    for (const LabelKind kind : {oculta, corrugado}) {
        load(kind, "1400050831");
        worker.press(Qt::Key_F2);
        expectSpoken(*QAccessible::queryAccessibleInterface(&desktop->window()));
    }
    worker.choose(u"CMBPRINTER"_s, worker.widget<QComboBox>(u"CMBPRINTER"_s).count() - 1);
    for (const QString& command : {u"cmd_printacessorio"_s, u"cmd_calibra"_s, u"cmd_parametro"_s}) {
        worker.turnTo(u"FrmPadrao"_s);
        worker.click(command);
    }
    expectSpoken(*QAccessible::queryAccessibleInterface(&desktop->preview()));
    for (DialogWindow* const dialog : desktop->dialogs()) {
        auto& spoken = *QAccessible::queryAccessibleInterface(dialog);
        EXPECT_EQ(spoken.role(), QAccessible::Dialog);
        expectSpoken(spoken);
    }
}

TEST_F(DialogWindowTest, leadsToTheFirstBlankMarginAndDropsWhatIsNoNumber) {
    load(oculta, "1400050831");
    openDialog(calibrations.front());
    EXPECT_EQ(worker.focused(), u"txtmargem1"_s);
    EXPECT_EQ(worker.widget<QLineEdit>(u"txtmargem1"_s).selectedText(), u"3"_s);
    worker.type(u"txtmargem2"_s, u"-1x2.5"_s);
    EXPECT_EQ(worker.text(u"txtmargem2"_s), u"-12,5"_s);
    worker.type(u"txtmargemsuperior"_s, u" "_s);
    worker.press(Qt::Key_Backspace);
    worker.click(u"cmd_teste"_s);
    EXPECT_EQ(boxTexts(), QStringList{u"Informe a Margem..."_s});
    EXPECT_EQ(worker.focused(), u"txtmargemsuperior"_s);
    worker.click(u"cmd_exit"_s);
    EXPECT_FALSE(isOpen(calibrations.front().dialog));
}

TEST_F(DialogWindowTest, keepsTheOrderFolderAndShowsStoredParametersOnce) {
    const QString path = u"TXTPATH"_s;
    const QString orders = folder.filePath(u"imagens"_s);
    worker.click(u"cmd_parametro"_s);
    worker.turnTo(u"FrmParametroImpressora"_s);
    worker.click(u"CMD_GETPATH"_s); // and cancel
    EXPECT_EQ(boxTexts(), QStringList{u"O Local Selecionado é Inválido..."_s});
    worker.willPick(orders);
    worker.click(u"CMD_GETPATH"_s);
    EXPECT_EQ(worker.text(path), orders);
    EXPECT_EQ(worker.widget<QLineEdit>(path).toolTip(), orders);
    worker.turnTo(u"FrmPadrao"_s);
    worker.click(u"cmd_parametro"_s); // to the front, as it is
    worker.turnTo(u"FrmParametroImpressora"_s);
    EXPECT_EQ(worker.text(path), orders);
    worker.click(u"cmd_grava"_s);
    EXPECT_FALSE(isOpen(u"FrmParametroImpressora"_s));
    EXPECT_TRUE(settings().contains("Path=" + orders.toUtf8() + "\r\n"));
    worker.turnTo(u"FrmPadrao"_s);
    load(oculta, "1400050831");
    const QString not_found = u"O Pedido 1400050831, não foi localizado em "_s + orders;
    // Searched by leaving the kind, by Enter, and by leaving the order number.
    EXPECT_EQ(boxTexts(), QStringList(3, not_found));
    worker.click(u"cmd_parametro"_s);
    worker.turnTo(u"FrmParametroImpressora"_s);
    EXPECT_EQ(worker.text(path), QString());
}

} // namespace etiquetas::test
