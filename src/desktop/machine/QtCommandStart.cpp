#include "desktop/machine/QtCommandStart.h"

#include "base/CodePage.h"
#include "channel/CommandFile.h"
#include "desktop/machine/QtText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QSysInfo>

#include <optional>
#include <utility>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

bool shellKnowsCommandFiles() {
    return QSysInfo::kernelType() == u"winnt"_s;
}

// In a console window of its own, which fills the screen. After "call" the path keeps its quotes:
// cmd.exe takes them off a command that begins with them when it holds parentheses, as in
// "Program Files (x86)".
void runInShell(const QString& command_file) {
    QProcess shell;
    shell.setProgram(u"cmd.exe"_s);
    shell.setArguments({u"/c"_s, u"call"_s, QDir::toNativeSeparators(command_file)});
    shell.setWorkingDirectory(QFileInfo(command_file).absolutePath());
#ifdef Q_OS_WIN
    shell.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* start) {
        start->startupInfo->dwFlags |= STARTF_USESHOWWINDOW;
        start->startupInfo->wShowWindow = SW_SHOWMAXIMIZED;
    });
#endif
    shell.startDetached();
}

std::vector<PortCommand> commandsIn(const QString& command_file) {
    QFile file(command_file);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return readCommandFile(fromCodePage1252(file.readAll().toStdString()));
}

// Ports are one whatever the case of their names.
QString nameOf(const Text& port) {
    return toQString(port).toUpper();
}

// The number of a parallel port, from 1 to 9; nothing for any other port.
std::optional<int> parallelNumber(const QString& port) {
    const bool parallel = port.size() == 4 && port.startsWith(u"LPT"_s);
    const int number = parallel ? port.back().unicode() - u'0' : 0;
    return number >= 1 && number <= 9 ? std::optional(number) : std::nullopt;
}

} // namespace

QtCommandStart::QtCommandStart(QString print_program, QString devices)
    : print_program_(std::move(print_program)), devices_(std::move(devices)) {}

void QtCommandStart::start(TextView command_file) {
    const QString path = toQString(command_file);
    if (shellKnowsCommandFiles()) {
        runInShell(path);
    } else {
        carryOut(path);
    }
}

void QtCommandStart::carryOut(const QString& command_file) {
    const QDir folder = QFileInfo(command_file).absoluteDir();
    QMap<QString, QString> shares; // by port
    for (const PortCommand& command : commandsIn(command_file)) {
        if (const auto* unmap = std::get_if<UnmapPort>(&command)) {
            shares.remove(nameOf(unmap->port));
        } else if (const auto* map = std::get_if<MapPort>(&command)) {
            shares[nameOf(map->port)] = toQString(map->share).trimmed();
        } else if (const auto* typed = std::get_if<TypeFile>(&command)) {
            const QString port = nameOf(typed->port);
            send(folder.filePath(toQString(typed->file)), port, shares.value(port));
        }
    }
}

void QtCommandStart::send(const QString& file, const QString& port, const QString& share) {
    if (!share.isEmpty()) {
        // The name after "-d" is one even where it begins with "-".
        rows_[share].start(print_program_, {u"-d"_s, share, u"-o"_s, u"raw"_s}, file);
    } else if (const auto number = parallelNumber(port)) {
        // A device that keeps its writer waiting keeps this copy waiting, not the window. One that
        // is missing must not become a file of that name.
        const QString device = devices_ + u"/lp"_s + QString::number(*number - 1);
        rows_[device].start(u"dd"_s, {u"of="_s + device, u"conv=nocreat"_s}, file);
    }
}

} // namespace etiquetas
