#pragma once

#include "platform/Pictures.h"

namespace etiquetas {

/// Pictures by the toolkit.
class QtPictures final : public Pictures {
  public:
    [[nodiscard]] Picture load(TextView path) override;
    [[nodiscard]] Raster text(TextView text) override;
};

} // namespace etiquetas
