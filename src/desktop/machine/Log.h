#pragma once

#include <QString>

#include <cstddef>
#include <memory>

namespace spdlog {
class logger;
}

namespace etiquetas {

/// The log that support reads: a text file in UTF-8, one line for each entry, with date, time and
/// level. A file that is full makes room by becoming "<name>.1.log", and that one "<name>.2.log".
/// A log that can't be written loses its entries without a word: it never disturbs the program.
class Log {
  public:
    static constexpr std::size_t most_bytes = 1'000'000; // of one file
    static constexpr std::size_t most_files = 3;

    /// Goes on with the file of this path; creates it where it is missing.
    explicit Log(const QString& path);
    ~Log();
    Log(const Log&) = delete;
    Log(Log&&) noexcept;
    Log& operator=(const Log&) = delete;
    Log& operator=(Log&&) = delete;

    /// What happened in the ordinary way.
    void info(const QString& text);
    /// What went wrong without stopping the program.
    void warning(const QString& text);
    /// What ends the program.
    void error(const QString& text);

  private:
    std::unique_ptr<spdlog::logger> logger_;
};

} // namespace etiquetas
