#include "desktop/console/ConsoleMachine.h"

#include "desktop/machine/Apart.h"
#include "desktop/records/JobTitle.h"
#include "desktop/records/LogEntries.h"
#include "workbench/Inicio.h"

#include <QDir>

namespace etiquetas {

ConsoleMachine::ConsoleMachine(const ConsoleOptions& options)
    : log_(startedLog(options.folder)),
      skipped_([this](const Failure& failure) { logSkipped(log_, failure); }),
      files_(options.folder), printers_(Deadline(print_system_patience)),
      surface_(printers_, options.folder), boxes_(options.answer, options.confirms),
      history_(options.folder), form_({printers_, surface_, recorded_boxes_, pictures_,
                                       folder_memory_, desk_, desk_, desk_, desk_, desk_}) {
    logPrinters(log_, printers_);
    files_.onRead([this](TextView path, std::size_t bytes) { logFileRead(log_, path, bytes); });
    if (!options.output.isEmpty()) {
        surface_.delivery().writeInto(QDir(options.output).absolutePath());
    }
    surface_.countBy([this] {
        return LabelCount{.begun = form_.labels_begun, .finished = form_.labels_finished};
    });
    surface_.delivery().titleBy([this] { return jobTitle(form_); });
    surface_.delivery().onEnded([this](const EndedJob& job) {
        logJob(log_, job);
        recorded_boxes_.takeJob(job);
        job_ = job;
    });
    FrmPadrao_load(form_);
}

void ConsoleMachine::end(int exit_code) {
    logEnd(log_, exit_code);
}

// What the start-up tells of logos and faces is for those who print.
LookingMachine::LookingMachine(const QString& folder, bool unseen)
    : files_(folder), printers_(Deadline(print_system_patience)), surface_(printers_, folder),
      dry_(folder_memory_, printers_, surface_, unseen_boxes_) {
    FrmPadrao_load(form_);
    if (!unseen) {
        dry_.showBoxesBy(boxes_);
    }
}

} // namespace etiquetas
