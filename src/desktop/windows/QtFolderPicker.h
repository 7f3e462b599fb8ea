#pragma once

#include "platform/FolderPicker.h"

namespace etiquetas {

/// The toolkit's folder picker, over the window that is active; it starts at the desktop.
class QtFolderPicker final : public FolderPicker {
  public:
    [[nodiscard]] Text pick(TextView title) override;
};

} // namespace etiquetas
