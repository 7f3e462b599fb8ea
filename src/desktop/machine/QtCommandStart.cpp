#include "desktop/machine/QtCommandStart.h"

#include "base/CodePage.h"
#include "desktop/machine/QtText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSysInfo>

#include <utility>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

bool shellKnowsCommandFiles() {
    return QSysInfo::kernelType() == u"winnt"_s;
}

// In a console window of its own. Behind "call" the path keeps its quotes: cmd.exe takes them off a
// command that begins with them when it holds parentheses, as in "Program Files (x86)".
void runInShell(const QString& command_file) {
    QProcess::startDetached(u"cmd.exe"_s,
                            {u"/c"_s, u"call"_s, QDir::toNativeSeparators(command_file)},
                            QFileInfo(command_file).absolutePath());
}

// Its arguments go as they are, through no shell; what it prints is dropped.
void startSilently(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.startDetached();
}

QStringList linesOf(const QString& path) {
    static const QRegularExpression line_end(u"[\r\n]+"_s);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const Text text = fromCodePage1252(file.readAll().toStdString());
    return toQString(text).split(line_end, Qt::SkipEmptyParts);
}

// What a line of one form says; no match for a line of another form.
QRegularExpressionMatch match(const QString& form, const QString& line) {
    return QRegularExpression(form, QRegularExpression::CaseInsensitiveOption).match(line);
}

} // namespace

QtCommandStart::QtCommandStart(QString print_program, QString devices)
    : print_program_(std::move(print_program)), devices_(std::move(devices)) {}

void QtCommandStart::start(TextView command_file) {
    const QString path = toQString(command_file);
    if (shellKnowsCommandFiles()) {
        runInShell(path);
    } else {
        readLines(path);
    }
}

void QtCommandStart::readLines(const QString& command_file) const {
    const QDir folder = QFileInfo(command_file).absoluteDir();
    QMap<QString, QString> shares; // by port, in upper case
    for (const QString& line : linesOf(command_file)) {
        if (const auto remove = match(uR"(^net use (.+): /delete$)"_s, line); remove.hasMatch()) {
            shares.remove(remove.captured(1).toUpper());
        } else if (const auto map =
                       match(uR"(^net use (.+): \\\\127\.0\.0\.1\\(.*) /yes$)"_s, line);
                   map.hasMatch()) {
            shares[map.captured(1).toUpper()] = map.captured(2).trimmed();
        } else if (const auto type = match(u"^type (.+) > (.+)$"_s, line); type.hasMatch()) {
            const QString port = type.captured(2).toUpper();
            send(folder.filePath(type.captured(1)), port, shares.value(port));
        }
    }
}

void QtCommandStart::send(const QString& file, const QString& port, const QString& share) const {
    if (!share.isEmpty()) {
        // The name behind "-d" is one even where it begins with "-".
        startSilently(print_program_, {u"-d"_s, share, u"-o"_s, u"raw"_s, u"--"_s, file});
    } else if (const auto parallel = match(u"^LPT([1-9])$"_s, port); parallel.hasMatch()) {
        // A device that keeps its writer waiting keeps this copy waiting, not the window. One that
        // is missing must not become a file of that name.
        const int number = parallel.captured(1).toInt() - 1;
        const QString device = devices_ + u"/lp"_s + QString::number(number);
        startSilently(u"dd"_s, {u"if="_s + file, u"of="_s + device, u"conv=nocreat"_s});
    }
}

} // namespace etiquetas
