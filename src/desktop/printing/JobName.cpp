#include "desktop/printing/JobName.h"

#include <QRegularExpression>

namespace etiquetas {

using namespace Qt::StringLiterals;

QString fileStem(const QDateTime& time, const QString& title) {
    constexpr qsizetype longest = 120; // characters; 255 bytes in UTF-8 are the most that fit
    static const QRegularExpression unsafe(uR"([<>:"/\\|?*\p{C}])"_s);
    QString safe = title;
    safe.replace(unsafe, u"-"_s);
    const QString stem = time.toString(u"yyyy-MM-dd HH-mm-ss "_s) + safe.simplified();
    return stem.left(longest).trimmed();
}

} // namespace etiquetas
