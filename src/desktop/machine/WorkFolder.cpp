#include "desktop/machine/WorkFolder.h"

#include "config/ProgramFiles.h"
#include "desktop/machine/QtText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <filesystem>
#include <system_error>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// By trying, since permissions tell the truth neither on a share nor on every system. The file
// is gone at once.
bool canWrite(const QString& folder) {
    QTemporaryFile trial(QDir(folder).filePath(u".etiquetas-XXXXXX"_s));
    return trial.open();
}

// What an installation brings for new work folders. Its folder of programs is shared with others,
// so that it is nobody's place to work in, even for a user who may write it.
QDir installedModels() {
    return {QCoreApplication::applicationDirPath() + u"/../share/etiquetas/modelos"_s};
}

bool isPortable() {
    const QString own = QCoreApplication::applicationDirPath();
    const bool is_shared = QFileInfo(own).fileName() == u"bin"_s && installedModels().exists();
    return !is_shared && canWrite(own);
}

// On this machine alone: margins belong to the printers that stand beside it. It goes by the name
// of the program and by no other one, so that all ways to start it meet in it.
QString usersFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/etiquetas"_s;
}

bool hasSettings(const QString& folder) {
    return !QDir(folder).entryList({toQString(settings_file)}, QDir::Files).isEmpty();
}

// Filters of names don't tell upper from lower case.
void bring(const QDir& from, TextView name, const QDir& folder) {
    for (const QFileInfo& file : from.entryInfoList({toQString(name)}, QDir::Files)) {
        const QString copy = folder.filePath(toQString(name));
        if (QFile::copy(file.filePath(), copy)) {
            QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner);
        }
    }
}

// They may be many: their folder is linked to, where that can be had.
void bringPhotographs(const QDir& from, const QDir& folder) {
    const QString name = toQString(photograph_folder);
    if (from.exists(name)) {
        std::error_code failed;
        std::filesystem::create_directory_symlink(
            QFileInfo(from.filePath(name)).filesystemCanonicalFilePath(),
            QFileInfo(folder.filePath(name)).filesystemFilePath(), failed);
    }
}

void layOut(const QDir& folder) {
    const QDir own(QCoreApplication::applicationDirPath());
    (void)folder.mkpath(u"impressos"_s);
    bringPhotographs(own, folder);
    (void)folder.mkpath(toQString(photograph_folder));
    for (const QDir& from : {own, installedModels()}) {
        for (const TextView name : {brisako_logo, lumira_logo, settings_file}) {
            bring(from, name, folder);
        }
    }
}

} // namespace

QString workFolderPath(const QString& named) {
    if (!named.isEmpty()) {
        return QDir(named).absolutePath();
    }
    return isPortable() ? QCoreApplication::applicationDirPath() : usersFolder();
}

WorkFolder openWorkFolder(const QString& named) {
    WorkFolder folder{.path = workFolderPath(named)};
    if (folder.path == usersFolder() && !hasSettings(folder.path)) {
        layOut(QDir(folder.path));
        folder.is_new = true;
    }
    folder.is_writable = canWrite(folder.path);
    return folder;
}

QString tellFolder(const WorkFolder& folder) {
    const QString path = QDir::toNativeSeparators(folder.path);
    if (!folder.is_writable) {
        return u"A pasta de trabalho %1 não pode ser gravada: nada será guardado nela"_s.arg(path);
    }
    return folder.is_new ? u"Pasta de trabalho criada: %1"_s.arg(path) : QString();
}

} // namespace etiquetas
