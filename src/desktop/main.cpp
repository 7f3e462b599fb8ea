#include "desktop/Desktop.h"
#include "desktop/SingleInstance.h"
#include "desktop/console/Console.h"
#include "desktop/console/ConsoleOptions.h"
#include "desktop/console/ConsoleText.h"
#include "desktop/machine/Translation.h"
#include "desktop/machine/WorkFolder.h"
#include "desktop/windows/ManualView.h"

#include <QApplication>
#include <QHashSeed>

namespace {

int runWorkbench(const QString& named_folder) {
    const etiquetas::WorkFolder folder = etiquetas::openWorkFolder(named_folder);
    etiquetas::SingleInstance instance(folder.path);
    if (!instance.isFirst()) {
        return 0; // the one that is has come to the front
    }
    etiquetas::Desktop desktop(folder.path);
    desktop.tellFolder(folder);
    instance.onCalled([&desktop] { desktop.comeToFront(); });
    desktop.start();
    return desktop.exitCode() ? *desktop.exitCode() : QApplication::exec();
}

int showManual() {
    etiquetas::ManualView manual;
    manual.openAlone();
    return QApplication::exec();
}

int runWindow(int argc, char** argv) {
    const QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("etiquetas"));
    QApplication::setStyle(QStringLiteral("Fusion"));
    etiquetas::speakPortuguese();
    const auto [options, fault] = etiquetas::readOptions(QApplication::arguments());
    if (!fault.isEmpty()) {
        etiquetas::tell(fault);
        return etiquetas::exit_code::wrong_use;
    }
    return options.task == etiquetas::Task::manual ? showManual() : runWorkbench(options.folder);
}

} // namespace

int main(int argc, char** argv) {
    // The toolkit's hash tables decide on the order of the fonts in a PDF file: the same labels are
    // to make the same file.
    QHashSeed::setDeterministicGlobalSeed();
    return etiquetas::asksForConsole(argc, argv) ? etiquetas::runConsole(argc, argv)
                                                 : runWindow(argc, argv);
}
