#include "PdfTools.h"
#include "SampleWindow.h"

#include <QComboBox>
#include <gtest/gtest.h>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

// A face as its stand-in draws it: the Windows ascent in parts of the size.
constexpr double calibri = 1950.0 / 2048;        // Carlito
constexpr double franklin = 1854.0 / 2048;       // Liberation Sans
constexpr double malgun = 0.974 * 2189.0 / 2048; // Open Sans Light

// A text in the first column: the top-left corner in millimetres, and its font.
struct Expected {
    QString text;
    double x;
    double y;
    double points;
    double ascent;
    bool in_both_columns = true;
};

struct Job {
    const char* name;
    int kind; // position in the list
    const char* kind_text;
    const char* order;
    QSizeF page; // points
    std::size_t pages;
    double columns_apart; // 0 where there is one
    std::vector<Expected> texts;
    QStringList symbols;
};

static void PrintTo(const Job& job, std::ostream* out) {
    *out << job.name;
}

// Edges that are reckoned with text widths come from the advances of the fonts: "99" in Carlito
// bold 9 is 3.218 mm wide, "139," in 30 18.821, "R$" in Open Sans Light 6.818 2.802, "À VISTA" in
// Liberation Sans 6 8.116 mm.
static const std::vector<Job> jobs{
    {"hidden",
     3,
     nullptr,
     "1400050831",
     {450, 60},
     14,
     45 + 5 - 3 - 2.3,
     {{u"527"_s, 33.3, 2, 20, calibri},
      {u"3104527001"_s, 23.6, 10.5, 6, franklin},
      {u"231045"_s, 19.5, 16.8, 6, franklin},
      {u"2701003"_s, 30.7, 16.8, 6, franklin},
      {u"33"_s, 6.3, 10, 26, calibri},
      {u"TÊNIS CASUAL FEMININO"_s, 5.8, 3.2, 6, franklin},
      {u"CANO BAIXO"_s, 5.8, 5.4, 6, franklin},
      {u"CAFÉ"_s, 5.8, 7.7, 6, franklin}},
     {u"2310452701003"_s, u"2310452701003"_s}},
    {"box_front_with_price",
     0,
     nullptr,
     "1400050831",
     {450, 133},
     7,
     40,
     {{u"32/26"_s, 17, 32.4, 8, calibri},
      {u"A1"_s, 30, 30, 16, calibri},
      {u"527"_s, 30, 2.7, 12, franklin},
      {u"139,"_s, 17.361, 9.7, 30, calibri},
      {u"99"_s, 35.982, 12, 9, calibri},
      {u"R$"_s, 13.309, 16.4, 7, malgun},
      {u"À VISTA"_s, 4.543, 17.4, 6, franklin},
      {u"BK"_s, 35, 21.7, 7, franklin},
      {u"3104527001"_s, 2.3, 21, 7, franklin},
      {u"TÊNIS CASUAL FEMININO C"_s, 2.3, 24, 7, franklin},
      {u"ANO BAIXO"_s, 2.3, 27, 7, franklin},
      {u"CAFÉ"_s, 2.3, 30, 7, franklin},
      {u"33"_s, 1.6, 34, 32, calibri, false},
      {u"231045"_s, 15.8, 42.5, 7, calibri},
      {u"2701003"_s, 27.2, 42.5, 7, calibri, false}},
     {u"2310452701003"_s, u"2310452701010"_s}},
    {"box_front_without_price",
     0,
     nullptr,
     "1500031860",
     {450, 133},
     3,
     40,
     {{u"017"_s, 20, 0.5, 30, franklin},
      {u"TAMANCO SOLADO DE COR"_s, 2.3, 24, 7, franklin},
      {u"TIÇA"_s, 2.3, 27, 7, franklin},
      {u"36"_s, 17, 32.4, 8, calibri},
      {u"35"_s, 1.6, 34, 32, calibri, false}},
     {u"2310901701004"_s, u"2310901701011"_s}},
    {"accessory_of_two_lines",
     2,
     nullptr,
     "1400050831",
     {450, 60},
     6,
     45 - 1.5 - 3 + 4.8,
     {{u"159,"_s, 25.456, 1.9, 24, calibri},
      {u"90"_s, 39.412, 3.3, 12, calibri},
      {u"R$"_s, 22.604, 6.9, 7, malgun},
      {u"À VISTA"_s, 13.838, 7.55, 6, franklin},
      {u"BOLSA TRANSVERSAL ALÇA DUPLA"_s, 5.2, 10.2, 5, franklin},
      {u"MATELASSÊ CAFÉ"_s, 5.2, 12, 5, franklin},
      {u"5201104"_s, 5.2, 13.8, 5, franklin},
      {u"BK"_s, 16.9, 13.8, 5, franklin},
      {u"32/26"_s, 21.4, 13.8, 5, franklin},
      {u"045201"_s, 7.7, 19.1, 5, franklin},
      {u"104100"_s, 19.4, 19.1, 5, franklin},
      {u"A1"_s, 35.7, 12.1, 14, franklin},
      {u"104"_s, 33.6, 17.5, 8, franklin}},
     {u"0452011041006"_s, u"0452011041006"_s}},
    {"accessory_of_one_line",
     2,
     nullptr,
     "1500031742",
     {450, 60},
     1,
     45 - 1.5 - 3 + 4.8,
     {{u"CINTO FIVELA FORRADA PRETO"_s, 5.2, 10.2, 5, franklin},
      {u"5203038"_s, 5.2, 12.3, 5, franklin},
      {u"LU"_s, 16.9, 12.4, 5, franklin},
      {u"34/26"_s, 21.4, 12.3, 5, franklin},
      {u"045203"_s, 7.7, 18.6, 5, franklin},
      {u"038000"_s, 19.4, 18.8, 5, franklin}},
     {u"0452030380001"_s, u"0452030380001"_s}},
    // "12" in Liberation Sans bold 25 is 9.81 mm wide. The first row of the size run is 68.27 mm in
    // 24, and so shrinks to 21: 59.73 mm, and 35.01 for the second. The description shrinks
    // to 13.1.
    {"carton",
     1,
     nullptr,
     "1400050831",
     {450, 450},
     12,
     0,
     {{u"CD - DESTINO"_s, 37, 8, 14, franklin},
      {u"PEDRA MANSA"_s, 37, 14.7, 18, franklin},
      {u"PEDIDO"_s, 17, 24, 16, franklin},
      {u"Cód. Master"_s, 58, 24, 16, franklin},
      {u"1400050831"_s, 7.5, 29.7, 20, franklin},
      {u"3104527001"_s, 58, 29.7, 20, franklin},
      {u"FORNECEDOR"_s, 29, 37.4, 16, franklin},
      {u"CALÇADOS UMBAÍRA"_s, 18, 42.7, 20, franklin},
      {u"NOTA FISCAL:"_s, 5, 53, 16, franklin},
      {u"Descrição"_s, 39, 65.5, 14, franklin},
      {u"TÊNIS CASUAL"_s, 4.5, 71.4, 13.1, franklin},
      {u"COR"_s, 5, 77.5, 14, franklin},
      {u"CAFÉ"_s, 5, 82.7, 16, franklin},
      {u"CÓDIGO"_s, 67.5, 77.5, 14, franklin},
      {u"2310452701997"_s, 67.5, 84, 11, franklin},
      {u"TOTAL"_s, 80, 113, 16, franklin},
      {u"12"_s, 86.19, 120, 25, franklin},
      {u"33 34 35 36 37 38"_s, 8.133, 111, 21, franklin},
      {u"1 2 3 3 2 1"_s, 20.494, 120, 21, franklin},
      {u"Volume:"_s, 5, 133, 18, franklin},
      {u"01/12"_s, 33, 133, 16, franklin},
      {u"Semana:"_s, 53, 133, 18, franklin},
      {u"32/26"_s, 78, 133, 18, franklin}},
     {u"2310452701997"_s}},
    {"box_front_with_photograph",
     0,
     "Frente de Caixa100x40",
     "1400050831",
     {283, 113},
     14,
     0,
     {{u"TÊNIS CASUAL FEMININO"_s, 5, 5, 11, franklin},
      {u"CANO BAIXO CAFÉ"_s, 5, 10, 11, franklin},
      {u"527"_s, 83, 3.5, 26, franklin},
      {u"33"_s, 34, 28, 26, franklin},
      {u"139,99"_s, 70, 16.5, 14, franklin},
      {u"COD: 3104527"_s, 63, 22.2, 10, franklin},
      {u"2"_s, 51, 35, 9.5, franklin},
      {u"310452"_s, 60, 35, 9.5, franklin},
      {u"701003"_s, 80, 35, 9.5, franklin}},
     {u"2310452701003"_s}},
};

class LabelPagesTest : public testing::TestWithParam<Job>, protected SampleWindow {};

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
    load(job.kind, job.order);
    if (job.kind_text != nullptr) {
        // The list does not offer it, and leaving the list with it would hide the command.
        worker.widget<QComboBox>(u"cmbtipo"_s).setEditText(QString::fromLatin1(job.kind_text));
    }
    const QString pdf = writtenBy(u"cmd_printacessorio"_s);
    EXPECT_EQ(pageSizes(pdf), std::vector<QSizeF>(job.pages, job.page));
    const auto page = pageTexts(pdf).at(0);
    for (const Expected& expected : job.texts) {
        const double baseline = expected.y + expected.ascent * expected.points * 25.4 / 72;
        EXPECT_LT(distanceTo(page, expected.text, {expected.x, baseline}), 0.1)
            << expected.text.toStdString();
        if (job.columns_apart > 0 && expected.in_both_columns) {
            EXPECT_LT(distanceTo(page, expected.text, {expected.x + job.columns_apart, baseline}),
                      0.1)
                << expected.text.toStdString() << " in the second column";
        }
    }
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
