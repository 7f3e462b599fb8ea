#include "desktop/printing/ShapedTexts.h"

#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>

namespace etiquetas {

namespace {

// Of these one stands behind the other, left to right, with nothing to be looked up or left out.
bool isPlain(QChar character) {
    constexpr char16_t soft_hyphen = 0xAD;
    constexpr char16_t last_latin1 = 0xFF;
    const char16_t code = character.unicode();
    return code <= last_latin1 && code != soft_hyphen && character.isPrint();
}

// The layout has the baseline below its top; the glyphs are told from the baseline.
QList<QGlyphRun> shaped(const QFont& font, const QString& text, const QPaintDevice* device) {
    QTextLayout layout(text, font, device);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    QList<QGlyphRun> runs = line.glyphRuns();
    for (QGlyphRun& run : runs) {
        QList<QPointF> places = run.positions();
        for (QPointF& place : places) {
            place.ry() -= line.ascent();
        }
        run.setPositions(places);
    }
    return runs;
}

} // namespace

void ShapedTexts::draw(QPainter& painter, const QFont& font, const QString& text) {
    if (!std::all_of(text.begin(), text.end(), isPlain)) {
        painter.setFont(font);
        painter.drawText(QPointF(), text);
        return;
    }
    for (const QGlyphRun& run : glyphsOf(font, text, painter.device())) {
        painter.drawGlyphRun(QPointF(), run);
    }
}

const QList<QGlyphRun>& ShapedTexts::glyphsOf(const QFont& font, const QString& text,
                                              const QPaintDevice* device) {
    constexpr std::size_t most = 4096;
    const auto known = known_.find({font, text});
    if (known != known_.end()) {
        return known->second;
    }
    if (known_.size() == most) {
        known_.clear();
    }
    return known_.emplace(Key{font, text}, shaped(font, text, device)).first->second;
}

} // namespace etiquetas
