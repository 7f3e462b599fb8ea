#include "channel/Zpl.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "channel/Languages.h"
#include "model/FrmPadrao.h"

#include <array>

namespace etiquetas {

Text zplField(TextView place, TextView command, TextView data) {
    return Text(u"^FO").append(place).append(command).append(data).append(u"^FS");
}

Text withQuotes(TextView line) {
    return replaceAll(line, u".", u"\"");
}

namespace {

constexpr std::array<MarginKey, 3> hidden_3_columns{{
    {u"Margem_oculta_zpl_1", u"55"},
    {u"Margem_oculta_zpl_2", u"305"},
    {u"Margem_oculta_zpl_3", u"570"},
}};
constexpr std::array<MarginKey, 8> turned_columns{{
    {u"Margem_oculta_zpl_71", u"40"},
    {u"Margem_oculta_zpl_72", u"160"},
    {u"Margem_oculta_zpl_73", u"280"},
    {u"Margem_oculta_zpl_74", u"400"},
    {u"Margem_oculta_zpl_75", u"520"},
    {u"Margem_oculta_zpl_76", u"640"},
    {u"Margem_oculta_zpl_77", u"760"},
    {u"Margem_oculta_zpl_78", u"880"},
}};
constexpr std::array<MarginKey, 2> box_front_columns{{
    {u"Margem_frente_zpl_1", u"25"},
    {u"Margem_frente_zpl_2", u"340"},
}};
constexpr std::array<MarginKey, 2> box_front2_columns{{
    {u"Margem_frente_zpl_A1", u"260"},
    {u"Margem_frente_zpl_A2", u"610"},
}};
constexpr std::array<MarginKey, 1> carton_column{{{u"Margem_Corrugada_zpl", u"25"}}};

constexpr std::array<TextView, 1> label_end{u"^XZ"};

// Darkness, start, number of copies, origin and speed.
PrinterProgram heading(const FrmPadrao& form, bool with_copies) {
    const TextView speed = trimmed(form.cmbvelocidade.text);
    PrinterProgram program{Text(u"~SD").append(trimmed(form.cmbintensidade.text)), u"^XA", u"^LT0"};
    if (with_copies) {
        program.emplace_back(u"^PQ1,,1,Y");
    }
    program.emplace_back(u"^LH0,0");
    program.push_back(Text(u"^PR").append(speed).append(u",").append(speed));
    return program;
}

PrinterProgram headingOfOneCopy(const FrmPadrao& form) {
    return heading(form, true);
}

PrinterProgram headingWithoutCopies(const FrmPadrao& form) {
    return heading(form, false);
}

Text place(TextView x, TextView y) {
    return Text(x).append(u",").append(y);
}

void writeCode(const TestColumn& column, PrinterProgram& program) {
    program.push_back(zplField(place(trimmed(column.left), trimmed(column.top)), u"^A0N,55,45^FD",
                               trimmed(column.code)));
}

// The fields go as they are typed, blanks and all.
void writeTurnedCode(const TestColumn& column, PrinterProgram& program) {
    program.push_back(zplField(place(column.left, column.top), u"^A0B,55,45^FD", column.code));
}

struct BoxFrontLine {
    int x; // dots from the margins
    int y;
    TextView command;
    TextView data;
    bool quotes; // points become double quotes
};

constexpr TextView sample_colour = u"OURO";
constexpr TextView sample_price = u"   139,99"; // filled up to 9 characters
constexpr std::array<TextView, 2> sample_codes{u"5016267001", u"501626700"}; // left, right

std::array<BoxFrontLine, 10> boxFrontLines(TextView code) {
    return {{
        {0, 0, u"^A0N,100,80^FD", u"267", false},
        {130, 0, u"^A0N,35,20^FH\\^FD", mid(sample_colour, 1, 12), true},
        {130, 40, u"^A0N,35,20^FH\\^FD", mid(sample_colour, 13, 12), true},
        {220, 30, u"^A0N,70,60^FD", u"35", false},
        {55, 270, u"^A0N,60,40^FD", sample_price, false},
        {0, 100, u"^A0N,30,20^FD", u"LUMIRA 170000 FE FST SND", true},
        {0, 130, u"^A0N,30,20^FD", u"AL", true},
        {1, 160, u"^BY2^BCN,70,N,N,N,D^FD", u"1000000115475", true},
        {70, 240, u"^A0N,30,30^FD", code, true},
        {245, 130, u"^A0N,30,20^FD", u"F2", true},
    }};
}

// A margin moved by some dots; one that is not moved stays as it is typed.
Text moved(TextView margin, int dots) {
    return dots == 0 ? Text(margin)
                     : numberText(toInteger16(std::int32_t{toInteger16(margin)} + dots));
}

void writeBoxFront(const TestColumn& column, PrinterProgram& program) {
    for (const BoxFrontLine& line : boxFrontLines(sample_codes.at(column.index))) {
        skip([&] {
            const Text at = place(moved(column.left, line.x), moved(column.top, line.y));
            const Text field = zplField(at, line.command, line.data);
            program.push_back(line.quotes ? withQuotes(field) : field);
        });
    }
}

constexpr TestLabel turned_test_label{headingOfOneCopy, writeTurnedCode, label_end};

} // namespace

constinit const PrinterLanguage zpl{
    .name = u"ZPL",
    .hidden_3 = {.columns = hidden_3_columns,
                 .top = MarginKey{u"Margem_oculta_zpl_3_superior", u"30"},
                 .test_label = {headingOfOneCopy, writeCode, label_end}},
    .hidden_7 = {.columns = std::span(turned_columns).first<7>(),
                 .top = MarginKey{u"Margem_oculta_zpl_7_superior", u"70"},
                 .test_label = turned_test_label},
    .hidden_8 = {.columns = turned_columns,
                 .top = MarginKey{u"Margem_oculta_zpl_8_superior", u"70"},
                 .test_label = turned_test_label},
    .box_front = {.columns = box_front_columns,
                  .top = MarginKey{u"Margem_frente_zpl_2_superior", u"10"},
                  .test_label = {headingWithoutCopies, writeBoxFront, label_end}},
    .box_front2 = {.columns = box_front2_columns, .top = zpl_box_front2_top},
    .carton = {.columns = carton_column, .top = MarginKey{u"Margem_Corrugada_ZPL_Superior", u"70"}},
};

} // namespace etiquetas
