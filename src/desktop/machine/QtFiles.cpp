#include "desktop/machine/QtFiles.h"

#include "base/Failure.h"
#include "desktop/machine/QtText.h"
#include "desktop/machine/WholeFile.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QThread>

#include <filesystem>
#include <system_error>

namespace etiquetas {

namespace {

Failure fileFailure(TextView deed, TextView path) {
    Text description = u"Não foi possível ";
    description.append(deed).append(u" \"").append(path).append(u"\".");
    return {failure_number::file_access, u"Files", std::move(description)};
}

// Any order is far smaller; what is larger would fill the memory.
constexpr qint64 most_bytes = qint64{256} * 1024 * 1024;

Failure tooLarge(TextView path) {
    return {failure_number::file_access, u"Files",
            Text(u"O arquivo \"").append(path).append(u"\" tem mais de 256 MB.")};
}

Failure inUse(TextView path) {
    return {failure_number::file_access, u"Files",
            Text(u"O arquivo \"").append(path).append(u"\" está em uso por outro programa.")};
}

// Surely so: a file that can't be asked after, on a share that fails say, is not missing.
bool isMissing(TextView path) {
    std::error_code error;
    const auto status =
        std::filesystem::status(QFileInfo(toQString(path)).filesystemFilePath(), error);
    return status.type() == std::filesystem::file_type::not_found;
}

// The toolkit's own wait doubles its pauses, so that a program that writes again and again would
// keep others out.
void take(QLockFile& lock, TextView path) {
    constexpr int patience = 1000;  // milliseconds
    constexpr unsigned pause = 250; // microseconds
    const QDeadlineTimer end(patience);
    while (!lock.tryLock(0)) {
        if (lock.error() != QLockFile::LockFailedError) {
            throw fileFailure(u"gravar o arquivo", path);
        }
        if (end.hasExpired()) {
            throw inUse(path);
        }
        QThread::usleep(pause);
    }
}

} // namespace

QtFiles::QtFiles(const QString& program_folder)
    : program_folder_(toText(QDir::toNativeSeparators(QDir::cleanPath(program_folder)))) {}

char16_t QtFiles::separator() const {
    return QDir::separator().unicode();
}

bool QtFiles::fileExists(TextView path) const {
    return QFileInfo(toQString(path)).isFile();
}

bool QtFiles::folderExists(TextView path) const {
    return !isBlank(path) && QFileInfo(toQString(path)).isDir();
}

std::vector<Text> QtFiles::filesIn(TextView folder) const {
    if (isBlank(folder)) {
        return {}; // it would stand for the folder that the program was started in
    }
    std::vector<Text> names;
    QDirIterator found(toQString(folder), QDir::Files);
    while (found.hasNext()) {
        const QFileInfo file = found.nextFileInfo();
        if (file.isFile()) { // a link to a pipe or a device is none
            names.push_back(toText(file.fileName()));
        }
    }
    return names;
}

void QtFiles::makeFolder(TextView path) {
    if (isBlank(path) || !QDir().mkdir(toQString(path))) {
        throw fileFailure(u"criar a pasta", path);
    }
}

void QtFiles::deleteFile(TextView path) {
    if (!QFile::remove(toQString(path))) {
        throw fileFailure(u"apagar o arquivo", path);
    }
}

std::string QtFiles::read(TextView path) const {
    // A pipe or a device would keep the program waiting.
    QFile file(toQString(path));
    if (!fileExists(path) || !file.open(QIODevice::ReadOnly)) {
        throw fileFailure(u"ler o arquivo", path);
    }
    if (file.size() > most_bytes) {
        throw tooLarge(path);
    }
    std::string bytes = file.readAll().toStdString();
    if (file.error() != QFileDevice::NoError) {
        throw fileFailure(u"ler o arquivo", path);
    }
    file_read_(path, bytes.size());
    return bytes;
}

void QtFiles::replace(TextView path, std::string_view bytes) {
    if (!writeWhole(toQString(path), bytes)) {
        throw fileFailure(u"gravar o arquivo", path);
    }
}

void QtFiles::update(TextView path, const Change& change) {
    // A change takes milliseconds. What is older was left by a program on another machine, or by
    // one that was killed before it had put its name in; of others of this machine the lock knows.
    constexpr int stale = 5000;                 // milliseconds
    constexpr unsigned others_have_time = 1000; // microseconds, more than the pause of who waits
    QLockFile lock(toQString(path) + QStringLiteral(".lock"));
    lock.setStaleLockTime(stale);
    take(lock, path);
    replace(path, change(isMissing(path) ? std::string() : read(path)));
    lock.unlock();
    QThread::usleep(others_have_time);
}

} // namespace etiquetas
