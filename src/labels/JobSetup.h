#pragma once

#include "base/Text.h"
#include "model/FrmPadrao.h"

#include <array>
#include <span>

namespace etiquetas {

// What every label job sets up before a renderer runs.

/// A margin: the key of the settings file, the variable that it fills, and what the variable takes
/// where there is no settings file. Millimetres.
struct Margin {
    TextView key;
    float FrmPadrao::*variable;
    float default_value;
};

/// Margins of the 40 by 20 mm labels: left of column 1, left of column 2, top.
inline constexpr std::array<Margin, 3> margens_oculta{{
    {u"Margem_oculta1", &FrmPadrao::Margem_oculta1, 3.0F},
    {u"Margem_oculta11", &FrmPadrao::Margem_oculta11, 45.0F},
    {u"Margem_oculta2", &FrmPadrao::Margem_oculta2, 3.0F},
}};

/// Margins of the 40 by 45 mm labels: left of column 1, left of column 2, top.
inline constexpr std::array<Margin, 3> margens_caixa{{
    {u"Mx4045_1", &FrmPadrao::Mx4045_1, 0.0F},
    {u"Mx4045_2", &FrmPadrao::Mx4045_2, 40.0F},
    {u"Mx4045", &FrmPadrao::Mx4045, 3.0F},
}};

/// Margins of the carton label: left, top.
inline constexpr std::array<Margin, 2> margens_pack{{
    {u"PackX", &FrmPadrao::PackX, 3.0F},
    {u"PackY", &FrmPadrao::PackY, 3.0F},
}};

/// A page size in twips (1,440 to the inch).
struct PageSize {
    int width;
    int height;
};

/// A strip of two 40 by 20 mm labels, 158.75 by 21.17 mm with its edges.
inline constexpr PageSize pagina_oculta{9000, 1200};

/// A strip of two 40 by 45 mm labels, 158.75 by 46.92 mm with its edges.
inline constexpr PageSize pagina_caixa{9000, 2660};

/// A carton label, 158.75 mm square with its edges.
inline constexpr PageSize pagina_pack{9000, 9000};

/// What the operator is told before a job, for orders and test prints alike.
namespace notice {
inline constexpr TextView sem_logotipo = u"O Arquivo do Logotipo não foi localizado";
inline constexpr TextView sem_item = u"Selecione o Item que deseja Imprimir";
} // namespace notice

/// Makes the printer of that device name the one that the next job goes to; the name must match
/// exactly. False where there is none, and the current printer stays.
bool SelecionaImpressora(FrmPadrao& form, TextView name);

// The routines below run in skip mode: a step that fails is passed over.

/// Selects the printer that the operator chose; where it is gone the current one stays.
void selectChosenPrinter(FrmPadrao& form);

/// Sets the surface to millimetres.
void useMillimetres(FrmPadrao& form);

/// Sets a user-defined page.
void setPage(FrmPadrao& form, const PageSize& page);

/// Reads margins from the settings file; one whose text is empty or no number stays as it was.
/// Where the file does not exist all take their defaults.
void readMargins(FrmPadrao& form, std::span<const Margin> margins);

/// Sets the surface to the label font.
void useLabelFont(FrmPadrao& form);

/// Sets `marca_logo` from the banner of the order: "L" for LUMIRA, else "B".
void chooseBanner(FrmPadrao& form);

/// Ends the job on its printer, and makes the default printer the current one again.
void endJob(FrmPadrao& form);

// What the labels are handed of the item on the Workbench.

/// An item without a price shows "0,00" from here on.
void fillMissingPrice(FrmPadrao& form);

/// The end of the item code that is printed large.
[[nodiscard]] TextView ref3(const FrmPadrao& form);

/// Description and colour of the item as one text.
[[nodiscard]] Text descricao_cor(const FrmPadrao& form);

/// True where both logos have been loaded: a label needs both, whichever banner the order has.
[[nodiscard]] bool hasLogos(const FrmPadrao& form);

} // namespace etiquetas
