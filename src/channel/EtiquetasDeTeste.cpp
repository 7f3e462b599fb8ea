#include "channel/EtiquetasDeTeste.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "channel/MargensLinguagem.h"
#include "workbench/FrmPadrao.h"

#include <array>

namespace etiquetas {

namespace {

enum class Copias : std::uint8_t { uma, sem_linha };

// The first lines of every ZPL program: darkness, start, number of copies, origin and speed.
Programa inicio_zpl(const FrmPadrao& form, Copias copias) {
    const TextView velocidade = trimmed(form.cmbvelocidade.text);
    Programa programa{Text(u"~SD").append(trimmed(form.cmbintensidade.text)), u"^XA", u"^LT0"};
    if (copias == Copias::uma) {
        programa.emplace_back(u"^PQ1,,1,Y");
    }
    programa.emplace_back(u"^LH0,0");
    programa.push_back(Text(u"^PR").append(velocidade).append(u",").append(velocidade));
    return programa;
}

Text campo_zpl(TextView x, TextView y, TextView comando, TextView dado) {
    return Text(u"^FO").append(x).append(u",").append(y).append(comando).append(dado).append(
        u"^FS");
}

// Sample texts of the box front label.
namespace amostra {
constexpr TextView cor = u"OURO";
constexpr TextView preco = u"   139,99"; // 9 characters wide
constexpr TextView codigo_esquerdo = u"5016267001";
constexpr TextView codigo_direito = u"501626700";
} // namespace amostra

struct LinhaDaFrente {
    int x; // dots from the margins
    int y;
    TextView comando;
    TextView dado;
    bool aspas; // points become double quotes
};

std::array<LinhaDaFrente, 10> linhas_da_frente(TextView codigo) {
    return {{
        {0, 0, u"^A0N,100,80^FD", u"267", false},
        {130, 0, u"^A0N,35,20^FH\\^FD", mid(amostra::cor, 1, 12), true},
        {130, 40, u"^A0N,35,20^FH\\^FD", mid(amostra::cor, 13, 12), true},
        {220, 30, u"^A0N,70,60^FD", u"35", false},
        {55, 270, u"^A0N,60,40^FD", amostra::preco, false},
        {0, 100, u"^A0N,30,20^FD", u"LUMIRA 170000 FE FST SND", true},
        {0, 130, u"^A0N,30,20^FD", u"AL", true},
        {1, 160, u"^BY2^BCN,70,N,N,N,D^FD", u"1000000115475", true},
        {70, 240, u"^A0N,30,30^FD", codigo, true},
        {245, 130, u"^A0N,30,20^FD", u"F2", true},
    }};
}

// A margin moved by some dots; one that is not moved stays as it was typed.
Text deslocada(TextView margem, int pontos) {
    return pontos == 0 ? Text(margem)
                       : numberText(toInteger16(std::int32_t{toInteger16(margem)} + pontos));
}

void escreve_frente(Programa& programa, TextView x, TextView y, TextView codigo) {
    for (const LinhaDaFrente& linha : linhas_da_frente(codigo)) {
        skip([&] {
            const Text texto =
                campo_zpl(deslocada(x, linha.x), deslocada(y, linha.y), linha.comando, linha.dado);
            programa.push_back(linha.aspas ? com_aspas(texto) : texto);
        });
    }
}

struct ComandoPpla {
    TextView controle;
    TextView texto;
};

constexpr TextView soh = u"\001";
constexpr TextView stx = u"\002";
constexpr std::array<ComandoPpla, 9> inicio_ppla{{
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

Text quatro_digitos(std::int16_t numero) {
    return formatted(numero, u"#0000");
}

} // namespace

Programa teste_oculta_zpl(const FrmPadrao& form, const MargensLinguagem& dialogo) {
    Programa programa = inicio_zpl(form, Copias::uma);
    for (const TextField& margem : dialogo.txtmargem1) {
        programa.push_back(campo_zpl(trimmed(margem.text), trimmed(dialogo.txtmargemsuperior->text),
                                     u"^A0N,55,45^FD", trimmed(dialogo.txtcodigo->text)));
    }
    programa.emplace_back(u"^XZ");
    return programa;
}

Programa teste_oculta_virada_zpl(const FrmPadrao& form, const MargensLinguagem& dialogo) {
    Programa programa = inicio_zpl(form, Copias::uma);
    for (const TextField& margem : dialogo.txtmargem1) {
        programa.push_back(campo_zpl(margem.text, dialogo.txtmargemsuperior->text, u"^A0B,55,45^FD",
                                     dialogo.txtcodigo->text));
    }
    programa.emplace_back(u"^XZ");
    return programa;
}

Programa teste_oculta_ppla(const FrmPadrao& /*form*/, const MargensLinguagem& dialogo) {
    Programa programa;
    for (const ComandoPpla& comando : inicio_ppla) {
        programa.push_back(Text(comando.controle).append(comando.texto));
    }
    for (const TextField& margem : dialogo.txtmargem1) {
        skip([&] {
            programa.push_back(Text(u"19110050015")
                                   .append(quatro_digitos(toInteger16(margem.text)))
                                   .append(dialogo.txtcodigo->text));
        });
    }
    programa.push_back(Text(u"Q").append(quatro_digitos(1)));
    programa.emplace_back(u"E");
    return programa;
}

Programa teste_frente_zpl(const FrmPadrao& form, const MargensLinguagem& dialogo) {
    Programa programa = inicio_zpl(form, Copias::sem_linha);
    const Text& y = dialogo.txtmargemsuperior->text;
    escreve_frente(programa, dialogo.txtmargem1[0].text, y, amostra::codigo_esquerdo);
    escreve_frente(programa, dialogo.txtmargem1[1].text, y, amostra::codigo_direito);
    programa.emplace_back(u"^XZ");
    return programa;
}

} // namespace etiquetas
