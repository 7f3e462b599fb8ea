#pragma once

#include "desktop/printing/JobDelivery.h"
#include "desktop/records/JobHistory.h"
#include "platform/MessageBoxes.h"

#include <vector>

namespace etiquetas {

/// Takes the jobs of the Print command into the history: each as it is delivered, and its answer
/// when the closing question, which it shows through other boxes, has one. Test prints and what the
/// preview shows are left out. A history that can't be written is passed over.
class JobRecorder final : public MessageBoxes {
  public:
    /// All of them must outlive this object.
    JobRecorder(MessageBoxes& shown, JobHistory& history, const FrmPadrao& form)
        : shown_(&shown), history_(&history), form_(&form) {}

    /// To be called after each job that was drawn.
    void takeJob(const EndedJob& job);
    /// To be called after a job that was delivered anew from the preview.
    void takeRepeated(const EndedJob& job, const PrintedItem& item);

    Answer show(const Message& message) override;

  private:
    void keep(const EndedJob& job, const PrintedItem& item);

    MessageBoxes* shown_;
    JobHistory* history_;
    const FrmPadrao* form_;
    std::vector<qint64> unanswered_; // jobs since the last closing question
};

} // namespace etiquetas
