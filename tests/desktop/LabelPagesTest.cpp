#include "PdfTools.h"
#include "SampleWindow.h"
#include "support/Cases.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

// A text that a page must hold, as a line of a golden file tells it.
struct GoldenText {
    QPointF corner; // left and top, millimetres
    QString face;
    double points = 0;
    QString text;
    bool in_first_column_only = false;
};

static double numberOf(QString decimal) {
    return decimal.replace(u',', u'.').toDouble();
}

static std::vector<GoldenText> goldenTexts(const std::string& path) {
    static const QRegularExpression form(
        uR"re(^text (-?[\d,]+) (-?[\d,]+) (.+) ([\d,]+) "(.+)"( in the first column only)?$)re"_s);
    std::vector<GoldenText> texts;
    for (const GoldenLine& line : goldenLines(path)) {
        const auto told = form.match(QString::fromStdString(line.text));
        EXPECT_TRUE(told.hasMatch()) << line.text;
        texts.push_back({.corner = {numberOf(told.captured(1)), numberOf(told.captured(2))},
                         .face = told.captured(3),
                         .points = numberOf(told.captured(4)),
                         .text = told.captured(5),
                         .in_first_column_only = told.hasCaptured(6)});
    }
    EXPECT_FALSE(texts.empty()) << path;
    return texts;
}

struct Job {
    const char* name; // of its golden file as well
    LabelKind kind;
    const char* order;
    QSizeF page; // points
    std::size_t pages;
    double columns_apart;    // millimetres, 0 where there is one column
    QStringList symbols;     // of the first page
    QString typed_kind = {}; // that the list does not offer, typed instead
};

// Millimetres between the two columns, by the sample margins and the label's own shifts.
constexpr double hidden_columns = (45 + 5) - (3 + 2.3);
constexpr double accessory_columns = (45 - 1.5) - (3 - 4.8);
constexpr double box_front_columns = 40;

// clang-format off
static const std::vector<Job> jobs{
    // name, kind, order, page, pages, columns apart, symbols, typed kind
    {"hidden", oculta, "1400050831", {450, 60}, 14, hidden_columns, {u"2310452701003"_s, u"2310452701003"_s}},
    {"box_front_with_price", frente_de_caixa, "1400050831", {450, 133}, 7, box_front_columns, {u"2310452701003"_s, u"2310452701010"_s}},
    {"box_front_without_price", frente_de_caixa, "1500031860", {450, 133}, 3, box_front_columns, {u"2310901701004"_s, u"2310901701011"_s}},
    {"accessory_of_two_lines", acessorio, "1400050831", {450, 60}, 6, accessory_columns, {u"0452011041006"_s, u"0452011041006"_s}},
    {"accessory_of_one_line", acessorio, "1500031742", {450, 60}, 1, accessory_columns, {u"0452030380001"_s, u"0452030380001"_s}},
    {"carton", corrugado, "1400050831", {450, 450}, 12, 0, {u"2310452701997"_s}},
    {"box_front_with_photograph", frente_de_caixa, "1400050831", {283, 113}, 14, 0, {u"2310452701003"_s}, u"Frente de Caixa100x40"_s},
};
// clang-format on

// The texts of the golden file that the page has not got in their places.
static QStringList misplaced(const std::vector<PdfText>& page, const Job& job) {
    constexpr double tolerance = 0.1; // millimetres
    QStringList told;
    const auto expect_at = [&](const GoldenText& text, QPointF corner) {
        const QPointF baseline = corner + QPointF(0, riseOf(text.face, text.points));
        const double apart = distanceTo(page, text.text, baseline);
        if (apart >= tolerance) {
            told << u"%1 is off by %2"_s.arg(text.text).arg(apart);
        }
    };
    for (const GoldenText& text :
         goldenTexts(ETIQUETAS_GOLDENS "/page_" + std::string(job.name) + ".txt")) {
        expect_at(text, text.corner);
        if (job.columns_apart > 0 && !text.in_first_column_only) {
            expect_at(text, text.corner + QPointF(job.columns_apart, 0));
        }
    }
    return told;
}

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

class LabelPagesTest : public testing::TestWithParam<Job>, protected SampleWindow {
  protected:
    LabelPagesTest() { open(); }
};

TEST_P(LabelPagesTest, hasEachTextWithinATenthOfAMillimetreAndBarsThatScan) {
    const Job& job = GetParam();
    load(job.kind, job.order);
    if (!job.typed_kind.isEmpty()) {
        // Leaving the list with it would hide the command.
        worker.widget<QComboBox>(u"cmbtipo"_s).setEditText(job.typed_kind);
    }
    const QString pdf = writtenBy(u"cmd_printacessorio"_s);
    EXPECT_EQ(pageSizes(pdf), std::vector<QSizeF>(job.pages, job.page));
    EXPECT_EQ(misplaced(pageTexts(pdf).at(0), job), QStringList());
    for (const int resolution : {203, 300, 600}) {
        EXPECT_EQ(symbolsOf(renderedPage(pdf, 1, resolution, Tones::black_and_white), job),
                  job.symbols)
            << resolution << " dpi";
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, LabelPagesTest, testing::ValuesIn(jobs), CaseName());

TEST_F(LabelPagesTest, drawsAtMostTwelveCharactersOfACartonCodeWithoutEan) {
    load(corrugado, "1400081124"); // its first line has no EAN
    worker.type(u"txtprepack"_s, u"2310452701997"_s);
    const QString pdf = writtenBy(u"cmd_printacessorio"_s);
    EXPECT_EQ(symbolsIn(renderedPage(pdf, 1, 300, Tones::black_and_white)),
              QStringList{u"231045270199"_s});
}

} // namespace etiquetas::test
