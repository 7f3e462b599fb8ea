#include "desktop/Desktop.h"

#include "desktop/machine/QtText.h"
#include "desktop/records/LogEntries.h"
#include "desktop/windows/DialogTable.h"
#include "desktop/windows/FieldTable.h"
#include "workbench/Inicio.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace etiquetas {

Desktop::Desktop(const QString& folder)
    : log_(startedLog(folder)),
      skipped_([this](const Failure& failure) { logSkipped(log_, failure); }), files_(folder),
      surface_(printers_, folder), history_(folder),
      form_({printers_, surface_, recorded_messages_, pictures_, files_, focus_, pointer_, process_,
             folders_, commands_}),
      bridge_(focus_, [this](const QString& description) { endOnFailure(description); }) {
    keepLog();
    bridgeWindows();
    messages_.standOver([this] { return windowUnderBoxes(); }, [this] { bridge_.pushAll(); });
    process_.onEnd([this] { end(0); });
    window_.onClose([this] { return close(); });
    window_.onResize([this] { bridge_.run([this] { FrmPadrao_resize(form_); }); });
    surface_.onJobEnded([this](const EndedJob& job) {
        logJob(log_, job);
        recorded_messages_.takeJob(job);
        if (job.target.built_in) {
            tellOfJob(job.file);
        }
    });
}

void Desktop::keepLog() {
    logPrinters(log_, printers_);
    files_.onRead([this](TextView path, std::size_t bytes) { logFileRead(log_, path, bytes); });
}

// None at the start, when the main window does not stand anywhere yet.
QWidget* Desktop::windowUnderBoxes() {
    QWidget& active = bridge_.activeWindow();
    return active.isVisible() ? &active : nullptr;
}

void Desktop::tellOfJob(const QString& path) {
    const QString folder = QStringLiteral("impressos/");
    window_.tell(path.isEmpty() ? QStringLiteral("Etiquetas não gravadas em ") + folder
                                : QStringLiteral("Etiquetas gravadas em ") + folder +
                                      QFileInfo(path).fileName(),
                 QDir::toNativeSeparators(path));
}

// A window that lacks the widget of a field ends the program like any other failure.
void Desktop::bridgeWindows() {
    bridge_.run([this] {
        bridge_.add(fieldTable(form_, window_));
        const auto add_dialog = [this](DialogWindow& window, BridgedWindow table, bool& open) {
            bridge_.add(std::move(table));
            window.onClose([this, &open] { bridge_.run([&open] { open = false; }); });
        };
        const auto add_margins = [&](DialogWindow& window, MargensDialog& dialog) {
            add_dialog(window, marginTable(form_, dialog, window, window_), dialog.open);
        };
        add_margins(oculta_margins_, form_.FrmMargensOcultaZPL2);
        add_margins(caixa_margins_, form_.FrmMargensCxZPL45);
        add_margins(pack_margins_, form_.FrmMargensPackZPL);
        add_dialog(parameters_, parameterTable(form_, parameters_, window_),
                   form_.FrmParametroImpressora.open);
    });
}

std::vector<DialogWindow*> Desktop::dialogs() {
    return {&oculta_margins_, &caixa_margins_, &pack_margins_, &parameters_};
}

// While an event runs, at a message box say, the close box waits for its end.
bool Desktop::close() {
    if (bridge_.isRunning()) {
        bridge_.doAfterwards([this] { window_.close(); });
        return false;
    }
    bridge_.run([this] { FrmPadrao_unload(form_); });
    end(exit_code_.value_or(0));
    return true;
}

void Desktop::start() {
    bridge_.run([this] { FrmPadrao_load(form_); });
    if (!exit_code_) {
        window_.show();
    }
}

void Desktop::end(int exit_code) {
    bridge_.stop();
    surface_.dropJob();
    if (!exit_code_) {
        logEnd(log_, exit_code);
    }
    exit_code_ = exit_code;
    QCoreApplication::exit(exit_code);
}

void Desktop::endOnFailure(const QString& description) {
    logFatal(log_, description);
    surface_.dropJob();
    logged_messages_.show(
        {.text = toText(description) + u"\n\nO programa será encerrado.", .symbol = Symbol::stop});
    end(1);
}

} // namespace etiquetas
