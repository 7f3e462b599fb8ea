#include "desktop/preview/PreviewWindow.h"

#include "desktop/preview/HeadImage.h"
#include "desktop/preview/PageView.h"
#include "desktop/printing/JobPulse.h"
#include "desktop/printing/PrintJob.h"
#include "support/Cases.h"
#include "tests/desktop/PdfTools.h"
#include "tests/desktop/windows/SmallOrderTest.h"

#include <cmath>

namespace etiquetas::test {

class PreviewWindowTest : public SmallOrderTest {
  protected:
    void choosePreview() {
        worker.choose(u"CMBPRINTER"_s, worker.widget<QComboBox>(u"CMBPRINTER"_s).count() - 1);
    }

    [[nodiscard]] PreviewWindow& preview() { return desktop->preview(); }

    template <typename Widget>
    [[nodiscard]] Widget& part(const QString& name) {
        return *preview().findChild<Widget*>(name);
    }
};

TEST_F(PreviewWindowTest, takesAJobAndPrintsItsPagesAgain) {
    loadOrder();
    choosePreview();
    worker.click(u"cmd_printacessorio"_s);
    EXPECT_EQ(boxTexts(), QStringList{u"A Impressão está OK"_s});
    EXPECT_EQ(worker.text(u"status_happened"_s), u"Na pré-visualização: 6 etiquetas, 3 páginas"_s);
    EXPECT_TRUE(preview().isVisible());
    EXPECT_EQ(part<QLabel>(u"page_number"_s).text(), u"Página 1 de 3 · 6 etiquetas"_s);
    part<QToolButton>(u"last_page"_s).click();
    EXPECT_EQ(part<QLabel>(u"page_number"_s).text(), u"Página 3 de 3 · 6 etiquetas"_s);
    EXPECT_FALSE(part<QToolButton>(u"next_page"_s).isEnabled());
    EXPECT_TRUE(jobs().isEmpty());
    auto* const printers = preview().findChild<QMenu*>();
    emit printers->aboutToShow();
    printers->actions().last()->trigger(); // "PDF"
    ASSERT_EQ(jobs().size(), 1);
    EXPECT_EQ(pageSizes(jobs().first()), std::vector<QSizeF>(3, QSizeF(450, 60)));
    EXPECT_TRUE(worker.text(u"status_happened"_s).startsWith(u"Gravado em "_s));
}

TEST_F(PreviewWindowTest, takesTestPrints) {
    loadOrder();
    choosePreview();
    worker.click(u"cmd_calibra"_s);
    worker.turnTo(u"FrmMargensOcultaZPL2"_s);
    worker.click(u"cmd_teste"_s);
    ASSERT_NE(preview().job().pages, nullptr);
    EXPECT_EQ(labelsOn(*preview().job().pages), 2U);
    EXPECT_EQ(preview().job().title, u"Teste Oculta 77 3104527 BOTA CANO CURTO PRETO"_s);
}

struct Shown {
    const char* name;
    LabelKind kind;
};

class ShownLabelTest : public PreviewWindowTest, public testing::WithParamInterface<Shown> {
  protected:
    // Mean distance of two pictures of a page, from 0 to 255. Their sizes may differ by a pixel.
    static double meanDistance(const QImage& one, const QImage& other) {
        const QSize size = one.size().boundedTo(other.size());
        double sum = 0;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                sum += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
            }
        }
        return sum / (size.width() * size.height());
    }

    // Renderers differ in the dots along the edges of letters and pictures, which are a smaller
    // part of a page the finer it is, and poppler strews dots over the white of a logo of one bit:
    // of all kinds 8.5 is the most at 150 and 203 dots to the inch, 8.2 at 300 and 6.8 at 600. A
    // page of one strip that is half a dot off has 13 and more at 150.
    static void expectAlike(const QImage& one, const QImage& other, int resolution) {
        const double edges = resolution == 600 ? 7 : resolution == 300 ? 8.5 : 9;
        EXPECT_LT(meanDistance(one, other), edges) << resolution;
    }

    // What the window shows of a page at a resolution.
    [[nodiscard]] QImage shownPage(int resolution) {
        preview().resize(2000, 2000);
        QCoreApplication::processEvents();
        auto& view = part<PageView>(u"page_view"_s);
        view.zoomTo(1);
        const double dots = view.pagePlace().width() / sizeOf(preview().job().pages->at(0)).width();
        view.zoomTo(resolution / millimetres_per_inch / dots);
        return view.viewport()->grab(view.pagePlace().toAlignedRect()).toImage();
    }
};

TEST_P(ShownLabelTest, isAsTheFileHasItAndAsTheHeadBurnsIt) {
    open();
    load(GetParam().kind, "1400050831");
    choosePreview();
    worker.click(u"cmd_printacessorio"_s);
    const LabelPages& pages = *preview().job().pages;
    const QString pdf = folder.filePath(u"pages.pdf"_s);
    JobPulse pulse;
    PrintJob({.name = pdf, .device = Device::pdf_file}, pulse, pages).write(pdf);
    const QImage shown = shownPage(150);
    expectAlike(shown, renderedPage(pdf, 1, 150, Tones::colours), 150);
    QApplication::setPalette(QPalette(QColor(50, 50, 53), QColor(37, 37, 38)));
    const QRect within = shown.rect().adjusted(2, 2, -2, -2);
    EXPECT_TRUE(shownPage(150).copy(within) == shown.copy(within)) << "a dark desktop";
    QApplication::setPalette(QPalette());
    for (const int resolution : {203, 300, 600}) {
        const QImage burnt = headImage(pages.front(), resolution);
        const QImage file = renderedPage(pdf, 1, resolution, Tones::black_and_white);
        expectAlike(burnt, file, resolution);
        EXPECT_EQ(symbolsIn(burnt), symbolsIn(file)) << resolution;
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, ShownLabelTest,
                         testing::Values(Shown{"box_front", frente_de_caixa},
                                         Shown{"carton", corrugado}, Shown{"accessory", acessorio},
                                         Shown{"hidden", oculta}),
                         CaseName());

} // namespace etiquetas::test
