#include "desktop/FontTable.h"

#include "desktop/QtText.h"

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
    bool metric_twin = false;
    double scale = 1.0;
};

// In order of preference within each face. The digits of Open Sans take 0.571 em, those of the
// general family 0.556 em: scaled, a text is as wide with either of them.
constexpr std::array stand_ins{
    StandIn{u"Calibri", u"Carlito", true},
    StandIn{u"Franklin Gothic Medium", u"Libre Franklin Medium"},
    StandIn{u"Franklin Gothic Semilight", u"Libre Franklin Light"},
    StandIn{u"Malgun Gothic Semilight", u"NanumBarunGothic Light"},
    StandIn{u"Malgun Gothic Semilight", u"Open Sans Light", false, 0.974},
};

constexpr TextView general_family = u"Liberation Sans";

bool contains(const QStringList& families, TextView family) {
    return families.contains(toQString(family), Qt::CaseInsensitive);
}

std::optional<FontChoice> standInFor(TextView face, const QStringList& families) {
    for (const StandIn& other : stand_ins) {
        if (equalIgnoringCase(other.face, face) && contains(families, other.family)) {
            return FontChoice{toQString(other.family), other.scale};
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

FontChoice chooseFont(TextView face, const QStringList& families) {
    if (contains(families, face)) {
        return {toQString(face)};
    }
    if (const auto stand_in = standInFor(face, families)) {
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
