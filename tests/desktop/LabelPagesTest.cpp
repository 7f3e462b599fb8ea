#include "PdfTools.h"
#include "SampleWindow.h"

#include <QComboBox>
#include <gtest/gtest.h>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

// What a job must hold. A text of its first page stands as its face ("c" Calibri, "f" Franklin
// Gothic, "m" Malgun Gothic) and size in points, its top-left corner in millimetres, and itself;
// "!" marks one that the second column has not got.
struct Job {
    const char* name;
    int kind; // position in the list
    const char* order;
    QSizeF page; // points
    std::size_t pages;
    double columns_apart; // millimetres, 0 where there is one column
    QString texts;
    QStringList symbols;
};

static void PrintTo(const Job& job, std::ostream* out) {
    *out << job.name;
}

constexpr double columns_40x20 = 45 - 3;

// Edges that are reckoned with text widths come from the advances of the fonts: "99" in Carlito
// bold 9 is 3.218 mm wide, "139," in 30 18.821, "R$" in Open Sans bold 6.818 2.961, "À VISTA" in
// Liberation Sans 6 8.116 mm. On the carton "12" in Liberation Sans bold 25 is 9.81 mm wide. The
// first row of the size run is 68.27 mm in 24, and so shrinks to 21: 59.73 mm, and 35.01 for the
// second. The description shrinks to 13.1.
// clang-format off
static const std::vector<Job> jobs{
    {"hidden", 3, "1400050831", {450, 60}, 14, columns_40x20 + 5 - 2.3,
     u"c20 33.3 2 527; f6 23.6 10.5 3104527001; f6 19.5 16.8 231045; f6 30.7 16.8 2701003; "
     "c26 6.3 10 33; f6 5.8 3.2 TÊNIS CASUAL FEMININO; f6 5.8 5.4 CANO BAIXO; f6 5.8 7.7 CAFÉ"_s,
     {u"2310452701003"_s, u"2310452701003"_s}},
    {"box_front_with_price", 0, "1400050831", {450, 133}, 7, 40,
     u"c8 17 32.4 32/26; c16 30 30 A1; f12 30 2.7 527; c30 17.361 9.7 139,; c9 35.982 12 99; "
     "m7 13.15 16.4 R$; f6 4.384 17.4 À VISTA; f7 35 21.7 BK; f7 2.3 21 3104527001; "
     "f7 2.3 24 TÊNIS CASUAL FEMININO C; f7 2.3 27 ANO BAIXO; f7 2.3 30 CAFÉ; !c32 1.6 34 33; "
     "c7 15.8 42.5 231045; !c7 27.2 42.5 2701003"_s,
     {u"2310452701003"_s, u"2310452701010"_s}},
    {"box_front_without_price", 0, "1500031860", {450, 133}, 3, 40,
     u"f30 20 0.5 017; f7 2.3 24 TAMANCO SOLADO DE COR; f7 2.3 27 TIÇA; c8 17 32.4 36; "
     "!c32 1.6 34 35"_s,
     {u"2310901701004"_s, u"2310901701011"_s}},
    {"accessory_of_two_lines", 2, "1400050831", {450, 60}, 6, columns_40x20 - 1.5 + 4.8,
     u"c24 25.456 1.9 159,; c12 39.412 3.3 90; m7 22.445 6.9 R$; f6 13.679 7.55 À VISTA; "
     "f5 5.2 10.2 BOLSA TRANSVERSAL ALÇA DUPLA; f5 5.2 12 MATELASSÊ CAFÉ; f5 5.2 13.8 5201104; "
     "f5 16.9 13.8 BK; f5 21.4 13.8 32/26; f5 7.7 19.1 045201; f5 19.4 19.1 104100; "
     "f14 35.7 12.1 A1; f8 33.6 17.5 104"_s,
     {u"0452011041006"_s, u"0452011041006"_s}},
    {"accessory_of_one_line", 2, "1500031742", {450, 60}, 1, columns_40x20 - 1.5 + 4.8,
     u"f5 5.2 10.2 CINTO FIVELA FORRADA PRETO; f5 5.2 12.3 5203038; f5 16.9 12.4 LU; "
     "f5 21.4 12.3 34/26; f5 7.7 18.6 045203; f5 19.4 18.8 038000"_s,
     {u"0452030380001"_s, u"0452030380001"_s}},
    {"carton", 1, "1400050831", {450, 450}, 12, 0,
     u"f14 37 8 CD - DESTINO; f18 37 14.7 PEDRA MANSA; f16 17 24 PEDIDO; f16 58 24 Cód. Master; "
     "f20 7.5 29.7 1400050831; f20 58 29.7 3104527001; f16 29 37.4 FORNECEDOR; "
     "f20 18 42.7 CALÇADOS UMBAÍRA; f16 5 53 NOTA FISCAL:; f14 39 65.5 Descrição; "
     "f13.1 4.5 71.4 TÊNIS CASUAL; f14 5 77.5 COR; f16 5 82.7 CAFÉ; f14 67.5 77.5 CÓDIGO; "
     "f11 67.5 84 2310452701997; f16 80 113 TOTAL; f25 86.19 120 12; "
     "f21 8.133 111 33 34 35 36 37 38; f21 20.494 120 1 2 3 3 2 1; f18 5 133 Volume:; "
     "f16 33 133 01/12; f18 53 133 Semana:; f18 78 133 32/26"_s,
     {u"2310452701997"_s}},
    {"box_front_with_photograph", -1, "1400050831", {283, 113}, 14, 0,
     u"f11 5 5 TÊNIS CASUAL FEMININO; f11 5 10 CANO BAIXO CAFÉ; f26 83 3.5 527; f26 34 28 33; "
     "f14 70 16.5 139,99; f10 63 22.2 COD: 3104527; f9.5 51 35 2; f9.5 60 35 310452; "
     "f9.5 80 35 701003"_s,
     {u"2310452701003"_s}},
};
// clang-format on

// Where the baseline of a text begins below its top, for the stand-in of its face: the Windows
// ascents of Carlito, Liberation Sans and Open Sans Light.
static double rise(QChar face, double points) {
    const double ascent = face == u'c' ? 1950 : face == u'f' ? 1854 : 0.974 * 2189;
    return ascent / 2048 * points * 25.4 / 72;
}

static void expectTexts(const std::vector<PdfText>& page, const Job& job) {
    for (QString row : job.texts.split(u"; "_s)) {
        SCOPED_TRACE(row.toStdString());
        const bool in_first_column_only = row.startsWith(u'!');
        row = row.mid(in_first_column_only ? 1 : 0);
        const QString text = row.section(u' ', 3);
        const double points = row.section(u' ', 0, 0).mid(1).toDouble();
        const QPointF baseline(row.section(u' ', 1, 1).toDouble(),
                               row.section(u' ', 2, 2).toDouble() + rise(row.front(), points));
        EXPECT_LT(distanceTo(page, text, baseline), 0.1);
        if (job.columns_apart > 0 && !in_first_column_only) {
            EXPECT_LT(distanceTo(page, text, baseline + QPointF(job.columns_apart, 0)), 0.1);
        }
    }
}

class LabelPagesTest : public testing::TestWithParam<Job>, protected SampleWindow {
  protected:
    LabelPagesTest() { open(); }
};

// The symbols of a page, the left one first. Each column is read by itself, so that a decoder has
// no choice between two.
static QStringList symbolsOf(const QImage& page, const Job& job) {
    if (job.columns_apart == 0) {
        return symbolsIn(page);
    }
    const int column = page.width() * 2 / 7; // 45 mm, between the symbols of all strips
    return symbolsIn(page.copy(0, 0, column, page.height())) +
           symbolsIn(page.copy(column, 0, page.width() - column, page.height()));
}

TEST_P(LabelPagesTest, hasEachTextWithinATenthOfAMillimetreAndBarsThatScan) {
    const Job& job = GetParam();
    load(std::max(job.kind, 0), job.order);
    if (job.kind < 0) {
        // The list does not offer it, and leaving the list with it would hide the command.
        worker.widget<QComboBox>(u"cmbtipo"_s).setEditText(u"Frente de Caixa100x40"_s);
    }
    const QString pdf = writtenBy(u"cmd_printacessorio"_s);
    EXPECT_EQ(pageSizes(pdf), std::vector<QSizeF>(job.pages, job.page));
    expectTexts(pageTexts(pdf).at(0), job);
    for (const int resolution : {203, 300, 600}) {
        EXPECT_EQ(symbolsOf(renderedPage(pdf, 1, resolution, Tones::black_and_white), job),
                  job.symbols)
            << resolution << " dpi";
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, LabelPagesTest, testing::ValuesIn(jobs),
                         [](const auto& job) { return job.param.name; });

TEST_F(LabelPagesTest, drawsAtMostTwelveCharactersOfACartonCodeWithoutEan) {
    load(1, "1400081124"); // its first line has no EAN
    worker.type(u"txtprepack"_s, u"2310452701997"_s);
    const QString pdf = writtenBy(u"cmd_printacessorio"_s);
    for (const int resolution : {203, 300, 600}) {
        EXPECT_EQ(symbolsIn(renderedPage(pdf, 1, resolution, Tones::black_and_white)),
                  QStringList{u"231045270199"_s})
            << resolution << " dpi";
    }
}

} // namespace etiquetas::test
