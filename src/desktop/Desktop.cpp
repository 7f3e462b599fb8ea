#include "desktop/Desktop.h"

#include "desktop/LeftDrafts.h"
#include "desktop/machine/Apart.h"
#include "desktop/machine/QtText.h"
#include "desktop/printing/PdfFile.h"
#include "desktop/records/JobTitle.h"
#include "desktop/records/LogEntries.h"
#include "desktop/windows/DialogTable.h"
#include "desktop/windows/FieldTable.h"
#include "desktop/windows/StatusLine.h"
#include "workbench/Impressao.h"
#include "workbench/Inicio.h"

#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

#include <chrono>
#include <utility>

namespace etiquetas {

Desktop::Desktop(const QString& folder)
    : log_(startedLog(folder)),
      skipped_([this](const Failure& failure) { logSkipped(log_, failure); }), files_(folder),
      surface_(printers_, folder), history_(folder),
      form_({printers_, surface_, recorded_messages_, pictures_, folder_memory_, focus_, pointer_,
             process_, folders_, commands_}),
      review_(form_, printers_, folder, [this] { return bridge_.isRunning(); }),
      bridge_(focus_, [this](const QString& description) { endOnFailure(description); }) {
    keepLog();
    for (const QString& draft : removeLeftDrafts(folder)) {
        logDraftRemoved(log_, draft);
    }
    bridgeWindows();
    bridge_.onHappening([this] { folder_memory_.forget(); });
    guideOperator();
    messages_.standOver([this] { return windowUnderBoxes(); },
                        [this] {
                            surface_.delivery().pulse().rest(); // a job may be open
                            bridge_.pushAll();
                            guide_.look();
                            showStatus();
                        },
                        [this] { folder_memory_.forget(); });
    process_.onEnd([this] { end(0); });
    window_.onClose([this] { return close(); });
    window_.onShowFolder([this] { showJobFolder(); });
    window_.onShowFindings([this] { showFindings(); });
    window_.onResize([this] { bridge_.run([this] { FrmPadrao_resize(form_); }); });
}

void Desktop::keepLog() {
    files_.onRead([this](TextView path, std::size_t bytes) {
        logFileRead(log_, path, bytes);
        if (toQString(path).endsWith(QStringLiteral(".txt"), Qt::CaseInsensitive)) {
            guide_.orderRead(toQString(path));
        }
    });
}

// A box of the start-up brings its window with it.
QWidget* Desktop::windowUnderBoxes() {
    QWidget& active = bridge_.activeWindow();
    active.show();
    return &active;
}

void Desktop::showJobFolder() {
    if (!last_job_.isEmpty()) {
        open_(QFileInfo(last_job_).absolutePath());
    }
}

void Desktop::guideOperator() {
    surface_.countBy([this] { return labelCount(); });
    JobDelivery& delivery = surface_.delivery();
    delivery.titleBy([this] { return jobTitle(form_); });
    delivery.onEnded([this](const EndedJob& job) {
        logJob(log_, job);
        last_job_ = job.file.isEmpty() ? last_job_ : job.file;
        guide_.jobEnded(job);
        record(job);
    });
    messages_.doubtBy([this](const Message& message) { return doubtOf(message); });
    openBy([](const QString& path) { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); });
    guide_.historyBy([this] { return tellEarlierJob(); });
    review_.onEnd([this] {
        guide_.found(review_.count());
        showStatus();
    });
    watchItemLists();
    watchLongJobs();
    openPreview();
}

void Desktop::openBy(std::function<void(const QString& path)> open) {
    open_ = std::move(open);
    window_.status().onOpen(open_);
}

// Choosing an item is no event: it is loaded when its list is left.
void Desktop::watchItemLists() {
    const QList<QComboBox*> lists =
        window_.findChildren<QComboBox*>(QRegularExpression(QStringLiteral("^cmb_referencia1?$")));
    for (QComboBox* const list : lists) {
        QObject::connect(list, &QComboBox::editTextChanged, list, [this](const QString& item) {
            if (!bridge_.isRunning()) {
                guide_.itemPicked(item);
                showStatus();
            }
        });
    }
    bridge_.onEventEnded([this, lists] {
        surface_.delivery().pulse().rest();
        guide_.eventEnded(lists.contains(window_.focusWidget()));
        if (guide_.orderChanged()) {
            findings_.hide();
            review_.begin();
        }
        showStatus();
    });
}

void Desktop::watchLongJobs() {
    surface_.delivery().pulse().onBeat(
        [this](const JobProgress& progress) {
            guide_.jobBegins();
            showStatus();
            const bool goes_on = progress_.tell(&bridge_.activeWindow(), progress.labels,
                                                progress.in_all, progress.can_cancel);
            return goes_on ? JobWish::goes_on : JobWish::ends;
        },
        [this] { progress_.rest(); });
}

void Desktop::openPreview() {
    surface_.delivery().onPreview([this](const PreviewedJob& job) {
        previewed_ = isTestPrint(form_) ? std::nullopt : std::optional(shownItem(form_));
        preview_.showJob(job);
    });
    preview_.onSave([this](const PreviewedJob& job, const QString& path) {
        deliverAgain([&](JobDelivery& delivery) { delivery.save(job, path); });
    });
    preview_.onPrint([this](const PreviewedJob& job, const PrintTarget& printer) {
        deliverAgain([&](JobDelivery& delivery) { delivery.deliverAgain(job, printer); });
    });
    // The pages are there to be looked at before the question is answered.
    messages_.lookBesideBy([this](const Message& message) {
        return message.text == closing_question && preview_.isVisible();
    });
}

// An event like any other, so that nothing runs beside it; or while the closing question stands,
// when the job before has ended. What becomes of the job is told at the foot of the window.
void Desktop::deliverAgain(const std::function<void(JobDelivery&)>& deed) {
    const auto deliver = [&] {
        repeats_ = true;
        skip([&] { deed(surface_.delivery()); });
        repeats_ = false;
    };
    bridge_.isRunning() ? deliver() : bridge_.run(deliver);
    showStatus();
}

void Desktop::record(const EndedJob& job) {
    if (!repeats_) {
        recorded_messages_.takeJob(job);
    } else if (previewed_) {
        recorded_messages_.takeRepeated(job, *previewed_);
    }
}

void Desktop::comeToFront() {
    QWidget* const box = QApplication::activeModalWidget();
    for (QWidget* const window : {static_cast<QWidget*>(&window_), box}) {
        if (window != nullptr && window->isVisible()) {
            window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
            window->raise();
            window->activateWindow();
        }
    }
}

QString Desktop::tellEarlierJob() const {
    QString told;
    skip([&] {
        const auto job = history_.lastOf(shownItem(form_));
        told = job ? tellJob(*job) : QString();
    });
    return told;
}

void Desktop::showFindings() {
    if (bridge_.isRunning()) {
        return;
    }
    findings_.show(guide_.file(), review_.finish());
    guide_.found(review_.count());
    showStatus();
}

void Desktop::showStatus() {
    window_.status().tell(guide_.text());
    window_.markSizes(guide_.isNotLoaded());
}

LabelCount Desktop::labelCount() const {
    return {.begun = form_.labels_begun, .finished = form_.labels_finished};
}

QString Desktop::doubtOf(const Message& message) const {
    return message.text == closing_question ? guide_.doubt() : QString();
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

void Desktop::tellFolder(const WorkFolder& folder) {
    const QString notice = etiquetas::tellFolder(folder);
    if (!notice.isEmpty()) {
        folder.is_writable ? log_.info(notice) : log_.warning(notice);
        guide_.tellFolder(notice, !folder.is_writable);
        showStatus();
    }
}

// Before the start-up has told it.
QWidget* Desktop::windowInItsSize() {
    if (window_.isHidden()) {
        FrmPadrao_resize(form_);
        bridge_.pushAll();
    }
    return windowUnderBoxes();
}

// They have been asked for since the windows are made. What takes long is waited for behind the
// window, with a sign by which printers can be done without.
void Desktop::listPrinters() {
    constexpr std::chrono::milliseconds without_window{200};
    const auto goes_on = [this, soon = Deadline(without_window),
                          in_time = Deadline(print_system_patience)] {
        return soon() || (in_time() && progress_.tell(windowInItsSize(), 0, 0, true));
    };
    printers_.take(toldPrinters(std::move(asked_printers_), goes_on));
    progress_.rest();
    logPrinters(log_, printers_);
    if (!printers_.answered()) {
        guide_.printersMissing();
    }
    std::vector<PrintTarget> printers = printers_.targets();
    std::erase_if(printers, [](const PrintTarget& each) { return each.device == Device::preview; });
    preview_.offer(std::move(printers));
}

void Desktop::start() {
    bridge_.run([this] {
        listPrinters();
        FrmPadrao_load(form_);
    });
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
