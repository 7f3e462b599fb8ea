#include "desktop/records/JobRecorder.h"

#include "base/Failure.h"
#include "desktop/records/JobTitle.h"
#include "model/FrmPadrao.h"
#include "workbench/Impressao.h"

#include <utility>

namespace etiquetas {

void JobRecorder::takeJob(const EndedJob& job) {
    if (!isTestPrint(*form_)) {
        keep(job, shownItem(*form_));
    }
}

void JobRecorder::takeRepeated(const EndedJob& job, const PrintedItem& item) {
    keep(job, item);
}

Answer JobRecorder::show(const Message& message) {
    const Answer answer = shown_->show(message);
    if (message.text == closing_question) {
        for (const qint64 number : std::exchange(unanswered_, {})) {
            skip([&] { history_->answer(number, answer); });
        }
    }
    return answer;
}

void JobRecorder::keep(const EndedJob& job, const PrintedItem& item) {
    if (!job.delivered || job.target.device == Device::preview) {
        return;
    }
    skip([&] {
        unanswered_.push_back(
            history_->add({.time = QDateTime::currentDateTime(),
                           .item = item,
                           .labels = static_cast<int>(job.labels),
                           .target = job.file.isEmpty() ? job.target.name : job.file}));
    });
}

} // namespace etiquetas
