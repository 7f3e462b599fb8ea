#pragma once

#include "base/Text.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace etiquetas {

/// The family that a face is drawn with. `scale` brings its size to the proportions of the face.
/// `ascent` is that of the face from the top of the cell to the baseline, in em of the unscaled
/// size, where it is not to be the family's own.
struct FontChoice {
    QString family;
    double scale = 1.0;
    std::optional<double> ascent = std::nullopt;
};

/// Families that the machine has, without the foundry that a name may be followed by.
[[nodiscard]] QStringList installedFamilies();

/// The family for a face, bold or not, out of those that are there: the face itself, else the first
/// of its stand-ins, else a general one, else the toolkit's own choice.
[[nodiscard]] FontChoice chooseFont(TextView face, bool bold, const QStringList& families);

/// Faces that count as present: all families, and each face whose stand-in has the same metrics
/// glyph by glyph. A face that is merely drawn with a similar one is not among them.
[[nodiscard]] QStringList offeredFaces(const QStringList& families);

} // namespace etiquetas
