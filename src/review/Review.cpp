#include "review/Review.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "config/ProgramFiles.h"
#include "labels/JobSetup.h"
#include "model/LabelCounts.h"
#include "orders/OrderFamily.h"
#include "orders/OrderFormat.h"
#include "review/Barcode.h"
#include "review/LabelTexts.h"
#include "workbench/Pedido.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <map>
#include <optional>
#include <utility>

namespace etiquetas {

namespace {

// The fields of an item's lines that are looked at, which cartons have elsewhere.
struct SizeFields {
    std::size_t size;
    std::size_t barcode;
};

constexpr SizeFields box_sizes{box_field::size, box_field::barcode};
constexpr SizeFields accessory_sizes{accessory_field::size, accessory_field::barcode};

std::optional<std::int16_t> integerOf(TextView text) {
    try {
        return toInteger16(text);
    } catch (const Failure&) {
        return std::nullopt;
    }
}

Text quoted(TextView before, TextView text, TextView after) {
    return Text(before).append(u" \"").append(text).append(u"\" ").append(after);
}

// Looks at one item, which a Workbench of its own loads and draws.
class ItemReview {
  public:
    ItemReview(FrmPadrao& form, MeasuredSurface& surface, const OrderFamily& family,
               const Text& key, const std::vector<ItemLine>& lines)
        : form_(form), surface_(surface), family_(family), key_(key), lines_(lines) {}

    std::vector<Finding> run() {
        reviewLines();
        const bool loaded = load();
        reviewSlots();
        if (loaded) {
            reviewItem();
        }
        return std::move(findings_);
    }

  private:
    [[nodiscard]] bool ofCartons() const { return family_.name == family_name::corrugated; }
    [[nodiscard]] bool ofAccessories() const { return family_.name == family_name::accessory; }
    [[nodiscard]] const SizeFields& places() const {
        return ofAccessories() ? accessory_sizes : box_sizes;
    }
    [[nodiscard]] std::size_t firstLine() const {
        return lines_.empty() ? 0 : lines_.front().number;
    }

    void tell(std::size_t line, FindingKind kind, Text text) {
        findings_.push_back({.item = key_, .line = line, .kind = kind, .text = std::move(text)});
    }

    void reviewLines() {
        for (const ItemLine& line : lines_) {
            const OrderLine fields(line.text);
            if (!family_.hasLayout(fields)) {
                const auto width = static_cast<std::int32_t>(fields.width());
                tell(line.number, FindingKind::unknown_width,
                     Text(u"A linha tem ")
                         .append(numberText(width))
                         .append(u" campos, e nenhum formato de arquivo tem tantos"));
            } else if (!ofCartons()) {
                reviewSize(line, fields);
            }
        }
    }

    void reviewSize(const ItemLine& line, const OrderLine& fields) {
        const TextView size = fields[places().size];
        reviewQuantity(line, fields[0]);
        if (const auto fault = faultOfEan(fields[places().barcode])) {
            tell(line.number, fault->kind, withSize(fault->text, size));
        }
        reviewCodeOfSize(line, size, fields[places().barcode]);
    }

    // Told of the lines beyond the last slot, where the loader fills slots at all.
    void reviewSlots() {
        if (isBlank(form_.Label7.back().caption)) {
            return;
        }
        std::size_t filled = 0;
        for (const ItemLine& line : lines_) {
            const OrderLine fields(line.text);
            if (family_.hasLayout(fields) && !isBlank(fields[places().size]) &&
                ++filled > total_slots) {
                tell(line.number, FindingKind::size_without_slot,
                     Text(u"O tamanho ")
                         .append(trimmed(fields[places().size]))
                         .append(u" fica de fora: um item tem no máximo ")
                         .append(numberText(total_slots))
                         .append(u" tamanhos"));
            }
        }
    }

    static Text withSize(const Text& text, TextView size) {
        return isBlank(size) ? text
                             : Text(text).append(u" (tamanho ").append(trimmed(size)).append(u")");
    }

    void reviewQuantity(const ItemLine& line, TextView quantity) {
        const auto pairs = integerOf(quantity);
        const bool hidden = form_.cmbtipo.text == tipo::oculta;
        const std::int32_t most =
            std::numeric_limits<std::int16_t>::max() / (hidden ? hidden_labels_per_pair : 1);
        if (!pairs || *pairs > most) {
            tell(line.number, FindingKind::quantity,
                 quoted(u"A quantidade", quantity, u"é maior do que ").append(numberText(most)));
        } else if (*pairs <= 0) {
            tell(line.number, FindingKind::quantity,
                 quoted(u"A quantidade", quantity, u"não dá nenhuma etiqueta"));
        }
    }

    // The first code of a size is the one that all its labels get.
    void reviewCodeOfSize(const ItemLine& line, TextView size, TextView barcode) {
        const Text code = wholeEan(barcode);
        const auto [known, is_new] = codes_.try_emplace(Text(trimmed(size)), code);
        if (!is_new && known->second != code) {
            tell(line.number, FindingKind::codes_differ,
                 withSize(Text(u"Há dois códigos de barras para o mesmo tamanho: ")
                              .append(known->second)
                              .append(u" e ")
                              .append(code),
                          size));
        }
    }

    // Loads the item as the Workbench does; false, and told, where that does not work.
    [[nodiscard]] bool load() {
        Text& code = ofCartons() ? form_.txtcodigo1.text : form_.txtcodigo.text;
        Text& description = ofCartons() ? form_.txtdescricao1.text : form_.txtdescricao.text;
        code.clear(); // a loader that finds no line leaves what was there
        description.clear();
        try {
            family_.loadItem(form_);
        } catch (const Failure& failure) {
            tellUnloadable(failure);
            return false;
        }
        if (isBlank(code) && isBlank(description)) {
            tell(firstLine(), FindingKind::item_not_found,
                 u"O item da lista não é encontrado nas linhas do pedido");
            return false;
        }
        if (isBlank(code)) {
            tell(firstLine(), FindingKind::code_missing, u"Sem código: o item não é impresso");
        }
        return true;
    }

    // What a size has been told of before is what the loader stumbles over.
    void tellUnloadable(const Failure& failure) {
        if (ofCartons()) {
            tell(firstLine(), FindingKind::volumes,
                 quoted(u"Os volumes", form_.txtvolume.text, u"não são números: ")
                     .append(failure.description()));
        } else if (!has(FindingKind::quantity)) {
            tell(0, FindingKind::quantity,
                 u"O total de pares do item não cabe: " + failure.description());
        }
    }

    [[nodiscard]] bool has(FindingKind kind) const {
        return std::any_of(findings_.begin(), findings_.end(),
                           [&](const Finding& finding) { return finding.kind == kind; });
    }

    void reviewItem() {
        if (ofCartons()) {
            reviewCarton();
        } else if (ofAccessories()) {
            reviewLoadedBarcode();
        } else {
            reviewColour(form_.txtcor.text);
            reviewPhotograph();
        }
        for (Finding& finding : reviewTexts(form_, surface_)) {
            tell(firstLine(), finding.kind, std::move(finding.text));
        }
    }

    void reviewCarton() {
        reviewColour(form_.txtcor1.text);
        const Text& code = form_.txtean.visible ? form_.txtean.text : form_.txtprepack.text;
        if (auto fault = faultOfCartonCode(code, form_.Picture1)) {
            tell(firstLine(), fault->kind, std::move(fault->text));
        }
        if (form_.cmb_vol1.entries.empty()) {
            tell(firstLine(), FindingKind::volumes,
                 quoted(u"Os volumes", form_.txtvolume.text, u"não dão nenhuma etiqueta"));
        }
    }

    // The loader does not take the barcode from the same field in all layouts; where it is that
    // field, the line has been told of.
    void reviewLoadedBarcode() {
        auto fault = faultOfEan(form_.lblbarra.caption);
        if (fault && !has(fault->kind)) {
            tell(firstLine(), fault->kind, std::move(fault->text));
        }
    }

    void reviewColour(const Text& colour) {
        if (isBlank(colour)) {
            tell(firstLine(), FindingKind::colour_missing,
                 u"Sem cor: a impressão para e pergunta se continua");
        }
    }

    void reviewPhotograph() {
        const Files& files = form_.platform.files;
        const Text name = Text(trimmed(form_.txtcodigo.text)).append(u".jpg");
        if (!findFile(files, joined(files, files.programFolder(), photograph_folder), name)) {
            tell(0, FindingKind::photograph_missing,
                 Text(u"A fotografia ")
                     .append(name)
                     .append(u" não está na pasta ")
                     .append(photograph_folder));
        }
    }

    FrmPadrao& form_;
    MeasuredSurface& surface_;
    const OrderFamily& family_;
    const Text& key_;
    const std::vector<ItemLine>& lines_;
    std::map<Text, Text> codes_; // by the size
    std::vector<Finding> findings_;
};

// Loads the order again, on a Workbench where nothing else was loaded before.
void loadAlike(FrmPadrao& form, const FrmPadrao& loaded) {
    form.cmbtipo.type(loaded.cmbtipo.text);
    form.txtarquivo.text = loaded.txtarquivo.text;
    form.lblpath.caption = loaded.lblpath.caption;
    form.TipoArquivo = loaded.TipoArquivo;
    form.NomeFonte = loaded.NomeFonte;
    try {
        carrega_pedido(form);
    } catch (const Failure&) {
        // The first item does not load, which is found out with the others; all of them are listed.
        return;
    }
}

} // namespace

OrderReview::OrderReview(const FrmPadrao& form, const Files& files, PrintSurface& measure)
    : machine_(files, form.platform.printers, measure, boxes_), tried_(machine_.platform()) {
    const auto path = loadedOrderPath(form);
    const OrderFamily* const family = orderFamily(form.TipoArquivo);
    if (!path || family == nullptr) {
        return;
    }
    loadAlike(tried_, form);
    chooseBanner(tried_);
    lines_ = orderLines(files.read(*path), *family);
    findings_ = std::move(lines_.strays);
    family_ = family;
}

bool OrderReview::next() {
    if (family_ == nullptr || place_ == (tried_.*family_->items).entries.size()) {
        return false;
    }
    ListField& items = tried_.*family_->items;
    items.choose(static_cast<int>(place_++));
    const Text key = items.text;
    auto found = ItemReview(tried_, machine_.surface(), *family_, key, lines_.items[key]).run();
    std::move(found.begin(), found.end(), std::back_inserter(findings_));
    return true;
}

std::vector<Finding> reviewOrder(const FrmPadrao& form, PrintSurface& measure) {
    OrderReview review(form, form.platform.files, measure);
    while (review.next()) {
    }
    return review.findings();
}

} // namespace etiquetas
