#pragma once

#include "platform/PictureBox.h"
#include "support/Failures.h"
#include "support/FakeFiles.h"
#include "support/Golden.h"

namespace etiquetas::test {

/// Adds a picture from the top, "#" being black: a line for each run of equal rows.
inline void addRows(Journal& told, const Picture& picture) {
    const auto row = [&picture](int y) {
        std::string pixels;
        for (int x = 0; x < picture->width; ++x) {
            pixels += picture->at(x, y) == black_pixel ? '#' : ' ';
        }
        return "rows |" + pixels + "|";
    };
    for (int from = 0, to = 0; from < picture->height; from = to) {
        while (to < picture->height && row(to) == row(from)) {
            ++to;
        }
        told.tell(std::to_string(to - from), row(from));
    }
}

} // namespace etiquetas::test
