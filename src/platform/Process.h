#pragma once

namespace etiquetas {

/// The running program.
class Process {
  public:
    virtual ~Process() = default;

    /// Ends the program at once, with success: no further event runs.
    virtual void end() = 0;

  protected:
    Process() = default;
    Process(const Process&) = default;
    Process(Process&&) = default;
    Process& operator=(const Process&) = default;
    Process& operator=(Process&&) = default;
};

} // namespace etiquetas
