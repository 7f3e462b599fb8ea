#include "desktop/machine/WholeFile.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace etiquetas {

namespace {

namespace fs = std::filesystem;

// What a new file replaces: itself, or where the name is a link the file behind it.
struct Place {
    fs::path path;
    fs::file_status status; // of no type where it can't be told

    [[nodiscard]] bool isFree() const { return status.type() == fs::file_type::not_found; }
    [[nodiscard]] bool isWritableFile() const {
        return fs::is_regular_file(status) && QFileInfo(path).isWritable();
    }
};

Place placeOf(const QString& path) {
    const fs::path named = QFileInfo(path).filesystemFilePath();
    std::error_code error;
    const fs::file_status status = fs::status(named, error);
    if (!fs::exists(status)) {
        return {named, status};
    }
    const fs::path real = fs::canonical(named, error);
    return {real, error ? fs::file_status() : status};
}

bool takePermissions(const QString& path, const fs::file_status& status) {
    std::error_code error;
    fs::permissions(QFileInfo(path).filesystemFilePath(), status.permissions(), error);
    return !error;
}

bool writeDraft(const QString& path, QByteArrayView bytes) {
    // The flush is what tells of a full disk.
    QFile file(path);
    return file.open(QIODevice::WriteOnly) &&
           file.write(bytes.data(), bytes.size()) == bytes.size() && file.flush() &&
           forceToDisk(file);
}

} // namespace

bool writeWhole(const QString& path, QByteArrayView bytes) {
    const Place place = placeOf(path);
    if (!place.isFree() && !place.isWritableFile()) {
        return false;
    }
    const QFileInfo file(place.path);
    const Draft draft(file.dir(), whole_file_drafts);
    return draft.isMade() && (place.isFree() || takePermissions(draft.path(), place.status)) &&
           writeDraft(draft.path(), bytes) && draft.replace(file.filePath());
}

} // namespace etiquetas
