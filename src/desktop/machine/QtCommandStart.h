#pragma once

#include "desktop/machine/ProgramRow.h"
#include "platform/CommandStart.h"

#include <QString>

#include <map>

namespace etiquetas {

/// Starts the command files that take a job file to a printer's port. Where the machine's shell
/// knows them, it runs them; elsewhere their lines are read here, and done with what that machine
/// has: a port that is mapped to a share prints on the queue of that name, any other one writes to
/// the parallel device of its number. All of it runs beside the program, without a word; what goes
/// to one place arrives there in the order in which it was sent, as it was then.
class QtCommandStart final : public CommandStart {
  public:
    /// What takes its standard input to a print queue, called as `lp` is (POSIX), and the folder of
    /// the parallel devices "lp0", "lp1" and so on.
    explicit QtCommandStart(QString print_program = QStringLiteral("lp"),
                            QString devices = QStringLiteral("/dev"));

    void start(TextView command_file) override;

  private:
    /// Does what the lines of a command file say.
    void carryOut(const QString& command_file);
    /// Sends a file to a port; an empty share stands for none.
    void send(const QString& file, const QString& port, const QString& share);

    QString print_program_;
    QString devices_;
    std::map<QString, ProgramRow> rows_; // by the queue or device that their programs write to
};

} // namespace etiquetas
