#include "base/Failure.h"
#include "base/Numbers.h"
#include "channel/Languages.h"
#include "channel/Zpl.h"

#include <array>

namespace etiquetas {

namespace {

constexpr std::array<MarginKey, 3> hidden_3_columns{{
    {u"Margem_oculta_ppla_1", u"22"},
    {u"Margem_oculta_ppla_2", u"150"},
    {u"Margem_oculta_ppla_3", u"275"},
}};
constexpr std::array<MarginKey, 8> turned_columns{{
    {u"Margem_oculta_ppla_71", u"22"},
    {u"Margem_oculta_ppla_72", u"150"},
    {u"Margem_oculta_ppla_73", u"275"},
    {u"Margem_oculta_ppla_74", u"275"},
    {u"Margem_oculta_ppla_75", u"275"},
    {u"Margem_oculta_ppla_76", u"275"},
    {u"Margem_oculta_ppla_77", u"275"},
    {u"Margem_oculta_ppla_77", u"275"}, // the eighth stands on the seventh
}};
constexpr std::array<MarginKey, 2> box_front_columns{{
    {u"Margem_frente_ppla_1", u"4"},
    {u"Margem_frente_ppla_2", u"160"},
}};
constexpr std::array<MarginKey, 2> box_front2_columns{{
    {u"Margem_frente_ppla_A1", u"4"},
    {u"Margem_frente_ppla_A2", u"160"},
}};
constexpr std::array<MarginKey, 1> carton_column{{{u"Margem_Corrugada_ppla", u"19"}}};

// System commands begin with the control characters STX (2) and SOH (1).
constexpr std::array<TextView, 9> heading_lines{
    u"\002n", u"\002M0500", u"\002O0220", u"\002V0", u"\002f220", u"\001D", u"\002L", u"D11", u"A2",
};
constexpr std::array<TextView, 2> label_end{u"Q0001", u"E"}; // one copy

PrinterProgram heading(const FrmPadrao& /*form*/) {
    return {heading_lines.begin(), heading_lines.end()};
}

void writeCode(const TestColumn& column, PrinterProgram& program) {
    skip([&] {
        program.push_back(Text(u"19110050015")
                              .append(formatted(toInteger16(column.left), u"#0000"))
                              .append(column.code));
    });
}

} // namespace

constinit const PrinterLanguage ppla{
    .name = u"PPLA",
    .hidden_3 = {.columns = hidden_3_columns, .test_label = {heading, writeCode, label_end}},
    .hidden_7 = {.columns = std::span(turned_columns).first<7>()},
    .hidden_8 = {.columns = turned_columns},
    .box_front = {.columns = box_front_columns},
    .box_front2 = {.columns = box_front2_columns, .top = zpl_box_front2_top},
    .carton = {.columns = carton_column,
               .top = MarginKey{u"Margem_Corrugada_PPLA_Superior", u"58"}},
};

} // namespace etiquetas
