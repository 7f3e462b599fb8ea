#pragma once

#include "base/Text.h"
#include "model/FrmPadrao.h"
#include "orders/OrderFormat.h"
#include "orders/OrderIndex.h"

namespace etiquetas {

/// Names of the families of order files, as `TipoArquivo` holds them.
namespace family_name {
inline constexpr TextView box = u"A";
inline constexpr TextView corrugated = u"B";
inline constexpr TextView accessory = u"C";
} // namespace family_name

/// What sets the order files of one family apart: an order has a file for each family of labels.
struct OrderFamily {
    TextView name;
    TextView word;                       // in the file name, upper case
    ItemKeyFields key;                   // of the items
    IndexFields index;                   // of the lines by their items
    IndexLine index_bytes;               // the same of lines that are not cut yet
    ListField FrmPadrao::*items;         // the item list
    Panel FrmPadrao::*panel;             // the item panel, of which one shows at a time
    TextView caption;                    // of that panel
    void (*loadItem)(FrmPadrao&);        // fills the Workbench with the item chosen in the list
    bool (*hasLayout)(const OrderLine&); // whether the loader knows lines of this width
    bool loads_blank_item = false; // loads the first item of an order even where its key is blank
};

/// The family of that name; nothing where there is none.
[[nodiscard]] const OrderFamily* orderFamily(TextView name);

/// The family that the caption of an item panel stands for: the box family where no other has it.
[[nodiscard]] const OrderFamily& familyOfCaption(TextView caption);

} // namespace etiquetas
