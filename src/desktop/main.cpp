#include "desktop/Desktop.h"
#include "desktop/SingleInstance.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    // The toolkit's own texts, of its folder picker say, in the operator's language.
    QTranslator toolkit;
    if (toolkit.load(QStringLiteral("qtbase_pt_BR"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&toolkit);
    }
    const QString folder = QApplication::applicationDirPath();
    etiquetas::SingleInstance instance(folder);
    if (!instance.isFirst()) {
        return 0; // the one that is has come to the front
    }
    etiquetas::Desktop desktop(folder);
    instance.onCalled([&desktop] { desktop.comeToFront(); });
    desktop.start();
    return desktop.exitCode() ? *desktop.exitCode() : QApplication::exec();
}
