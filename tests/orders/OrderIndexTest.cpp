#include "orders/OrderIndex.h"

#include "orders/Complemento.h"
#include "orders/GradeAcessorio.h"
#include "orders/GradeCorrugado.h"
#include "orders/GradeFc.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <random>

namespace etiquetas::test {

/// Orders of lines that look alike, each with its number as its quantity, and the same orders
/// walked through line by line.
class OrderIndexTest : public testing::Test, protected LoadedWorkbench {
  protected:
    std::mt19937 random{20};

    Text oneOf(const std::vector<Text>& texts) { return texts[random() % texts.size()]; }
    Text code() { return oneOf({u"3104527", u"3104527001", u" 3104527", u"31 4   5", u""}); }
    Text word() { return oneOf({u"AZUL", u"AZUL ", u"CAFÉ", u""}); }

    std::vector<Text> order() {
        std::vector<Text> lines(random() % 40);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            lines[i] = numberText(static_cast<std::int32_t>(i));
            const std::size_t width = random() % 8 == 0 ? random() % 9 + 1 : random() % 10 + 8;
            for (std::size_t field = 1; field < width; ++field) {
                const bool is_code = field == 6 || field == 7;
                lines[i] += u";" + (is_code ? code() : field == 2 ? Text(u"33") : word());
            }
        }
        return lines;
    }

    // The numbers of the lines that a loader takes, `most` of them at most.
    template <typename Belongs>
    static std::vector<Text> walk(const std::vector<Text>& lines, std::size_t most,
                                  const Belongs& belongs) {
        std::vector<Text> numbers;
        for (const Text& text : lines) {
            const OrderLine line(text);
            if (numbers.size() < most && belongs(line)) {
                numbers.emplace_back(line[0]);
            }
        }
        return numbers;
    }

    void expectLookedUp(const std::vector<Text>& lines) const {
        for (const Text& text : lines) {
            const OrderLine line(text);
            if (trimmed(line[1]) == trimmed(form.txtcor.text) &&
                trimmed(line[4]) == trimmed(form.txtdescricao.text) &&
                trimmed(left(line[6], 7)) == trimmed(form.txtcodigo.text)) {
                EXPECT_EQ(form.lblmaster.caption, trimmed(line[6]));
                EXPECT_EQ(form.lblbarra.caption, trimmed(line[5]));
                return;
            }
        }
        EXPECT_EQ(form.lblmaster.caption, u"");
    }
};

TEST_F(OrderIndexTest, LeadsToTheLinesThatAWalkThroughAllOfThemFinds) {
    constexpr int orders = 40;
    constexpr int steps = 12;
    for (int i = 0; i < orders * steps; ++i) {
        std::vector<Text> lines = form.List1.entries;
        if (i % steps == 0) {
            form.List1.entries = lines = order();
        } else if (!lines.empty() && random() % 2 == 0) {
            const auto at = static_cast<std::ptrdiff_t>(random() % lines.size());
            form.List1.remove(static_cast<int>(at));
            lines.erase(lines.begin() + at);
        }
        const ItemKey item(code() + u"|" + word() + u"|" + word());
        form.cmb_referencia.type(item.code + u"|" + item.description + u"|" + item.colour);
        form.cmb_referencia1.text = form.cmb_referencia.text;
        form.txtqte1.text.clear();

        carrega_gradeFc(form);
        std::vector<Text> taken;
        for (const TextField& slot : form.txtnumero) {
            if (!slot.text.empty()) {
                taken.push_back(slot.text);
            }
        }
        EXPECT_EQ(taken, walk(lines, total_slots, [&](const OrderLine& line) {
                      return line.width() >= 10 && line.width() <= 13 &&
                             left(trimmed(line[6]), 7) == item.code &&
                             trimmed(line[4]) == item.description &&
                             trimmed(line[1]) == item.colour;
                  }));

        carrega_grade_Acessorio(form);
        const auto accessory = walk(lines, 1, [&](const OrderLine& line) {
            const std::size_t width = line.width();
            return (width == 8 || (width >= 11 && width <= 13)) &&
                   left(trimmed(line[7]), width == 11 ? TextView::npos : 7) == item.code &&
                   trimmed(line[3]) == item.description && trimmed(line[1]) == item.colour;
        });
        EXPECT_EQ(form.TXTPARES.text, accessory.empty() ? u"" : accessory.front());

        bool walked_past = false;
        const auto carton = walk(lines, 1, [&](const OrderLine& line) {
            const std::size_t width = line.width();
            const bool belongs = !walked_past && width >= 13 && width <= 17 &&
                                 trimmed(line[width == 14 || width == 15 ? 7 : 6]) == item.code &&
                                 trimmed(line[5]) == item.description &&
                                 trimmed(line[4]) == item.colour;
            walked_past = walked_past || width == 13;
            return belongs;
        });
        skip([&] { carrega_corrugado(form); }); // the volumes are no numbers
        EXPECT_EQ(form.txtqte1.text, carton.empty() ? u"" : carton.front());

        form.txtcodigo.text = item.code;
        form.txtcor.text = item.colour;
        form.txtdescricao.text = item.description;
        const int failed = failureOf([&] { ret_codcomplemento(form, u"33"); });
        EXPECT_EQ(failed, failureOf([&] { expectLookedUp(lines); })) << i;
    }
}

} // namespace etiquetas::test
