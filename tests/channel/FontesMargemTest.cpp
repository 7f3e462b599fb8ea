#include "channel/FontesMargem.h"

#include "support/FakePlatform.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

#include <sstream>

namespace etiquetas::test {

struct MarginSource {
    std::string label;
    MargensDeEtiqueta (*margins)(const FrmPadrao&);
    Text language;
};

// Any language but "ZPL" is PPLA.
static const std::vector<MarginSource> sources{
    {"hidden_3", pega_margemoculta, u"ZPL"},      {"hidden_3", pega_margemoculta, u"PPLA"},
    {"hidden_7", pega_margemoculta7, u"ZPL"},     {"hidden_7", pega_margemoculta7, u"zpl"},
    {"hidden_8", pega_margemoculta8, u"ZPL"},     {"hidden_8", pega_margemoculta8, u"none"},
    {"box_front", pega_margemfc, u"ZPL"},         {"box_front", pega_margemfc, u"PPLA"},
    {"second_box_front", pega_margemfc2, u"ZPL"}, {"second_box_front", pega_margemfc2, u"PPLA"},
    {"carton", pega_margemcorrugado, u"ZPL"},     {"carton", pega_margemcorrugado, u"PPLA"}};

/// The keys that the golden file names.
static std::vector<Text> keysOf(const std::string& golden) {
    std::vector<Text> keys;
    for (const GoldenLine& line : goldenLines(golden)) {
        std::istringstream words(line.text);
        std::string key;
        words >> key >> key >> key >> key;
        keys.emplace_back(key.begin(), key.end());
    }
    return keys;
}

TEST(FontesMargemTest, EachMarginHasItsKeyAndADefaultForABlankOrMissingOne) {
    Workbench blank, own_names, no_file;
    std::vector<Text> blank_lines{u"[MargemOcultaZebra]"};
    std::vector<Text> own_name_lines = blank_lines;
    for (const Text& key : keysOf(ETIQUETAS_GOLDENS "/margin_sources.txt")) {
        blank_lines.push_back(key + u"=  ");
        own_name_lines.push_back(key + u"=" + key);
    }
    const Text settings = u"/programa/Varesko.ini";
    blank.machine.files.bytes[settings] = fileOf(blank_lines);
    own_names.machine.files.bytes[settings] = fileOf(own_name_lines);
    Journal told;
    for (const MarginSource& source : sources) {
        const auto taken = [&source](Workbench& from) {
            from.form.lbllinguagem.caption = source.language;
            return source.margins(from.form);
        };
        const MargensDeEtiqueta keys = taken(own_names);
        const MargensDeEtiqueta defaults = taken(no_file);
        EXPECT_EQ(taken(blank).colunas, defaults.colunas) << source.label;
        EXPECT_EQ(taken(blank).superior, defaults.superior) << source.label;
        const std::string label = source.label + " " + utf8(source.language);
        ASSERT_EQ(keys.colunas.size(), defaults.colunas.size()) << label;
        for (std::size_t i = 0; i < keys.colunas.size(); ++i) {
            told.tell(label, "column", utf8(keys.colunas[i]), utf8(defaults.colunas[i]));
        }
        if (!keys.superior.empty()) {
            told.tell(label, "top", utf8(keys.superior), utf8(defaults.superior));
        }
    }
    EXPECT_TRUE(matchesGolden(told.transcript, "margin_sources"));
}

} // namespace etiquetas::test
