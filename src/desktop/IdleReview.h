#pragma once

#include "desktop/machine/QtFiles.h"
#include "desktop/printing/QtPrintSurface.h"
#include "review/Review.h"

#include <QString>
#include <QTimer>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace etiquetas {

/// Reviews the loaded order while the operator works on: an item at a time, whenever the window has
/// nothing else to do. What fails in it is passed over: there are no findings then.
class IdleReview {
  public:
    /// Form and printers, those of the Workbench in `folder`, must outlive the object. It waits as
    /// long as `is_busy` tells so; nothing is ever printed or written by it.
    IdleReview(const FrmPadrao& form, const QtPrinters& printers, const QString& folder,
               std::function<bool()> is_busy);

    /// What is told when an order has been looked through.
    void onEnd(std::function<void()> told) { ended_ = std::move(told); }
    /// To be called when another order is loaded, or another label kind is chosen: what was found
    /// is forgotten. An order of very many lines waits until it is asked for.
    void begin();
    /// Looks through what is left at once, and gives all findings.
    const std::vector<Finding>& finish();

    /// True while there is an order to look through at once.
    [[nodiscard]] bool isWorking() const { return timer_.isActive(); }
    /// Findings of the whole order; nothing as long as it has not been looked through.
    [[nodiscard]] std::optional<std::size_t> count() const;

  private:
    void work();
    [[nodiscard]] bool step();

    const FrmPadrao& form_;
    QtFiles files_; // of its own: what it reads is no order that the operator loads
    QtPrintSurface measure_;
    std::function<bool()> is_busy_;
    std::function<void()> ended_ = [] {};
    std::optional<OrderReview> review_; // while it goes on
    bool is_done_ = true;
    std::vector<Finding> findings_;
    QTimer timer_;
};

} // namespace etiquetas
