#include "desktop/machine/QtFiles.h"

#include "base/Failure.h"
#include "desktop/machine/QtText.h"
#include "desktop/machine/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

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
    const QStringList found = QDir(toQString(folder)).entryList(QDir::Files, QDir::Unsorted);
    std::vector<Text> names;
    names.reserve(static_cast<std::size_t>(found.size()));
    std::transform(found.begin(), found.end(), std::back_inserter(names), toText);
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

} // namespace etiquetas
