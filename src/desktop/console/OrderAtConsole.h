#pragma once

#include "platform/Fields.h"

#include <QString>

namespace etiquetas {

struct FrmPadrao;

/// Chooses the label kind and types the order, as an operator does at the window. False where no
/// item can be printed then: what the reason is has been told, but for an order without items.
/// Fails where the first item can't be loaded.
[[nodiscard]] bool loadOrder(FrmPadrao& form, const QString& order, const QString& kind);

/// The item list of the loaded order.
[[nodiscard]] ListField& itemsOf(FrmPadrao& form);

/// Chooses an item by its place in the list, and leaves the list, which loads it. Fails where it
/// can't be loaded.
void chooseItem(FrmPadrao& form, int place);

} // namespace etiquetas
