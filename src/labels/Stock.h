#pragma once

#include "base/Text.h"
#include "model/FrmPadrao.h"

#include <array>
#include <optional>
#include <span>

namespace etiquetas {

/// A margin of a stock, millimetres.
struct Margin {
    TextView key;               // in the settings file
    float FrmPadrao::*variable; // that the renderers read
    int default_value;
    MarginEntry entry = {};                  // in the dialog that calibrates it
    float FrmPadrao::*rule_origin = nullptr; // takes the margin of a test print too
};

/// A page size in twips (1,440 to the inch).
struct PageSize {
    int width;
    int height;
};

/// What labels are printed on: the page, which is the printer's own where none is given, and the
/// margins, with the dialog that calibrates them where there is one.
struct Stock {
    std::optional<PageSize> page;
    std::span<const Margin> margins;
    MargensDialog FrmPadrao::*dialog = nullptr;
};

inline constexpr std::array<Margin, 3> margins_40x20{{
    {u"Margem_oculta1", &FrmPadrao::Margem_oculta1, default_margins::hidden.column1,
     margin_entry::column1},
    {u"Margem_oculta11", &FrmPadrao::Margem_oculta11, default_margins::hidden.column2,
     margin_entry::column2},
    {u"Margem_oculta2", &FrmPadrao::Margem_oculta2, default_margins::hidden.top, margin_entry::top},
}};

/// Hidden and accessory labels, 40 by 20 mm, two across: a strip is 158.75 by 21.17 mm with its
/// edges.
inline constexpr Stock stock_40x20{PageSize{9000, 1200}, margins_40x20,
                                   &FrmPadrao::FrmMargensOcultaZPL2};

inline constexpr std::array<Margin, 3> margins_40x45{{
    {u"Mx4045_1", &FrmPadrao::Mx4045_1, default_margins::box_front.column1, margin_entry::column1},
    {u"Mx4045_2", &FrmPadrao::Mx4045_2, default_margins::box_front.column2, margin_entry::column2},
    {u"Mx4045", &FrmPadrao::Mx4045, default_margins::box_front.top, margin_entry::top},
}};

/// Box front labels, 40 by 45 mm, two across: a strip is 158.75 by 46.92 mm with its edges.
inline constexpr Stock stock_40x45{PageSize{9000, 2660}, margins_40x45,
                                   &FrmPadrao::FrmMargensCxZPL45};

inline constexpr std::array<Margin, 2> margins_carton{{
    {u"PackX", &FrmPadrao::PackX, default_margins::carton.column1, margin_entry::column1,
     &FrmPadrao::PackLinhaX},
    {u"PackY", &FrmPadrao::PackY, default_margins::carton.top, margin_entry::top,
     &FrmPadrao::PackLinhaY},
}};

/// Carton labels, 100 by 140 mm, one across: a page is 158.75 mm square with its edges.
inline constexpr Stock stock_carton{PageSize{9000, 9000}, margins_carton,
                                    &FrmPadrao::FrmMargensPackZPL};

/// Box front labels with a photograph, 100 by 40 mm, one across. The page is the printer's own,
/// and no margin is stored.
inline constexpr Stock stock_100x40{};

} // namespace etiquetas
