#pragma once

#include "platform/PictureBox.h"
#include "support/Journal.h"

#include <string>
#include <vector>

namespace etiquetas::test {

/// A picture font whose letters are black boxes of 6 by 10 pixels.
struct BoxLetters final : Pictures {
    /// Texts that were measured or printed, the last one at the end.
    std::vector<Text> texts;

    Raster text(TextView text) override {
        texts.emplace_back(text);
        const std::size_t width = 6 * text.size();
        return {static_cast<int>(width), 10, std::vector<Pixel>(width * 10, black_pixel)};
    }
    Picture load(TextView /*path*/) override { return nullptr; }
};

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
