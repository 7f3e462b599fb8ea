#pragma once

#include "base/Text.h"
#include "desktop/printing/JobDelivery.h"
#include "desktop/windows/StatusLine.h"
#include "platform/EntryList.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <optional>
#include <utility>

namespace etiquetas {

struct FrmPadrao;
struct OrderFamily;

/// What the foot of the window tells the operator: the order and item on the window, what became
/// of the last job, and what the program does without a word. It knows no window: it is told what
/// happens, and looks at the form. Each word goes with the event that makes it untrue.
class StatusGuide {
  public:
    /// The form must outlive the guide.
    explicit StatusGuide(const FrmPadrao& form) : form_(form) {}

    /// What tells when the item on the form was printed before; empty where it was not.
    void historyBy(std::function<QString()> history) { history_ = std::move(history); }
    /// The findings of the order on the form; nothing as long as it has not been looked through.
    void found(std::optional<std::size_t> findings) { findings_ = findings; }
    /// The print system did not tell its printers at the start.
    void printersMissing() { printers_missing_ = true; }
    /// What there is to know of the folder: a notice stands until an order has been read, a warning
    /// for good.
    void tellFolder(const QString& text, bool is_warning);
    /// An order file was read; what it holds is on the form when the event has ended.
    void orderRead(const QString& path) { read_ = path; }
    void jobBegins() { is_printing_ = true; }
    void jobEnded(const EndedJob& job);
    /// The operator chose or typed this item and is still in the list.
    void itemPicked(const QString& item) { picked_ = item; }
    /// A message box is about to stand, with the form as it is.
    void look();
    /// An event has ended, in an item list or elsewhere.
    void eventEnded(bool in_item_list);

    /// True where the event that ended last brought another order or label kind.
    [[nodiscard]] bool orderChanged() const { return order_changed_; }
    [[nodiscard]] StatusText text() const;
    /// The name of the order's file; empty before one was read.
    [[nodiscard]] const QString& file() const { return file_; }
    /// True while the sizes on the window are not those of the item that the list shows.
    [[nodiscard]] bool isNotLoaded() const;
    /// What is wrong with the job that the closing question asks about; empty where nothing is.
    [[nodiscard]] QString doubt() const;

  private:
    [[nodiscard]] const OrderFamily* family() const;
    [[nodiscard]] const EntryList& items() const;
    void noteTakenLine();
    void noteLoadedItem(bool in_item_list);
    [[nodiscard]] QString orderText() const;
    [[nodiscard]] QString itemText() const;
    [[nodiscard]] QStringList happenings() const;
    [[nodiscard]] StatusMood mood() const;

    const FrmPadrao& form_;
    std::function<QString()> history_ = [] { return QString(); };
    std::optional<std::size_t> findings_;
    QString printed_before_; // the loaded item
    bool printers_missing_ = false;
    QString folder_;
    bool folder_fails_ = false;
    std::optional<QString> read_;      // file, since the last event
    QString file_;                     // of the order on the form
    Text kind_;                        // after the last event
    bool order_changed_ = false;       // by the last event
    EntryList all_items_;              // of the order, as it was read
    std::size_t lines_ = 0;            // of the order, after the last event
    QStringList taken_lines_;          // of items that have not been printed
    Text loaded_;                      // item
    std::optional<std::size_t> place_; // of the loaded item among all, counted from 0
    QString picked_;                   // item
    std::optional<EndedJob> job_;      // the last one
    bool has_order_ = false;           // of this event
    bool has_job_ = false;             // of this event
    bool is_printing_ = false;
};

} // namespace etiquetas
