#include "desktop/windows/EntryModel.h"

#include "desktop/machine/QtText.h"

#include <utility>

namespace etiquetas {

void EntryModel::show(const EntryList& entries) {
    if (revision_ == entries.revision()) {
        return;
    }
    const bool one_change = revision_ && *revision_ + 1 == entries.revision();
    if (one_change && entries.removedLast()) {
        dropRow(*entries.removedLast());
    } else if (!(entries == shown_)) {
        takeAll(entries);
    }
    revision_ = entries.revision();
}

void EntryModel::dropRow(std::size_t at) {
    const int row = static_cast<int>(at);
    beginRemoveRows({}, row, row);
    shown_.removeAt(at);
    endRemoveRows();
}

void EntryModel::takeAll(const EntryList& entries) {
    beginResetModel();
    shown_ = entries;
    endResetModel();
}

int EntryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QVariant EntryModel::data(const QModelIndex& index, int role) const {
    const bool tells_text = role == Qt::DisplayRole || role == Qt::EditRole;
    if (!tells_text || !index.isValid()) {
        return {};
    }
    return toQString(std::as_const(shown_)[static_cast<std::size_t>(index.row())]);
}

} // namespace etiquetas
