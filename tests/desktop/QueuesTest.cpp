#include "tests/desktop/LabelPrograms.h"
#include "tests/desktop/PdfTools.h"
#include "tests/desktop/PrintServer.h"
#include "tests/desktop/SampleWindow.h"

#include <QtTest/QTest>
#include <gtest/gtest.h>

namespace etiquetas::test {

using Dots = QImage (*)(const QByteArray& text, const QSize& size);

/// A queue of a kind. A label printer's begins each page of a program with these bytes; others
/// get pages of PDF, on sheets of their own where they have no others.
struct Queue {
    QString name;
    QString driver;
    Dots dots = nullptr;
    QByteArray page_start;
    QSize sheet; // points
};

// clang-format off
static const std::vector<Queue> queues{
    {u"EPL2"_s, u"drv:///sample.drv/zebraep2.ppd"_s, eplDots, "\nN\n"},
    {u"EPL1"_s, u"drv:///sample.drv/zebraep1.ppd"_s, epl1Dots, "\x1BM01"},
    {u"CPCL"_s, u"drv:///sample.drv/zebracpl.ppd"_s, cpclDots, "! 0 "},
    {u"ZPL"_s, u"drv:///sample.drv/zebra.ppd"_s, zplDots, "~DGR:CUPS.GRF,"},
    {u"Expedição"_s, u"/usr/share/ppd/cupsfilters/Fuji_Xerox-DocuPrint_CM305_df-PDF.ppd"_s},
    {u"Folhas"_s, u"/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd"_s, nullptr, {}, {612, 792}},
    {u"Crua"_s, u"raw"_s},
};
// clang-format on

/// What came to a printer, or into a file.
struct Arrived {
    qsizetype pages = 0;
    QStringList symbols; // of the last page, column by column
};

// Each column is read by itself, so that a decoder has no choice between two.
static QStringList symbolsOf(const QImage& page, LabelKind kind) {
    const int column = kind == corrugado ? page.width() : page.width() * 2 / 7;
    return symbolsIn(page.copy(0, 0, column, page.height())) +
           symbolsIn(page.copy(column, 0, page.width() - column, page.height()));
}

class QueuesTest : public testing::Test, protected SampleWindow {
  protected:
    void SetUp() override {
        if (!server.isRunning()) {
            GTEST_SKIP() << "no print server can be started here";
        }
    }

    void choosePrinter(const QString& name) {
        const auto& list = worker.widget<QComboBox>(u"CMBPRINTER"_s);
        ASSERT_TRUE(QTest::qWaitFor([&] { return list.findText(name) >= 0; }));
        worker.choose(u"CMBPRINTER"_s, list.findText(name));
    }
    [[nodiscard]] QString printOn(const QString& printer, LabelKind kind) {
        load(kind, "1400050831");
        choosePrinter(printer);
        worker.click(u"cmd_printacessorio"_s);
        return worker.text(u"status_happened"_s);
    }
    [[nodiscard]] static Arrived inFile(const QString& pdf, LabelKind kind, const QSize& sheet) {
        const QSize label(450, kind == corrugado ? 450 : kind == frente_de_caixa ? 133 : 60);
        const auto sizes = pageSizes(pdf);
        EXPECT_EQ(sizes.at(0).toSize(), sheet.isEmpty() ? label : sheet);
        const auto last = static_cast<int>(sizes.size());
        const QImage image = renderedPage(pdf, last, 288, Tones::black_and_white);
        return {last, symbolsOf(image.copy(QRect({}, label * 4)), kind)};
    }
    [[nodiscard]] Arrived atPrinter(const Queue& queue, LabelKind kind) {
        const QByteArray bytes = server.printed(queue.name);
        if (queue.dots != nullptr) {
            const QSize strip(1269, 1269); // the largest page
            const QByteArray last = bytes.mid(bytes.lastIndexOf(queue.page_start));
            return {bytes.count(queue.page_start), symbolsOf(queue.dots(last, strip), kind)};
        }
        QFile file(folder.filePath(u"chegou.pdf"_s));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
        file.close();
        return inFile(file.fileName(), kind, queue.sheet);
    }

    PrintServer server;
};

class QueuesOfAKindTest : public QueuesTest, public testing::WithParamInterface<LabelKind> {};

TEST_P(QueuesOfAKindTest, bringEachLabelWholeToTheirPrinters) {
    const LabelKind kind = GetParam();
    for (const Queue& queue : queues) {
        server.addQueue(queue.name, queue.driver);
    }
    open();
    load(kind, "1400050831");
    choosePrinter(u"PDF"_s);
    const Arrived expected = inFile(writtenBy(u"cmd_printacessorio"_s), kind, {});
    for (const Queue& queue : queues) {
        SCOPED_TRACE(queue.name.toStdString());
        const QString told = printOn(queue.name, kind);
        EXPECT_TRUE(told.startsWith(u"Impresso em %1 (trabalho "_s.arg(queue.name)))
            << told.toStdString();
        const Arrived arrived = atPrinter(queue, kind);
        EXPECT_EQ(arrived.pages, expected.pages);
        EXPECT_EQ(arrived.symbols, expected.symbols) << arrived.symbols.join(u' ').toStdString();
    }
    EXPECT_EQ(server.filters(), QStringList(4, u"rastertolabel"_s) + QStringList(2, u"pdftopdf"_s))
        << "nothing draws the pages anew";
}

INSTANTIATE_TEST_SUITE_P(Kinds, QueuesOfAKindTest,
                         testing::Values(frente_de_caixa, corrugado, acessorio, oculta));

TEST_F(QueuesTest, tellWhereTheyAreStoppedRejectOrAreGone) {
    for (const QString& queue : {u"Crua"_s, u"EPL2"_s, u"ZPL"_s}) {
        server.addQueue(queue, u"raw"_s);
    }
    open();
    PrintServer::tell(u"/usr/sbin/cupsdisable"_s, {u"-r"_s, u"Sem fita"_s, u"Crua"_s});
    EXPECT_EQ(printOn(u"Crua"_s, oculta).toStdString(),
              "Em espera em Crua (trabalho 1): 28 etiquetas, 14 páginas · a fila está parada: "
              "Sem fita");
    EXPECT_EQ(PrintServer::jobs(u"Crua"_s), 1);

    PrintServer::tell(u"/usr/sbin/cupsreject"_s, {u"EPL2"_s});
    const QString rejected = printOn(u"EPL2"_s, oculta);
    EXPECT_TRUE(rejected.startsWith(u"Não impresso: "_s) &&
                rejected.contains(u"\"EPL2\" não aceitou o trabalho: "_s))
        << rejected.toStdString();
    EXPECT_EQ(PrintServer::jobs(u"EPL2"_s), 0);

    PrintServer::tell(u"/usr/sbin/lpadmin"_s, {u"-x"_s, u"ZPL"_s});
    const QString gone = printOn(u"ZPL"_s, oculta);
    EXPECT_TRUE(gone.startsWith(u"Não impresso: A impressora \"ZPL\" não está instalada."_s))
        << gone.toStdString();
}

} // namespace etiquetas::test
