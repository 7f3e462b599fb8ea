#pragma once

#include <QString>
#include <QStringList>

namespace etiquetas {

/// Removes what a program that was killed left half written, in the folder of the program and in
/// that of its jobs. Tells the paths.
QStringList removeLeftDrafts(const QString& folder);

} // namespace etiquetas
