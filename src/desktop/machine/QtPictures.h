#pragma once

#include "platform/Pictures.h"

namespace etiquetas {

/// Pictures by the toolkit. Only whole JPEG files are loaded, of at most 24 MB and 30 million
/// pixels, in a second and in 64 MB of memory; the failure of any other one names it. What is
/// larger than any label shows it is shrunk to that size.
class QtPictures final : public Pictures {
  public:
    [[nodiscard]] Picture load(TextView path) override;
    [[nodiscard]] Raster text(TextView text) override;
};

} // namespace etiquetas
