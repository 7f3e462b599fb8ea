#include "desktop/windows/FieldTable.h"

#include "desktop/machine/QtText.h"
#include "desktop/windows/NamedWidgets.h"
#include "model/FrmPadrao.h"
#include "workbench/Campos.h"
#include "workbench/Dialogos.h"
#include "workbench/Impressao.h"
#include "workbench/Saida.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace etiquetas {

namespace {

using Handler = void (*)(FrmPadrao&);
using KeyHandler = KeyCode (*)(FrmPadrao&, KeyCode);

struct Events {
    Handler enter = nullptr;
    KeyHandler key = nullptr;
    Handler leave = nullptr;
    Handler dblclick = nullptr;
    Handler click = nullptr;
};

template <typename Field>
struct Binding {
    const char* name;
    Field FrmPadrao::*field;
    Events events{};
};

constexpr Binding<TextField> text_fields[] = {
    {"txtarquivo", &FrmPadrao::txtarquivo, {txtarquivo_enter, txtarquivo_key, txtarquivo_leave}},
    {"txtcodigo", &FrmPadrao::txtcodigo},
    {"txtcor", &FrmPadrao::txtcor, {txtcor_enter, txtcor_key, txtcor_leave}},
    {"txtdescricao", &FrmPadrao::txtdescricao},
    {"txtsemana", &FrmPadrao::txtsemana},
    {"txtbandeira", &FrmPadrao::txtbandeira},
    {"txtpreco", &FrmPadrao::txtpreco},
    {"txtpromocao", &FrmPadrao::txtpromocao},
    {"TXTPARES", &FrmPadrao::TXTPARES},
    {"TXTOCULTAS", &FrmPadrao::TXTOCULTAS, {TXTOCULTAS_enter, TXTOCULTAS_key, TXTOCULTAS_leave}},
    {"txtsemana1", &FrmPadrao::txtsemana1},
    {"txtcor1", &FrmPadrao::txtcor1},
    {"txtcodigo1", &FrmPadrao::txtcodigo1},
    {"txtqte1", &FrmPadrao::txtqte1},
    {"txtdescricao1", &FrmPadrao::txtdescricao1},
    {"txtprepack", &FrmPadrao::txtprepack},
    {"txtgrade1", &FrmPadrao::txtgrade1, {.dblclick = txtgrade1_dblclick}},
    {"txtgrade2", &FrmPadrao::txtgrade2, {.dblclick = txtgrade2_dblclick}},
    {"txttotgrade", &FrmPadrao::txttotgrade, {.dblclick = txttotgrade_dblclick}},
    {"txtfornecedor1", &FrmPadrao::txtfornecedor1},
    {"txtdestino1", &FrmPadrao::txtdestino1},
    {"txtvolume", &FrmPadrao::txtvolume},
    {"txtean", &FrmPadrao::txtean},
    {"txtlote", &FrmPadrao::txtlote, {.key = txtlote_key}},
    {"txtcliente", &FrmPadrao::txtcliente, {txtcliente_enter, txtcliente_key, txtcliente_leave}},
};

constexpr Binding<ListField> lists[] = {
    {"cmbtipo", &FrmPadrao::cmbtipo, {cmbtipo_enter, cmbtipo_key, cmbtipo_leave}},
    {"cmb_referencia",
     &FrmPadrao::cmb_referencia,
     {cmb_referencia_enter, cmb_referencia_key, cmb_referencia_leave}},
    {"cmb_referencia1",
     &FrmPadrao::cmb_referencia1,
     {cmb_referencia1_enter, cmb_referencia1_key, cmb_referencia1_leave}},
    {"cmb_vol1", &FrmPadrao::cmb_vol1},
    {"cmb_vol2", &FrmPadrao::cmb_vol2},
    {"CMBPRINTER", &FrmPadrao::CMBPRINTER},
};

constexpr Binding<Label> labels[] = {
    {"LBLBRISAKO", &FrmPadrao::LBLBRISAKO}, {"Label7(50)", &FrmPadrao::Label7_50},
    {"Label71", &FrmPadrao::Label71},       {"Label72", &FrmPadrao::Label72},
    {"lblean", &FrmPadrao::lblean},
};

constexpr Binding<PictureField> pictures[] = {
    {"pctimage", &FrmPadrao::pctimage},
    {"pctlogo1", &FrmPadrao::pctlogo1},
    {"pctlogo2", &FrmPadrao::pctlogo2},
};

constexpr Binding<Panel> panels[] = {
    {"Frame4", &FrmPadrao::Frame4, {.dblclick = Frame4_dblclick}},
    {"Frame1", &FrmPadrao::Frame1},
    {"Frame2", &FrmPadrao::Frame2},
    {"Frame3", &FrmPadrao::Frame3},
};

constexpr Binding<Command> commands[] = {
    {"cmd_printacessorio", &FrmPadrao::cmd_printacessorio, {.click = cmd_printacessorio_click}},
    {"cmd_calibra", &FrmPadrao::cmd_calibra, {.click = cmd_calibra_click}},
    {"cmd_parametro", &FrmPadrao::cmd_parametro, {.click = cmd_parametro_click}},
    {"cmd_sair", &FrmPadrao::cmd_sair, {.click = cmd_sair_click}},
};

// Finds widgets by name and gathers the rows.
class Table {
  public:
    Table(FrmPadrao& form, QWidget& window) : form_(form), window_(window) {}

    template <typename Widget, typename Field, std::size_t count>
    void addCaptioned(const Binding<Field> (&bindings)[count]) {
        for (const auto& binding : bindings) {
            const QString name = QString::fromLatin1(binding.name);
            add(mirrored(widgetNamed<Widget>(name, window_), captionOf(name, window_),
                         form_.*binding.field),
                binding.events);
        }
    }

    template <typename Widget, typename Field, std::size_t count>
    void addPlain(const Binding<Field> (&bindings)[count]) {
        for (const auto& binding : bindings) {
            const QString name = QString::fromLatin1(binding.name);
            add(mirrored(widgetNamed<Widget>(name, window_), form_.*binding.field), binding.events);
        }
    }

    void addSlots() {
        for (std::size_t i = 0; i < total_slots; ++i) {
            const QString index = QStringLiteral("(%1)").arg(i);
            add(mirrored(widgetNamed<QLabel>(QStringLiteral("Label7") + index, window_),
                         form_.Label7[i]),
                {});
            FieldRow row =
                mirrored(widgetNamed<QLineEdit>(QStringLiteral("txtnumero") + index, window_),
                         nullptr, form_.txtnumero[i]);
            row.enter = [&form = form_, i] { txtnumero_enter(form, i); };
            row.key = [&form = form_, i](KeyCode key) { return txtnumero_key(form, i, key); };
            row.leave = [&form = form_, i] { txtnumero_leave(form, i); };
            rows_.push_back(std::move(row));
        }
    }

    std::vector<FieldRow> taken() { return std::move(rows_); }

  private:
    std::function<void()> bound(Handler handler) {
        if (handler == nullptr) {
            return {};
        }
        return [&form = form_, handler] { handler(form); };
    }

    void add(FieldRow row, const Events& events) {
        row.enter = bound(events.enter);
        row.leave = bound(events.leave);
        row.dblclick = bound(events.dblclick);
        row.click = bound(events.click);
        if (events.key != nullptr) {
            row.key = [&form = form_, key = events.key](KeyCode code) { return key(form, code); };
        }
        rows_.push_back(std::move(row));
    }

    FrmPadrao& form_;
    QWidget& window_;
    std::vector<FieldRow> rows_;
};

void pushWindow(const FrmPadrao& form, QWidget& window) {
    constexpr int twips_per_pixel = 15;
    window.setWindowTitle(toQString(form.Caption));
    if (form.Width > 0 && form.Height > 0) {
        window.setFixedSize(form.Width / twips_per_pixel, form.Height / twips_per_pixel);
    }
}

bool previewKey(FrmPadrao& form, KeyCode key) {
    const bool previewed = form.KeyPreview;
    FrmPadrao_keydown(form, key);
    return previewed;
}

} // namespace

BridgedWindow fieldTable(FrmPadrao& form, QWidget& window) {
    Table table(form, window);
    table.addCaptioned<QLineEdit>(text_fields);
    table.addCaptioned<QComboBox>(lists);
    table.addSlots();
    table.addPlain<QLabel>(labels);
    table.addPlain<QLabel>(pictures);
    table.addPlain<QGroupBox>(panels);
    table.addPlain<QPushButton>(commands);
    return {.window = &window,
            .rows = table.taken(),
            .push = [&form, &window] { pushWindow(form, window); },
            .keydown = [&form](KeyCode key) { return previewKey(form, key); }};
}

} // namespace etiquetas
