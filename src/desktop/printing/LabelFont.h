#pragma once

#include "base/Text.h"
#include "desktop/printing/FontTable.h"

#include <QByteArray>
#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <utility>

namespace etiquetas {

/// Ascent that Windows gives a font, in em, from its OpenType tables "OS/2" and "head"; nothing
/// where a table is absent or too short.
[[nodiscard]] std::optional<double> windowsAscent(const QByteArray& os2, const QByteArray& head);

/// A face in one weight at one large size. Whoever draws with it scales the painter: sizes and
/// widths are then not rounded to pixels and are the same at every resolution.
class LabelFont {
  public:
    /// Pixels to the em.
    static constexpr int pixel_size = 2048;

    LabelFont(const FontChoice& choice, bool bold);

    [[nodiscard]] const QFont& font() const { return font_; }
    /// Painter units to one pixel of the font, for a size in the same units.
    [[nodiscard]] double scaleFor(double size) const { return size * scale_ / pixel_size; }
    /// From the top of the character cell to the baseline, in the unit of the size.
    [[nodiscard]] double ascent(double size) const { return ascent_ * size; }
    /// Width of a text, in the unit of the size.
    [[nodiscard]] double width(const QString& text, double size) const;

  private:
    [[nodiscard]] double advance(const QString& text) const;

    QFont font_;
    QFontMetricsF metrics_;
    mutable QHash<QString, double> advances_; // of texts that were measured, in pixels
    double scale_;
    double ascent_; // em of the size that is asked for
};

/// The label fonts in use, each made once.
class LabelFontCache {
  public:
    /// With the families that faces are chosen from.
    explicit LabelFontCache(QStringList families) : families_(std::move(families)) {}

    /// The font for a face and weight. It stays where it is as long as this object lives.
    [[nodiscard]] const LabelFont& get(TextView face, bool bold);
    [[nodiscard]] const QStringList& families() const { return families_; }

  private:
    QStringList families_;
    std::map<std::pair<Text, bool>, LabelFont> fonts_;
};

} // namespace etiquetas
