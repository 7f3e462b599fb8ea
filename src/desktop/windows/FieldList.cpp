#include "desktop/windows/FieldList.h"

#include "desktop/windows/FieldEdit.h"
#include "desktop/windows/Paper.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QHelpEvent>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace etiquetas {

namespace {

// Draws the entries, and tells the whole of those that are too long.
class EntryDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        const bool cut = sizeHint(option, index).width() > view->viewport()->width();
        QToolTip::showText(event->globalPos(),
                           cut ? FieldEdit::tipOf(index.data().toString()) : QString(), view);
        return true;
    }
};

} // namespace

FieldList::FieldList(QWidget* parent) : QComboBox(parent) {
    constexpr int most_entries_open = 20;
    setEditable(true);
    auto* const edit = new FieldEdit;
    setLineEdit(edit);
    setCompleter(nullptr);
    setInsertPolicy(QComboBox::NoInsert);
    setMaxVisibleItems(most_entries_open);
    setItemDelegate(new EntryDelegate(this));
    // An entry that was chosen by a key is selected like one that was chosen by the mouse.
    connect(this, &QComboBox::activated, edit, &QLineEdit::selectAll);
    applyPaper();
}

// The toolkit keeps the least height from before a change of the font.
QSize FieldList::minimumSizeHint() const {
    return {QComboBox::minimumSizeHint().width(), sizeHint().height()};
}

void FieldList::applyPaper() {
    setPalette(paperPalette(Qt::white));
    view()->setPalette(palette());
}

bool FieldList::event(QEvent* event) {
    const bool taken = QComboBox::event(event);
    if (event->type() == QEvent::ApplicationPaletteChange) {
        applyPaper();
    }
    return taken;
}

} // namespace etiquetas
