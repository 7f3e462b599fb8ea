#pragma once

#include "base/Text.h"
#include "labels/Stock.h"
#include "model/FrmPadrao.h"

namespace etiquetas {

// What every label job sets up before a renderer runs.

/// What the operator is told before a job, for orders and test prints alike.
namespace notice {
inline constexpr TextView no_logo = u"O Arquivo do Logotipo não foi localizado";
inline constexpr TextView no_item = u"Selecione o Item que deseja Imprimir";
} // namespace notice

/// Makes the printer of that device name the one that the next job goes to; the name must match
/// exactly. False where there is none, and the current printer stays.
bool SelecionaImpressora(FrmPadrao& form, TextView name);

// The routines below run in skip mode: a step that fails is passed over.

/// Selects the printer that the operator chose; where it is gone the current one stays.
void selectChosenPrinter(FrmPadrao& form);

/// Sets the surface to millimetres.
void useMillimetres(FrmPadrao& form);

/// Sets the page of a stock; the printer's own stays where the stock has none.
void setPage(FrmPadrao& form, const Stock& stock);

/// Sets the margins of a stock to their defaults.
void setDefaultMargins(FrmPadrao& form, const Stock& stock);

/// Reads the margins of a stock from the settings file; one whose text is empty or no number stays
/// as it was. Where the file does not exist all take their defaults.
void readMargins(FrmPadrao& form, const Stock& stock);

/// Sets the surface to the label font.
void useLabelFont(FrmPadrao& form);

/// Sets `marca_logo` from the banner of the order: "L" for LUMIRA, else "B".
void chooseBanner(FrmPadrao& form);

/// Ends the job on its printer, and makes the default printer the current one again.
void endJob(FrmPadrao& form);

// What the labels are handed of the item on the Workbench.

/// Gives an item without a price the text "0,00", which the operator sees from then on.
void fillMissingPrice(FrmPadrao& form);

/// The last three characters of the item code, which are printed large.
[[nodiscard]] TextView endOfCode(const FrmPadrao& form);

/// Description and colour of the item as one text.
[[nodiscard]] Text descriptionAndColour(const FrmPadrao& form);

/// True where both logos have been loaded: a label needs both, whichever banner the order has.
[[nodiscard]] bool hasLogos(const FrmPadrao& form);

} // namespace etiquetas
