#include "support/Journey.h"

#include "channel/FontesMargem.h"
#include "channel/Pacotes.h"
#include "channel/Transporte.h"
#include "labels/Acessorio.h"
#include "labels/Cabecalho.h"
#include "labels/Corrugado.h"
#include "labels/Frente100x40.h"
#include "labels/FrenteCaixa.h"
#include "labels/Oculta.h"
#include "margins/Margens.h"
#include "orders/GradeAcessorio.h"
#include "orders/GradeCorrugado.h"
#include "orders/GradeFc.h"
#include "support/Cases.h"
#include "workbench/Campos.h"
#include "workbench/Dialogos.h"
#include "workbench/FrmParametroImpressora.h"
#include "workbench/Impressao.h"
#include "workbench/Saida.h"

namespace etiquetas::test {

// Journeys through the Workbench, its dialogs and the channel. Each stands in the folder of the
// room that it goes through, under the name of the file that it tests.

using Words = const std::string&;

static std::vector<std::string> wordsOf(Words text) {
    std::istringstream words(text);
    return {std::istream_iterator<std::string>(words), {}};
}

static std::vector<Text> namesOf(Words text) {
    const Text all = utf16(text);
    const std::vector<TextView> names = split(all, u',');
    return {names.begin(), names.end()};
}

// Sets a field to the words that stand after its name.
static void setField(Stage& stage, Words words) {
    const std::size_t space = words.find(' ');
    stage.field(words.substr(0, space)).change(words.substr(space + 1));
    stage.changes(); // which the step tells by itself
}

static void setText(Stage& stage, Words words) {
    stage.texts[words.substr(0, words.find(' '))] = quoted(words);
    stage.changes();
}

// The file is lost as soon as another one has been written.
static void loseFile(Stage& stage, Words name) {
    FakeFiles& files = stage.machine.files;
    files.on_write = [&files, path = u"/programa/" + utf16(name)] { files.bytes.erase(path); };
}

struct NamedKey {
    std::string name;
    KeyCode key;
};

static const NamedKey named_keys[] = {{"Enter", key::enter},       {"Backspace", key::backspace},
                                      {"Ctrl+A", key::select_all}, {"Up", key::arrow_up},
                                      {"Down", key::arrow_down},   {"nothing", key::none}};

static KeyCode keyNamed(Words name) {
    const auto known = std::ranges::find(named_keys, name, &NamedKey::name);
    return known == std::end(named_keys) ? utf16(name).front() : known->key;
}

static void pressInWindow(Stage& stage, Words key) {
    FrmPadrao_keydown(stage.form, keyNamed(key));
}

// Tells what becomes of each key.
static void pressKeys(Stage& stage, Words keys, const std::function<KeyCode(KeyCode)>& pressed) {
    std::string passed = "passes";
    for (Words name : wordsOf(keys)) {
        const KeyCode key = pressed(keyNamed(name));
        const auto known = std::ranges::find(named_keys, key, &NamedKey::key);
        passed += " " + (known == std::end(named_keys) ? utf8({&key, 1}) : known->name);
    }
    stage.machine.tell(passed);
}

// Each margin that labels in a printer language take.
static void tellMargins(Stage& stage, const MargensDeEtiqueta& margins) {
    for (const Text& column : margins.colunas) {
        stage.machine.tell("column", utf8(column));
    }
    stage.machine.tell("top", inQuotes(margins.superior));
}

static std::int16_t numberOf(const Text& text) {
    return static_cast<std::int16_t>(std::stoi(utf8(text)));
}

// Labels drawn with the texts of the journey, under the names that their parameters have.
static void drawHidden(FrmPadrao& form, Texts& t) {
    Imprime_Oculta_40_20_2(form, t["flag"], t["descricao"], t["ref3"], t["master"], t["barra"],
                           t["numero"], numberOf(t["quantidade"]), t["cor"]);
}
static void drawAccessory(FrmPadrao& form, Texts& t) {
    Imprime_Acessorio_40_20_2(form, t["flag"], t["descricao_cor"], t["ref3"], t["codigo"],
                              t["barra"], t["pares"], t["preco"], numberOf(t["quantidade"]),
                              t["bandeira"], t["semana"], t["promocao"]);
}
static void drawCarton(FrmPadrao& form, Texts& t) {
    EtiPack(form, t["flag"], t["destino"], t["pedido"], t["codigo"], t["fornecedor"],
            t["descricao"], t["cor"], t["barra"], t["grade1"], t["grade2"], t["totgrade"],
            numberOf(t["de"]), numberOf(t["ate"]), t["semana"]);
}
static void drawBoxFront(FrmPadrao& form, Texts& t) {
    Imprime_40_45_2(form, t["flag"], t["descricao"], t["cor"], t["ref3"], t["master"], t["barra"],
                    t["numero"], t["preco"], numberOf(t["quantidade"]), t["promocao"], t["semana"],
                    t["bandeira"]);
}
static void drawWideBoxFront(FrmPadrao& form, Texts& t) {
    Eti100_40_1(form, t["flag"], t["descricao"], t["ref3"], t["codigo"], t["barra"], t["numero"],
                t["preco"], numberOf(t["quantidade"]));
}
static auto drawing(void (*draw)(FrmPadrao&, Texts&)) {
    return [draw](Stage& stage, Words) { draw(stage.form, stage.texts); };
}

// Steps that run a routine, with what stands after its name.
static auto running(void (*routine)(FrmPadrao&)) {
    return [routine](Stage& stage, Words) { routine(stage.form); };
}
static auto running(void (*routine)(FrmPadrao&, std::size_t)) {
    return [routine](Stage& stage, Words slot) { routine(stage.form, std::stoul(slot)); };
}
static auto running(KeyCode (*routine)(FrmPadrao&, KeyCode)) {
    return [routine](Stage& stage, Words keys) {
        pressKeys(stage, keys, [&](KeyCode key) { return routine(stage.form, key); });
    };
}
static auto running(void (*routine)(FrmPadrao&, MargensDialog&)) {
    return [routine](Stage& stage, Words name) {
        static const std::map<std::string, MargensDialog FrmPadrao::*> dialogs{
            {"FrmMargensOcultaZPL2", &FrmPadrao::FrmMargensOcultaZPL2},
            {"FrmMargensCxZPL45", &FrmPadrao::FrmMargensCxZPL45},
            {"FrmMargensPackZPL", &FrmPadrao::FrmMargensPackZPL}};
        routine(stage.form, stage.form.*dialogs.at(name));
    };
}
static auto running(void (*routine)(FrmPadrao&, MargensLinguagem&)) {
    return [routine](Stage& stage, Words) { routine(stage.form, *stage.dialog); };
}
static auto running(MargensDeEtiqueta (*routine)(const FrmPadrao&)) {
    return [routine](Stage& stage, Words) { tellMargins(stage, routine(stage.form)); };
}
static auto opening(MargensLinguagem (*design)()) {
    return [design](Stage& stage, Words) { stage.open(design()); };
}

// clang-format off
static const Steps steps{
    // What an operator does, and what stands around the window.
    {"field", setField},
    {"file", [](Stage& stage, Words name) { stage.file(name).clear(); }},
    {"no file", [](Stage& stage, Words name) { stage.machine.files.bytes.erase(u"/programa/" + utf16(name)); }},
    {"lose file", loseFile},
    {"answer", [](Stage& stage, Words word) { stage.machine.answer = word == "yes" ? Answer::yes : Answer::no; }},
    {"pick", [](Stage& stage, Words folder) { stage.machine.picked = utf16(folder); }},
    {"refuse", [](Stage& stage, Words words) { const Log all = wordsOf(words); stage.machine.failing = {all.begin(), all.end()}; }},
    {"printers", [](Stage& stage, Words names) { stage.machine.printers.devices = namesOf(names); }},
    {"faces", [](Stage& stage, Words names) { stage.machine.printers.faces = namesOf(names); }},
    {"logos", [](Stage& stage, Words) { stage.takeLogos(); }},
    {"EAN bars", [](Stage& stage, Words digits) { stage.knowEanBars(utf16(digits)); }},
    {"Code 39 bars", [](Stage& stage, Words code) { stage.knowCode39Bars(utf16(code)); }},

    // The Workbench
    {"FrmPadrao_load", running(FrmPadrao_load)}, {"FrmPadrao_unload", running(FrmPadrao_unload)},
    {"FrmPadrao_keydown", pressInWindow},
    {"txtarquivo_enter", running(txtarquivo_enter)}, {"txtarquivo_key", running(txtarquivo_key)},
    {"txtarquivo_leave", running(txtarquivo_leave)}, {"txtcliente_enter", running(txtcliente_enter)},
    {"txtcliente_key", running(txtcliente_key)}, {"txtcliente_leave", running(txtcliente_leave)},
    {"txtcor_enter", running(txtcor_enter)}, {"txtcor_key", running(txtcor_key)},
    {"txtcor_leave", running(txtcor_leave)}, {"txtlote_key", running(txtlote_key)},
    {"txtnumero_enter", running(txtnumero_enter)}, {"txtnumero_leave", running(txtnumero_leave)},
    {"txtnumero_key", [](Stage& stage, Words keys) { pressKeys(stage, keys, [&](KeyCode key) { return txtnumero_key(stage.form, 13, key); }); }},
    {"TXTOCULTAS_enter", running(TXTOCULTAS_enter)}, {"TXTOCULTAS_key", running(TXTOCULTAS_key)},
    {"TXTOCULTAS_leave", running(TXTOCULTAS_leave)}, {"cmbtipo_enter", running(cmbtipo_enter)},
    {"cmbtipo_key", running(cmbtipo_key)}, {"cmbtipo_leave", running(cmbtipo_leave)},
    {"cmb_referencia_enter", running(cmb_referencia_enter)},
    {"cmb_referencia_key", running(cmb_referencia_key)},
    {"cmb_referencia_leave", running(cmb_referencia_leave)},
    {"cmb_referencia1_enter", running(cmb_referencia1_enter)},
    {"cmb_referencia1_key", running(cmb_referencia1_key)},
    {"cmb_referencia1_leave", running(cmb_referencia1_leave)},
    {"txtgrade1_dblclick", running(txtgrade1_dblclick)},
    {"txtgrade2_dblclick", running(txtgrade2_dblclick)},
    {"txttotgrade_dblclick", running(txttotgrade_dblclick)},
    {"Frame4_dblclick", running(Frame4_dblclick)},
    {"cmd_printacessorio_click", running(cmd_printacessorio_click)},
    {"cmd_calibra_click", running(cmd_calibra_click)},
    {"cmd_parametro_click", running(cmd_parametro_click)}, {"cmd_sair_click", running(cmd_sair_click)},

    {"carrega_gradeFc", running(carrega_gradeFc)}, {"carrega_corrugado", running(carrega_corrugado)},
    {"carrega_grade_Acessorio", running(carrega_grade_Acessorio)},

    // Its dialogs
    {"CMD_GETPATH_click", running(CMD_GETPATH_click)}, {"cmd_grava_click", running(cmd_grava_click)},
    {"FrmParametroImpressora_cmd_sair_click", running(FrmParametroImpressora_cmd_sair_click)},
    {"margens_load", running(margens_load)}, {"cmd_gravar_click", running(cmd_gravar_click)},
    {"cmd_teste_click", running(cmd_teste_click)}, {"cmd_exit_click", running(cmd_exit_click)},
    {"margem_enter", [](Stage& stage, Words) { margem_enter(stage.form.FrmMargensCxZPL45.txtmargem1); }},
    {"margem_key", [](Stage& stage, Words keys) { pressKeys(stage, keys, margem_key); }},

    // The labels
    {"text", setText}, {"photograph", [](Stage& stage, Words) { stage.takePhotograph(); }},
    {"millimetres", [](Stage& stage, Words) { stage.machine.printers.ScaleMode(ScaleMode::millimetres); }},
    {"sizes in quarter points", [](Stage& stage, Words) { stage.machine.printers.size_step = 0.25F; }},
    {"Imprime_Oculta_40_20_2", drawing(drawHidden)}, {"EtiPack", drawing(drawCarton)},
    {"Imprime_Acessorio_40_20_2", drawing(drawAccessory)}, {"Eti100_40_1", drawing(drawWideBoxFront)},
    {"Imprime_40_45_2", drawing(drawBoxFront)},
    {"Imprime_CabecAlho", [](Stage& stage, Words kind) { Imprime_CabecAlho(stage.form, utf16(kind)); }},

    // The channel
    {"FrmMargensOcultaZPL", opening(FrmMargensOcultaZPL)},
    {"FrmMargensOculta7ZPL", opening(FrmMargensOculta7ZPL)},
    {"FrmMargensOculta8ZPL", opening(FrmMargensOculta8ZPL)},
    {"FrmMargensOcultaPPLa", opening(FrmMargensOcultaPPLa)},
    {"FrmMargensCxZPL", opening(FrmMargensCxZPL)},
    {"MargensLinguagem_load", [](Stage& stage, Words) { MargensLinguagem_load(stage.form, *stage.dialog); }},
    {"MargensLinguagem_cmd_gravar", running(MargensLinguagem_cmd_gravar)},
    {"MargensLinguagem_cmd_teste", running(MargensLinguagem_cmd_teste)},
    {"MargensLinguagem_cmd_exit", [](Stage& stage, Words) { MargensLinguagem_cmd_exit(*stage.dialog); }},
    {"txtmargem1_enter", [](Stage& stage, Words column) { txtmargem1_enter(*stage.dialog, std::stoul(column)); }},
    {"txtmargem1_key", [](Stage& stage, Words keys) { pressKeys(stage, keys, [&](KeyCode key) { return txtmargem1_key(*stage.dialog, 0, key); }); }},
    {"txtmargemsuperior_enter", [](Stage& stage, Words) { txtmargemsuperior_enter(*stage.dialog); }},
    {"txtmargemsuperior_key", [](Stage& stage, Words keys) { pressKeys(stage, keys, [&](KeyCode key) { return txtmargemsuperior_key(*stage.dialog, key); }); }},
    {"pega_margemoculta", running(pega_margemoculta)}, {"pega_margemoculta7", running(pega_margemoculta7)},
    {"pega_margemoculta8", running(pega_margemoculta8)}, {"pega_margemfc", running(pega_margemfc)},
    {"pega_margemfc2", running(pega_margemfc2)}, {"pega_margemcorrugado", running(pega_margemcorrugado)},
    {"Imprime_Pacote", running(Imprime_Pacote)},
    {"Imprime_OcultaNova", [](Stage& stage, Words header) { Imprime_OcultaNova(stage.form, {.checked = header == "with header"}); }},
};
// clang-format on

struct JourneyFile {
    std::string name, path;
};

static std::vector<JourneyFile> journeyFiles() {
    std::vector<JourneyFile> files;
    for (const char* const room : {"channel", "labels", "margins", "orders", "workbench"}) {
        for (const auto& file :
             std::filesystem::directory_iterator(ETIQUETAS_JOURNEYS "/" + std::string(room))) {
            if (file.path().extension() == ".txt") {
                files.push_back({file.path().stem(), file.path()});
            }
        }
    }
    return files;
}

class JourneyTest : public testing::TestWithParam<JourneyFile> {};

TEST_P(JourneyTest, ShowsWhatItsFileTells) {
    const Log told = Journey(steps).play(GetParam().path);
    if (const char* const folder = std::getenv("RECORD")) {
        std::ofstream out(std::string(folder) + "/" + GetParam().name + ".txt");
        for (const std::string& line : told) {
            out << line << std::endl;
        }
    }
    EXPECT_TRUE(matchesFile(told, GetParam().path));
}

INSTANTIATE_TEST_SUITE_P(, JourneyTest, testing::ValuesIn(journeyFiles()), CaseName());

} // namespace etiquetas::test
