#include "support/Journey.h"

#include "channel/CommandFile.h"
#include "channel/FontesMargem.h"
#include "channel/Pacotes.h"
#include "channel/Transporte.h"
#include "labels/Acessorio.h"
#include "labels/Cabecalho.h"
#include "labels/Corrugado.h"
#include "labels/Frente100x40.h"
#include "labels/FrenteCaixa.h"
#include "labels/JobSetup.h"
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

static std::vector<std::string> wordsIn(Words text) {
    std::istringstream words(text);
    return {std::istream_iterator<std::string>(words), {}};
}

static Answer answerNamed(Words word) {
    return word == "yes" ? Answer::yes : Answer::no;
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
    const auto* const known = std::ranges::find(named_keys, name, &NamedKey::name);
    return known == std::end(named_keys) ? utf16(name).front() : known->key;
}

static void pressInWindow(Stage& stage, Words key) {
    FrmPadrao_keydown(stage.form, keyNamed(key));
}

// Tells what becomes of each key.
static void pressKeys(Stage& stage, Words keys, const std::function<KeyCode(KeyCode)>& pressed) {
    std::string passed = "passes";
    for (Words name : wordsIn(keys)) {
        const KeyCode key = pressed(keyNamed(name));
        const auto* const known = std::ranges::find(named_keys, key, &NamedKey::key);
        passed += " " + (known == std::end(named_keys) ? utf8({&key, 1}) : known->name);
    }
    stage.machine.tell(passed);
}

// What the commands of a command file do.
struct CommandWords {
    std::string operator()(const UnmapPort& unmap) const { return "unmap " + inQuotes(unmap.port); }
    std::string operator()(const MapPort& map) const {
        return "map " + inQuotes(map.port) + " to " + inQuotes(map.share);
    }
    std::string operator()(const TypeFile& type) const {
        return "type " + inQuotes(type.file) + " to " + inQuotes(type.port);
    }
};

static void tellCommands(Stage& stage, Words file) {
    for (const PortCommand& command : readCommandFile(fromCodePage1252(stage.file(file)))) {
        stage.machine.tell(std::visit(CommandWords(), command));
    }
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
static void refuse(Stage& stage, Words words) {
    const std::vector<std::string> steps = wordsIn(words);
    stage.machine.failing = {steps.begin(), steps.end()};
}

static void deleteFile(Stage& stage, Words name) {
    stage.machine.files.bytes.erase(u"/programa/" + utf16(name));
}

static MargensDialog& marginDialog(FrmPadrao& form, Words name) {
    static const std::map<std::string, MargensDialog FrmPadrao::*> dialogs{
        {"FrmMargensOcultaZPL2", &FrmPadrao::FrmMargensOcultaZPL2},
        {"FrmMargensCxZPL45", &FrmPadrao::FrmMargensCxZPL45},
        {"FrmMargensPackZPL", &FrmPadrao::FrmMargensPackZPL}};
    return form.*dialogs.at(name);
}

// What a step does, with the words that stand after its name. A routine is a step too.
struct Step : std::function<void(Stage&, Words)> {
    using function::function;

    Step(void (*routine)(FrmPadrao&))
        : function([=](Stage& stage, Words) { routine(stage.form); }) {}
    Step(void (*routine)(FrmPadrao&, std::size_t))
        : function([=](Stage& stage, Words at) { routine(stage.form, std::stoul(at)); }) {}
    Step(void (*routine)(FrmPadrao&, MargensDialog&))
        : function([=](Stage& stage, Words name) {
              routine(stage.form, marginDialog(stage.form, name));
          }) {}
    Step(void (*routine)(FrmPadrao&, MargensLinguagem&))
        : function([=](Stage& stage, Words) { routine(stage.form, *stage.dialog); }) {}
    Step(KeyCode (*routine)(FrmPadrao&, KeyCode))
        : function([=](Stage& stage, Words keys) {
              pressKeys(stage, keys, [&](KeyCode key) { return routine(stage.form, key); });
          }) {}
    Step(KeyCode (*routine)(KeyCode))
        : function([=](Stage& stage, Words keys) { pressKeys(stage, keys, routine); }) {}
    Step(MargensDeEtiqueta (*routine)(const FrmPadrao&))
        : function([=](Stage& stage, Words) { tellMargins(stage, routine(stage.form)); }) {}
    Step(MargensLinguagem (*design)())
        : function([=](Stage& stage, Words) { stage.open(design()); }) {}
    Step(void (*draw)(FrmPadrao&, Texts&))
        : function([=](Stage& stage, Words) { draw(stage.form, stage.texts); }) {}
};

// clang-format off
static const std::map<std::string, Step> steps{
    // What an operator does, and what stands around the window
    {"field", setField}, {"text", setText}, {"refuse", refuse}, {"no file", deleteFile},
    {"lose file", loseFile},
    {"file", [](Stage& on, Words name) { on.file(name).clear(); }},
    {"answer", [](Stage& on, Words word) { on.machine.answer = answerNamed(word); }},
    {"pick", [](Stage& on, Words folder) { on.machine.picked = utf16(folder); }},
    {"printers", [](Stage& on, Words names) { on.machine.printers.devices = namesOf(names); }},
    {"faces", [](Stage& on, Words names) { on.machine.printers.faces = namesOf(names); }},
    {"sizes in quarter points", [](Stage& on, Words) { on.machine.printers.size_step = 0.25F; }},
    {"millimetres", [](Stage& on, Words) { useMillimetres(on.form); }},
    {"logos", [](Stage& on, Words) { on.takeLogos(); }},
    {"photograph", [](Stage& on, Words) { on.takePhotograph(); }},
    {"EAN bars", [](Stage& on, Words digits) { on.knowEanBars(utf16(digits)); }},
    {"Code 39 bars", [](Stage& on, Words code) { on.knowCode39Bars(utf16(code)); }},

    // The Workbench
    {"FrmPadrao_load", FrmPadrao_load}, {"FrmPadrao_unload", FrmPadrao_unload},
    {"FrmPadrao_keydown", pressInWindow},
    {"txtarquivo_enter", txtarquivo_enter}, {"txtarquivo_key", txtarquivo_key},
    {"txtarquivo_leave", txtarquivo_leave}, {"txtcliente_enter", txtcliente_enter},
    {"txtcliente_key", txtcliente_key}, {"txtcliente_leave", txtcliente_leave},
    {"txtcor_enter", txtcor_enter}, {"txtcor_key", txtcor_key}, {"txtcor_leave", txtcor_leave},
    {"txtlote_key", txtlote_key}, {"txtnumero_enter", txtnumero_enter},
    {"txtnumero_key", +[](FrmPadrao& form, KeyCode key) { return txtnumero_key(form, 13, key); }},
    {"txtnumero_leave", txtnumero_leave}, {"TXTOCULTAS_enter", TXTOCULTAS_enter},
    {"TXTOCULTAS_key", TXTOCULTAS_key}, {"TXTOCULTAS_leave", TXTOCULTAS_leave},
    {"cmbtipo_enter", cmbtipo_enter}, {"cmbtipo_key", cmbtipo_key},
    {"cmbtipo_leave", cmbtipo_leave}, {"cmb_referencia_enter", cmb_referencia_enter},
    {"cmb_referencia_key", cmb_referencia_key}, {"cmb_referencia_leave", cmb_referencia_leave},
    {"cmb_referencia1_enter", cmb_referencia1_enter},
    {"cmb_referencia1_key", cmb_referencia1_key},
    {"cmb_referencia1_leave", cmb_referencia1_leave}, {"Frame4_dblclick", Frame4_dblclick},
    {"txtgrade1_dblclick", txtgrade1_dblclick}, {"txtgrade2_dblclick", txtgrade2_dblclick},
    {"txttotgrade_dblclick", txttotgrade_dblclick}, {"cmd_calibra_click", cmd_calibra_click},
    {"cmd_printacessorio_click", cmd_printacessorio_click},
    {"cmd_parametro_click", cmd_parametro_click}, {"cmd_sair_click", cmd_sair_click},
    {"carrega_gradeFc", carrega_gradeFc}, {"carrega_corrugado", carrega_corrugado},
    {"carrega_grade_Acessorio", carrega_grade_Acessorio},

    // Its dialogs
    {"CMD_GETPATH_click", CMD_GETPATH_click}, {"cmd_grava_click", cmd_grava_click},
    {"FrmParametroImpressora_cmd_sair_click", FrmParametroImpressora_cmd_sair_click},
    {"margens_load", margens_load}, {"cmd_gravar_click", cmd_gravar_click},
    {"cmd_teste_click", cmd_teste_click}, {"cmd_exit_click", cmd_exit_click},
    {"margem_key", margem_key},
    {"margem_enter", [](Stage& on, Words) { margem_enter(on.form.FrmMargensCxZPL45.txtmargem1); }},

    // The labels
    {"Imprime_Oculta_40_20_2", drawHidden}, {"Imprime_Acessorio_40_20_2", drawAccessory},
    {"Imprime_40_45_2", drawBoxFront}, {"Eti100_40_1", drawWideBoxFront}, {"EtiPack", drawCarton},
    {"Imprime_CabecAlho", [](Stage& on, Words kind) { Imprime_CabecAlho(on.form, utf16(kind)); }},

    // The channel
    {"FrmMargensOcultaZPL", FrmMargensOcultaZPL}, {"FrmMargensOculta7ZPL", FrmMargensOculta7ZPL},
    {"FrmMargensOculta8ZPL", FrmMargensOculta8ZPL}, {"FrmMargensOcultaPPLa", FrmMargensOcultaPPLa},
    {"FrmMargensCxZPL", FrmMargensCxZPL},
    {"MargensLinguagem_load", [](Stage& on, Words) { MargensLinguagem_load(on.form, *on.dialog); }},
    {"MargensLinguagem_cmd_gravar", MargensLinguagem_cmd_gravar},
    {"MargensLinguagem_cmd_teste", MargensLinguagem_cmd_teste},
    {"MargensLinguagem_cmd_exit", [](Stage& on, Words) { MargensLinguagem_cmd_exit(*on.dialog); }},
    {"txtmargem1_enter", [](Stage& on, Words) { txtmargem1_enter(*on.dialog, 1); }},
    {"txtmargem1_key", [](Stage& on, Words key) { pressKeys(on, key, [&](KeyCode typed) {
        return txtmargem1_key(*on.dialog, 1, typed); }); }},
    {"txtmargemsuperior_enter", [](Stage& on, Words) { txtmargemsuperior_enter(*on.dialog); }},
    {"txtmargemsuperior_key", [](Stage& on, Words key) { pressKeys(on, key, [&](KeyCode typed) {
        return txtmargemsuperior_key(*on.dialog, typed); }); }},
    {"pega_margemoculta", pega_margemoculta}, {"pega_margemoculta7", pega_margemoculta7},
    {"pega_margemoculta8", pega_margemoculta8}, {"pega_margemfc", pega_margemfc},
    {"pega_margemfc2", pega_margemfc2}, {"pega_margemcorrugado", pega_margemcorrugado},
    {"Imprime_Pacote", Imprime_Pacote}, {"readCommandFile", tellCommands},
    {"Imprime_OcultaNova", [](Stage& on, Words header) {
        Imprime_OcultaNova(on.form, {.checked = header == "with header"}); }},
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
                files.push_back({file.path().stem().string(), file.path().string()});
            }
        }
    }
    return files;
}

class JourneyTest : public testing::TestWithParam<JourneyFile> {};

TEST_P(JourneyTest, ShowsWhatItsFileTells) {
    EXPECT_TRUE(
        matchesFile(Journey({steps.begin(), steps.end()}).play(GetParam().path), GetParam().path));
}

INSTANTIATE_TEST_SUITE_P(, JourneyTest, testing::ValuesIn(journeyFiles()), CaseName());

} // namespace etiquetas::test
