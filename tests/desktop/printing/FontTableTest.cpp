#include "desktop/printing/FontTable.h"

#include "support/Cases.h"

#include <QFont>
#include <gtest/gtest.h>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

static const QString carlito = u"Carlito"_s;
static const QString open_light = u"Open Sans Light"_s;
static const QString open_sans = u"Open Sans"_s;
static const QString dejavu = u"DejaVu Sans Condensed"_s;
static const QString liberation = u"Liberation Sans"_s;
static const QStringList stand_ins{carlito, dejavu, open_sans, open_light, liberation};

struct Choice {
    const char* name;
    TextView face;
    bool bold = false;
    QStringList families; // that are there
    QString chosen;
};

class FontChoiceTest : public testing::TestWithParam<Choice> {};

TEST_P(FontChoiceTest, isTheFirstFamilyThatIsThere) {
    const Choice& choice = GetParam();
    // Without a family of the table it is the toolkit's own, which only a running program knows.
    const QString chosen = choice.chosen.isEmpty() ? QFont().family() : choice.chosen;
    EXPECT_EQ(chooseFont(choice.face, choice.bold, choice.families).family, chosen);
}

// clang-format off
static const std::vector<Choice> choices{
    // name, face, bold, families, chosen
    {"a_stand_in_in_any_case_of_letters", u"calibri", true, stand_ins, carlito},
    {"the_face_itself_first", u"Calibri", false, {carlito, u"Calibri"_s}, u"Calibri"_s},
    {"the_toolkits_own_at_last", u"Calibri", false, {dejavu}, QString()},
    {"the_first_of_two_stand_ins", u"Franklin Gothic Medium", false, stand_ins, open_sans},
    {"the_second_stand_in", u"Franklin Gothic Semilight", false, {dejavu, open_light}, dejavu},
    {"a_regular_family_of_its_own", u"Malgun Gothic Semilight", false, stand_ins, open_light},
    {"a_bold_family_of_its_own", u"Malgun Gothic Semilight", true, stand_ins, open_sans},
    {"the_general_family", u"No Such Face", false, stand_ins + QStringList{u"Arial"_s}, liberation},
    {"the_general_family_of_windows", u"Estrangelo Edessa", false, {dejavu, u"Arial"_s}, u"Arial"_s},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(FontTable, FontChoiceTest, testing::ValuesIn(choices), CaseName());

TEST(FontTable, offersTheFamiliesAndTheFacesThatATwinStandsInFor) {
    EXPECT_EQ(offeredFaces(stand_ins), stand_ins + QStringList{u"Calibri"_s});
    EXPECT_EQ(offeredFaces({carlito, u"Calibri"_s}).size(), 2);
    EXPECT_FALSE(installedFamilies().contains(u"Calibri"_s)) << "an alias is no family";
}

} // namespace etiquetas::test
