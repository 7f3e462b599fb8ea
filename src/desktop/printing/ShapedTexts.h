#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QString>

#include <cstddef>
#include <unordered_map>

class QPaintDevice;
class QPainter;

namespace etiquetas {

/// Texts as the glyphs of a font, each shaped once however often it is drawn. To be made, used and
/// destroyed on one thread, for one device: what it holds is their own.
class ShapedTexts {
  public:
    /// Draws a text with the left end of its baseline at the painter's origin, at the same places
    /// as `QPainter::drawText`.
    void draw(QPainter& painter, const QFont& font, const QString& text);

  private:
    struct Key {
        QFont font;
        QString text;

        friend bool operator==(const Key&, const Key&) = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key& key) const { return qHash(key.text); }
    };

    [[nodiscard]] const QList<QGlyphRun>& glyphsOf(const QFont& font, const QString& text,
                                                   const QPaintDevice* device);

    std::unordered_map<Key, QList<QGlyphRun>, KeyHash> known_;
};

} // namespace etiquetas
