#include "channel/Pacotes.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "channel/Transporte.h"
#include "channel/Zpl.h"
#include "model/FrmPadrao.h"
#include "model/LabelCounts.h"
#include "platform/Focus.h"
#include "platform/MessageBoxes.h"

#include <algorithm>
#include <array>

namespace etiquetas {

namespace {

constexpr std::size_t quantity_slot = 2;

const TextField& quantityField(const FrmPadrao& form) {
    return form.txtnumero[quantity_slot];
}

Text quantitiesLine(const FrmPadrao& form) {
    const std::int16_t pares = toInteger16(quantityField(form).text);
    return zplField(u"540, 40", u"^A0N,25,25^FD",
                    u"Qte: " + numberText(toInteger16(pares * hidden_labels_per_pair)) +
                        u" | Imp. " + numberText(pares));
}

void writeHeader(const FrmPadrao& form, PrinterProgram& program) {
    const Text pedido = u"Pedido: " + Text(trimmed(form.txtarquivo.text));
    const Text cor = u"Cor: " + Text(trimmed(form.txtcor.text));
    program.insert(program.end(),
                   {u"^XA", u"^MNY", u"^LT0", u"^LH0,0", u"^FO20, 5^GB800,0,4,^FS",
                    zplField(u"20, 15", u"^A0N,20,15^FD", u"Fabrica: " + form.txtcliente.text),
                    zplField(u"20, 40", u"^A0N,25,25^FD", pedido),
                    zplField(u"300, 40", u"^A0N,25,25^FD", cor)});
    skip([&] { program.push_back(quantitiesLine(form)); });
    program.insert(program.end(), {u"^FO20, 65^GB800,0,4,^FS", u"^XZ"});
}

// A strip holds two labels: an odd number of them takes one more.
Text copiesLine(const FrmPadrao& form) {
    constexpr std::int32_t labels_per_strip = 2;
    const std::int16_t wanted = toInteger16(quantityField(form).text);
    const bool odd = wanted % labels_per_strip != 0;
    const std::int16_t labels = odd ? toInteger16(std::int32_t{wanted} + 1) : wanted;
    return u"^PQ" + numberText(labels / labels_per_strip) + u",,1,Y";
}

void writeCodes(const FrmPadrao& form, PrinterProgram& program) {
    const TextView codigo = trimmed(form.txtcodigo.text);
    program.insert(program.end(), {u"^XA", u"^MNY", u"^LT0"});
    skip([&] { program.push_back(copiesLine(form)); });
    program.insert(program.end(), {u"^LH0,0", zplField(u"135, 20", u"^A0N,55,45^FD", codigo),
                                   zplField(u"535, 20", u"^A0N,55,45^FD", codigo), u"^XZ"});
}

// Where the lines of a pack's label begin; the week stands at the second place.
struct StripSide {
    TextView x;
    TextView week_x;
};

constexpr StripSide left_side{u"70", u"250"};
constexpr StripSide right_side{u"500", u"680"};

struct PackLine {
    TextView x;
    TextView y;
    TextView command;
    Text data;
};

std::array<PackLine, 8> packLines(const FrmPadrao& form, const StripSide& side) {
    const TextView cor = form.txtcor.text;
    const TextView codigo = form.txtcodigo.text;
    const TextView descricao = form.txtdescricao.text;
    return {{
        {side.x, u"40", u"^A0N,60,50^FD", Text(mid(cor, 1, 8))},
        {side.x, u"100", u"^A0N,60,50^FD", Text(mid(cor, 9, 8))},
        {side.x, u"160", u"^A0N,70,60^FD", Text(right(codigo, 3))},
        {side.x, u"223", u"^A0N,30,20^FD", Text(mid(descricao, 1, 30))},
        {side.x, u"247", u"^A0N,30,20^FD", Text(mid(descricao, 31, 30))},
        {side.x, u"275", u"^BY3,,60^BEN,60,N,N,N^FD", RET_CODCERTO(codigo)},
        {side.x, u"350", u"^A0N,35,25^FD", Text(trimmed(codigo))},
        {side.week_x, u"350", u"^A0N,35,25^FD", Text(trimmed(form.txtsemana.text))},
    }};
}

void writePack(const FrmPadrao& form, const StripSide& side, PrinterProgram& program) {
    for (const PackLine& line : packLines(form, side)) {
        const Text place = Text(line.x).append(u", ").append(line.y);
        program.push_back(withQuotes(zplField(place, line.command, line.data)));
    }
}

PrinterProgram packProgram(const FrmPadrao& form, std::int16_t pacotes) {
    PrinterProgram program;
    bool strip_is_open = false;
    for (std::int32_t pacote = 1; pacote <= pacotes; ++pacote) {
        if (!strip_is_open) {
            program.insert(program.end(), {u"^XA", u"^MNY", u"^LT0", u"^LH0,0"});
        }
        writePack(form, strip_is_open ? right_side : left_side, program);
        if (strip_is_open) {
            program.emplace_back(u"^XZ");
        }
        strip_is_open = !strip_is_open;
    }
    if (strip_is_open) {
        program.emplace_back(u"^XZ");
    }
    return program;
}

void askForPacks(FrmPadrao& form) {
    skip([&] { form.platform.messages.show({u"Informe o Número de Pacotes"}); });
    skip([&] { form.platform.focus.moveTo(quantityField(form)); });
}

} // namespace

void Imprime_OcultaNova(FrmPadrao& form, const CheckBox& cabecalho) {
    PrinterProgram program;
    if (cabecalho.checked) {
        writeHeader(form, program);
    }
    writeCodes(form, program);
    sendProgram(form, program, CommandFileEnd::extra_line_feed);
}

void Imprime_Pacote(FrmPadrao& form) {
    if (isBlank(quantityField(form).text)) {
        askForPacks(form);
        return;
    }
    std::int16_t pacotes = 0;
    skip([&] { pacotes = toInteger16(quantityField(form).text); });
    sendProgram(form, packProgram(form, pacotes), CommandFileEnd::plain);
}

Text RET_CODCERTO(TextView codigo) {
    constexpr std::size_t ean_digits = 13;
    const std::size_t present = std::min(trimmed(codigo).size(), ean_digits);
    return Text(ean_digits - present, u'0').append(codigo);
}

} // namespace etiquetas
