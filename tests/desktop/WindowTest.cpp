#include "PdfTools.h"
#include "SampleWindow.h"
#include "desktop/machine/QtText.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWheelEvent>
#include <QtTest/QTest>
#include <gtest/gtest.h>

namespace etiquetas {

namespace {

using namespace test;
using namespace Qt::StringLiterals;

constexpr int oculta = 3; // position among the label kinds

constexpr const char* order_file =
    "BRISA KO;PEDIDO 77\r\n"
    "1;PRETO;33;;BOTA CANO CURTO;231045270100;3104527001;32;BK;A1\r\n"
    "2;PRETO;34;;BOTA CANO CURTO;2310452701010;3104527001;32;BK;A1\r\n"
    "3;AZUL;35;;TENIS;231045270200;3104527002;32;BK;A1\r\n";

class WindowTest : public testing::Test, protected SampleWindow {
  protected:
    WindowTest() {
        write(u"Varesko.ini"_s, "[MargemOcultaZebra]\r\nMargem_oculta1=3\r\nMargem_oculta11=45\r\n"
                                "Margem_oculta2=3\r\n");
        write(u"pedido 77 frente.txt"_s, order_file);
    }

    void write(const QString& name, const QByteArray& bytes) const {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    void loadOrder() {
        open();
        load(oculta, "77");
    }

    [[nodiscard]] QStringList jobs() const {
        return QDir(folder.filePath(u"impressos"_s)).entryList(QDir::Files | QDir::Hidden);
    }

    [[nodiscard]] QString onlyJob() const {
        const QStringList names = jobs();
        return names.size() == 1 ? folder.filePath(u"impressos/"_s + names.first()) : QString();
    }

    [[nodiscard]] std::vector<QString> boxTexts() {
        std::vector<QString> texts;
        for (const SeenBox& box : worker.takeBoxes()) {
            texts.push_back(box.text);
        }
        return texts;
    }
};

TEST_F(WindowTest, leadsThroughAnOrderByTheKeyboard) {
    loadOrder();
    EXPECT_EQ(worker.text(u"LBLBRISAKO"_s), u"BRISA KO"_s);
    EXPECT_EQ(worker.text(u"TXTOCULTAS"_s), u"6"_s);
    EXPECT_EQ(worker.focused(), u"cmb_referencia"_s);
    worker.press(Qt::Key_Return);
    EXPECT_EQ(worker.focused(), u"txtnumero_0"_s);
    worker.keys(u"-2x"_s); // replaces the selected 1; what is no digit is dropped
    worker.pressMnemonic(Qt::Key_I);
    // The quantity was totalled before the command ran, and the next item is there behind it.
    EXPECT_EQ(boxTexts(), std::vector{u"A Impressão está OK"_s});
    EXPECT_EQ(worker.text(u"txtcor"_s), u"AZUL"_s);
    EXPECT_EQ(worker.text(u"txtnumero_0"_s), u"3"_s);
    EXPECT_EQ(worker.widget<QComboBox>(u"cmb_referencia"_s).count(), 1);
    ASSERT_FALSE(onlyJob().isEmpty());
    EXPECT_EQ(pageSizes(onlyJob()), std::vector<QSizeF>(4, QSizeF(450, 60)));
    EXPECT_EQ(worker.focused(), u"cmd_printacessorio"_s);
    worker.press(Qt::Key_Return);
    EXPECT_EQ(jobs().size(), 2);
    EXPECT_TRUE(worker.text(u"cmb_referencia"_s).isEmpty());
}

TEST_F(WindowTest, runsALeavingEventThatShowsABoxOnce) {
    open();
    worker.type(u"txtarquivo"_s, u"999"_s);
    // The window shows what the fields hold while the box stands.
    bool white_again = false;
    worker.beforeAnswer([&] {
        const auto& field = worker.widget<QLineEdit>(u"txtarquivo"_s);
        white_again = field.palette().color(QPalette::Base) == Qt::white;
    });
    worker.press(Qt::Key_Tab);
    EXPECT_EQ(boxTexts(), std::vector{u"O Pedido 999, não foi localizado em "_s + folder.path()});
    EXPECT_TRUE(white_again);
    EXPECT_EQ(worker.focused(), u"cmb_referencia"_s);
    EXPECT_TRUE(worker.widget<QPushButton>(u"cmd_printacessorio"_s).isHidden());
}

TEST_F(WindowTest, doesNotPressACommandThatTheLeavingEventHides) {
    loadOrder();
    worker.type(u"txtarquivo"_s, u"999"_s);
    worker.pressMnemonic(Qt::Key_I);
    EXPECT_EQ(boxTexts().size(), 1);
    EXPECT_TRUE(jobs().isEmpty());
}

TEST_F(WindowTest, walksItsListsByArrowAndLoadsThemWhenTheyAreLeft) {
    loadOrder();
    worker.press(Qt::Key_Down);
    EXPECT_EQ(worker.text(u"cmb_referencia"_s), u"3104527 | TENIS | AZUL"_s);
    EXPECT_EQ(worker.text(u"txtcor"_s), u"PRETO"_s);
    worker.press(Qt::Key_Return);
    EXPECT_EQ(worker.text(u"txtcor"_s), u"AZUL"_s);
    worker.press(Qt::Key_Up);
    EXPECT_EQ(worker.focused(), u"cmb_referencia"_s);
    worker.type(u"cmb_referencia"_s, u"3104527 | TENIS | AZUL"_s);
    worker.press(Qt::Key_Tab);
    EXPECT_EQ(desktop->form().cmb_referencia.position, -1);
    EXPECT_EQ(worker.text(u"txtcor"_s), u"AZUL"_s);
}

TEST_F(WindowTest, changesAListByTheWheelOnlyWhileItHasTheFocus) {
    loadOrder();
    auto& kinds = worker.widget<QComboBox>(u"cmbtipo"_s);
    EXPECT_EQ(kinds.focusPolicy(), Qt::StrongFocus) << "a turn must not give it the focus";
    const auto turnWheel = [&] {
        QWheelEvent turn({5, 5}, kinds.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&kinds, &turn);
    };
    turnWheel();
    EXPECT_EQ(kinds.currentIndex(), oculta);
    worker.click(u"cmbtipo"_s);
    turnWheel();
    EXPECT_EQ(kinds.currentIndex(), oculta - 1);
}

TEST_F(WindowTest, filtersKeysAndComposedTexts) {
    loadOrder();
    worker.type(u"txtcor"_s, u"marrom"_s);
    QInputMethodEvent composed;
    composed.setCommitString(u"ç\u00E3"_s);
    QApplication::sendEvent(&worker.widget<QLineEdit>(u"txtcor"_s), &composed);
    EXPECT_EQ(worker.text(u"txtcor"_s), u"MARROMÇÃ"_s);
    worker.type(u"txtnumero_1"_s, u"1a2,3"_s);
    EXPECT_EQ(worker.text(u"txtnumero_1"_s), u"123"_s);
    worker.press(Qt::Key_Backspace);
    worker.press(Qt::Key_Home);
    worker.press(Qt::Key_Delete);
    EXPECT_EQ(worker.text(u"txtnumero_1"_s), u"2"_s);
    worker.click(u"txtnumero_0"_s);
    worker.click(u"txtnumero_1"_s);
    EXPECT_EQ(worker.widget<QLineEdit>(u"txtnumero_1"_s).selectedText(), u"2"_s);
    worker.click(u"txtbandeira"_s);
    worker.pressMnemonic(Qt::Key_X); // of no command
    EXPECT_EQ(worker.text(u"txtbandeira"_s), u"BK"_s);
}

TEST_F(WindowTest, takesTheTextsOfAnOrderAsTheyStand) {
    write(u"pedido 77 frente.txt"_s, "LUMIRA\r\n1;PRETO;<b>3;;" + QByteArray(40'000, 'A') +
                                         ";231045270100;3104527001;32;BK;A1\r\n");
    loadOrder();
    worker.press(Qt::Key_Return); // leaves the item list, which loads the item again
    EXPECT_EQ(worker.text(u"txtdescricao"_s).size(), 40'000);
    EXPECT_EQ(worker.text(u"TXTPARES"_s), u"1"_s);
    EXPECT_EQ(worker.widget<QLabel>(u"Label7_0"_s).textFormat(), Qt::PlainText);
}

TEST_F(WindowTest, pressesACommandOnceAndAnswersNoBoxByAKeyThatIsHeldDown) {
    loadOrder();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    auto& print = worker.widget<QPushButton>(u"cmd_printacessorio"_s);
    QApplication::sendEvent(&print, &held);
    EXPECT_TRUE(jobs().isEmpty());
    bool stands = false;
    worker.beforeAnswer([&] {
        QWidget* const box = QApplication::activeModalWidget();
        QApplication::sendEvent(box->focusWidget(), &held);
        stands = box->isVisible();
    });
    worker.click(u"cmd_printacessorio"_s);
    EXPECT_TRUE(stands);
}

TEST_F(WindowTest, opensItsOptionsByTheFrameAloneAndItsItemsAsTheyAreNow) {
    loadOrder();
    worker.doubleClick(u"LBLBRISAKO"_s);
    EXPECT_FALSE(desktop->form().Frame2.visible);
    worker.doubleClick(u"Frame4"_s);
    EXPECT_TRUE(desktop->form().Frame2.visible);
    write(u"pedido 78 frente.txt"_s, order_file);
    worker.type(u"txtarquivo"_s, u"78"_s);
    auto& items = worker.widget<QComboBox>(u"cmb_referencia"_s);
    QTest::mouseClick(&items, Qt::LeftButton, Qt::NoModifier, {items.width() - 8, 8});
    EXPECT_TRUE(settings().contains("arquivo=78")); // the order was loaded before its list opened
    EXPECT_TRUE(items.view()->isVisible());
    items.hidePopup();
}

TEST_F(WindowTest, keepsAJobOpenBehindAnErrorUntilTheNextOneEndsIt) {
    loadOrder();
    worker.type(u"txtcor"_s, u"verde"_s); // no line has it, so that no size has its codes
    worker.doubleClick(u"Frame4"_s);
    worker.click(u"cmd_printacessorio"_s); // draws the header strip
    EXPECT_EQ(boxTexts(), std::vector{u"Erro - 1012 - Código Master - Contate Suporte "_s});
    EXPECT_TRUE(jobs().isEmpty());
    worker.doubleClick(u"Frame4"_s);
    worker.type(u"txtcor"_s, u"preto"_s);
    worker.click(u"cmd_printacessorio"_s);
    ASSERT_FALSE(onlyJob().isEmpty());
    EXPECT_EQ(pageSizes(onlyJob()).size(), 4); // the strip, and three pages of labels
}

TEST_F(WindowTest, endsWithOneBoxAndWithoutItsOpenJobOnAnUnguardedFailure) {
    loadOrder();
    worker.type(u"txtcor"_s, u"verde"_s);
    worker.doubleClick(u"Frame4"_s);
    worker.click(u"cmd_printacessorio"_s);
    worker.takeBoxes();
    worker.type(u"txtlote"_s, u"99999"_s); // more than 16 bits hold
    worker.click(u"cmb_referencia"_s);
    worker.press(Qt::Key_Tab);
    EXPECT_EQ(boxTexts(),
              std::vector{u"Estouro: um número é grande demais.\n\nO programa será encerrado."_s});
    EXPECT_EQ(desktop->exitCode(), 1);
    // Nothing runs any more.
    worker.type(u"txtarquivo"_s, u"999"_s);
    worker.press(Qt::Key_Return);
    desktop->window().close();
    EXPECT_TRUE(boxTexts().empty());
    EXPECT_EQ(desktop->exitCode(), 1);
    EXPECT_TRUE(jobs().isEmpty());
}

TEST_F(WindowTest, storesItsFieldsOnlyWhenItIsLeftByItsCommand) {
    loadOrder();
    worker.doubleClick(u"Frame4"_s);
    worker.type(u"txtcliente"_s, u"calcados"_s);
    worker.click(u"cmd_sair"_s);
    EXPECT_EQ(desktop->exitCode(), 0);
    const QByteArray stored = settings();
    EXPECT_TRUE(stored.endsWith("[Config]\r\narquivo=77\r\nReferencia=CALCADOS\r\nLote=\r\n"
                                "Intensidade=\r\nVelocidade=\r\nTipo=Oculta\r\n"))
        << stored.toStdString();
    open();
    EXPECT_EQ(worker.text(u"txtcliente"_s), u"CALCADOS"_s);
    desktop->window().close();
    EXPECT_EQ(desktop->exitCode(), 0);
    EXPECT_EQ(settings(), stored);
}

} // namespace

} // namespace etiquetas
