#pragma once

#include "base/Text.h"
#include "platform/Fields.h"
#include "platform/PictureBox.h"
#include "platform/Platform.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace etiquetas {

/// Sizes that one item can have.
inline constexpr std::size_t total_slots = 14;

/// The kinds of label, as `cmbtipo` offers them.
namespace tipo {
inline constexpr TextView frente_de_caixa = u"Frente de Caixa";
inline constexpr TextView corrugado = u"Corrugado";
inline constexpr TextView acessorio = u"Acessório";
inline constexpr TextView oculta = u"Oculta";
/// Stands ready for the Print command, but `cmbtipo` does not offer it.
inline constexpr TextView frente_de_caixa_100x40 = u"Frente de Caixa100x40";
} // namespace tipo

// The dialogs stand beside the Workbench, which stays usable behind them. Each opening starts from
// the fields as they are designed here. `to_front` is set when an open dialog is asked for again:
// whoever shows the dialog brings it to the front and clears it.

/// One dialog for each stock of labels, in which the operator sets, tests and stores the margins.
/// What a dialog lacks is not visible.
struct MargensDialog {
    Text Caption;
    Panel Frame1;
    Label Label1{u"Margem Padrão"};
    Label Label2; // default of `txtmargem1`
    Label Label3; // default of `txtmargem2`
    Label Label5{u"Novo Valor"};
    Label Label6; // caption of `txtmargemsuperior`
    TextField txtmargem1{.text = u"Text1", .caption = u"Coluna 1 (mm)"};
    TextField txtmargem2{.text = u"Text1", .caption = u"Coluna 2 (mm)"};
    TextField txtmargemsuperior;
    std::optional<TextField> txtcodigo; // hidden; nothing reads it
    Command cmd_gravar{u"&Gravar Margens"};
    Command cmd_teste{u"&Impressão de Teste"};
    Command cmd_exit{u"&Sair"};
    bool open = false;
    bool to_front = false;
};

/// Margins of the hidden and accessory labels, as designed.
[[nodiscard]] inline MargensDialog FrmMargensOcultaZPL2_design() {
    return {.Caption = u"Calibrar Margens - Etiqueta Oculta - ZPL - 2 Colunas",
            .Frame1 = {u"Etiqueta 40x20x2 "},
            .Label2 = {u"3"},
            .Label3 = {u"45"},
            .Label6 = {u"Margem Superior"},
            .txtmargemsuperior = {.text = u"3"},
            .txtcodigo = TextField{.text = u"Text1", .visible = false}};
}

/// Margins of the box front label, as designed.
[[nodiscard]] inline MargensDialog FrmMargensCxZPL45_design() {
    return {.Caption = u"Calibrar Margens - Etiqueta Frente de Caixa - ZPL",
            .Frame1 = {u"Etiqueta 45X40X2"},
            .Label2 = {u"0"},
            .Label3 = {u"40"},
            .Label6 = {u"Margem Esquerda"}};
}

/// Margins of the carton label, which has one column, as designed.
[[nodiscard]] inline MargensDialog FrmMargensPackZPL_design() {
    return {.Caption = u"Calibrar Margens - Etiqueta Corrugada - ZPL",
            .Frame1 = {u"Etiqueta 100x140x1"},
            .Label2 = {u"3"},
            .Label3 = {.visible = false},
            .Label6 = {u"Margem Superior"},
            .txtmargem1 = {.text = u"Text1", .caption = u"Margem Esquerda (mm)"},
            .txtmargem2 = {.visible = false}};
}

/// The printer parameters. The operator sees the order folder, the panel of the standard labels and
/// the commands; the fields of the hidden panels are stored and shown back all the same.
struct ParametroDialog {
    Text Caption = u"Parâmetro de Impressão";

    Label Label6{u"Local de Armazenamento Padrão dos Arquivos..."};
    TextField TXTPATH;
    Command CMD_GETPATH{.caption = u"...",
                        .tooltip =
                            u"Clique aqui para Selecionar a Pasta que irá conter os arquivos..."};
    Panel Frame5{u"Etiqueta Padrão"};
    Label Label7{u"Etiqueta Oculta : 40 x 20 x 2 "};
    Label Label8{u"Etiqueta PACK  : 140 x 100 x 1 "};
    Label Label9{u"Etiqueta Acessório : 40 x 20 x 2"};
    Label Label10{u"Etiqueta Frente de Caixa: 100 x 40 x 1"};
    Command cmd_grava{u"&Gravar Parâmetros"};
    Command cmd_sair{u"&Sair"};

    Panel Frame1{u"Linguagem de Impressão", false};
    Option optzpl{u"ZPL "};
    Option optppla{u"PPLA"};

    Panel Frame2{u"Porta de Comunicação da Impressora", false};
    Option optParalela{u"Porta Paralela"};
    Option optSerial{u"Porta Serial"};
    Option optUsb{u"Porta USB"};
    Panel FrameParalela{u"Porta Paralela"};
    Label Label1{u"Informe a Porta de Impressão"};
    ListField cmbparalela1;
    Panel FrameSerial{u"Porta Serial"};
    Label Label2{u"Informe a Porta de Impressão"};
    ListField cmbserial;
    Label Label3{u"Configuração da Porta Serial"};
    TextField txtserialconfiguracao{.text = u"9800,N,8,1"}; // no standard rate; only stored
    Panel FrameUSB{u"Porta USB", false};
    Label Label5{u"Informe a Porta de Impressão"};
    ListField cmbparalela2;
    Label Label4{u"Nome do Compartilhamento"};
    TextField txtnomecompartilhamento;

    Panel Frame3{u"Formato da Etiqueta Oculta", false};
    Option optoculta1{u"30x10x3"};
    Option optoculta2{u"10x30x7"};
    Option optoculta3{u"10x30x8"};
    Option optoculta4{u"30x10x2"};

    Panel Frame4{u"Formato da Etiqueta Frente de Caixa/Acessório", false};
    Option optfrentecaixa1{u"40x45x2"};
    Option optfrentecaixa2{u"45x40x2"};

    bool open = false;
    bool to_front = false;
};

/// The Workbench: the one window of the system, whose fields are its data model. Loaders write an
/// order's values into the fields, the operator may correct them, and the renderers are handed
/// their texts; no other record of an order exists. The routines are free functions over it.
///
/// Fields stand with the values that they have when the window opens.
struct FrmPadrao {
    explicit FrmPadrao(const Platform& machine) : platform(machine), Picture1(machine.pictures) {
        Picture1.visible = false;
    }

    Platform platform;

    // The window
    Text Caption = u"Etiquetas Lumira";
    int Width = 0;  // twips
    int Height = 0; // twips
    /// While it is on, the window looks at each key before the field that has the focus.
    bool KeyPreview = true;

    // Order selection
    Panel Frame4{u"Selecione o Pedido"};
    ListField cmbtipo{u"Frente de Caixa",
                      u"Tipo de Etiqueta",
                      {u"Frente de Caixa", u"Corrugado", u"Acessório", u"Oculta"},
                      0};
    TextField txtarquivo{u"1400050831", u"Pedido"};
    ListField filelist{.visible = false};
    ListField List1{.visible = false};

    // Item of the box, hidden and accessory kinds
    Panel Frame1{u"Caixa / Oculta"};
    ListField cmb_referencia{.caption = u"Item"};
    TextField txtcodigo{.caption = u"Código"};
    TextField txtcor{.caption = u"Cor"};
    TextField txtdescricao{.caption = u"Descrição"};
    TextField txtsemana{.caption = u"Semana"};
    TextField txtbandeira{.caption = u"Bandeira"};
    TextField txtpreco{.caption = u"Preço"};
    TextField txtpromocao{.caption = u"Promoção"};
    /// Size slot i is the pair `Label7[i]`, `txtnumero[i]`: a size and its quantity of pairs.
    std::array<Label, total_slots> Label7{{{u"14"},
                                           {u"15"},
                                           {u"16"},
                                           {u"17"},
                                           {u"18"},
                                           {u"19"},
                                           {u"20"},
                                           {u"21"},
                                           {u"22"},
                                           {u"23"},
                                           {u"24"},
                                           {u"25"},
                                           {u"26"},
                                           {u"27"}}};
    std::array<TextField, total_slots> txtnumero{};
    Label Label7_50{u"Pacotes"};
    TextField TXTPARES{.locked = true};
    TextField TXTOCULTAS{};
    Label Label71{u"Total de Pares"};
    Label Label72{u"Total de Etiquetas Ocultas"};
    Label LBLBRISAKO{u"BRISA KO"};
    PictureField pctimage;
    PictureField pctlogo1; // logo of the second banner, BRISA KO
    PictureField pctlogo2; // logo of the first banner, LUMIRA
    TextField txtbarra{.text = u"Text1", .visible = false};
    PictureBox Picture1;
    PictureField Picture2{.visible = false};

    // Item of the corrugated kind
    Panel Frame3{u"Corrugado", false};
    ListField cmb_referencia1{.caption = u"Produto"};
    TextField txtsemana1{.caption = u"Semana"};
    TextField txtcor1{.caption = u"Cor"};
    TextField txtcodigo1{.caption = u"Cod.Master"};
    TextField txtqte1{.caption = u"Qte"};
    TextField txtdescricao1{.caption = u"Descrição"};
    TextField txtprepack{.caption = u"Código Pré Pack"};
    TextField txtgrade1{.caption = u"Grade"};
    TextField txtgrade2{.caption = u"Grade"};
    TextField txttotgrade{.caption = u"Total"};
    TextField txtfornecedor1{.caption = u"Fornecedor"};
    TextField txtdestino1{.caption = u"Destino"};
    TextField txtvolume{.caption = u"Volume"};
    ListField cmb_vol1{.caption = u"Volume Inicial"};
    ListField cmb_vol2{.caption = u"Volume Final"};
    Label lblmax{.visible = false};
    TextField txtean{.visible = false};
    Label lblean{u"Código EAN", false};

    // Options
    Panel Frame2{.visible = false};
    TextField txtlote{.caption = u"Adicionar"};
    TextField txtcliente{.caption = u"Empresa"};

    // Printer and commands
    ListField CMBPRINTER{.caption = u"Impressora"};
    Label lblprinterdefault{.visible = false};
    Command cmd_printacessorio{u"&Imprimir Etiquetas"};
    Command cmd_calibra{u"&Calibrar Etiquetas"};
    Command cmd_parametro{u"&Parâmetro de Impressão"};
    Command cmd_sair{u"&Sair"};

    // Settings that the window keeps for its dialogs
    Label lblpath{.visible = false};
    Label lbloculta{u"3", false};
    Label lblcompartilhamento{.visible = false};
    Label frentecaixa{u"40_45_2", false};
    Label lbllinguagem{u"Label17", false};
    Label lblporta{u"Label17", false};
    Label LBLPORTAPARELELA{u"LPT1", false};
    Label lblmaster{.visible = false};
    Label lblbarra{.visible = false};

    // Fields that nothing shows; `cmd_sair` stores the texts of two of them
    CheckBox chk_coletiva{u"Imprimir Caixa Coletiva", false, false};
    CheckBox chkcabecalho{u"Imprimir Cabeçalho", false, false};
    ListField cmb_etiqueta{.caption = u"Tamanho/Etiqueta-Corrugada", .visible = false};
    Label lblocultasuperior{.visible = false};
    TextField txtean13{.caption = u"Ean 13", .visible = false};
    ListField cmbintensidade{.caption = u"Intensidade", .visible = false};
    ListField cmbvelocidade{.caption = u"Velocidade", .visible = false};

    // Dialogs
    MargensDialog FrmMargensOcultaZPL2 = FrmMargensOcultaZPL2_design();
    MargensDialog FrmMargensCxZPL45 = FrmMargensCxZPL45_design();
    MargensDialog FrmMargensPackZPL = FrmMargensPackZPL_design();
    ParametroDialog FrmParametroImpressora;
    /// True from the first time on that the parameter dialog was activated: only then it shows what
    /// is stored. Opened again it shows its fields as designed.
    bool ParametrosCarregados = false;

    // Margins, millimetres; each job reads its own from the settings file
    float Margem_oculta1 = 0;
    float Margem_oculta11 = 0;
    float Margem_oculta2 = 0;
    float Mx4045_1 = 0;
    float Mx4045_2 = 0;
    float Mx4045 = 0;
    float PackX = 0;
    float PackY = 0;
    float PackLinhaX = 0;
    float PackLinhaY = 0;

    /// Column of the next label of a two-across strip, 1 or 2.
    std::int16_t coluna_etiqueta = 1;
    /// Banner of the labels: "L" is LUMIRA, anything else BRISA KO.
    Text marca_logo;
    /// Face of the label texts; "Estrangelo Edessa" once the window has been loaded.
    Text NomeFonte;
    bool LogoBrisakoOk = false;
    bool LogoLumiraOk = false;

    /// Family of the loaded order: "A" box, "B" corrugated, "C" accessory.
    Text TipoArquivo;
    bool ImpressaoFeita = false;
    /// True while `pctimage` holds the photograph of the item.
    bool tem_imagem = false;
};

} // namespace etiquetas
