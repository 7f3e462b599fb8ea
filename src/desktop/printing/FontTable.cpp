#include "desktop/printing/FontTable.h"

#include "desktop/machine/QtText.h"

#include <QFont>
#include <QFontDatabase>

#include <array>
#include <optional>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// One weight of a stand-in. A family of one weight has no bold letters of its own.
struct Weight {
    TextView family;
    double scale = 1.0;
};

struct StandIn {
    TextView face;
    Weight regular;
    Weight bold;
    bool metric_twin = false;
    std::optional<double> ascent = std::nullopt; // em of the face; that of the family where none
};

// Lines set in a Franklin stand where those of the general family stand, whatever family draws them
// and however its size is scaled: the cells of Open Sans are a tenth of an em higher, which would
// let large letters down on the rules beneath them.
constexpr double franklin_ascent = 1854.0 / 2048;

// In order of preference within each face. A scale brings the mean advance of the capitals A to Z,
// in which articles are described, to that of the face.
//
// Calibri: Carlito is drawn to the same advances, letter by letter.
//
// Franklin Gothic Medium: its capitals take 0.591 em and its digits 0.578 em, as worked out from
// published widths of texts set in it, which scatter by about 2 % (0.873 and 1.04 of Liberation
// Sans). Its bold letters are the same ones thickened, and no wider. By their tables of
// advances the stand-ins take, capitals and digits: Open Sans 0.629 and 0.572 em, bold 0.663 and
// 0.571; DejaVu Sans Condensed 0.605 and 0.572, bold 0.679 and 0.626. Scaled, the capitals of all
// are within 1 % of the face; the digits are narrow, those of Open Sans by 7 %, bold by 11 %, of
// DejaVu by 3 % and 5 %. Over capitals and digits together the mean is within 3 % for each.
//
// Franklin Gothic Semilight: no figure is known. It is taken to be as wide as the medium weight.
//
// Malgun Gothic Semilight: no figure is known. It sets the sign of the currency alone. The digits
// of Open Sans take 0.571 em in every weight, those of the general family 0.556 em: scaled, a text
// is as wide with either of them.
constexpr Weight open_sans{u"Open Sans", 0.94};
constexpr Weight open_sans_bold{u"Open Sans", 0.90};
constexpr Weight dejavu{u"DejaVu Sans Condensed", 0.98};
constexpr Weight dejavu_bold{u"DejaVu Sans Condensed", 0.88};
constexpr std::array stand_ins{
    StandIn{u"Calibri", {u"Carlito"}, {u"Carlito"}, true},
    StandIn{u"Franklin Gothic Medium", open_sans, open_sans_bold, false, franklin_ascent},
    StandIn{u"Franklin Gothic Medium", dejavu, dejavu_bold, false, franklin_ascent},
    StandIn{u"Franklin Gothic Semilight", open_sans, open_sans_bold, false, franklin_ascent},
    StandIn{u"Franklin Gothic Semilight", dejavu, dejavu_bold, false, franklin_ascent},
    StandIn{u"Malgun Gothic Semilight", {u"Open Sans Light", 0.974}, {u"Open Sans", 0.974}},
};

// As wide as one another letter by letter: that of Linux and that of Windows.
constexpr std::array<TextView, 2> general_families{u"Liberation Sans", u"Arial"};

bool contains(const QStringList& families, TextView family) {
    return families.contains(toQString(family), Qt::CaseInsensitive);
}

std::optional<FontChoice> standInFor(TextView face, bool bold, const QStringList& families) {
    for (const StandIn& other : stand_ins) {
        const Weight& weight = bold ? other.bold : other.regular;
        if (equalIgnoringCase(other.face, face) && contains(families, weight.family)) {
            return FontChoice{toQString(weight.family), weight.scale, other.ascent};
        }
    }
    return std::nullopt;
}

} // namespace

QStringList installedFamilies() {
    QStringList families = QFontDatabase::families();
    for (QString& family : families) {
        family = family.section(u" ["_s, 0, 0);
    }
    families.removeDuplicates();
    return families;
}

FontChoice chooseFont(TextView face, bool bold, const QStringList& families) {
    if (contains(families, face)) {
        return {toQString(face)};
    }
    if (const auto stand_in = standInFor(face, bold, families)) {
        return *stand_in;
    }
    for (const TextView general : general_families) {
        if (contains(families, general)) {
            return {toQString(general)};
        }
    }
    return {QFont().family()};
}

QStringList offeredFaces(const QStringList& families) {
    QStringList faces = families;
    for (const StandIn& other : stand_ins) {
        if (other.metric_twin && contains(families, other.regular.family) &&
            !contains(families, other.face)) {
            faces.append(toQString(other.face));
        }
    }
    return faces;
}

} // namespace etiquetas
