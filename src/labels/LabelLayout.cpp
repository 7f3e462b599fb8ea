#include "labels/LabelLayout.h"

#include "model/FrmPadrao.h"

namespace etiquetas {

namespace {

// Draws what a row has, each by its kind.
class RowDrawer {
  public:
    RowDrawer(FrmPadrao& form, const LabelTexts& label, const Origins& origins)
        : form_(form), surface_(form.platform.surface), label_(label), origins_(origins) {}

    void operator()(const Rule& rule) const {
        const Point first = at(origins_.rules, rule.first);
        const Point second = at(origins_.rules, rule.second);
        surface_.Line(filled_box, first.x, first.y, second.x, second.y, black_pixel);
    }
    void operator()(const Heading& heading) const {
        print(heading.font, heading.offset, heading.text);
    }
    void operator()(const Entry& entry) const {
        print(entry.font, entry.offset, Text(entry.words_before).append(label_.*entry.text));
    }
    void operator()(const TrimmedEntry& entry) const {
        print(entry.font, entry.offset, trimmed(label_.*entry.text));
    }
    void operator()(const Digits& digits) const {
        print(digits.font, digits.offset, mid(form_.txtbarra.text, digits.first, digits.count));
    }
    void operator()(const Bars& bars) const {
        stamp(surface_, form_.Picture1.Picture(), at(origins_.texts, bars.box));
    }
    void operator()(const Logo& logo) const { stampLogo(form_, label_.flag, logo, origins_.rules); }
    void operator()(const PriceBlock& block) const {
        printPrice(surface_, block, origins_.texts, label_.preco);
    }
    void operator()(const Face& face) const { surface_.FontName(face.name); }
    void operator()(const Size& size) const { surface_.FontSize(size.points); }
    void operator()(Weight weight) const { useWeight(surface_, weight); }
    void operator()(Special draw) const { draw(form_, label_, origins_.texts); }

  private:
    void print(const Font& font, const Point& offset, TextView text) const {
        useFont(surface_, font);
        printAt(surface_, at(origins_.texts, offset), text);
    }

    FrmPadrao& form_;
    PrintSurface& surface_;
    const LabelTexts& label_;
    const Origins& origins_;
};

} // namespace

void drawLayout(FrmPadrao& form, std::span<const Row> layout, const LabelTexts& label,
                const Origins& origins) {
    const RowDrawer drawer(form, label, origins);
    for (const Row& row : layout) {
        if (row.only_if == nullptr || row.only_if(label)) {
            std::visit(drawer, row.item);
        }
    }
    ++form.labels_drawn;
}

} // namespace etiquetas
