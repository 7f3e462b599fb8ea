#include "channel/Pacotes.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "channel/Transporte.h"
#include "platform/Focus.h"
#include "platform/MessageBoxes.h"
#include "workbench/FrmPadrao.h"

#include <algorithm>
#include <array>

namespace etiquetas {

namespace {

constexpr std::size_t slot_da_quantidade = 2;

const TextField& quantidade(const FrmPadrao& form) {
    return form.txtnumero[slot_da_quantidade];
}

// A field of a label: its place ("x, y"), its command and its text.
Text campo(TextView lugar, TextView comando, TextView dado) {
    return Text(u"^FO").append(lugar).append(comando).append(dado).append(u"^FS");
}

Text linha_das_quantidades(const FrmPadrao& form) {
    constexpr std::int32_t etiquetas_por_par = 2;
    const std::int16_t pares = toInteger16(quantidade(form).text);
    return campo(u"540, 40", u"^A0N,25,25^FD",
                 u"Qte: " + numberText(toInteger16(pares * etiquetas_por_par)) + u" | Imp. " +
                     numberText(pares));
}

void escreve_cabecalho(const FrmPadrao& form, Programa& programa) {
    const Text pedido = u"Pedido: " + Text(trimmed(form.txtarquivo.text));
    const Text cor = u"Cor: " + Text(trimmed(form.txtcor.text));
    programa.insert(programa.end(),
                    {u"^XA", u"^MNY", u"^LT0", u"^LH0,0", u"^FO20, 5^GB800,0,4,^FS",
                     campo(u"20, 15", u"^A0N,20,15^FD", u"Fabrica: " + form.txtcliente.text),
                     campo(u"20, 40", u"^A0N,25,25^FD", pedido),
                     campo(u"300, 40", u"^A0N,25,25^FD", cor)});
    skip([&] { programa.push_back(linha_das_quantidades(form)); });
    programa.insert(programa.end(), {u"^FO20, 65^GB800,0,4,^FS", u"^XZ"});
}

// A strip holds two labels: an odd number of them takes one more.
Text linha_das_copias(const FrmPadrao& form) {
    constexpr std::int32_t etiquetas_por_tira = 2;
    const std::int16_t pedidas = toInteger16(quantidade(form).text);
    const bool impar = pedidas % etiquetas_por_tira != 0;
    const std::int16_t etiquetas = impar ? toInteger16(std::int32_t{pedidas} + 1) : pedidas;
    return u"^PQ" + numberText(etiquetas / etiquetas_por_tira) + u",,1,Y";
}

void escreve_codigos(const FrmPadrao& form, Programa& programa) {
    const TextView codigo = trimmed(form.txtcodigo.text);
    programa.insert(programa.end(), {u"^XA", u"^MNY", u"^LT0"});
    skip([&] { programa.push_back(linha_das_copias(form)); });
    programa.insert(programa.end(), {u"^LH0,0", campo(u"135, 20", u"^A0N,55,45^FD", codigo),
                                     campo(u"535, 20", u"^A0N,55,45^FD", codigo), u"^XZ"});
}

// Where the lines of a pack's label begin; the week stands at the second place.
struct LadoDaTira {
    TextView x;
    TextView x_da_semana;
};

constexpr LadoDaTira lado_esquerdo{u"70", u"250"};
constexpr LadoDaTira lado_direito{u"500", u"680"};

struct LinhaDoPacote {
    TextView x;
    TextView y;
    TextView comando;
    Text dado;
};

std::array<LinhaDoPacote, 8> linhas_do_pacote(const FrmPadrao& form, const LadoDaTira& lado) {
    const TextView cor = form.txtcor.text;
    const TextView codigo = form.txtcodigo.text;
    const TextView descricao = form.txtdescricao.text;
    return {{
        {lado.x, u"40", u"^A0N,60,50^FD", Text(mid(cor, 1, 8))},
        {lado.x, u"100", u"^A0N,60,50^FD", Text(mid(cor, 9, 8))},
        {lado.x, u"160", u"^A0N,70,60^FD", Text(right(codigo, 3))},
        {lado.x, u"223", u"^A0N,30,20^FD", Text(mid(descricao, 1, 30))},
        {lado.x, u"247", u"^A0N,30,20^FD", Text(mid(descricao, 31, 30))},
        {lado.x, u"275", u"^BY3,,60^BEN,60,N,N,N^FD", RET_CODCERTO(codigo)},
        {lado.x, u"350", u"^A0N,35,25^FD", Text(trimmed(codigo))},
        {lado.x_da_semana, u"350", u"^A0N,35,25^FD", Text(trimmed(form.txtsemana.text))},
    }};
}

void escreve_pacote(const FrmPadrao& form, const LadoDaTira& lado, Programa& programa) {
    for (const LinhaDoPacote& linha : linhas_do_pacote(form, lado)) {
        const Text lugar = Text(linha.x).append(u", ").append(linha.y);
        programa.push_back(com_aspas(campo(lugar, linha.comando, linha.dado)));
    }
}

Programa programa_dos_pacotes(const FrmPadrao& form, std::int16_t pacotes) {
    Programa programa;
    bool tira_aberta = false;
    for (std::int32_t pacote = 1; pacote <= pacotes; ++pacote) {
        if (!tira_aberta) {
            programa.insert(programa.end(), {u"^XA", u"^MNY", u"^LT0", u"^LH0,0"});
        }
        escreve_pacote(form, tira_aberta ? lado_direito : lado_esquerdo, programa);
        if (tira_aberta) {
            programa.emplace_back(u"^XZ");
        }
        tira_aberta = !tira_aberta;
    }
    if (tira_aberta) {
        programa.emplace_back(u"^XZ");
    }
    return programa;
}

void pede_numero_de_pacotes(FrmPadrao& form) {
    skip([&] { form.platform.messages.show({u"Informe o Número de Pacotes"}); });
    skip([&] { form.platform.focus.moveTo(quantidade(form)); });
}

} // namespace

void Imprime_OcultaNova(FrmPadrao& form, const CheckBox& cabecalho) {
    Programa programa;
    if (cabecalho.checked) {
        escreve_cabecalho(form, programa);
    }
    escreve_codigos(form, programa);
    envia_programa(form, programa, FimDoComando::com_avanco);
}

void Imprime_Pacote(FrmPadrao& form) {
    if (isBlank(quantidade(form).text)) {
        pede_numero_de_pacotes(form);
        return;
    }
    std::int16_t pacotes = 0;
    skip([&] { pacotes = toInteger16(quantidade(form).text); });
    envia_programa(form, programa_dos_pacotes(form, pacotes), FimDoComando::simples);
}

Text RET_CODCERTO(TextView codigo) {
    constexpr std::size_t digitos_ean = 13;
    const std::size_t presentes = std::min(trimmed(codigo).size(), digitos_ean);
    return Text(digitos_ean - presentes, u'0').append(codigo);
}

} // namespace etiquetas
