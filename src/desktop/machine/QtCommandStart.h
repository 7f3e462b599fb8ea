#pragma once

#include "platform/CommandStart.h"

#include <QString>

namespace etiquetas {

/// Starts the command files that take a job file to a printer's port. Where the machine's shell
/// knows them, it runs them; elsewhere their lines are read here, and done with what that machine
/// has: a port that is mapped to a share prints on the queue of that name, any other one writes to
/// the parallel device of its number. All of it runs beside the program, without a word.
class QtCommandStart final : public CommandStart {
  public:
    /// What takes a file to a print queue, called as `lp` is (POSIX), and the folder of the
    /// parallel devices "lp0", "lp1" and so on.
    explicit QtCommandStart(QString print_program = QStringLiteral("lp"),
                            QString devices = QStringLiteral("/dev"));

    void start(TextView command_file) override;

  private:
    /// Does what the lines of a command file say.
    void carryOut(const QString& command_file) const;
    /// Sends a file to a port; an empty share stands for none.
    void send(const QString& file, const QString& port, const QString& share) const;

    QString print_program_;
    QString devices_;
};

} // namespace etiquetas
