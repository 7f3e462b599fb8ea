#include "desktop/machine/Draft.h"

#include <QDateTime>
#include <QFileInfo>
#include <QUuid>

#include <cerrno>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_UNIX
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>
#else
#include <qt_windows.h>

#include <io.h>
#endif

namespace etiquetas {

namespace {

QString ownName(QStringView names) {
    return names.toString().replace(u'*', QUuid::createUuid().toString(QUuid::Id128));
}

std::filesystem::path pathOf(const QString& path) {
    return QFileInfo(path).filesystemFilePath();
}

// A name stands in its folder's bytes, which reach the disk apart from those of the file. Where a
// folder can't be forced there, on a network share say, a power cut may leave the old name.
void forceNamesToDisk([[maybe_unused]] const QString& path) {
#ifdef Q_OS_UNIX
    const QByteArray folder = QFile::encodeName(QFileInfo(path).path());
    const int handle = open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        fsync(handle);
        close(handle);
    }
#endif
}

// Gives a file a name that no file has. A file system that can't rename in this way, an older
// network share say, gives it a second name.
std::error_code named(const QString& from, const QString& to) {
#ifdef Q_OS_LINUX
    const bool renamed = renameat2(AT_FDCWD, QFile::encodeName(from).constData(), AT_FDCWD,
                                   QFile::encodeName(to).constData(), RENAME_NOREPLACE) == 0;
    if (renamed || errno == EEXIST) {
        return {renamed ? 0 : EEXIST, std::generic_category()};
    }
#endif
#ifdef Q_OS_WIN
    const bool moved =
        MoveFileExW(pathOf(from).c_str(), pathOf(to).c_str(), MOVEFILE_WRITE_THROUGH);
    return {moved ? 0 : static_cast<int>(GetLastError()), std::system_category()};
#else
    std::error_code error;
    std::filesystem::create_hard_link(pathOf(from), pathOf(to), error);
    return error;
#endif
}

} // namespace

Draft::Draft(const QDir& folder, QStringView names) : path_(folder.filePath(ownName(names))) {
    made_ = QFile(path_).open(QIODevice::WriteOnly | QIODevice::NewOnly);
}

Draft::~Draft() {
    QFile::remove(path_);
}

bool Draft::replace(const QString& path) const {
    std::error_code error;
    std::filesystem::rename(pathOf(path_), pathOf(path), error);
    if (!error) {
        forceNamesToDisk(path);
    }
    return !error;
}

NewName Draft::take(const QString& path) const {
    const std::error_code error = named(path_, path);
    if (error) {
        return error == std::errc::file_exists ? NewName::taken : NewName::refused;
    }
    forceNamesToDisk(path);
    return NewName::given;
}

bool forceToDisk([[maybe_unused]] const QFile& file) {
#ifdef Q_OS_UNIX
    return fsync(file.handle()) == 0;
#else
    return _commit(file.handle()) == 0;
#endif
}

QStringList removeOldDrafts(const QDir& folder, QStringView names) {
    // A running program finishes a draft within seconds; an hour is more than a job takes, and than
    // the clocks of the machines on one network differ.
    constexpr qint64 hour = qint64{60} * 60; // seconds
    const QDateTime old = QDateTime::currentDateTime().addSecs(-hour);
    QStringList removed;
    for (const QFileInfo& draft :
         folder.entryInfoList({names.toString()}, QDir::Files | QDir::Hidden)) {
        if (draft.lastModified() < old && QFile::remove(draft.filePath())) {
            removed << draft.filePath();
        }
    }
    return removed;
}

} // namespace etiquetas
