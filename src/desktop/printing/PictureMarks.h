#pragma once

#include "desktop/printing/LabelPage.h"
#include "platform/Picture.h"
#include "platform/PrintSurface.h"

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QRect>
#include <QRectF>

#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace etiquetas {

/// The part of a picture that a source area takes, in whole pixels and within the picture.
[[nodiscard]] QRect cropOf(const Raster& picture, const SourceArea& source);

/// Turns pictures into marks of a page.
class PictureMarks {
  public:
    /// Adds the crop of a picture to a page, stretched over the place and opaque.
    void stamp(LabelPage& page, const Picture& picture, const QRect& crop, const QRectF& place);

  private:
    // Rows of a crop, the first one being 0. Without an image they are white.
    struct Band {
        int first;
        int end;
        std::optional<QImage> image;
    };
    struct Kept {
        std::weak_ptr<const Raster> picture;
        QRect crop;
        std::vector<Band> bands;
    };

    [[nodiscard]] const std::vector<Band>& bandsOf(const Picture& picture, const QRect& crop);
    [[nodiscard]] std::vector<Band> barBands(const Raster& picture, const QRect& crop);
    [[nodiscard]] std::optional<QImage> barRow(std::span<const Pixel> pixels);

    std::vector<Kept> kept_;
    QHash<QByteArray, QImage> bar_rows_; // by their pixels
};

} // namespace etiquetas
