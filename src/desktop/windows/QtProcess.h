#pragma once

#include "platform/Process.h"

#include <functional>
#include <utility>

namespace etiquetas {

/// The running program; what ends it is set once it is known.
class QtProcess final : public Process {
  public:
    void onEnd(std::function<void()> end) { end_ = std::move(end); }
    void end() override { end_(); }

  private:
    std::function<void()> end_ = [] {};
};

} // namespace etiquetas
