#include "desktop/QtFolderPicker.h"

#include "desktop/QtText.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>

namespace etiquetas {

Text QtFolderPicker::pick(TextView title) {
    const QString folder =
        QFileDialog::getExistingDirectory(QApplication::activeWindow(), toQString(title),
                                          QDir::homePath(), QFileDialog::ShowDirsOnly);
    return toText(QDir::toNativeSeparators(folder));
}

} // namespace etiquetas
