#pragma once

namespace etiquetas {

/// While it lives a console of Windows shows texts as UTF-8, as the command line writes them. Its
/// code page outlives the program otherwise. No other system's console has one.
class ConsoleCodePage {
  public:
    ConsoleCodePage();
    ~ConsoleCodePage();
    ConsoleCodePage(const ConsoleCodePage&) = delete;
    ConsoleCodePage(ConsoleCodePage&&) = delete;
    ConsoleCodePage& operator=(const ConsoleCodePage&) = delete;
    ConsoleCodePage& operator=(ConsoleCodePage&&) = delete;

  private:
    unsigned int before_;
};

} // namespace etiquetas
