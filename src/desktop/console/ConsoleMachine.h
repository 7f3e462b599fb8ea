#pragma once

#include "base/Failure.h"
#include "desktop/console/ConsoleBoxes.h"
#include "desktop/console/ConsoleOptions.h"
#include "desktop/machine/FolderMemory.h"
#include "desktop/machine/Log.h"
#include "desktop/machine/QtFiles.h"
#include "desktop/machine/QtPictures.h"
#include "desktop/machine/QtPrinters.h"
#include "desktop/printing/QtPrintSurface.h"
#include "desktop/records/JobHistory.h"
#include "desktop/records/JobRecorder.h"
#include "desktop/records/LoggedMessageBoxes.h"
#include "model/FrmPadrao.h"
#include "review/DryMachine.h"
#include "review/IdleDesk.h"

#include <optional>
#include <utility>

namespace etiquetas {

/// The Workbench on its machine without a window: it prints, writes its settings, its log and its
/// history as the window does.
class ConsoleMachine {
  public:
    explicit ConsoleMachine(const ConsoleOptions& options);

    [[nodiscard]] FrmPadrao& form() { return form_; }
    [[nodiscard]] ConsoleBoxes& boxes() { return boxes_; }
    [[nodiscard]] const QtPrinters& printers() const { return printers_; }
    [[nodiscard]] QtPrintSurface& surface() { return surface_; }
    /// The job that has ended since the last call.
    [[nodiscard]] std::optional<EndedJob> takeJob() { return std::exchange(job_, std::nullopt); }
    /// From here on all folders are looked into anew: time has passed.
    void forgetFolders() { folder_memory_.forget(); }
    /// The last words of the log.
    void end(int exit_code);

  private:
    Log log_;
    SkipObserver skipped_;
    QtFiles files_;
    FolderMemory folder_memory_{files_};
    QtPictures pictures_;
    QtPrinters printers_;
    QtPrintSurface surface_;
    ConsoleBoxes boxes_;
    LoggedMessageBoxes logged_boxes_{boxes_, log_};
    JobHistory history_;
    JobRecorder recorded_boxes_{logged_boxes_, history_, form_};
    IdleDesk desk_;
    FrmPadrao form_;
    std::optional<EndedJob> job_;
};

/// A Workbench that only looks: it reads what the machine has, changes no file and prints nothing.
class LookingMachine {
  public:
    /// On the Workbench in this folder; `unseen` boxes are not told of.
    explicit LookingMachine(const QString& folder, bool unseen = false);

    [[nodiscard]] FrmPadrao& form() { return form_; }
    /// Measures texts as the label surface does.
    [[nodiscard]] PrintSurface& measure() { return surface_; }

  private:
    QtFiles files_;
    FolderMemory folder_memory_{files_};
    QtPrinters printers_;
    QtPrintSurface surface_;
    ConsoleBoxes boxes_{std::nullopt, false};
    UnseenBoxes unseen_boxes_;
    DryMachine dry_;
    FrmPadrao form_{dry_.platform()};
};

} // namespace etiquetas
