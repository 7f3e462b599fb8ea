// An operator at the Workbench on a machine of which any step may fail.
//
// Input: a script, one event a line: its name in the table below, and after a blank what it takes.
// Other lines say what the machine does: "refuse 3" fails the third call from there on, "refuse
// all" every call until "refuse none", "answer no" is what the operator answers from there on.
// "frente" and its kin add a line to an order file, "ini" one to the settings file. All else is
// passed over.

#include "Machine.h"
#include "base/Numbers.h"
#include "channel/Pacotes.h"
#include "config/Profile.h"
#include "labels/Cabecalho.h"
#include "margins/Margens.h"
#include "workbench/Campos.h"
#include "workbench/Dialogos.h"
#include "workbench/FrmParametroImpressora.h"
#include "workbench/Impressao.h"
#include "workbench/Inicio.h"
#include "workbench/Saida.h"

#include <limits>

namespace etiquetas::fuzz {

namespace {

/// What an event takes: the rest of its line.
struct Argument {
    TextView text;

    [[nodiscard]] int number() const {
        int value = 0;
        goesThrough([&] { value = toInteger16(text); });
        return value;
    }
    /// A number from 0 up to below the count.
    [[nodiscard]] std::size_t index(std::size_t count) const {
        return static_cast<std::size_t>(std::abs(number())) % count;
    }
    [[nodiscard]] KeyCode key() const { return static_cast<KeyCode>(number()); }
};

struct Event {
    TextView name;
    void (*run)(FrmPadrao&, const Argument&);
};

using Handler = void (*)(FrmPadrao&);
using KeyHandler = KeyCode (*)(FrmPadrao&, KeyCode);

template <Handler handler>
void plain(FrmPadrao& form, const Argument& /*argument*/) {
    handler(form);
}

template <KeyHandler handler>
void pressed(FrmPadrao& form, const Argument& argument) {
    const KeyCode key = argument.key();
    const KeyCode taken = handler(form, key);
    require(taken == key || taken == key::none || taken == upperCase(key),
            "A key is taken, swallowed or made upper case");
}

template <TextField FrmPadrao::*field>
void typed(FrmPadrao& form, const Argument& argument) {
    (form.*field).text = argument.text;
}

template <ListField FrmPadrao::*list>
void typedIn(FrmPadrao& form, const Argument& argument) {
    (form.*list).type(Text(argument.text));
}

template <ListField FrmPadrao::*list>
void chosen(FrmPadrao& form, const Argument& argument) {
    ListField& field = form.*list;
    if (!field.entries.empty()) {
        field.choose(static_cast<int>(argument.index(field.entries.size())));
    }
}

MargensDialog& marginDialog(FrmPadrao& form) {
    for (MargensDialog* const dialog : {&form.FrmMargensOcultaZPL2, &form.FrmMargensCxZPL45}) {
        if (dialog->open) {
            return *dialog;
        }
    }
    return form.FrmMargensPackZPL;
}

template <TextField MargensDialog::*field>
void typedMargin(FrmPadrao& form, const Argument& argument) {
    (marginDialog(form).*field).text = argument.text;
}

template <void (*handler)(FrmPadrao&, MargensDialog&)>
void inMarginDialog(FrmPadrao& form, const Argument& /*argument*/) {
    handler(form, marginDialog(form));
}

template <void (*handler)(FrmPadrao&, std::size_t)>
void inSlot(FrmPadrao& form, const Argument& argument) {
    handler(form, argument.index(total_slots));
}

void typeQuantity(FrmPadrao& form, const Argument& argument) {
    const std::size_t blank = std::min(argument.text.find(u' '), argument.text.size());
    const Argument slot{argument.text.substr(0, blank)};
    form.txtnumero[slot.index(total_slots)].text = trimmed(argument.text.substr(blank));
}

void selectPort(FrmPadrao& form, const Argument& argument) {
    ParametroDialog& dialog = form.FrmParametroImpressora;
    const std::array ports{&dialog.optParalela, &dialog.optSerial, &dialog.optUsb};
    for (Option* const port : ports) {
        port->selected = port == ports.at(argument.index(ports.size()));
    }
    Oculta_Frame(form);
}

// At most so many that writing them takes no time.
void printPacks(FrmPadrao& form, const Argument& /*argument*/) {
    if (form.txtnumero[2].text.size() < 3) {
        Imprime_Pacote(form);
    }
}

constexpr auto events = std::to_array<Event>({
    {u"type cmbtipo", typedIn<&FrmPadrao::cmbtipo>},
    {u"choose cmbtipo", chosen<&FrmPadrao::cmbtipo>},
    {u"enter cmbtipo", plain<cmbtipo_enter>},
    {u"key cmbtipo", pressed<cmbtipo_key>},
    {u"leave cmbtipo", plain<cmbtipo_leave>},
    {u"type cmb_referencia", typedIn<&FrmPadrao::cmb_referencia>},
    {u"choose cmb_referencia", chosen<&FrmPadrao::cmb_referencia>},
    {u"enter cmb_referencia", plain<cmb_referencia_enter>},
    {u"key cmb_referencia", pressed<cmb_referencia_key>},
    {u"leave cmb_referencia", plain<cmb_referencia_leave>},
    {u"type cmb_referencia1", typedIn<&FrmPadrao::cmb_referencia1>},
    {u"choose cmb_referencia1", chosen<&FrmPadrao::cmb_referencia1>},
    {u"enter cmb_referencia1", plain<cmb_referencia1_enter>},
    {u"key cmb_referencia1", pressed<cmb_referencia1_key>},
    {u"leave cmb_referencia1", plain<cmb_referencia1_leave>},
    {u"type txtarquivo", typed<&FrmPadrao::txtarquivo>},
    {u"enter txtarquivo", plain<txtarquivo_enter>},
    {u"key txtarquivo", pressed<txtarquivo_key>},
    {u"leave txtarquivo", plain<txtarquivo_leave>},
    {u"type txtcliente", typed<&FrmPadrao::txtcliente>},
    {u"enter txtcliente", plain<txtcliente_enter>},
    {u"key txtcliente", pressed<txtcliente_key>},
    {u"leave txtcliente", plain<txtcliente_leave>},
    {u"type txtcor", typed<&FrmPadrao::txtcor>},
    {u"enter txtcor", plain<txtcor_enter>},
    {u"key txtcor", pressed<txtcor_key>},
    {u"leave txtcor", plain<txtcor_leave>},
    {u"type txtcodigo", typed<&FrmPadrao::txtcodigo>},
    {u"type txtdescricao", typed<&FrmPadrao::txtdescricao>},
    {u"type txtpreco", typed<&FrmPadrao::txtpreco>},
    {u"type txtgrade1", typed<&FrmPadrao::txtgrade1>},
    {u"type txtean", typed<&FrmPadrao::txtean>},
    {u"type txtlote", typed<&FrmPadrao::txtlote>},
    {u"key txtlote", pressed<txtlote_key>},
    {u"type txtnumero", typeQuantity},
    {u"enter txtnumero", inSlot<txtnumero_enter>},
    {u"leave txtnumero", inSlot<txtnumero_leave>},
    {u"key txtnumero",
     pressed<[](FrmPadrao& form, KeyCode key) { return txtnumero_key(form, 0, key); }>},
    {u"type TXTPARES", typed<&FrmPadrao::TXTPARES>},
    {u"type TXTOCULTAS", typed<&FrmPadrao::TXTOCULTAS>},
    {u"enter TXTOCULTAS", plain<TXTOCULTAS_enter>},
    {u"key TXTOCULTAS", pressed<TXTOCULTAS_key>},
    {u"leave TXTOCULTAS", plain<TXTOCULTAS_leave>},
    {u"dblclick txtgrade1", plain<txtgrade1_dblclick>},
    {u"dblclick txtgrade2", plain<txtgrade2_dblclick>},
    {u"dblclick txttotgrade", plain<txttotgrade_dblclick>},
    {u"dblclick Frame4", plain<Frame4_dblclick>},
    {u"type cmb_vol1", typedIn<&FrmPadrao::cmb_vol1>},
    {u"choose cmb_vol1", chosen<&FrmPadrao::cmb_vol1>},
    {u"choose cmb_vol2", chosen<&FrmPadrao::cmb_vol2>},
    {u"type CMBPRINTER", typedIn<&FrmPadrao::CMBPRINTER>},
    {u"choose CMBPRINTER", chosen<&FrmPadrao::CMBPRINTER>},
    {u"keydown",
     [](FrmPadrao& form, const Argument& argument) { FrmPadrao_keydown(form, argument.key()); }},
    {u"print", plain<cmd_printacessorio_click>},
    {u"packs", printPacks},
    {u"codes",
     [](FrmPadrao& form, const Argument&) { Imprime_OcultaNova(form, form.chkcabecalho); }},
    {u"check chkcabecalho",
     [](FrmPadrao& form, const Argument&) { form.chkcabecalho.checked = true; }},
    {u"calibrate", plain<cmd_calibra_click>},
    {u"type txtmargem1", typedMargin<&MargensDialog::txtmargem1>},
    {u"type txtmargem2", typedMargin<&MargensDialog::txtmargem2>},
    {u"type txtmargemsuperior", typedMargin<&MargensDialog::txtmargemsuperior>},
    {u"key txtmargem1",
     pressed<[](FrmPadrao&, KeyCode key) { return key == u'.' ? key : margem_key(key); }>},
    {u"test margins", inMarginDialog<cmd_teste_click>},
    {u"store margins", inMarginDialog<cmd_gravar_click>},
    {u"close margins", inMarginDialog<cmd_exit_click>},
    {u"parameters", plain<cmd_parametro_click>},
    {u"browse", plain<CMD_GETPATH_click>},
    {u"type TXTPATH",
     [](FrmPadrao& form,
        const Argument& argument) { form.FrmParametroImpressora.TXTPATH.text = argument.text; }},
    {u"select port", selectPort},
    {u"store parameters", plain<cmd_grava_click>},
    {u"close parameters", plain<FrmParametroImpressora_cmd_sair_click>},
    {u"header strip",
     [](FrmPadrao& form, const Argument& argument) { Imprime_CabecAlho(form, argument.text); }},
    {u"exit", plain<cmd_sair_click>},
});

// What the rest of a line is after that word; nothing where the line begins otherwise.
std::optional<Argument> argumentOf(TextView line, TextView word) {
    if (!line.starts_with(word)) {
        return std::nullopt;
    }
    line.remove_prefix(word.size());
    if (line.empty()) {
        return Argument{};
    }
    return line.front() == u' ' ? std::optional(Argument{line.substr(1)}) : std::nullopt;
}

/// Calls that the machine refuses, as the script says.
class Refusals {
  public:
    void take(const Argument& argument) {
        if (argument.text == u"all") {
            calls_left_ = 1;
            each_ = true;
        } else {
            calls_left_ = std::max(0, argument.number());
            each_ = false;
        }
    }
    [[nodiscard]] bool next() {
        if (each_) {
            return true;
        }
        calls_left_ = std::max(calls_left_ - 1, -1);
        return calls_left_ == 0;
    }

  private:
    int calls_left_ = -1;
    bool each_ = false;
};

class Script {
  public:
    Script() {
        furnish(machine_, "");
        machine_.bytes[settings_path] += "[Alheio]\r\nx=fica\r\n";
        machine_.refuses = [this] { return refusals_.next(); };
        machine_.told = [this](const Message& message) { checkQuestion(message); };
    }

    /// Runs the script until the program ends: by its exit, or by a failure that no one caught.
    void run(std::string_view lines) {
        int left = most_events;
        while (!lines.empty() && !machine_.ended && left-- > 0) {
            const Text line = fromCodePage1252(takeLine(lines));
            if (!isOfTheMachine(line) && !goesThrough([&] { runEvent(line); })) {
                return;
            }
        }
    }

  private:
    static constexpr int most_events = 100;

    bool isOfTheMachine(TextView line) {
        if (const auto refused = argumentOf(line, u"refuse")) {
            refusals_.take(*refused);
        } else if (const auto answer = argumentOf(line, u"answer")) {
            machine_.answer = answer->text == u"no" ? Answer::no : Answer::yes;
        } else if (const auto folder = argumentOf(line, u"pick")) {
            machine_.picked = folder->text;
        } else if (const auto setting = argumentOf(line, u"ini")) {
            addLine(settings_path, *setting);
        } else if (const auto file = argumentOf(line, u"remove")) {
            keeps_settings_ = keeps_settings_ && file->text != u"Varesko.ini";
            machine_.bytes.erase(u"/programa/" + Text(file->text));
        } else if (const auto box = argumentOf(line, u"frente")) {
            addLine(u"/programa/77 FRENTE.txt", *box);
        } else if (const auto carton = argumentOf(line, u"corrugado")) {
            addLine(u"/programa/77 CORRUGADO.txt", *carton);
        } else if (const auto accessory = argumentOf(line, u"acessorio")) {
            addLine(u"/programa/77 ACESSORIO.txt", *accessory);
        } else {
            return false;
        }
        return true;
    }

    void addLine(const Text& file, const Argument& line) {
        machine_.bytes[file].append(toCodePage1252(line.text)).append("\r\n");
    }

    void start() {
        FrmPadrao_load(form_);
        FrmPadrao_resize(form_);
        started_ = true;
    }

    void runEvent(TextView line) {
        if (!started_) {
            start();
        }
        machine_.loadPaper();
        machine_.passed_over = 0;
        job_was_open_ = machine_.job_is_open;
        for (const Event& event : events) {
            if (const auto argument = argumentOf(line, event.name)) {
                event.run(form_, *argument);
                checkForm();
                return;
            }
        }
    }

    void checkQuestion(const Message& message) const {
        if (message.text == u"A Impressão está OK" && machine_.passed_over == 0) {
            require(!machine_.job_is_open || job_was_open_, "A job that went well has ended");
        }
    }

    void checkForm() const {
        for (const ListField* const list :
             {&form_.cmbtipo, &form_.cmb_referencia, &form_.cmb_referencia1, &form_.cmb_vol1,
              &form_.cmb_vol2, &form_.CMBPRINTER, &form_.FrmParametroImpressora.cmbserial,
              &form_.FrmParametroImpressora.cmbparalela1}) {
            checkList(*list);
        }
        require(form_.Frame1.visible != form_.Frame3.visible, "One item panel shows");
        require(form_.coluna_etiqueta >= 1, "There is a column");
        require(!form_.NomeFonte.empty(), "There is a font");
        require(!form_.tem_imagem || form_.pctimage.picture, "There is a photograph if it is told");
        if (keeps_settings_) {
            require(profileValue(machine_.bytes.at(settings_path), "Alheio", "x") == "fica",
                    "What the program does not know stays in the settings");
        }
    }

    static void checkList(const ListField& list) {
        require(list.position >= -1 && list.position < static_cast<int>(list.entries.size()),
                "A list has the entry that is chosen");
        require(list.position < 0 ||
                    list.text == list.entries[static_cast<std::size_t>(list.position)],
                "A chosen entry is the text of its list");
    }

    Machine machine_;
    Refusals refusals_;
    FrmPadrao form_{machine_.platform()};
    bool started_ = false;
    bool job_was_open_ = false;  // by an earlier event that failed
    bool keeps_settings_ = true; // false once the script has taken them away
};

} // namespace

} // namespace etiquetas::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    etiquetas::fuzz::Script().run(etiquetas::fuzz::bytesOf(data, size));
    return 0;
}
