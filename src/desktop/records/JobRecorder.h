#pragma once

#include "desktop/printing/QtPrintSurface.h"
#include "desktop/records/JobHistory.h"
#include "platform/MessageBoxes.h"

#include <optional>

namespace etiquetas {

/// Takes the jobs of the Print command into the history: it shows the boxes through others, and the
/// closing question is where a job and its answer meet. Test prints, which have no such question,
/// are left out. A history that can't be written is passed over.
class JobRecorder final : public MessageBoxes {
  public:
    /// All of them must outlive this object.
    JobRecorder(MessageBoxes& shown, JobHistory& history, const FrmPadrao& form)
        : shown_(&shown), history_(&history), form_(&form) {}

    /// To be called after each job.
    void takeJob(const EndedJob& job) { ended_ = job; }

    Answer show(const Message& message) override;

  private:
    [[nodiscard]] std::optional<qint64> keepJob();

    MessageBoxes* shown_;
    JobHistory* history_;
    const FrmPadrao* form_;
    std::optional<EndedJob> ended_; // since the last closing question
};

} // namespace etiquetas
