#pragma once

#include <QByteArray>
#include <QImage>

#include <vector>

namespace etiquetas::test {

// The graphics of one page in programs of label printers, on a sheet of this size in dots.

[[nodiscard]] QImage epl1Dots(const QByteArray& text, const QSize& size);
[[nodiscard]] QImage eplDots(const QByteArray& text, const QSize& size);
[[nodiscard]] QImage cpclDots(const QByteArray& text, const QSize& size);
[[nodiscard]] QImage zplDots(const QByteArray& text, const QSize& size);

/// All pages of a job in a form of the print system's raster, one bit to the dot, on sheets of this
/// size in dots.
[[nodiscard]] std::vector<QImage> rasterPages(QByteArray job, const QSize& size);

} // namespace etiquetas::test
