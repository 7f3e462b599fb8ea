#pragma once

#include "base/Text.h"
#include "platform/Interface.h"
#include "platform/Picture.h"

namespace etiquetas {

/// The machine's pictures: decoding of image files, and texts as pixels.
class Pictures : public Interface {
  public:
    /// The picture in a JPEG file, whole or shrunk to what a label shows of it; fails where the
    /// file can't be read or is no picture.
    [[nodiscard]] virtual Picture load(TextView path) = 0;

    /// The text in the picture font, black on white: as wide and as high as the text is.
    [[nodiscard]] virtual Raster text(TextView text) = 0;
};

} // namespace etiquetas
