#pragma once

#include "model/FrmPadrao.h"
#include "review/DryMachine.h"
#include "review/Finding.h"
#include "review/OrderLines.h"

#include <cstddef>
#include <vector>

namespace etiquetas {

/// Reads the loaded order once more and tells what an operator would stumble over when they print
/// it with the label kind that is chosen, item by item in the order of the item list; what concerns
/// no item comes first. Nothing is printed, no field changes, and no file is written. Nothing is
/// found where no order is loaded.
class OrderReview {
  public:
    /// Looks at what concerns no item. Fails where the file can't be read.
    ///
    /// Files are read by `files`, which are those of the form's machine or another way to them.
    /// Texts are measured by `measure`, whose font changes: it is not to be the surface that the
    /// next job is drawn on. A print surface of its own on the same printers has the same faces.
    /// Both must outlive the review, as the printers of the form's machine must; the form itself is
    /// not looked at again.
    OrderReview(const FrmPadrao& form, const Files& files, PrintSurface& measure);

    /// Looks at the next item; false where there is none left.
    bool next();

    /// What has been found so far.
    [[nodiscard]] const std::vector<Finding>& findings() const { return findings_; }

  private:
    UnseenBoxes boxes_;
    DryMachine machine_;
    FrmPadrao tried_; // loads and draws what is looked at
    const OrderFamily* family_ = nullptr;
    OrderLines lines_;
    std::size_t place_ = 0; // of the next item
    std::vector<Finding> findings_;
};

/// A whole review at once.
[[nodiscard]] std::vector<Finding> reviewOrder(const FrmPadrao& form, PrintSurface& measure);

} // namespace etiquetas
