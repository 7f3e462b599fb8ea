#include "desktop/console/Console.h"

#include "base/Failure.h"
#include "base/Version.h"
#include "desktop/console/ConsoleOptions.h"
#include "desktop/console/ConsoleText.h"
#include "desktop/console/Lists.h"
#include "desktop/console/PrintRun.h"
#include "desktop/console/ReviewReport.h"
#include "desktop/machine/QtText.h"
#include "desktop/machine/Translation.h"
#include "desktop/machine/WorkFolder.h"

#include <QGuiApplication>

#include <span>
#include <string_view>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// Only printing lays a folder out: looking changes nothing.
QString folderFor(const ConsoleOptions& options) {
    if (options.task != Task::print) {
        return workFolderPath(options.folder);
    }
    const WorkFolder folder = openWorkFolder(options.folder);
    if (const QString notice = tellFolder(folder); !notice.isEmpty()) {
        tell(notice);
    }
    return folder.path;
}

int doTask(const ConsoleOptions& options) {
    switch (options.task) {
    case Task::help:
        print(helpText());
        return exit_code::success;
    case Task::version:
        print(u"etiquetas %1.%2.%3"_s.arg(version_major).arg(version_minor).arg(version_patch));
        return exit_code::success;
    case Task::print:
        return PrintRun(options).run();
    case Task::review:
        return reportReview(options);
    case Task::list:
        return listAsked(options);
    case Task::history:
        return listHistory(options);
    case Task::window:
    case Task::manual:
        break;
    }
    tell(u"A janela não abre com essas opções."_s);
    return exit_code::wrong_use;
}

} // namespace

bool asksForConsole(int argc, const char* const* argv) {
    for (const std::string_view argument : std::span(argv, static_cast<std::size_t>(argc))) {
        const bool of_window =
            argument == "--pasta" || argument.starts_with("--pasta=") || argument == "--manual";
        if ((argument.starts_with("--") && !of_window) || argument == "-h" || argument == "-v") {
            return true;
        }
    }
    return false;
}

int runConsole(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    speakPortuguese();
    ReadOptions read = readOptions(QCoreApplication::arguments());
    if (!read.fault.isEmpty()) {
        tell(read.fault);
        tell(u"Veja etiquetas --help."_s);
        return exit_code::wrong_use;
    }
    read.options.folder = folderFor(read.options);
    try {
        return doTask(read.options);
    } catch (const Failure& failure) {
        tell(toQString(failure.description()));
        return exit_code::failure;
    }
}

} // namespace etiquetas
