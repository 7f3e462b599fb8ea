#include "channel/FontesMargem.h"

#include "support/FakePlatform.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

#include <sstream>

namespace etiquetas::test {

struct MarginSource {
    std::string label;
    MargensDeEtiqueta (*margins)(const FrmPadrao&);
    Text other_language; // than ZPL; any one is PPLA
};

static const std::vector<MarginSource> sources{
    {"hidden_3", pega_margemoculta, u"PPLA"},      {"hidden_7", pega_margemoculta7, u"zpl"},
    {"hidden_8", pega_margemoculta8, u""},         {"box_front", pega_margemfc, u"PPLA"},
    {"second_box_front", pega_margemfc2, u"PPLA"}, {"carton", pega_margemcorrugado, u"PPLA"}};

class FontesMargemTest : public testing::Test, protected Workbench {
  protected:
    /// Settings of blank keys and of keys that hold their own names, for all of the golden file.
    FontesMargemTest() {
        for (const GoldenLine& line : goldenLines(ETIQUETAS_GOLDENS "/margin_sources.txt")) {
            std::istringstream words(line.text);
            std::string key;
            words >> key >> key >> key >> key;
            blank.append(key).append("=  \r\n");
            own_names.append(key).append("=").append(key).append("\r\n");
        }
    }

    /// What a source takes from settings; from none where they are empty.
    MargensDeEtiqueta taken(const MarginSource& source, const std::string& settings) {
        machine.files.bytes.clear();
        if (!settings.empty()) {
            machine.files.bytes[u"/programa/Varesko.ini"] = settings;
        }
        return source.margins(form);
    }

    std::string blank = "[MargemOcultaZebra]\r\n";
    std::string own_names = blank;
    Journal told;
};

TEST_F(FontesMargemTest, EachMarginHasItsKeyAndADefaultForABlankOrMissingOne) {
    for (const MarginSource& source : sources) {
        for (const Text& language : {Text(u"ZPL"), source.other_language}) {
            form.lbllinguagem.caption = language;
            const MargensDeEtiqueta keys = taken(source, own_names);
            const MargensDeEtiqueta defaults = taken(source, "");
            EXPECT_EQ(taken(source, blank).colunas, defaults.colunas) << source.label;
            EXPECT_EQ(taken(source, blank).superior, defaults.superior) << source.label;
            const std::string label = source.label + (language == u"ZPL" ? " ZPL" : " PPLA");
            ASSERT_EQ(keys.colunas.size(), defaults.colunas.size()) << label;
            for (std::size_t i = 0; i < keys.colunas.size(); ++i) {
                told.tell(label, "column", utf8(keys.colunas[i]), utf8(defaults.colunas[i]));
            }
            if (!keys.superior.empty()) {
                told.tell(label, "top", utf8(keys.superior), utf8(defaults.superior));
            }
        }
    }
    EXPECT_TRUE(matchesGolden(told.transcript, "margin_sources"));
}

} // namespace etiquetas::test
