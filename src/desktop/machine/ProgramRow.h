#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

#include <memory>

namespace etiquetas {

/// Programs that run beside this one in a row, each when the one before has ended, and that are
/// left to themselves: they go on when this program ends. What they print is dropped.
class ProgramRow {
  public:
    /// Starts a program behind those that have been started so far. It reads `input`, which is
    /// opened at once: a file that takes that name later is another one. The arguments go as they
    /// are, through no shell.
    void start(const QString& program, const QStringList& arguments, const QString& input);

  private:
    std::unique_ptr<QFile> last_; // a pipe that ends with the last program
};

} // namespace etiquetas
