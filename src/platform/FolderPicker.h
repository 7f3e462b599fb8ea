#pragma once

#include "base/Text.h"
#include "platform/Interface.h"

namespace etiquetas {

/// The machine's folder picker.
class FolderPicker : public Interface {
  public:
    /// Lets the operator pick a folder of the file system; empty where they picked none.
    [[nodiscard]] virtual Text pick(TextView title) = 0;
};

} // namespace etiquetas
