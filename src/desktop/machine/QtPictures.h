#pragma once

#include "platform/Pictures.h"

namespace etiquetas {

/// Pictures by the toolkit. Only JPEG files of at most 30 million pixels are loaded; the failure of
/// any other one names it.
class QtPictures final : public Pictures {
  public:
    [[nodiscard]] Picture load(TextView path) override;
    [[nodiscard]] Raster text(TextView text) override;
};

} // namespace etiquetas
