#pragma once

#include "platform/Interface.h"

#include <QImage>
#include <QPageSize>
#include <QSizeF>
#include <QString>

#include <memory>
#include <optional>

class QPagedPaintDevice;
class QPrinterInfo;

namespace etiquetas {

/// What became of a job that was handed to the machine's print system.
struct Submission {
    QString refusal; // why it was not taken; empty where it was
    int number = 0;  // by which the queue knows the job; 0 where nothing tells it
    QString waits;   // why the queue prints nothing for now; empty where it does
};

/// A job whose pages are the dots of a print head.
class DotJob : public Interface {
  public:
    /// Dots to the inch.
    [[nodiscard]] virtual int resolution() const = 0;
    /// The page that the queue has without being told another one.
    [[nodiscard]] virtual QPageSize ownPage() const = 0;
    /// Adds a page of this size, or the queue's own: one bit to the dot, black where it is 0. What
    /// stands beyond the head is cut off. False where the driver can't have such a page.
    [[nodiscard]] virtual bool add(const QImage& dots, const std::optional<QPageSize>& size) = 0;
    /// Ends the job and hands it over. Where a job asks for one sheet, it is this; without one it
    /// is the queue's own.
    [[nodiscard]] virtual Submission send(const std::optional<QPageSize>& sheet) = 0;
};

/// A job that is drawn, in any resolution.
class DocumentJob : public Interface {
  public:
    /// What the pages are drawn on, from their very corner.
    [[nodiscard]] virtual QPagedPaintDevice& pages() = 0;
    /// Hands the job over, once it is drawn to its end. Where a job asks for one sheet, it is this;
    /// without one it is the queue's own.
    [[nodiscard]] virtual Submission send(const std::optional<QPageSize>& sheet) = 0;
};

/// A queue of the machine's print system, as a job finds it. Its functions ask the print system,
/// which may take as long as it likes; any thread may call them, one at a time.
class PrintQueue : public Interface {
  public:
    /// The page that the queue has without being told another one; nothing where it tells none.
    [[nodiscard]] std::optional<QPageSize> ownPage() const;
    /// Whether the driver takes pages of any size between two.
    [[nodiscard]] bool takesAnySize() const { return takes_any_size_; }
    /// A page, bounded to the sizes that the driver takes where it takes any between two.
    [[nodiscard]] QPageSize bounded(const QPageSize& page) const;
    /// The sheet that a page is printed on: of its size where the driver takes any between two,
    /// else the queue's own, which need not be told. A printer that knows some sizes alone cancels
    /// jobs of any other.
    [[nodiscard]] std::optional<QPageSize> sheetFor(const QPageSize& page) const;

    /// Dots to the inch, by which documents are measured.
    [[nodiscard]] virtual int resolution() const = 0;
    /// A new job of dots with this title; none where the printer has no head of one colour and a
    /// known resolution, or its driver takes no dots.
    [[nodiscard]] virtual std::unique_ptr<DotJob> dotJob(const QString& title) const = 0;
    /// A new job with this title that is drawn.
    [[nodiscard]] virtual std::unique_ptr<DocumentJob> documentJob(const QString& title) const = 0;

  protected:
    explicit PrintQueue(const QPrinterInfo& printer);

  private:
    QPageSize own_page_;
    bool takes_any_size_; // between two
    QSizeF smallest_;     // points; some drivers tell no bounds
    QSizeF largest_;
};

/// The queue of this name; none where the machine has no such one. Asks the print system.
[[nodiscard]] std::unique_ptr<PrintQueue> findQueue(const QString& name);

/// The resolutions of label printers' heads, 203, 300 and 600 dots to the inch.
[[nodiscard]] bool isHeadResolution(int dots);

/// Shuts each connection of this program to the machine's print system, whatever thread has it:
/// what waits for an answer fails, and what has not been sent yet is not sent any more.
void breakOffPrintSystem();

} // namespace etiquetas
