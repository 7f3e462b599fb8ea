#pragma once

#include "desktop/printing/LabelPage.h"
#include "platform/Picture.h"
#include "platform/PrintSurface.h"

#include <QImage>
#include <QRect>
#include <QRectF>

#include <map>
#include <memory>
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
    struct Kept {
        std::weak_ptr<const Raster> picture;
        QRect crop;
        QImage image;
    };

    void stampBars(LabelPage& page, const Raster& picture, const QRect& crop, const QRectF& place);
    [[nodiscard]] QImage keptRow(std::span<const Pixel> pixels);
    [[nodiscard]] QImage keptImage(const Picture& picture, const QRect& crop);

    std::vector<Kept> kept_;
    std::map<std::vector<bool>, QImage> rows_; // by their modules, true where they are dark
};

} // namespace etiquetas
