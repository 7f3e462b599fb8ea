#include "desktop/machine/WholeFile.h"

#include <QSaveFile>

namespace etiquetas {

bool writeWhole(const QString& path, QByteArrayView bytes) {
    QSaveFile file(path);
    // The flush is what tells of a full disk: the commit would not, and put a cut-off file in the
    // old one's place.
    return file.open(QIODevice::WriteOnly) &&
           file.write(bytes.data(), bytes.size()) == bytes.size() && file.flush() && file.commit();
}

} // namespace etiquetas
