#include "channel/EtiquetasDeTeste.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "channel/MargensLinguagem.h"
#include "channel/Zpl.h"
#include "model/FrmPadrao.h"

#include <array>

namespace etiquetas {

namespace {

enum class Copies : std::uint8_t { one, no_line };

// The first lines of every ZPL program: darkness, start, number of copies, origin and speed.
Programa zplHeading(const FrmPadrao& form, Copies copies) {
    const TextView speed = trimmed(form.cmbvelocidade.text);
    Programa programa{Text(u"~SD").append(trimmed(form.cmbintensidade.text)), u"^XA", u"^LT0"};
    if (copies == Copies::one) {
        programa.emplace_back(u"^PQ1,,1,Y");
    }
    programa.emplace_back(u"^LH0,0");
    programa.push_back(Text(u"^PR").append(speed).append(u",").append(speed));
    return programa;
}

Text place(TextView x, TextView y) {
    return Text(x).append(u",").append(y);
}

// Sample texts of the box front label.
namespace sample {
constexpr TextView cor = u"OURO";
constexpr TextView preco = u"   139,99"; // 9 characters wide
constexpr TextView left_code = u"5016267001";
constexpr TextView right_code = u"501626700";
} // namespace sample

struct BoxFrontLine {
    int x; // dots from the margins
    int y;
    TextView command;
    TextView data;
    bool quotes; // points become double quotes
};

std::array<BoxFrontLine, 10> boxFrontLines(TextView codigo) {
    return {{
        {0, 0, u"^A0N,100,80^FD", u"267", false},
        {130, 0, u"^A0N,35,20^FH\\^FD", mid(sample::cor, 1, 12), true},
        {130, 40, u"^A0N,35,20^FH\\^FD", mid(sample::cor, 13, 12), true},
        {220, 30, u"^A0N,70,60^FD", u"35", false},
        {55, 270, u"^A0N,60,40^FD", sample::preco, false},
        {0, 100, u"^A0N,30,20^FD", u"LUMIRA 170000 FE FST SND", true},
        {0, 130, u"^A0N,30,20^FD", u"AL", true},
        {1, 160, u"^BY2^BCN,70,N,N,N,D^FD", u"1000000115475", true},
        {70, 240, u"^A0N,30,30^FD", codigo, true},
        {245, 130, u"^A0N,30,20^FD", u"F2", true},
    }};
}

// A margin moved by some dots; one that is not moved stays as it was typed.
Text moved(TextView margem, int dots) {
    return dots == 0 ? Text(margem)
                     : numberText(toInteger16(std::int32_t{toInteger16(margem)} + dots));
}

void writeBoxFront(Programa& programa, TextView x, TextView y, TextView codigo) {
    for (const BoxFrontLine& line : boxFrontLines(codigo)) {
        skip([&] {
            const Text text =
                zplField(place(moved(x, line.x), moved(y, line.y)), line.command, line.data);
            programa.push_back(line.quotes ? withQuotes(text) : text);
        });
    }
}

struct PplaCommand {
    TextView control;
    TextView text;
};

constexpr TextView soh = u"\001";
constexpr TextView stx = u"\002";
constexpr std::array<PplaCommand, 9> ppla_heading{{
    {stx, u"n"},
    {stx, u"M0500"},
    {stx, u"O0220"},
    {stx, u"V0"},
    {stx, u"f220"},
    {soh, u"D"},
    {stx, u"L"},
    {u"", u"D11"},
    {u"", u"A2"},
}};

Text fourDigits(std::int16_t number) {
    return formatted(number, u"#0000");
}

} // namespace

Programa teste_oculta_zpl(const FrmPadrao& form, const MargensLinguagem& dialogo) {
    Programa programa = zplHeading(form, Copies::one);
    for (const TextField& margem : dialogo.txtmargem1) {
        programa.push_back(
            zplField(place(trimmed(margem.text), trimmed(dialogo.txtmargemsuperior->text)),
                     u"^A0N,55,45^FD", trimmed(dialogo.txtcodigo->text)));
    }
    programa.emplace_back(u"^XZ");
    return programa;
}

Programa teste_oculta_virada_zpl(const FrmPadrao& form, const MargensLinguagem& dialogo) {
    Programa programa = zplHeading(form, Copies::one);
    for (const TextField& margem : dialogo.txtmargem1) {
        programa.push_back(zplField(place(margem.text, dialogo.txtmargemsuperior->text),
                                    u"^A0B,55,45^FD", dialogo.txtcodigo->text));
    }
    programa.emplace_back(u"^XZ");
    return programa;
}

Programa teste_oculta_ppla(const FrmPadrao& /*form*/, const MargensLinguagem& dialogo) {
    Programa programa;
    for (const PplaCommand& command : ppla_heading) {
        programa.push_back(Text(command.control).append(command.text));
    }
    for (const TextField& margem : dialogo.txtmargem1) {
        skip([&] {
            programa.push_back(Text(u"19110050015")
                                   .append(fourDigits(toInteger16(margem.text)))
                                   .append(dialogo.txtcodigo->text));
        });
    }
    programa.push_back(Text(u"Q").append(fourDigits(1)));
    programa.emplace_back(u"E");
    return programa;
}

Programa teste_frente_zpl(const FrmPadrao& form, const MargensLinguagem& dialogo) {
    Programa programa = zplHeading(form, Copies::no_line);
    const Text& y = dialogo.txtmargemsuperior->text;
    writeBoxFront(programa, dialogo.txtmargem1[0].text, y, sample::left_code);
    writeBoxFront(programa, dialogo.txtmargem1[1].text, y, sample::right_code);
    programa.emplace_back(u"^XZ");
    return programa;
}

} // namespace etiquetas
