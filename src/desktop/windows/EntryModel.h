#pragma once

#include "platform/EntryList.h"

#include <QAbstractListModel>

#include <cstdint>
#include <optional>

namespace etiquetas {

/// The entries of a list field as a widget shows them. They are taken over when they have changed,
/// and one that was taken away goes as one row, so that the cost of an event does not grow with the
/// list.
class EntryModel final : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    /// Shows the entries; always those of the same field.
    void show(const EntryList& entries);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    void dropRow(std::size_t at);
    void takeAll(const EntryList& entries);

    EntryList shown_;
    std::optional<std::uint64_t> revision_; // of the field's entries when they were shown last
};

} // namespace etiquetas
