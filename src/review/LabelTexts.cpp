#include "review/LabelTexts.h"

#include "labels/Acessorio.h"
#include "labels/Corrugado.h"
#include "labels/Frente100x40.h"
#include "labels/FrenteCaixa.h"
#include "labels/JobSetup.h"
#include "labels/Oculta.h"
#include "labels/PriceBlock.h"
#include "model/FrmPadrao.h"

#include <algorithm>
#include <array>
#include <optional>

namespace etiquetas {

namespace {

// A barcode that the drawing takes: it is the texts that are tried out here.
constexpr TextView some_barcode = u"200000000000";
constexpr TextView some_carton_code = u"2";

// Only what the label breaks or shrinks is handed on.

void drawHidden(FrmPadrao& form) {
    Imprime_Oculta_40_20_2(form, form.marca_logo, trimmed(form.txtdescricao.text), {}, {},
                           some_barcode, u"34", 1, {});
}

void drawBoxFront(FrmPadrao& form) {
    Text description = form.txtdescricao.text;
    Imprime_40_45_2(form, form.marca_logo, description, {}, {}, {}, some_barcode, u"34", sem_preco,
                    1, {}, {}, {});
}

void drawAccessory(FrmPadrao& form) {
    Imprime_Acessorio_40_20_2(form, form.marca_logo, descriptionAndColour(form), {}, {},
                              some_barcode, {}, sem_preco, 1, {}, {}, {});
}

void drawBoxFront100x40(FrmPadrao& form) {
    Eti100_40_1(form, form.marca_logo, descriptionAndColour(form), {}, {}, some_barcode, u"34",
                sem_preco, 1);
}

void drawCarton(FrmPadrao& form) {
    EtiPack(form, form.marca_logo, {}, {}, {}, {}, form.txtdescricao1.text, {}, some_carton_code,
            {}, {}, {}, 1, 1, {});
}

Text descriptionOf(const FrmPadrao& form) {
    return Text(trimmed(form.txtdescricao.text));
}

// The label of a kind, and the texts of it that must come out whole.
struct Trial {
    TextView kind;
    void (*draw)(FrmPadrao& form);
    std::vector<Text> (*texts)(const FrmPadrao& form);
};

const std::array<Trial, 5>& trials() {
    static const std::array<Trial, 5> all{{
        {tipo::oculta, drawHidden,
         [](const FrmPadrao& form) { return std::vector{descriptionOf(form)}; }},
        {tipo::frente_de_caixa, drawBoxFront,
         [](const FrmPadrao& form) { return std::vector{descriptionOf(form)}; }},
        {tipo::acessorio, drawAccessory,
         [](const FrmPadrao& form) { return std::vector{descriptionAndColour(form)}; }},
        {tipo::frente_de_caixa_100x40, drawBoxFront100x40,
         [](const FrmPadrao& form) { return std::vector{descriptionAndColour(form)}; }},
        {tipo::corrugado, drawCarton,
         [](const FrmPadrao& form) {
             return std::vector{form.txtdescricao1.text, form.txtgrade1.text};
         }},
    }};
    return all;
}

Finding found(FindingKind kind, TextView text, TextView fate) {
    return {.kind = kind,
            .text = Text(u"O texto \"").append(trimmed(text)).append(u"\" ").append(fate)};
}

// A text that is printed in parts has one that it begins with.
Finding brokenOrLost(const std::vector<SetText>& printed, const Text& text) {
    const bool begun = std::any_of(printed.begin(), printed.end(), [&](const SetText& part) {
        return !isBlank(part.text) && text.starts_with(trimmed(part.text));
    });
    return begun ? found(FindingKind::text_broken, text, u"não cabe em uma linha e será quebrado")
                 : found(FindingKind::text_lost, text, u"não cabe e não será impresso");
}

std::optional<Finding> fateOf(const std::vector<SetText>& printed, const Text& text) {
    const auto whole = std::find_if(printed.begin(), printed.end(), [&](const SetText& part) {
        return trimmed(part.text) == trimmed(text);
    });
    if (whole == printed.end()) {
        return brokenOrLost(printed, text);
    }
    if (whole->points < whole->design_points) {
        return found(FindingKind::text_shrunk, text, u"não cabe e será impresso menor");
    }
    return std::nullopt;
}

// Some labels measure in the weight that the label before has left. So a label is drawn twice, as
// the first one of all and as a later one, and what becomes of the text on either is told.
std::optional<Finding> fateOnLabels(FrmPadrao& form, MeasuredSurface& surface, const Trial& trial,
                                    const Text& text) {
    surface.FontBold(false);
    trial.draw(form);
    const auto first = fateOf(surface.takeTexts(), text);
    trial.draw(form);
    const auto later = fateOf(surface.takeTexts(), text);
    return first ? first : later;
}

} // namespace

std::vector<Finding> reviewTexts(FrmPadrao& form, MeasuredSurface& surface) {
    const auto* const trial = std::find_if(trials().begin(), trials().end(), [&](const Trial& row) {
        return row.kind == form.cmbtipo.text;
    });
    std::vector<Finding> findings;
    if (trial == trials().end()) {
        return findings;
    }
    for (const Text& text : trial->texts(form)) {
        const auto fate = isBlank(text) ? std::nullopt : fateOnLabels(form, surface, *trial, text);
        if (fate) {
            findings.push_back(*fate);
        }
    }
    return findings;
}

} // namespace etiquetas
