#pragma once

#include "base/Failure.h"
#include "platform/PictureBox.h"

#include <optional>
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

/// The picture from the top, "#" being black.
inline std::vector<std::string> pixelRows(const Picture& picture) {
    std::vector<std::string> rows;
    for (int y = 0; y < picture->height; ++y) {
        std::string& row = rows.emplace_back();
        for (int x = 0; x < picture->width; ++x) {
            row += picture->at(x, y) == black_pixel ? '#' : ' ';
        }
    }
    return rows;
}

/// Bars and spaces in turn, a bar first, by their widths.
inline std::string barsAndSpaces(const std::string& widths) {
    std::string modules;
    for (const char width : widths) {
        const bool after_bar = !modules.empty() && modules.back() == '#';
        modules.append(static_cast<std::size_t>(width - '0'), after_bar ? ' ' : '#');
    }
    return modules;
}

/// The failure that a step ends with.
template <typename Step>
std::optional<Failure> failureIn(Step&& step) {
    try {
        std::forward<Step>(step)();
    } catch (const Failure& failure) {
        return failure;
    }
    return {};
}

} // namespace etiquetas::test
