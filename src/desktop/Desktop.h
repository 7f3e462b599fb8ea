#pragma once

#include "base/Failure.h"
#include "desktop/IdleReview.h"
#include "desktop/StatusGuide.h"
#include "desktop/machine/FolderMemory.h"
#include "desktop/machine/Log.h"
#include "desktop/machine/QtCommandStart.h"
#include "desktop/machine/QtFiles.h"
#include "desktop/machine/QtPictures.h"
#include "desktop/machine/QtPrinters.h"
#include "desktop/machine/WorkFolder.h"
#include "desktop/preview/PreviewWindow.h"
#include "desktop/printing/QtPrintSurface.h"
#include "desktop/records/JobHistory.h"
#include "desktop/records/JobRecorder.h"
#include "desktop/records/LoggedMessageBoxes.h"
#include "desktop/windows/DialogWindow.h"
#include "desktop/windows/EventBridge.h"
#include "desktop/windows/FindingsWindow.h"
#include "desktop/windows/ProgressWindow.h"
#include "desktop/windows/QtFocus.h"
#include "desktop/windows/QtFolderPicker.h"
#include "desktop/windows/QtMessageBoxes.h"
#include "desktop/windows/QtPointer.h"
#include "desktop/windows/QtProcess.h"
#include "desktop/windows/WorkbenchWindow.h"
#include "model/FrmPadrao.h"

#include <QString>

#include <functional>
#include <future>
#include <optional>
#include <vector>

namespace etiquetas {

/// The desktop program: the Workbench on the machine that it runs on. A `QApplication` must exist.
class Desktop {
  public:
    /// Works in a folder, that of the program: settings, logos, photographs, written jobs, and the
    /// log "etiquetas.log".
    explicit Desktop(const QString& folder);

    /// Tells the operator what there is to know of the folder, at the foot of the window.
    void tellFolder(const WorkFolder& folder);
    /// Lists the machine's printers, runs the start-up and shows the window; before that only where
    /// the print system takes its time, or the start-up has something to tell.
    void start();

    [[nodiscard]] WorkbenchWindow& window() { return window_; }
    /// The windows of the dialogs, shown or not.
    [[nodiscard]] std::vector<DialogWindow*> dialogs();
    [[nodiscard]] const FrmPadrao& form() const { return form_; }
    [[nodiscard]] PreviewWindow& preview() { return preview_; }
    [[nodiscard]] FindingsWindow& findings() { return findings_; }
    /// True as long as the loaded order is looked through for findings.
    [[nodiscard]] bool isReviewing() const { return review_.isWorking(); }
    [[nodiscard]] ProgressWindow& progress() { return progress_; }
    /// Brings the window to the front, and a box that stands over it.
    void comeToFront();
    /// What opens a file or folder that was written, in place of the desktop's own programs.
    void openBy(std::function<void(const QString& path)> open);

    /// The exit code, once the program has ended: 0, or 1 when a failure ended it.
    [[nodiscard]] std::optional<int> exitCode() const { return exit_code_; }

  private:
    void keepLog();
    void listPrinters();
    void bridgeWindows();
    [[nodiscard]] QWidget* windowUnderBoxes();
    [[nodiscard]] QWidget* windowInItsSize();
    void guideOperator();
    void watchItemLists();
    void watchLongJobs();
    void openPreview();
    void record(const EndedJob& job);
    void deliverAgain(const std::function<void(JobDelivery&)>& deed);
    void showStatus();
    void showFindings();
    void showJobFolder();
    [[nodiscard]] LabelCount labelCount() const;
    [[nodiscard]] QString tellEarlierJob() const;
    [[nodiscard]] QString doubtOf(const Message& message) const;
    bool close();
    void end(int exit_code);
    void endOnFailure(const QString& description);

    std::future<MachinePrinters> asked_printers_ = askForPrinters();
    Log log_;
    SkipObserver skipped_;
    QtFiles files_;
    FolderMemory folder_memory_{files_};
    QtPictures pictures_;
    QtPrinters printers_;
    QtPrintSurface surface_;
    QtMessageBoxes messages_;
    LoggedMessageBoxes logged_messages_{messages_, log_};
    JobHistory history_;
    JobRecorder recorded_messages_{logged_messages_, history_, form_};
    QtFocus focus_;
    QtPointer pointer_;
    QtProcess process_;
    QtFolderPicker folders_;
    QtCommandStart commands_;
    FrmPadrao form_;
    StatusGuide guide_{form_};
    IdleReview review_;
    QString last_job_;                     // the path of the PDF file that was written last
    std::optional<PrintedItem> previewed_; // what the preview shows; no test print
    bool repeats_ = false;                 // while a job of the preview is delivered anew
    std::function<void(const QString& path)> open_;
    WorkbenchWindow window_;
    MarginWindow oculta_margins_{QStringLiteral("FrmMargensOcultaZPL2")};
    MarginWindow caixa_margins_{QStringLiteral("FrmMargensCxZPL45")};
    MarginWindow pack_margins_{QStringLiteral("FrmMargensPackZPL")};
    ParameterWindow parameters_;
    FindingsWindow findings_{window_};
    PreviewWindow preview_;
    ProgressWindow progress_;
    EventBridge bridge_;
    std::optional<int> exit_code_;
};

} // namespace etiquetas
