#include "PdfTools.h"
#include "SampleWindow.h"

#include <QComboBox>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <map>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

// A text that a page must hold, as a line of a golden file tells it.
struct GoldenText {
    QPointF corner; // left and top, millimetres
    QString face;
    double points = 0;
    QString text;
    bool in_first_column_only = false;
};

static double numberOf(QString decimal) {
    bool is_number = false;
    const double number = decimal.replace(u',', u'.').toDouble(&is_number);
    EXPECT_TRUE(is_number) << decimal.toStdString();
    return number;
}

static std::vector<GoldenText> goldenTexts(const QString& path) {
    static const QRegularExpression form(
        uR"re(^text (\S+) (\S+) (.+) (\S+) "(.+)"( in the first column only)?$)re"_s);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    std::vector<GoldenText> texts;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u'#')) {
            continue;
        }
        const auto told = form.match(line);
        EXPECT_TRUE(told.hasMatch()) << line.toStdString();
        texts.push_back({.corner = {numberOf(told.captured(1)), numberOf(told.captured(2))},
                         .face = told.captured(3),
                         .points = numberOf(told.captured(4)),
                         .text = told.captured(5),
                         .in_first_column_only = told.hasCaptured(6)});
    }
    EXPECT_FALSE(texts.empty()) << path.toStdString();
    return texts;
}

// From the top of a text to its baseline: the Windows ascents of the stand-ins for its face, which
// are Carlito, Liberation Sans and Open Sans Light.
static QPointF riseOf(const GoldenText& text) {
    static const std::map<QString, double> ascents{{u"Calibri"_s, 1950},
                                                   {u"Franklin Gothic Medium"_s, 1854},
                                                   {u"Estrangelo Edessa"_s, 1854},
                                                   {u"Malgun Gothic Semilight"_s, 0.974 * 2189}};
    return {0, ascents.at(text.face) / 2048 * text.points * 25.4 / 72};
}

static QString lineOf(const GoldenText& text, QPointF corner) {
    const auto decimal = [](double number) { return QString::number(number).replace(u'.', u','); };
    return u"text %1 %2 %3 %4 \"%5\"\n"_s.arg(decimal(corner.x()), decimal(corner.y()), text.face,
                                              decimal(text.points), text.text);
}

// The wanted line and the one that the page has instead; empty where the text stands in its place.
static QString difference(const std::vector<PdfText>& page, const GoldenText& text, double shift) {
    constexpr double tolerance = 0.1; // millimetres
    const QPointF corner = text.corner + QPointF(shift, 0);
    const QPointF baseline = corner + riseOf(text);
    const auto found = nearestTo(page, text.text, baseline);
    if (found && distance(*found, baseline) < tolerance) {
        return {};
    }
    return u"- "_s + lineOf(text, corner) + u"+ "_s +
           (found ? lineOf(text, *found - riseOf(text)) : u"nowhere\n"_s);
}

struct Job {
    const char* name;   // of its golden file as well
    int kind;           // position in the list
    QString typed_kind; // that the list does not offer, typed instead
    const char* order;
    QSizeF page; // points
    std::size_t pages;
    double columns_apart; // millimetres, 0 where there is one column
    QStringList symbols;  // of the first page
};

static void PrintTo(const Job& job, std::ostream* out) {
    *out << job.name;
}

// Positions in the list of label kinds.
constexpr int box_front = 0;
constexpr int carton = 1;
constexpr int accessory = 2;
constexpr int hidden = 3;

// Millimetres between the two columns, by the sample margins and the label's own shifts.
constexpr double hidden_columns = (45 + 5) - (3 + 2.3);
constexpr double accessory_columns = (45 - 1.5) - (3 - 4.8);
constexpr double box_front_columns = 40;

// clang-format off
static const std::vector<Job> jobs{
    {.name = "hidden", .kind = hidden, .order = "1400050831",
     .page = {450, 60}, .pages = 14, .columns_apart = hidden_columns,
     .symbols = {u"2310452701003"_s, u"2310452701003"_s}},
    {.name = "box_front_with_price", .kind = box_front, .order = "1400050831",
     .page = {450, 133}, .pages = 7, .columns_apart = box_front_columns,
     .symbols = {u"2310452701003"_s, u"2310452701010"_s}},
    {.name = "box_front_without_price", .kind = box_front, .order = "1500031860",
     .page = {450, 133}, .pages = 3, .columns_apart = box_front_columns,
     .symbols = {u"2310901701004"_s, u"2310901701011"_s}},
    {.name = "accessory_of_two_lines", .kind = accessory, .order = "1400050831",
     .page = {450, 60}, .pages = 6, .columns_apart = accessory_columns,
     .symbols = {u"0452011041006"_s, u"0452011041006"_s}},
    {.name = "accessory_of_one_line", .kind = accessory, .order = "1500031742",
     .page = {450, 60}, .pages = 1, .columns_apart = accessory_columns,
     .symbols = {u"0452030380001"_s, u"0452030380001"_s}},
    {.name = "carton", .kind = carton, .order = "1400050831",
     .page = {450, 450}, .pages = 12, .columns_apart = 0, .symbols = {u"2310452701997"_s}},
    {.name = "box_front_with_photograph", .kind = box_front,
     .typed_kind = u"Frente de Caixa100x40"_s, .order = "1400050831",
     .page = {283, 113}, .pages = 14, .columns_apart = 0, .symbols = {u"2310452701003"_s}},
};
// clang-format on

static QString differences(const std::vector<PdfText>& page, const Job& job) {
    QString told;
    for (const GoldenText& text :
         goldenTexts(u"" ETIQUETAS_GOLDENS "/page_%1.txt"_s.arg(QLatin1String(job.name)))) {
        told += difference(page, text, 0);
        if (job.columns_apart > 0 && !text.in_first_column_only) {
            told += difference(page, text, job.columns_apart);
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
    const QString told = differences(pageTexts(pdf).at(0), job);
    EXPECT_TRUE(told.isEmpty()) << told.toStdString();
    for (const int resolution : {203, 300, 600}) {
        EXPECT_EQ(symbolsOf(renderedPage(pdf, 1, resolution, Tones::black_and_white), job),
                  job.symbols)
            << resolution << " dpi";
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, LabelPagesTest, testing::ValuesIn(jobs),
                         [](const auto& job) { return job.param.name; });

TEST_F(LabelPagesTest, drawsAtMostTwelveCharactersOfACartonCodeWithoutEan) {
    load(carton, "1400081124"); // its first line has no EAN
    worker.type(u"txtprepack"_s, u"2310452701997"_s);
    const QString pdf = writtenBy(u"cmd_printacessorio"_s);
    for (const int resolution : {203, 300, 600}) {
        EXPECT_EQ(symbolsIn(renderedPage(pdf, 1, resolution, Tones::black_and_white)),
                  QStringList{u"231045270199"_s})
            << resolution << " dpi";
    }
}

} // namespace etiquetas::test
