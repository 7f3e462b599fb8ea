#include "support/Cases.h"
#include "tests/desktop/DriverlessPrinters.h"
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
    QSize own_sheet;              // points
    bool has_other_sheets = true; // of any size
};

// clang-format off
static const std::vector<Queue> queues{
    {u"EPL2"_s, u"drv:///sample.drv/zebraep2.ppd"_s, eplDots, "\nN\n"},
    {u"EPL1"_s, u"drv:///sample.drv/zebraep1.ppd"_s, epl1Dots, "\x1BM01"},
    {u"CPCL"_s, u"drv:///sample.drv/zebracpl.ppd"_s, cpclDots, "! 0 "},
    {u"ZPL"_s, u"drv:///sample.drv/zebra.ppd"_s, zplDots, "~DGR:CUPS.GRF,"},
    {u"Expedição"_s, u"/usr/share/ppd/cupsfilters/Fuji_Xerox-DocuPrint_CM305_df-PDF.ppd"_s, nullptr, {}, {595, 842}},
    {u"Folhas"_s, u"/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd"_s, nullptr, {}, {612, 792}, false},
    {u"Crua"_s, u"raw"_s, nullptr, {}, {283, 113}},
};

/// Labels of a kind, on the first order that has some.
struct Labels {
    const char* name;
    LabelKind listed;
    QSize page;             // points
    QString typed_kind;     // that the list does not offer, typed instead
    bool own_sheet = false; // on the queue's
};

static const std::vector<Labels> labels_of_all_kinds{
    {"box_front", frente_de_caixa, {450, 133}},
    {"carton", corrugado, {450, 450}},
    {"accessory", acessorio, {450, 60}},
    {"hidden", oculta, {450, 60}},
    {"photograph", frente_de_caixa, {283, 113}, u"Frente de Caixa100x40"_s, true},
};
// clang-format on

/// What came to a printer, or into a file.
struct Arrived {
    qsizetype pages = 0;
    QStringList symbols; // of the last page, column by column
};

// Each of two columns is read by itself, so that a decoder has no choice between two.
static QStringList symbolsOf(const QImage& page, const Labels& labels) {
    if (labels.listed == corrugado || labels.own_sheet) {
        return symbolsIn(page);
    }
    const int column = page.width() * 2 / 7;
    return symbolsIn(page.copy(0, 0, column, page.height())) +
           symbolsIn(page.copy(column, 0, page.width() - column, page.height()));
}

static constexpr QSize strip{1269, 1269}; // dots of the largest page

class QueuesTest : public testing::Test, protected SampleWindow {
  protected:
    void SetUp() override {
        if (!server.isRunning()) {
            GTEST_SKIP() << "no print server can be started here";
        }
    }

    void loadLabels(const Labels& labels) {
        load(labels.listed, "1400050831");
        if (!labels.typed_kind.isEmpty()) {
            worker.widget<QComboBox>(u"cmbtipo"_s).setEditText(labels.typed_kind);
        }
    }
    void choosePrinter(const QString& name) {
        const auto& list = worker.widget<QComboBox>(u"CMBPRINTER"_s);
        ASSERT_TRUE(QTest::qWaitFor([&] { return list.findText(name) >= 0; }));
        worker.choose(u"CMBPRINTER"_s, list.findText(name));
    }
    [[nodiscard]] QString printOn(const QString& printer, const Labels& labels) {
        choosePrinter(printer);
        loadLabels(labels);
        worker.click(u"cmd_printacessorio"_s);
        return worker.text(u"status_happened"_s);
    }
    [[nodiscard]] static Arrived inFile(const QString& pdf, const Labels& labels,
                                        const QSize& sheet) {
        const auto sizes = pageSizes(pdf);
        EXPECT_EQ(sizes.at(0).toSize(), sheet);
        const auto last = static_cast<int>(sizes.size());
        const QImage image = renderedPage(pdf, last, 288, Tones::black_and_white);
        return {last, symbolsOf(image.copy(QRect({}, labels.page * 4)), labels)};
    }
    [[nodiscard]] Arrived atPrinter(const Queue& queue, const Labels& labels) {
        const QByteArray bytes = server.printed(queue.name);
        if (queue.dots != nullptr) {
            const QByteArray last = bytes.mid(bytes.lastIndexOf(queue.page_start));
            return {bytes.count(queue.page_start), symbolsOf(queue.dots(last, strip), labels)};
        }
        QFile file(folder.filePath(u"chegou.pdf"_s));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
        file.close();
        const bool own_sheet = labels.own_sheet || !queue.has_other_sheets;
        return inFile(file.fileName(), labels, own_sheet ? queue.own_sheet : labels.page);
    }
    [[nodiscard]] Arrived onPdfDevice(const Labels& labels) {
        choosePrinter(u"PDF"_s);
        loadLabels(labels);
        const QString file = writtenBy(u"cmd_printacessorio"_s);
        Arrived arrived = inFile(file, labels, labels.page);
        QFile::remove(file);
        return arrived;
    }
    static void expectEqual(const Arrived& arrived, const Arrived& expected) {
        EXPECT_EQ(arrived.pages, expected.pages);
        EXPECT_FALSE(arrived.symbols.isEmpty());
        EXPECT_EQ(arrived.symbols, expected.symbols) << arrived.symbols.join(u' ').toStdString();
    }

    PrintServer server;
};

class QueuesOfAKindTest : public QueuesTest, public testing::WithParamInterface<Labels> {};

TEST_P(QueuesOfAKindTest, bringEachLabelWholeToTheirPrinters) {
    for (const Queue& queue : queues) {
        server.addQueue(queue.name, queue.driver);
    }
    open();
    const Arrived expected = onPdfDevice(GetParam());
    for (const Queue& queue : queues) {
        SCOPED_TRACE(queue.name.toStdString());
        const QString told = printOn(queue.name, GetParam());
        EXPECT_TRUE(told.startsWith(u"Impresso em %1 (trabalho "_s.arg(queue.name)))
            << told.toStdString();
        expectEqual(atPrinter(queue, GetParam()), expected);
    }
    EXPECT_EQ(server.filters(), QStringList(4, u"rastertolabel"_s) + QStringList(2, u"pdftopdf"_s))
        << "nothing draws the pages anew";
}

INSTANTIATE_TEST_SUITE_P(Kinds, QueuesOfAKindTest, testing::ValuesIn(labels_of_all_kinds),
                         CaseName());

/// A form in which printers without a driver take pages.
struct DriverlessForm {
    QString queue;
    QString attributes;
};

TEST_F(QueuesTest, bringEachLabelWholeToPrintersWithoutADriver) {
    const std::vector<DriverlessForm> forms{
        {u"Rolo"_s, u"ATTR mimeMediaType document-format-supported image/pwg-raster\n"
                    "ATTR resolution pwg-raster-document-resolution-supported 203dpi\n"
                    "ATTR keyword pwg-raster-document-type-supported black_1\n"_s},
        {u"Bobina"_s, u"ATTR keyword urf-supported V1.4,CP1,RS203,W8\n"_s},
    };
    DriverlessPrinters printers;
    if (!printers.canStart()) {
        GTEST_SKIP() << "no printer without a driver can be started here";
    }
    for (const DriverlessForm& form : forms) {
        server.addQueue(form.queue, printers, form.attributes);
    }
    for (const Labels& labels : labels_of_all_kinds) {
        open();
        const Arrived expected = onPdfDevice(labels);
        for (const DriverlessForm& form : forms) {
            SCOPED_TRACE(labels.name + (" on " + form.queue).toStdString());
            const QString told = printOn(form.queue, labels);
            EXPECT_TRUE(told.startsWith(u"Impresso em "_s)) << told.toStdString();
            const auto pages = rasterPages(server.printed(form.queue), strip);
            ASSERT_FALSE(pages.empty());
            expectEqual({std::ssize(pages), symbolsOf(pages.back(), labels)}, expected);
        }
    }
    EXPECT_EQ(server.filters(), QStringList()) << "nothing draws the pages anew";
}

TEST_F(QueuesTest, tellWhereTheyAreStoppedRejectOrAreGone) {
    for (const QString& queue : {u"Crua"_s, u"EPL2"_s, u"ZPL"_s}) {
        server.addQueue(queue, u"raw"_s);
    }
    open();
    const Labels hidden{"hidden", oculta, {}, {}};
    PrintServer::tell(u"/usr/sbin/cupsdisable"_s, {u"-r"_s, u"Sem fita"_s, u"Crua"_s});
    EXPECT_EQ(printOn(u"Crua"_s, hidden).toStdString(),
              "Em espera em Crua (trabalho 1): 28 etiquetas, 14 páginas · a fila está parada: "
              "Sem fita");
    EXPECT_EQ(PrintServer::jobs(u"Crua"_s), 1);

    PrintServer::tell(u"/usr/sbin/cupsreject"_s, {u"EPL2"_s});
    const QString rejected = printOn(u"EPL2"_s, hidden);
    EXPECT_TRUE(rejected.startsWith(u"Não impresso: "_s) &&
                rejected.contains(u"\"EPL2\" não aceitou o trabalho: "_s))
        << rejected.toStdString();
    EXPECT_EQ(PrintServer::jobs(u"EPL2"_s), 0);

    PrintServer::tell(u"/usr/sbin/lpadmin"_s, {u"-x"_s, u"ZPL"_s});
    const QString gone = printOn(u"ZPL"_s, hidden);
    EXPECT_TRUE(gone.startsWith(u"Não impresso: A impressora \"ZPL\" não está instalada."_s))
        << gone.toStdString();
}

} // namespace etiquetas::test
