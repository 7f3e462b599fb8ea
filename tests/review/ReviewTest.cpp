#include "review/Review.h"

#include "support/Cases.h"
#include "support/FakePlatform.h"
#include "support/OrderLines.h"
#include "workbench/Pedido.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace etiquetas::test {

// A line of an accessory order of 12 fields.
Text accessoryLine(const Text& description) {
    return u"2;AZUL;;" + description + u";S;B;204455667788;3104527001;9,90;;P;";
}

/// What differs in the lines of a carton order of 16 fields; `code` is EAN and pre-pack code.
struct CartonLine {
    Text description = u"TENIS", code = u"20", sizes = u"G1", volumes = u"5/7";
};

Text cartonLine(const CartonLine& line) {
    return u"1;;M1;F;AZUL;" + line.description + u";" + line.code + u";" + line.sizes +
           u";G2;T;S;D;" + line.volumes + u";;;";
}

/// What is found where, told without its words.
struct Found {
    std::size_t line;
    FindingKind kind;

    friend bool operator==(const Found&, const Found&) = default;
    friend void PrintTo(const Found& found, std::ostream* out) {
        *out << "line " << found.line << " kind " << static_cast<int>(found.kind);
    }
};

struct OrderCase {
    std::string name;
    TextView kind;
    Text family;
    std::vector<Text> lines; // after the header
    std::vector<Found> findings;
};

class ReviewTest : public testing::Test, protected LoadedWorkbench {
  protected:
    ReviewTest() {
        machine.files.bytes[u"/programa/imagens/3104527.JPG"] = "JPEG";
        form.txtarquivo.text = u"77";
    }

    void load(TextView kind, const Text& family, const std::vector<Text>& lines) {
        machine.files.bytes[u"/programa/77 " + family + u".TXT"] = fileOf(lines);
        form.cmbtipo.type(Text(kind));
        skip([&] { carrega_pedido(form); });
        machine.forget();
    }

    [[nodiscard]] std::vector<Found> review() {
        std::vector<Found> found;
        for (const Finding& finding : reviewOrder(form, machine.printers)) {
            found.push_back({finding.line, finding.kind});
        }
        return found;
    }
};

class OrderReviewTest : public ReviewTest, public testing::WithParamInterface<OrderCase> {};

// Fifteen sizes of one item, each with a code of its own.
std::vector<Text> fifteenSizes() {
    std::vector<Text> lines;
    for (int size = 21; size <= 35; ++size) {
        const Text digits{static_cast<char16_t>(u'0' + size / 10),
                          static_cast<char16_t>(u'0' + size % 10)};
        lines.push_back(lineOf({.size = digits, .barcode = u"2044556677" + digits}));
    }
    return lines;
}

TEST_P(OrderReviewTest, FindsWhatAnOperatorStumblesOver) {
    std::vector<Text> lines{u"LUMIRA"};
    lines.insert(lines.end(), GetParam().lines.begin(), GetParam().lines.end());
    load(GetParam().kind, GetParam().family, lines);
    EXPECT_EQ(review(), GetParam().findings);
    EXPECT_EQ(std::count_if(machine.log.begin(), machine.log.end(),
                            [](const std::string& step) { return step.starts_with("write"); }),
              0);
}

// 2044556677888 and 20445560 have the right check digits by hand: 3 times the digits in even places
// from the right, counted from 0 at the check digit, and 1 time the others, sum up to tens.
INSTANTIATE_TEST_SUITE_P(
    Orders, OrderReviewTest,
    testing::Values(
        OrderCase{"clean",
                  tipo::oculta,
                  u"FRENTE",
                  {lineOf({}), lineOf({.size = u"35", .barcode = u"2044556677888"})},
                  {}},
        OrderCase{"barcodes",
                  tipo::oculta,
                  u"FRENTE",
                  {lineOf({.size = u"1", .barcode = u" "}),
                   lineOf({.size = u"2", .barcode = u"20445568"}),
                   lineOf({.size = u"3", .barcode = u"20445566778X"}),
                   lineOf({.size = u"4", .barcode = u"2044556677880"})},
                  {{2, FindingKind::barcode_missing},
                   {3, FindingKind::barcode_length},
                   {4, FindingKind::barcode_characters},
                   {5, FindingKind::check_digit}}},
        OrderCase{"codes_of_a_size",
                  tipo::oculta,
                  u"FRENTE",
                  {lineOf({}), lineOf({.barcode = u"2044556677888"}),
                   lineOf({.barcode = u"204455667789"})},
                  {{4, FindingKind::codes_differ}}},
        OrderCase{"slots",
                  tipo::oculta,
                  u"FRENTE",
                  fifteenSizes(),
                  {{16, FindingKind::size_without_slot}}},
        OrderCase{
            "quantities_of_hidden_labels",
            tipo::oculta,
            u"FRENTE",
            {lineOf({.quantity = u"16383"}), lineOf({.quantity = u"16384", .size = u"35"}),
             lineOf({.quantity = u"0", .size = u"36"}), lineOf({.quantity = u"1O", .size = u"37"})},
            {{5, FindingKind::quantity}, {3, FindingKind::quantity}, {4, FindingKind::quantity}}},
        OrderCase{"total_of_pairs",
                  tipo::frente_de_caixa,
                  u"FRENTE",
                  {lineOf({.quantity = u"16384"}), lineOf({.quantity = u"16384", .size = u"35"})},
                  {{0, FindingKind::quantity}}},
        OrderCase{"lines",
                  tipo::oculta,
                  u"FRENTE",
                  {u"1;AZUL;34", lineOf({}), u"QTDE;COR;TAMANHO;;D;E;M;S;B;P",
                   lineOf({.size = u"35", .rest = u"1;2;3;4;5;6;7;8"})},
                  {{2, FindingKind::short_line}, {5, FindingKind::unknown_width}}},
        OrderCase{"colour_and_photograph",
                  tipo::oculta,
                  u"FRENTE",
                  {lineOf({.master = u"9999999001", .colour = u" "})},
                  {{2, FindingKind::colour_missing}, {0, FindingKind::photograph_missing}}},
        OrderCase{"hidden_text",
                  tipo::oculta,
                  u"FRENTE",
                  {lineOf({.description = u"TENIS CASUAL FEMININO BAIXO LISO"})},
                  {{2, FindingKind::text_broken}}},
        OrderCase{"accessory_texts",
                  tipo::acessorio,
                  u"ACESSORIO",
                  {accessoryLine(Text(60, u'X')),
                   accessoryLine(Text(30, u'X') + u" " + Text(30, u'Y')), accessoryLine(u"X")},
                  {{2, FindingKind::text_lost}, {3, FindingKind::text_broken}}},
        OrderCase{"carton_texts",
                  tipo::corrugado,
                  u"CORRUGADO",
                  {cartonLine({.description = Text(47, u'X'), .sizes = Text(18, u'9')})},
                  {{2, FindingKind::text_shrunk}, {2, FindingKind::text_shrunk}}},
        OrderCase{"carton_codes",
                  tipo::corrugado,
                  u"CORRUGADO",
                  {cartonLine({.description = u"A", .code = u"20445560"}),
                   cartonLine({.description = u"B", .code = u"20445568"}),
                   cartonLine({.description = u"C", .code = u"_"}),
                   cartonLine({.description = u"D", .volumes = u"7/5"}),
                   cartonLine({.description = u"E", .volumes = u"5/a"})},
                  {{3, FindingKind::check_digit},
                   {4, FindingKind::barcode_characters},
                   {5, FindingKind::volumes},
                   {6, FindingKind::volumes}}}),
    CaseName());

// The loader compares a key that is cut to seven characters with the whole code there.
TEST_F(ReviewTest, FindsItemsThatTheLoaderDoesNotFind) {
    load(tipo::acessorio, u"ACESSORIO",
         {u"LUMIRA", u"2;AZUL;1;BOLSA;S;B;204455667788;3104527001;9,90;26;P"});
    EXPECT_EQ(review(), (std::vector<Found>{{2, FindingKind::item_not_found}}));
}

} // namespace etiquetas::test
