#pragma once

#include "platform/MessageBoxes.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

namespace etiquetas {

struct FrmPadrao;

/// What a job is of: the order as it was typed, the label kind, and the item by its key.
struct PrintedItem {
    QString order;
    QString kind;
    QString item;
};

/// The item that the Workbench shows.
[[nodiscard]] PrintedItem shownItem(const FrmPadrao& form);

/// A job that was printed.
struct PrintedJob {
    QDateTime time; // local
    PrintedItem item;
    int labels = 0;
    QString target;               // the printer, or the path of the file
    std::optional<Answer> answer; // to the closing question; none where it was never answered
};

/// When and how the item was printed, in one line for an operator.
[[nodiscard]] QString tellJob(const PrintedJob& job);

/// The jobs of all time, in a small database beside the settings that the window and the command
/// line share. It is opened when it is first needed; a read makes no file. Whoever else writes is
/// waited for 200 ms at most. All that goes wrong is a `Failure`.
class JobHistory {
  public:
    /// The history of the Workbench in this folder. The toolkit's application must exist.
    explicit JobHistory(const QString& folder);
    ~JobHistory();
    JobHistory(const JobHistory&) = delete;
    JobHistory(JobHistory&&) = delete;
    JobHistory& operator=(const JobHistory&) = delete;
    JobHistory& operator=(JobHistory&&) = delete;

    /// Keeps a job; tells its number.
    [[nodiscard]] qint64 add(const PrintedJob& job);
    /// Keeps what the closing question of that job was answered.
    void answer(qint64 number, Answer answer);

    /// The jobs of an order, or all jobs where it is empty; the oldest one first.
    [[nodiscard]] std::vector<PrintedJob> jobs(const QString& order = {}) const;
    /// The last job of an item; nothing where it was never printed.
    [[nodiscard]] std::optional<PrintedJob> lastOf(const PrintedItem& item) const;

  private:
    void open() const;

    QString path_;
    QString connection_;
};

} // namespace etiquetas
