#pragma once

#include "channel/MargensLinguagem.h"
#include "model/FrmPadrao.h"
#include "support/FakePrinters.h"

#include <functional>

namespace etiquetas::test {

// How a field stands, in words: its text in quotes or its value, and what is out of the ordinary.

inline std::string wordsOf(const std::string& name) {
    return name;
}
inline std::string wordsOf(const Text& text) {
    return inQuotes(text);
}
inline std::string wordsOf(bool flag) {
    return flag ? "yes" : "no";
}
inline std::string wordsOf(float number) {
    return measure(number);
}
inline std::string wordsOf(int number) {
    return std::to_string(number);
}
inline std::string wordsOf(const Option& option) {
    return option.selected ? "selected" : "not selected";
}
inline std::string wordsOf(const PictureField& field) {
    return field.picture ? "a picture" : "no picture";
}
inline std::string wordsOf(const TextField& field) {
    const auto& [red, green, blue] = field.back_colour;
    std::ostringstream words;
    words << inQuotes(field.text) << (field.visible ? "" : " hidden")
          << (field.locked ? " locked" : "");
    if (field.back_colour != white) {
        words << " on colour " << int{red} << ' ' << int{green} << ' ' << int{blue};
    }
    if (field.selection != Selection{}) {
        words << " selected " << field.selection.length << " from " << field.selection.start;
    }
    if (!field.tooltip.empty()) {
        words << " tooltip " << inQuotes(field.tooltip);
    }
    return words.str();
}
template <typename List>
requires requires(const List& list) {
    list.entries;
}
std::string wordsOf(const List& list) {
    const bool typed = list.position < 0 && !list.text.empty();
    std::string words = inQuotes(list.text) + (typed ? " typed" : "");
    words += list.entries.empty() ? "" : " among";
    for (const auto& entry : list.entries) {
        words += " " + inQuotes(entry);
    }
    return words;
}
template <typename Label>
requires(!requires(const Label& label) { label.text; }) && requires(const Label& label) {
    label.caption;
}
std::string wordsOf(const Label& label) {
    return inQuotes(label.caption) + (label.visible ? "" : " hidden");
}

/// A text of a journey, in which line ends stand by their names.
inline Text withLineEnds(const Text& text) {
    return replaceAll(replaceAll(text, u"<CR>", u"\r"), u"<LF>", u"\n");
}

/// What stands between the first and the last quote.
inline Text quoted(const std::string& words) {
    const std::size_t start = words.find('"') + 1;
    return withLineEnds(utf16(words.substr(start, words.rfind('"') - start)));
}

/// A field, or what else the window has, under the name that journeys call it by.
struct NamedField {
    template <typename Field>
    NamedField(std::string own_name, Field& field)
        : name(std::move(own_name)), address(&field), words([&field] { return wordsOf(field); }),
          change([&field](const std::string& to) { changeField(field, to); }) {}

    std::string name;
    const void* address;
    std::function<std::string()> words;
    /// Makes the field stand as words tell, as far as journeys change it.
    std::function<void(const std::string& to)> change;

  private:
    template <typename Field>
    static void changeField(Field& field, const std::string& to) {
        const auto ends_with = [&](const char* word) { return to.ends_with(word); };
        if constexpr (std::is_const_v<Field>) {
            throw std::logic_error("a field to look at only");
        } else if constexpr (std::is_same_v<Field, Text>) {
            field = quoted(to);
        } else if constexpr (std::is_same_v<Field, bool>) {
            field = to == "yes";
        } else if constexpr (std::is_arithmetic_v<Field>) {
            std::istringstream(to) >> field;
        } else if constexpr (std::is_same_v<Field, Option>) {
            field.selected = to == "selected";
        } else if constexpr (requires { field.entries; }) {
            const auto found = std::find(field.entries.begin(), field.entries.end(), quoted(to));
            ends_with("typed") ? field.type(quoted(to))
                               : field.choose(static_cast<int>(found - field.entries.begin()));
        } else if constexpr (requires { field.text; }) {
            field.text = quoted(to);
            field.visible = !ends_with("hidden");
            field.locked = ends_with("locked");
        } else if constexpr (requires { field.caption; }) {
            field.caption = quoted(to);
            field.visible = !ends_with("hidden");
        }
    }
};

using NamedFields = std::vector<NamedField>;

// clang-format off
/// All that the system reads or changes in the window and in its dialogs.
template <typename Form>
    requires std::same_as<std::remove_const_t<Form>, FrmPadrao>
NamedFields fieldsOf(Form& f) {
    NamedFields fields{
        {"Width", f.Width}, {"Height", f.Height}, {"KeyPreview", f.KeyPreview},
        {"cmbtipo", f.cmbtipo}, {"txtarquivo", f.txtarquivo}, {"filelist", f.filelist},
        {"List1", f.List1}, {"Frame1", f.Frame1}, {"Frame2", f.Frame2}, {"Frame3", f.Frame3},
        {"cmb_referencia", f.cmb_referencia}, {"txtcodigo", f.txtcodigo}, {"txtcor", f.txtcor},
        {"txtdescricao", f.txtdescricao}, {"txtsemana", f.txtsemana},
        {"txtbandeira", f.txtbandeira}, {"txtpreco", f.txtpreco}, {"txtpromocao", f.txtpromocao},
        {"TXTPARES", f.TXTPARES}, {"TXTOCULTAS", f.TXTOCULTAS}, {"Label71", f.Label71},
        {"Label72", f.Label72}, {"LBLBRISAKO", f.LBLBRISAKO}, {"pctimage", f.pctimage},
        {"pctlogo1", f.pctlogo1}, {"pctlogo2", f.pctlogo2}, {"txtbarra", f.txtbarra},
        {"cmb_referencia1", f.cmb_referencia1}, {"txtsemana1", f.txtsemana1},
        {"txtcor1", f.txtcor1}, {"txtcodigo1", f.txtcodigo1}, {"txtqte1", f.txtqte1},
        {"txtdescricao1", f.txtdescricao1}, {"txtprepack", f.txtprepack},
        {"txtgrade1", f.txtgrade1}, {"txtgrade2", f.txtgrade2}, {"txttotgrade", f.txttotgrade},
        {"txtfornecedor1", f.txtfornecedor1}, {"txtdestino1", f.txtdestino1},
        {"txtvolume", f.txtvolume}, {"cmb_vol1", f.cmb_vol1}, {"cmb_vol2", f.cmb_vol2},
        {"lblmax", f.lblmax}, {"txtean", f.txtean}, {"lblean", f.lblean}, {"txtlote", f.txtlote},
        {"txtcliente", f.txtcliente}, {"CMBPRINTER", f.CMBPRINTER},
        {"lblprinterdefault", f.lblprinterdefault}, {"cmd_printacessorio", f.cmd_printacessorio},
        {"lblpath", f.lblpath}, {"lbloculta", f.lbloculta},
        {"lblcompartilhamento", f.lblcompartilhamento}, {"frentecaixa", f.frentecaixa},
        {"lbllinguagem", f.lbllinguagem}, {"lblporta", f.lblporta},
        {"LBLPORTAPARELELA", f.LBLPORTAPARELELA}, {"lblmaster", f.lblmaster},
        {"lblbarra", f.lblbarra}, {"cmbintensidade", f.cmbintensidade},
        {"cmbvelocidade", f.cmbvelocidade}, {"ParametrosCarregados", f.ParametrosCarregados},
        {"Margem_oculta1", f.Margem_oculta1}, {"Margem_oculta11", f.Margem_oculta11},
        {"Margem_oculta2", f.Margem_oculta2}, {"Mx4045_1", f.Mx4045_1}, {"Mx4045_2", f.Mx4045_2},
        {"Mx4045", f.Mx4045}, {"PackX", f.PackX}, {"PackY", f.PackY}, {"PackLinhaX", f.PackLinhaX},
        {"PackLinhaY", f.PackLinhaY}, {"coluna_etiqueta", f.coluna_etiqueta},
        {"marca_logo", f.marca_logo}, {"NomeFonte", f.NomeFonte},
        {"LogoBrisakoOk", f.LogoBrisakoOk}, {"LogoLumiraOk", f.LogoLumiraOk},
        {"TipoArquivo", f.TipoArquivo}, {"ImpressaoFeita", f.ImpressaoFeita},
        {"tem_imagem", f.tem_imagem}};
    for (std::size_t i = 0; i < total_slots; ++i) {
        const std::string slot = "(" + std::to_string(i) + ")";
        fields.emplace_back("Label7" + slot, f.Label7[i]);
        fields.emplace_back("txtnumero" + slot, f.txtnumero[i]);
    }
    return fields;
}

inline NamedFields fieldsOf(MargensDialog& d) {
    NamedFields fields{
        {"Caption", d.Caption}, {"txtmargem1", d.txtmargem1}, {"txtmargem2", d.txtmargem2},
        {"txtmargemsuperior", d.txtmargemsuperior}, {"open", d.open}, {"to_front", d.to_front}};
    if (d.txtcodigo) {
        fields.emplace_back("txtcodigo", *d.txtcodigo);
    }
    return fields;
}

inline NamedFields fieldsOf(ParametroDialog& d) {
    return {
        {"open", d.open}, {"to_front", d.to_front}, {"TXTPATH", d.TXTPATH}, {"optzpl", d.optzpl},
        {"optppla", d.optppla}, {"optParalela", d.optParalela}, {"optSerial", d.optSerial},
        {"optUsb", d.optUsb}, {"FrameParalela", d.FrameParalela}, {"FrameSerial", d.FrameSerial},
        {"FrameUSB", d.FrameUSB}, {"cmbparalela1", d.cmbparalela1}, {"cmbserial", d.cmbserial},
        {"cmbparalela2", d.cmbparalela2}, {"txtserialconfiguracao", d.txtserialconfiguracao},
        {"txtnomecompartilhamento", d.txtnomecompartilhamento}, {"optoculta1", d.optoculta1},
        {"optoculta2", d.optoculta2}, {"optoculta3", d.optoculta3}, {"optoculta4", d.optoculta4},
        {"optfrentecaixa1", d.optfrentecaixa1}, {"optfrentecaixa2", d.optfrentecaixa2}};
}

inline NamedFields fieldsOf(MargensLinguagem& d) {
    NamedFields fields{{"Caption", d.Caption}, {"Frame1", d.Frame1}, {"open", d.open}};
    for (std::size_t i = 0; i < d.txtmargem1.size(); ++i) {
        fields.emplace_back("txtmargem1(" + std::to_string(i) + ")", d.txtmargem1[i]);
    }
    if (d.txtmargemsuperior) {
        fields.emplace_back("txtmargemsuperior", *d.txtmargemsuperior);
    }
    return fields;
}
// clang-format on

} // namespace etiquetas::test
