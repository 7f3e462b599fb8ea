#include "desktop/windows/FormLengths.h"

#include "desktop/windows/WindowUnit.h"

#include <QFont>
#include <QGridLayout>
#include <QVariant>
#include <QWidget>

namespace etiquetas {

namespace {

constexpr const char* font_scale = "fontScale";

QFont sized(QFont font, double points) {
    font.setPointSizeF(points);
    return font;
}

} // namespace

FormLengths::FormLengths(QWidget& window) : window_(&window) {
    for (QLayout* const layout : window.findChildren<QLayout*>()) {
        const bool of_form =
            !layout->objectName().startsWith(u'_') && !layout->objectName().isEmpty();
        if (!of_form) {
            continue; // the toolkit's own, which come and go
        }
        const auto* const grid = qobject_cast<const QGridLayout*>(layout);
        gaps_.append({layout, layout->contentsMargins(),
                      grid != nullptr ? grid->horizontalSpacing() : layout->spacing(),
                      grid != nullptr ? grid->verticalSpacing() : 0});
    }
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        if (!widget->minimumSize().isNull()) {
            least_sizes_.append({widget, widget->minimumSize()});
        }
        if (widget->property(font_scale).isValid()) {
            scaled_fonts_.append(widget);
        }
    }
}

void FormLengths::show(const WindowUnit& unit, const QFont& desktop_font) const {
    window_->setFont(sized(desktop_font, unit.fontPoints()));
    for (QWidget* const widget : scaled_fonts_) {
        const double scale = widget->property(font_scale).toDouble();
        widget->setFont(sized(widget->font(), unit.fontPoints() * scale));
    }
    for (const Gaps& gaps : gaps_) {
        show(gaps, unit);
    }
    for (const auto& [widget, size] : least_sizes_) {
        widget->setMinimumSize(unit.pixels(size.width()), unit.pixels(size.height()));
    }
}

void FormLengths::show(const Gaps& gaps, const WindowUnit& unit) const {
    const QMargins& margins = gaps.margins;
    gaps.layout->setContentsMargins(unit.pixels(margins.left()), unit.pixels(margins.top()),
                                    unit.pixels(margins.right()), unit.pixels(margins.bottom()));
    if (auto* const grid = qobject_cast<QGridLayout*>(gaps.layout)) {
        grid->setHorizontalSpacing(unit.pixels(gaps.horizontal));
        grid->setVerticalSpacing(unit.pixels(gaps.vertical));
    } else {
        gaps.layout->setSpacing(unit.pixels(gaps.horizontal));
    }
}

} // namespace etiquetas
