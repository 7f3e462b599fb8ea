#include "desktop/machine/ProgramRow.h"

#include <QProcess>

#include <utility>

#ifdef Q_OS_UNIX
#include <array>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

using PipeEnd = std::unique_ptr<QFile>;

struct Pipe {
    PipeEnd read;
    PipeEnd write;
};

#ifdef Q_OS_UNIX
PipeEnd pipeEnd(int file, QIODevice::OpenMode mode) {
    auto end = std::make_unique<QFile>();
    return end->open(file, mode, QFile::AutoCloseHandle) ? std::move(end) : nullptr;
}

// Its ends are those of this program alone.
Pipe newPipe() {
    std::array<int, 2> files{};
    if (pipe(files.data()) != 0) {
        return {};
    }
    for (const int file : files) {
        fcntl(file, F_SETFD, FD_CLOEXEC);
    }
    return {pipeEnd(files[0], QIODevice::ReadOnly), pipeEnd(files[1], QIODevice::WriteOnly)};
}

void handDown(const PipeEnd& end) {
    if (end != nullptr) {
        fcntl(end->handle(), F_SETFD, 0);
    }
}
#else
// There the shell runs what is to run in a row.
Pipe newPipe() {
    return {};
}

void handDown(const PipeEnd& /*end*/) {}
#endif

} // namespace

// Each program has the one end of a pipe that it never writes to, and ends it by ending; the next
// one waits for that at the other end.
void ProgramRow::start(const QString& program, const QStringList& arguments, const QString& input) {
    const PipeEnd before = std::exchange(last_, nullptr);
    Pipe own = newPipe();
    handDown(before);
    handDown(own.write);
    QProcess process;
    if (before == nullptr) {
        process.setProgram(program);
        process.setArguments(arguments);
    } else {
        process.setProgram(u"sh"_s);
        process.setArguments(QStringList{u"-c"_s, u"cat /dev/fd/$0 > /dev/null; exec \"$@\""_s,
                                         QString::number(before->handle()), program} +
                             arguments);
    }
    process.setStandardInputFile(input);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.startDetached();
    last_ = std::move(own.read);
}

} // namespace etiquetas
