#pragma once

#include <QDateTime>
#include <QString>

#include <functional>

namespace etiquetas {

/// Makes a new PDF file in the folder, which is made where it is missing, named by the time, and
/// tells its path. `write` fills a draft beside it; only what is complete takes the name, so that
/// a fault or a power cut leaves nothing of that name. Fails where the folder or the file can't be
/// written.
QString writePdfFile(const QString& folder, const QDateTime& time,
                     const std::function<void(const QString& path)>& write);

} // namespace etiquetas
