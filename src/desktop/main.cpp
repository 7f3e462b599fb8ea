#include "desktop/Desktop.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    etiquetas::Desktop desktop(QApplication::applicationDirPath());
    desktop.start();
    return desktop.exitCode() ? *desktop.exitCode() : QApplication::exec();
}
