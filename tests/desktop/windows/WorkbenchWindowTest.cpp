#include "SmallOrderTest.h"
#include "support/Golden.h"
#include "tests/desktop/PdfTools.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class WorkbenchWindowTest : public SmallOrderTest {
  protected:
    // The fields that the Tab key leads to, from the order number back to it.
    [[nodiscard]] std::vector<std::string> tabbedFields() {
        const std::string start = "txtarquivo";
        std::vector<std::string> names{start};
        worker.click(QString::fromStdString(start));
        do {
            worker.press(Qt::Key_Tab);
            names.push_back(worker.focused().toStdString());
        } while (names.back() != start && names.size() < 100);
        return names;
    }

    // What a screen reader tells of a field.
    [[nodiscard]] QString spokenName(const QString& field) const {
        return QAccessible::queryAccessibleInterface(&worker.widget<QWidget>(field))
            ->text(QAccessible::Name);
    }
};

TEST_F(WorkbenchWindowTest, leadsThroughAnOrderByTheKeyboard) {
    loadOrder();
    EXPECT_EQ(worker.text(u"LBLBRISAKO"_s), u"BRISA KO"_s);
    EXPECT_EQ(worker.text(u"TXTOCULTAS"_s), u"6"_s);
    EXPECT_EQ(worker.focused(), u"cmb_referencia"_s);
    worker.press(Qt::Key_Return);
    EXPECT_EQ(worker.focused(), u"txtnumero_0"_s);
    worker.keys(u"-2x"_s); // replaces the selected 1; what is no digit is dropped
    worker.pressMnemonic(Qt::Key_I);
    // The quantity was totalled before the command ran, and the next item is there after it.
    EXPECT_EQ(boxTexts(), QStringList{u"A Impressão está OK"_s});
    EXPECT_EQ(worker.text(u"txtcor"_s), u"AZUL"_s);
    EXPECT_EQ(worker.text(u"txtnumero_0"_s), u"3"_s);
    EXPECT_EQ(worker.widget<QComboBox>(u"cmb_referencia"_s).count(), 1);
    ASSERT_EQ(jobs().size(), 1);
    EXPECT_EQ(pageSizes(jobs().first()), std::vector<QSizeF>(4, QSizeF(450, 60)));
    EXPECT_EQ(worker.focused(), u"cmd_printacessorio"_s);
    worker.press(Qt::Key_Return);
    EXPECT_EQ(jobs().size(), 2);
    EXPECT_TRUE(worker.text(u"cmb_referencia"_s).isEmpty());
}

TEST_F(WorkbenchWindowTest, leadsByTabThroughThePanelsOfItsItemsWhichShowInTheSamePlace) {
    loadOrder();
    const QRect place = worker.widget<QWidget>(u"Frame1"_s).geometry();
    worker.doubleClick(u"Frame4"_s);
    EXPECT_TRUE(matchesGolden(tabbedFields(), "tab_order_item"));
    worker.doubleClick(u"Frame4"_s);
    load(corrugado, "1400050831");
    EXPECT_TRUE(matchesGolden(tabbedFields(), "tab_order_carton"));
    EXPECT_EQ(worker.widget<QWidget>(u"Frame3"_s).geometry(), place);
    EXPECT_TRUE(worker.widget<QWidget>(u"Frame1"_s).isHidden());
}

TEST_F(WorkbenchWindowTest, tellsScreenReadersTheCaptionsThatStandBesideItsFields) {
    loadOrder();
    EXPECT_EQ(spokenName(u"txtcor"_s), u"Cor"_s);
    EXPECT_EQ(spokenName(u"TXTPARES"_s), u"Total de Pares"_s);
    EXPECT_EQ(spokenName(u"txtean"_s), u"Código EAN"_s);
    load(acessorio, "1400050831");
    EXPECT_EQ(spokenName(u"TXTPARES"_s), u"Total de Itens"_s);
}

TEST_F(WorkbenchWindowTest, standsUnderTheBoxesOfItsStart) {
    QFile::remove(folder.filePath(u"lumira.jpg"_s));
    QWidget* stands_over = nullptr;
    worker.beforeAnswer([&] {
        const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        stands_over = box->parentWidget();
        EXPECT_EQ(box->buttons().size(), 1);
    });
    open();
    EXPECT_EQ(stands_over, &desktop->window());
}

TEST_F(WorkbenchWindowTest, takesTheTextsOfAnOrderAsTheyStand) {
    write(u"pedido 77 frente.txt"_s, "LUMIRA\r\n1;PRETO;<b>3;;" + QByteArray(40'000, 'A') +
                                         ";231045270100;3104527001;32;BK;A1\r\n");
    loadOrder();
    worker.press(Qt::Key_Return); // leaves the item list, which loads the item again
    EXPECT_EQ(worker.text(u"txtdescricao"_s).size(), 40'000);
    EXPECT_EQ(worker.text(u"TXTPARES"_s), u"1"_s);
    EXPECT_EQ(worker.widget<QLabel>(u"Label7_0"_s).textFormat(), Qt::PlainText);
}

TEST_F(WorkbenchWindowTest, keepsAJobOpenAfterAnErrorUntilTheNextOneEndsIt) {
    loadOrder();
    worker.type(u"txtcor"_s, u"verde"_s); // no line has it, so that no size has its codes
    worker.doubleClick(u"Frame4"_s);
    worker.click(u"cmd_printacessorio"_s); // draws the header strip
    EXPECT_EQ(boxTexts(), QStringList{u"Erro - 1012 - Código Master - Contate Suporte "_s});
    EXPECT_TRUE(jobs().isEmpty());
    worker.doubleClick(u"Frame4"_s);
    worker.type(u"txtcor"_s, u"preto"_s);
    worker.click(u"cmd_printacessorio"_s);
    ASSERT_EQ(jobs().size(), 1);
    EXPECT_EQ(pageSizes(jobs().first()).size(), 4); // the strip, and three pages of labels
}

TEST_F(WorkbenchWindowTest, storesItsFieldsOnlyWhenItIsLeftByItsCommand) {
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

} // namespace etiquetas::test
