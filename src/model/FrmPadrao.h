#pragma once

#include "base/Text.h"
#include "model/MargensDialog.h"
#include "model/ParametroDialog.h"
#include "model/Tipo.h"
#include "platform/Fields.h"
#include "platform/PictureBox.h"
#include "platform/Platform.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace etiquetas {

/// Sizes that one item can have.
inline constexpr std::size_t total_slots = 14;

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
    /// As designed: the start-up fills it from the table of label kinds.
    ListField cmbtipo{Text(tipo::frente_de_caixa),
                      u"Tipo de Etiqueta",
                      {Text(tipo::frente_de_caixa), Text(tipo::corrugado), Text(tipo::acessorio),
                       Text(tipo::oculta)},
                      0};
    TextField txtarquivo{u"1400050831", u"Pedido"};
    ListField filelist{.visible = false};
    ListField List1{.visible = false};

    // Item of the box, hidden and accessory kinds
    Panel Frame1{Text(panel_caption::caixa_oculta)};
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
    Panel Frame3{Text(panel_caption::corrugado), false};
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

    // Dialogs. The Workbench stays usable while they are open
    MargensDialog FrmMargensOcultaZPL2 = designOfHiddenMargins();
    MargensDialog FrmMargensCxZPL45 = designOfBoxFrontMargins();
    MargensDialog FrmMargensPackZPL = designOfCartonMargins();
    ParametroDialog FrmParametroImpressora;
    /// True once the parameter dialog has been activated. Only the first activation of a run shows
    /// what is stored; opened again, the dialog shows its fields as designed.
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
    /// Labels that were drawn since the Print command last began, each with all of its rows.
    std::int32_t labels_drawn = 0;
    /// True while `pctimage` holds the photograph of the item.
    bool tem_imagem = false;
};

} // namespace etiquetas
