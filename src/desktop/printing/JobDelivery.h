#pragma once

#include "desktop/machine/QtPrinters.h"
#include "desktop/printing/JobPulse.h"
#include "desktop/printing/LabelPage.h"

#include <QDateTime>
#include <QString>

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>

namespace etiquetas {

class Failure;
class PrintJob;

/// A job that is over.
struct EndedJob {
    PrintTarget target;
    std::size_t pages = 0;
    std::size_t labels = 0;
    std::size_t cut_off = 0; // labels that end in the middle, where a barcode was refused
    QString file;            // that was written; empty where there is none
    int number = 0;          // that its queue has given it; 0 where none is known
    QString waits;           // why its queue prints nothing for now; empty where it does
    bool delivered = false;  // to the print system, into the file or into the preview
    bool cancelled = false;  // by the operator
    QString reason;          // why it was not delivered
};

/// A job in the preview.
struct PreviewedJob {
    std::shared_ptr<const LabelPages> pages;
    QString title;
};

/// Brings jobs where they go, and tells what became of them.
class JobDelivery {
  public:
    using Clock = std::function<QDateTime()>;

    /// Files go into `folder`, which is made where it is missing, and are named by `clock`.
    JobDelivery(QString folder, Clock clock)
        : folder_(std::move(folder)), clock_(std::move(clock)) {}

    /// Has files go into another folder, made where it is missing.
    void writeInto(QString folder) { folder_ = std::move(folder); }
    /// What is told of each job, whether it was delivered or not.
    void onEnded(std::function<void(const EndedJob&)> told) { ended_ = std::move(told); }
    /// What shows the jobs of the preview.
    void onPreview(std::function<void(const PreviewedJob&)> show) { show_ = std::move(show); }
    /// What tells the title of the job that is delivered, by which its file is named.
    void titleBy(std::function<QString()> title) { title_ = std::move(title); }
    [[nodiscard]] JobPulse& pulse() { return pulse_; }

    /// Delivers a job; fails where that is not possible.
    void deliver(PrintJob& job, std::size_t cut_off);
    /// Delivers pages to another printer, under a title; fails where that is not possible.
    void deliverAgain(const PreviewedJob& job, const PrintTarget& target);
    /// Writes pages into a PDF file in place of the one of that name, if there is one; fails where
    /// that is not possible.
    void save(const PreviewedJob& job, const QString& path);
    /// Tells of a job that could not even be drawn.
    void tellRefused(const PrintTarget& target, const Failure& refusal);

  private:
    using Road = std::function<void(EndedJob& ended)>;

    void bring(PrintJob& job, const QString& title, EndedJob& ended);
    void attempt(EndedJob ended, const Road& road);
    void tellUndelivered(EndedJob& ended, const Failure& failure);

    QString folder_;
    Clock clock_;
    std::function<void(const EndedJob&)> ended_ = [](const EndedJob&) {};
    std::function<void(const PreviewedJob&)> show_ = [](const PreviewedJob&) {};
    std::function<QString()> title_ = [] { return QString(); };
    JobPulse pulse_;
};

} // namespace etiquetas
