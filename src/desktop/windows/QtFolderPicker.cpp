#include "desktop/windows/QtFolderPicker.h"

#include "desktop/machine/QtText.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

namespace etiquetas {

Text QtFolderPicker::pick(TextView title) {
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    const QString folder = QFileDialog::getExistingDirectory(
        QApplication::activeWindow(), toQString(title),
        QDir(desktop).exists() ? desktop : QDir::homePath(), QFileDialog::ShowDirsOnly);
    return toText(QDir::toNativeSeparators(folder));
}

} // namespace etiquetas
