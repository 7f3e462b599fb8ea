// The program's way up to its first frame, in the folder of an installation:
//
//     etiquetas_bench_start FOLDER
//
// What main.cpp does stands here again, with an end behind the first frame.

#include "bench/FirstFrame.h"
#include "desktop/Desktop.h"
#include "desktop/SingleInstance.h"

#include <QLibraryInfo>
#include <QTranslator>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const etiquetas::FirstFrame first_frame;
    QApplication::setStyle(QStringLiteral("Fusion"));
    QTranslator toolkit;
    if (toolkit.load(QStringLiteral("qtbase_pt_BR"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&toolkit);
    }
    const QString folder = QApplication::arguments().constLast();
    etiquetas::SingleInstance instance(folder);
    etiquetas::Desktop desktop(folder);
    desktop.start();
    return desktop.exitCode() ? *desktop.exitCode() : QApplication::exec();
}
