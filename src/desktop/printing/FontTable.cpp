#include "desktop/printing/FontTable.h"

#include "desktop/machine/QtText.h"

#include <QFont>
#include <QFontDatabase>

#include <array>
#include <optional>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

struct StandIn {
    TextView face;
    TextView family;
    TextView bold_family; // a family of one weight has no bold letters of its own
    bool metric_twin = false;
    double scale = 1.0;
};

// In order of preference within each face. The digits of Open Sans take 0.571 em in every weight,
// those of the general family 0.556 em: scaled, a text is as wide with either of them.
constexpr std::array stand_ins{
    StandIn{u"Calibri", u"Carlito", u"Carlito", true},
    StandIn{u"Franklin Gothic Medium", u"Libre Franklin Medium", u"Libre Franklin"},
    StandIn{u"Franklin Gothic Semilight", u"Libre Franklin Light", u"Libre Franklin"},
    StandIn{u"Malgun Gothic Semilight", u"NanumBarunGothic Light", u"NanumBarunGothic"},
    StandIn{u"Malgun Gothic Semilight", u"Open Sans Light", u"Open Sans", false, 0.974},
};

constexpr TextView general_family = u"Liberation Sans";

bool contains(const QStringList& families, TextView family) {
    return families.contains(toQString(family), Qt::CaseInsensitive);
}

std::optional<FontChoice> standInFor(TextView face, bool bold, const QStringList& families) {
    for (const StandIn& other : stand_ins) {
        const TextView family = bold ? other.bold_family : other.family;
        if (equalIgnoringCase(other.face, face) && contains(families, family)) {
            return FontChoice{toQString(family), other.scale};
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
    return {contains(families, general_family) ? toQString(general_family) : QFont().family()};
}

QStringList offeredFaces(const QStringList& families) {
    QStringList faces = families;
    for (const StandIn& other : stand_ins) {
        if (other.metric_twin && contains(families, other.family) &&
            !contains(families, other.face)) {
            faces.append(toQString(other.face));
        }
    }
    return faces;
}

} // namespace etiquetas
