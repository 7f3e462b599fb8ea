#pragma once

#include "platform/Files.h"
#include "platform/Pictures.h"
#include "support/Journal.h"

#include <functional>
#include <map>
#include <memory>

namespace etiquetas::test {

/// Files in memory, with names that are exact in their case, and the pictures in them: a file that
/// begins with "JPEG" is one. Letters are black boxes of 6 by 10 pixels.
struct FakeFiles : Files, Pictures, Fake {
    using Fake::Fake;

    std::map<Text, std::string, std::less<>> bytes;
    std::function<void()> on_write = [] {};

    Text programFolder() const override { return u"/programa"; }
    char16_t separator() const override { return u'/'; }
    bool fileExists(TextView path) const override { return bytes.contains(path); }
    bool folderExists(TextView path) const override { return !filesIn(path).empty(); }
    std::vector<Text> filesIn(TextView folder) const override {
        std::vector<Text> names;
        for (const auto& [path, content] : bytes) {
            if (path.starts_with(folder) && path.rfind(u'/') == folder.size()) {
                names.push_back(path.substr(folder.size() + 1));
            }
        }
        return names;
    }
    std::string read(TextView path) const override {
        const bool readable = bytes.contains(path) && !journal.failing.contains("read");
        return readable ? bytes.find(path)->second : throw refusal();
    }
    void makeFolder(TextView path) override { journal.note("folder", utf8(path)); }
    void deleteFile(TextView path) override {
        journal.note("delete", utf8(path));
        bytes.erase(Text(path));
    }
    void replace(TextView path, std::string_view content) override {
        journal.note("write", utf8(path));
        bytes[Text(path)] = content;
        on_write();
    }

    Picture load(TextView path) override {
        journal.note("load", utf8(path));
        return read(path).starts_with("JPEG") ? std::make_shared<const Raster>() : throw refusal();
    }
    Raster text(TextView text) override {
        journal.noteAside("letters", utf8(text));
        const std::size_t width = 6 * text.size();
        constexpr std::size_t height = 10;
        return {static_cast<int>(width), height, std::vector<Pixel>(width * height, black_pixel)};
    }
};

} // namespace etiquetas::test
