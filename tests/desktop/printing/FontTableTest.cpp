#include "desktop/printing/FontTable.h"

#include <QFont>
#include <gtest/gtest.h>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

const QString carlito = u"Carlito"_s;
const QString libre_light = u"Libre Franklin Light"_s;
const QString libre_medium = u"Libre Franklin Medium"_s;
const QString open_light = u"Open Sans Light"_s;
const QString open_bold = u"Open Sans"_s;
const QString nanum_light = u"NanumBarunGothic Light"_s;
const QString liberation = u"Liberation Sans"_s;
const QStringList stand_ins{carlito, libre_light, libre_medium, open_light, liberation};

struct Choice {
    const char* name;
    TextView face;
    bool bold = false;
    QStringList families; // that are there
    QString chosen;
};

void PrintTo(const Choice& choice, std::ostream* out) {
    *out << choice.name;
}

class FontChoiceTest : public testing::TestWithParam<Choice> {};

} // namespace

TEST_P(FontChoiceTest, isTheFirstFamilyThatIsThere) {
    const Choice& choice = GetParam();
    // Without a family of the table it is the toolkit's own, which only a running program knows.
    const QString chosen = choice.chosen.isEmpty() ? QFont().family() : choice.chosen;
    EXPECT_EQ(chooseFont(choice.face, choice.bold, choice.families).family, chosen);
}

// clang-format off
static const std::vector<Choice> choices{
    {.name = "a_stand_in_in_any_case_of_letters",
     .face = u"calibri", .bold = true, .families = stand_ins, .chosen = carlito},
    {.name = "the_face_itself_first",
     .face = u"Calibri", .families = {carlito, u"Calibri"_s}, .chosen = u"Calibri"_s},
    {.name = "the_toolkits_own_at_last", .face = u"Calibri", .families = {nanum_light}},
    {.name = "franklin_medium",
     .face = u"Franklin Gothic Medium", .families = stand_ins, .chosen = libre_medium},
    {.name = "franklin_semilight",
     .face = u"Franklin Gothic Semilight", .families = stand_ins, .chosen = libre_light},
    {.name = "the_second_stand_in",
     .face = u"Malgun Gothic Semilight", .families = stand_ins, .chosen = open_light},
    {.name = "the_first_of_two_stand_ins",
     .face = u"Malgun Gothic Semilight", .families = {open_light, nanum_light},
     .chosen = nanum_light},
    {.name = "a_bold_family_of_its_own",
     .face = u"Malgun Gothic Semilight", .bold = true,
     .families = {open_light, open_bold, nanum_light}, .chosen = open_bold},
    {.name = "the_general_family",
     .face = u"No Such Face", .families = stand_ins, .chosen = liberation},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(FontTable, FontChoiceTest, testing::ValuesIn(choices),
                         [](const auto& choice) { return choice.param.name; });

TEST(FontTable, offersTheFamiliesAndTheFacesThatATwinStandsInFor) {
    EXPECT_EQ(offeredFaces(stand_ins), stand_ins + QStringList{u"Calibri"_s});
    EXPECT_EQ(offeredFaces({carlito, u"Calibri"_s}).size(), 2);
    EXPECT_FALSE(installedFamilies().contains(u"Calibri"_s)) << "an alias is no family";
}

} // namespace etiquetas
