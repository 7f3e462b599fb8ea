#include "desktop/Desktop.h"
#include "desktop/SingleInstance.h"
#include "desktop/console/Console.h"
#include "desktop/console/ConsoleOptions.h"
#include "desktop/console/ConsoleText.h"
#include "desktop/machine/Translation.h"

#include <QApplication>
#include <QDir>

namespace {

int runWindow(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    etiquetas::speakPortuguese();
    const auto [options, fault] = etiquetas::readOptions(QApplication::arguments());
    if (!fault.isEmpty()) {
        etiquetas::tell(fault);
        return etiquetas::exit_code::wrong_use;
    }
    const QString folder = options.folder.isEmpty() ? QApplication::applicationDirPath()
                                                    : QDir(options.folder).absolutePath();
    etiquetas::SingleInstance instance(folder);
    if (!instance.isFirst()) {
        return 0; // the one that is has come to the front
    }
    etiquetas::Desktop desktop(folder);
    instance.onCalled([&desktop] { desktop.comeToFront(); });
    desktop.start();
    return desktop.exitCode() ? *desktop.exitCode() : QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    return etiquetas::asksForConsole(argc, argv) ? etiquetas::runConsole(argc, argv)
                                                 : runWindow(argc, argv);
}
