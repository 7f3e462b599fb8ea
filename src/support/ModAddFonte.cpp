#include "support/ModAddFonte.h"

#include "base/Failure.h"

#include <array>
#include <cstddef>

namespace etiquetas {

namespace {

struct Face {
    TextView name;
    bool found = false;
};

using Faces = std::array<Face, 4>;

void markFound(Faces& faces, TextView offered) {
    for (Face& face : faces) {
        face.found = face.found || equalIgnoringCase(trimmed(face.name), trimmed(offered));
    }
}

void lookThrough(const PrintSurface& surface, Faces& faces) {
    std::size_t count = 0;
    skip([&] { count = surface.FontCount(); });
    for (std::size_t i = 0; i < count; ++i) {
        skip([&] { markFound(faces, surface.Fonts(i)); });
    }
}

// The names that were not found, each with a comma after it.
Text missingNames(const Faces& faces) {
    Text names;
    for (const Face& face : faces) {
        if (!face.found) {
            names.append(face.name).append(u",");
        }
    }
    return names;
}

} // namespace

void VerificaFontes(const PrintSurface& surface, Pointer& pointer, MessageBoxes& messages) {
    skip([&] { pointer.busy(); });
    Faces faces{{{u"Estrangelo Edessa"},
                 {u"Franklin Gothic Medium"},
                 {u"Calibri"},
                 {u"Malgun Gothic Semilight"}}};
    lookThrough(surface, faces);
    const Text missing = missingNames(faces);
    skip([&] { pointer.normal(); });
    if (!isBlank(missing)) {
        tellOperator(messages, u"Atenção: Instale as seguintes fontes: " + missing);
    }
}

} // namespace etiquetas
