#include "desktop/records/JobRecorder.h"

#include "base/Failure.h"
#include "model/FrmPadrao.h"
#include "workbench/Impressao.h"

#include <utility>

namespace etiquetas {

// The job before its answer: it is printed, whether it is ever answered or not.
Answer JobRecorder::show(const Message& message) {
    const auto number = message.text == closing_question ? keepJob() : std::nullopt;
    const Answer answer = shown_->show(message);
    if (number) {
        skip([&] { history_->answer(*number, answer); });
    }
    return answer;
}

// A command that drew no label leaves the job of an earlier test print behind, which is not its
// own.
std::optional<qint64> JobRecorder::keepJob() {
    const auto job = std::exchange(ended_, std::nullopt);
    if (!job || !job->delivered || form_->labels_drawn == 0) {
        return std::nullopt;
    }
    std::optional<qint64> number;
    skip([&] {
        number = history_->add({.time = QDateTime::currentDateTime(),
                                .item = shownItem(*form_),
                                .labels = form_->labels_drawn,
                                .target = job->target.built_in ? job->file : job->target.name});
    });
    return number;
}

} // namespace etiquetas
