#include "desktop/printing/LabelFont.h"

#include <QRawFont>
#include <QtEndian>

namespace etiquetas {

namespace {

// Offsets in bytes within the tables, as OpenType defines them.
constexpr qsizetype us_win_ascent = 74; // OS/2
constexpr qsizetype units_per_em = 18;  // head

std::optional<quint16> numberAt(const QByteArray& table, qsizetype offset) {
    if (table.size() < offset + static_cast<qsizetype>(sizeof(quint16))) {
        return std::nullopt;
    }
    return qFromBigEndian<quint16>(table.constData() + offset);
}

QFont largeFont(const QString& family, bool bold) {
    // The least letter spacing that the toolkit does not take for none, too small to be seen. It
    // keeps letters from being joined into ligatures, so that the width of a text is the sum of
    // its letters and each letter is found in the PDF.
    constexpr double no_ligatures = 1.0 / 64; // pixels
    QFont font;
    font.setFamilies({family});
    font.setPixelSize(LabelFont::pixel_size);
    font.setBold(bold);
    font.setKerning(false);
    font.setLetterSpacing(QFont::AbsoluteSpacing, no_ligatures);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

double ascentOf(const QFont& font, const QFontMetricsF& metrics) {
    const QRawFont raw = QRawFont::fromFont(font);
    return windowsAscent(raw.fontTable("OS/2"), raw.fontTable("head"))
        .value_or(metrics.ascent() / LabelFont::pixel_size);
}

} // namespace

std::optional<double> windowsAscent(const QByteArray& os2, const QByteArray& head) {
    const auto ascent = numberAt(os2, us_win_ascent);
    const auto units = numberAt(head, units_per_em);
    if (!ascent || !units || *units == 0) {
        return std::nullopt;
    }
    return static_cast<double>(*ascent) / *units;
}

LabelFont::LabelFont(const FontChoice& choice, bool bold)
    : font_(largeFont(choice.family, bold)), metrics_(font_), scale_(choice.scale),
      ascent_(choice.ascent.value_or(ascentOf(font_, metrics_) * choice.scale)) {}

double LabelFont::width(const QString& text, double size) const {
    return advance(text) * scaleFor(size);
}

// Labels measure the same texts over and over.
double LabelFont::advance(const QString& text) const {
    constexpr qsizetype most = 4096;
    const auto known = advances_.constFind(text);
    if (known != advances_.constEnd()) {
        return *known;
    }
    if (advances_.size() == most) {
        advances_.clear();
    }
    return *advances_.insert(text, metrics_.horizontalAdvance(text));
}

const LabelFont& LabelFontCache::get(TextView face, bool bold) {
    const std::pair key{Text(face), bold};
    if (const auto known = fonts_.find(key); known != fonts_.end()) {
        return known->second;
    }
    const FontChoice choice = chooseFont(face, bold, families_);
    return fonts_.emplace(key, LabelFont(choice, bold)).first->second;
}

} // namespace etiquetas
