#include "desktop/printing/JobDelivery.h"

#include "base/Failure.h"
#include "desktop/machine/QtText.h"
#include "desktop/printing/JobName.h"
#include "desktop/printing/PdfFile.h"
#include "desktop/printing/PrintJob.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScopeGuard>

namespace etiquetas {

namespace {

EndedJob endedJob(const PrintTarget& target, const LabelPages& pages) {
    return {.target = target, .pages = pages.size(), .labels = labelsOn(pages)};
}

} // namespace

void JobDelivery::deliver(PrintJob& job, std::size_t cut_off) {
    EndedJob ended = endedJob(job.target(), job.pages());
    ended.cut_off = cut_off;
    attempt(ended, [&](EndedJob& told) { bring(job, title_(), told); });
}

void JobDelivery::deliverAgain(const PreviewedJob& job, const PrintTarget& target) {
    attempt(endedJob(target, *job.pages), [&](EndedJob& told) {
        PrintJob again(target, pulse_, *job.pages);
        bring(again, job.title, told);
    });
}

void JobDelivery::save(const PreviewedJob& job, const QString& path) {
    const PrintTarget file{.name = path, .device = Device::pdf_file};
    attempt(endedJob(file, *job.pages), [&](EndedJob& told) {
        PrintJob again(file, pulse_, *job.pages);
        replacePdfFile(path, [&](const QString& draft) { again.write(draft); });
        told.file = path;
    });
}

void JobDelivery::tellRefused(const PrintTarget& target, const Failure& refusal) {
    EndedJob ended{.target = target};
    tellUndelivered(ended, refusal);
    pulse_.rest();
}

void JobDelivery::bring(PrintJob& job, const QString& title, EndedJob& ended) {
    switch (job.target().device) {
    case Device::printer: {
        const Submission sent = job.send();
        ended.number = sent.number;
        ended.waits = sent.waits;
        break;
    }
    case Device::pdf_file:
        ended.file = writePdfFile(folder_, fileStem(clock_(), title),
                                  [&](const QString& path) { job.write(path); });
        break;
    case Device::preview:
        show_({std::make_shared<const LabelPages>(job.pages()), title});
        break;
    }
}

void JobDelivery::attempt(EndedJob ended, const Road& road) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor); // a long job takes its time here
    const auto over = qScopeGuard([this] {
        QGuiApplication::restoreOverrideCursor();
        pulse_.rest();
    });
    try {
        road(ended);
    } catch (const Failure& failure) {
        tellUndelivered(ended, failure);
        throw;
    }
    ended.delivered = true;
    ended_(ended);
}

void JobDelivery::tellUndelivered(EndedJob& ended, const Failure& failure) {
    ended.cancelled = pulse_.isCancelled();
    ended.reason = toQString(failure.description());
    ended_(ended);
}

} // namespace etiquetas
