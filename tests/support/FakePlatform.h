#pragma once

#include "base/CodePage.h"
#include "base/Failure.h"
#include "model/FrmPadrao.h"
#include "platform/CommandStart.h"
#include "platform/Files.h"
#include "platform/Focus.h"
#include "platform/FolderPicker.h"
#include "platform/MessageBoxes.h"
#include "platform/Pictures.h"
#include "platform/Pointer.h"
#include "platform/PrintSurface.h"
#include "platform/Printers.h"
#include "platform/Process.h"
#include "workbench/Inicio.h"

#include <array>
#include <cmath>
#include <filesystem>
#include <functional>
#include <iomanip>
#include <map>
#include <set>
#include <sstream>

namespace etiquetas::test {

/// A picture as rows of "#" and blanks.
using Rows = std::vector<std::string>;

inline Rows rowsOf(const Picture& picture) {
    Rows rows(static_cast<std::size_t>(picture->height));
    for (std::size_t i = 0; i < picture->pixels.size(); ++i) {
        rows[i / static_cast<std::size_t>(picture->width)] +=
            picture->pixels[i] == black_pixel ? '#' : ' ';
    }
    return rows;
}

inline std::string utf8(TextView text) {
    return std::filesystem::path(text).string();
}

/// Number of the failure that a step ends with; 0 where it ends well.
template <typename Step>
std::int32_t failureOf(Step&& step) {
    try {
        std::forward<Step>(step)();
    } catch (const Failure& failure) {
        return failure.number();
    }
    return 0;
}

/// How a step fails: number, source and description; empty where it ends well.
template <typename Step>
std::string failureTextOf(Step&& step) {
    try {
        std::forward<Step>(step)();
    } catch (const Failure& failure) {
        std::ostringstream text;
        text << std::hex << failure.number() << ' ' << utf8(failure.source()) << ": "
             << utf8(failure.description());
        return text.str();
    }
    return {};
}

inline Failure refusal() {
    return {failure_number::file_access, u"fake", u"refused"};
}

/// What happened on the fakes, in order: one line each, a word and what it concerns, in UTF-8.
using Log = std::vector<std::string>;

/// Lines that stand in one text, with "; " between them.
inline Log listOf(const std::string& text) {
    Log lines;
    std::istringstream rest(text);
    for (std::string line; std::getline(rest >> std::ws, line, ';');) {
        lines.push_back(line);
    }
    return lines;
}

/// Keeps the log of all fakes, and refuses the steps whose words are among the failing ones.
struct Journal {
    Log log;
    std::set<std::string> failing;

    // Five digits, so that what binary fractions leave behind does not show.
    template <typename... Parts>
    void note(const std::string& word, const Parts&... parts) {
        if (failing.contains(word)) {
            throw refusal();
        }
        std::ostringstream line;
        line << std::setprecision(5) << word;
        ((line << ' ' << parts), ...);
        log.push_back(line.str());
    }

    /// The lines that begin with one of these words.
    Log logged(const std::set<std::string>& words) const {
        Log lines = log;
        std::erase_if(lines, [&](const std::string& line) {
            return !words.contains(line.substr(0, line.find(' ')));
        });
        return lines;
    }

    /// What was drawn, in short: units, and texts as face, size, "+" where bold, place and text.
    /// "~" is the face of most texts. Empty texts draw nothing.
    Log drawn() const {
        Log lines = logged({"print", "unit", "stamp", "rule", "page"});
        std::erase_if(lines, [](const std::string& line) { return line.ends_with(" mm "); });
        using Short = std::pair<std::string, std::string>;
        for (std::string& line : lines) {
            for (const auto& [from, to] :
                 {Short{"print Franklin Gothic Medium ", "~"}, Short{"print Calibri ", "C"},
                  Short{"print Malgun Gothic Semilight ", "M"}, Short{"print ", ""},
                  Short{" plain at ", " "}, Short{" bold at ", "+ "}, Short{"unit ", ""},
                  Short{" mm", ""}}) {
                const std::size_t at = line.find(from);
                line = at == std::string::npos ? line : line.replace(at, from.size(), to);
            }
        }
        return lines;
    }
};

struct Fake {
    explicit Fake(Journal& shared) : journal(shared) {}

    Journal& journal;
};

/// Files in memory, with names that are exact in their case, and the pictures in them: a file that
/// begins with "JPEG" is one. Letters are black boxes of 6 by 10 pixels.
struct FakeFiles final : Files, Pictures, Fake {
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
        const bool readable = fileExists(path) && !journal.failing.contains("read");
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
        journal.note("letters", utf8(text));
        const int width = 6 * static_cast<int>(text.size());
        return {width, 10, std::vector<Pixel>(text.size() * 60, black_pixel)};
    }
};

/// Printers and what they draw on. The surface keeps its state as a real one does; the log lines
/// tell the state that a text has. Sizes are held in steps of `size_step`, or any where that is 0.
struct FakePrinters final : Printers, PrintSurface, Fake {
    using Fake::Fake;

    std::vector<Text> devices{u"Balcao", u"Etiquetas", u"Papel"};
    std::vector<Text> faces{u"Malgun Gothic Semilight", u"CALIBRI ", u"Franklin Gothic Medium",
                            u"Estrangelo Edessa"};
    std::string face, weight, unit;
    float points = 0, x = 0, y = 0, size_step = 0;

    std::vector<Text> names() const override {
        journal.note("printers");
        return devices;
    }
    Text defaultName() const override { return u"Papel"; }
    void makeCurrent(std::size_t at) override { journal.note("printer", utf8(devices.at(at))); }

    void FontName(TextView name) override { face = utf8(name); }
    void FontSize(float size) override {
        points = size_step > 0 ? std::round(size / size_step) * size_step : size;
    }
    void FontBold(bool bold) override { weight = bold ? "bold" : "plain"; }
    float FontSize() const override { return points; }
    void CurrentX(float at) override { x = at; }
    void CurrentY(float at) override { y = at; }
    void ScaleMode(etiquetas::ScaleMode mode) override {
        unit = mode == ScaleMode::millimetres ? "mm" : "pixels";
        journal.note("unit", unit);
    }
    void PaperSize(int kind) override { journal.note("paper", kind); }
    void Width(int twips) override { journal.note("width", twips); }
    void Height(int twips) override { journal.note("height", twips); }
    void Print(TextView text) override {
        journal.note("print", face, points, weight, "at", x, y, unit, utf8(text));
    }
    /// One millimetre a character at 7 points, of 24 pixels.
    float TextWidth(TextView text) const override {
        journal.note("measure", face, points);
        return static_cast<float>(text.size()) * points / 7.0F * (unit == "pixels" ? 24.0F : 1.0F);
    }
    void Line(int flags, float x1, float y1, float x2, float y2, Pixel colour) override {
        journal.note(flags == filled_box && colour == black_pixel ? "rule" : "line", x1, y1, x2, y2,
                     unit);
    }
    using PrintSurface::PaintPicture;
    void PaintPicture(const Picture& picture, float left, float top, float width, float height,
                      const SourceArea& source) override {
        if (picture) {
            std::string crop = source.x || source.y || source.height ? " ?" : "";
            if (source.width) {
                crop += " crop " + std::to_string(std::lround(*source.width));
            }
            journal.note("stamp", picture->width, picture->height, left, top, width, height,
                         unit + crop);
        }
    }
    void NewPage() override { journal.note("page"); }
    void EndDoc() override { journal.note("end"); }
    std::size_t FontCount() const override {
        journal.note("faces");
        return faces.size();
    }
    Text Fonts(std::size_t index) const override { return faces.at(index); }
};

struct FakePlatform : Journal, MessageBoxes, Focus, Pointer, Process, FolderPicker, CommandStart {
    FakeFiles files{*this};
    Pictures& pictures = files;
    FakePrinters printers{*this};
    Answer answer = Answer::yes;

    /// The folder that the operator picks, and the field that was given the focus last.
    Text picked;
    const TextField* focused = nullptr;

    Platform platform() {
        return {printers, printers, *this, files, files, *this, *this, *this, *this, *this};
    }

    Answer show(const Message& message) override {
        constexpr std::array symbols{"none", "stop", "question", "exclamation"};
        note("message", symbols.at(static_cast<std::size_t>(message.symbol)),
             message.buttons == Buttons::yes_no ? "yes/no" : "ok", "[" + utf8(message.title) + "]",
             utf8(message.text));
        return answer;
    }
    void tabForward() override { note("focus forward"); }
    void tabBackward() override { note("focus backward"); }
    void moveTo(const TextField& field) override { focused = &field; }
    void busy() override { note("pointer busy"); }
    void normal() override { note("pointer normal"); }
    void end() override { note("exit"); }
    Text pick(TextView title) override {
        note("pick", utf8(title));
        return picked;
    }
    void start(TextView command_file) override { note("start", utf8(command_file)); }
};

/// A line of a box order, `rest` being the fields behind the master code.
struct BoxLine {
    Text quantity = u"12", size = u"34", barcode = u"204455667788", master = u"3104527001";
    Text description = u"TENIS CASUAL", colour = u"AZUL", rest = u"202611;FAIXA A;OFERTA";
};

inline Text lineOf(const BoxLine& line) {
    return line.quantity + u";" + line.colour + u";" + line.size + u";;" + line.description + u";" +
           line.barcode + u";" + line.master + u";" + line.rest;
}

/// The bytes of a file in code page 1252, each of its lines ended by CR LF.
inline std::string fileOf(const std::vector<Text>& lines) {
    std::string bytes;
    for (const Text& line : lines) {
        bytes += toCodePage1252(line + u"\r\n");
    }
    return bytes;
}

/// The window before it has been loaded, and the machine that it stands on.
struct Workbench {
    FakePlatform machine;
    FrmPadrao form{machine.platform()};

    /// Logos of 1 by 2 pixels (BRISA KO) and of 3 by 4 (LUMIRA).
    void takeLogos() {
        form.pctlogo1.picture = std::make_shared<const Raster>(Raster{1, 2, {}});
        form.pctlogo2.picture = std::make_shared<const Raster>(Raster{3, 4, {}});
        form.LogoBrisakoOk = form.LogoLumiraOk = true;
    }
};

/// The window once it has been loaded; the log is empty.
struct LoadedWorkbench : Workbench {
    LoadedWorkbench() {
        FrmPadrao_load(form);
        machine.log.clear();
    }
};

} // namespace etiquetas::test
