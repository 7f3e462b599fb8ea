#pragma once

#include "base/Failure.h"
#include "platform/Files.h"
#include "platform/Focus.h"
#include "platform/MessageBoxes.h"
#include "platform/Pictures.h"
#include "platform/Platform.h"
#include "platform/Pointer.h"
#include "platform/PrintSurface.h"
#include "platform/Printers.h"
#include "platform/Process.h"
#include "workbench/FrmPadrao.h"

#include <deque>
#include <functional>
#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace etiquetas::test {

/// What happened on the fakes, in order: one line each, a word and what it concerns, in UTF-8.
using Log = std::vector<std::string>;

std::string utf8(TextView text);

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

struct Logging {
    explicit Logging(Log& shared) : log(shared) {}

    Log& log;
};

/// Files in memory, with names that are exact in their case.
struct FakeFiles final : Files, Logging {
    using Logging::Logging;

    std::map<Text, std::string, std::less<>> bytes;
    std::set<Text, std::less<>> folders{u"/programa"};
    Text program_folder = u"/programa";
    char16_t part_separator = u'/';
    bool refuses_writes = false;
    std::function<void()> on_write = [] {};

    Text programFolder() const override { return program_folder; }
    char16_t separator() const override { return part_separator; }
    bool fileExists(TextView path) const override { return bytes.contains(path); }
    bool folderExists(TextView path) const override { return folders.contains(path); }
    std::vector<Text> filesIn(TextView folder) const override;
    void makeFolder(TextView path) override;
    void deleteFile(TextView path) override;
    std::string read(TextView path) const override;
    void replace(TextView path, std::string_view content) override;
};

struct FakePrinters final : Printers, Logging {
    using Logging::Logging;

    std::vector<Text> devices{u"Balcao", u"Etiquetas", u"Papel"};
    bool fails = false;

    std::vector<Text> names() const override;
    Text defaultName() const override { return u"Papel"; }
    void makeCurrent(std::size_t index) override;
};

/// Keeps its state as a real surface does; its log lines tell the state that a drawing has.
struct FakePrintSurface final : PrintSurface, Logging {
    using Logging::Logging;

    std::vector<Text> faces{u"Malgun Gothic Semilight", u"CALIBRI ", u"Franklin Gothic Medium",
                            u"Estrangelo Edessa"};
    float character_width = 1; // at 7 points
    std::string failing;       // the operation that fails, by the word of its log line
    mutable std::string measured_in;
    int pages = 0; // of the open job
    std::vector<int> jobs;

    void FontName(TextView face) override;
    void FontSize(float points) override { points_ = points; }
    void FontBold(bool bold) override { bold_ = bold; }
    float FontSize() const override { return points_; }
    void CurrentX(float x) override { x_ = x; }
    void CurrentY(float y) override { y_ = y; }
    void ScaleMode(etiquetas::ScaleMode mode) override;
    void PaperSize(int kind) override { note("paper", std::to_string(kind)); }
    void Width(int twips) override { note("width", std::to_string(twips)); }
    void Height(int twips) override { note("height", std::to_string(twips)); }
    void Print(TextView text) override;
    float TextWidth(TextView text) const override;
    void Line(int flags, float x1, float y1, float x2, float y2, Pixel colour) override;
    using PrintSurface::PaintPicture;
    void PaintPicture(const Picture& picture, float x, float y, float width, float height,
                      const SourceArea& source) override;
    void NewPage() override;
    void EndDoc() override;
    std::size_t FontCount() const override;
    Text Fonts(std::size_t index) const override { return faces.at(index); }

  private:
    std::string font() const;
    void note(const std::string& word, const std::string& rest) const;
    void draw();

    Text face_;
    float points_ = 0;
    bool bold_ = false;
    float x_ = 0;
    float y_ = 0;
    int unit_ = 3;
    bool page_open_ = false;
};

/// `shown` tells each message as "symbol, buttons, title: text".
struct FakeMessageBoxes final : MessageBoxes, Logging {
    using Logging::Logging;

    Log shown;
    std::deque<Answer> answers; // Yes once they have run out

    Answer show(const Message& message) override;
};

/// A file that begins with "JPEG" is a picture. Letters are black boxes of 6 by 10 pixels.
struct FakePictures final : Pictures, Logging {
    FakePictures(Log& shared, const FakeFiles& machine) : Logging(shared), files(machine) {}

    const FakeFiles& files;

    Picture load(TextView path) override;
    Raster text(TextView text) override;
};

struct FakeFocus final : Focus {
    int forward = 0;
    int backward = 0;

    void tabForward() override { ++forward; }
    void tabBackward() override { ++backward; }
};

struct FakePointer final : Pointer, Logging {
    using Logging::Logging;

    void busy() override { log.emplace_back("pointer busy"); }
    void normal() override { log.emplace_back("pointer normal"); }
};

struct FakeProcess final : Process {
    bool ended = false;

    void end() override { ended = true; }
};

struct FakePlatform {
    Log log;
    FakeFiles files{log};
    FakePrinters printers{log};
    FakePrintSurface surface{log};
    FakeMessageBoxes messages{log};
    FakePictures pictures{log, files};
    FakeFocus focus;
    FakePointer pointer{log};
    FakeProcess process;

    Platform platform() {
        return {printers, surface, messages, pictures, files, focus, pointer, process};
    }

    /// The lines of the log that begin with one of these words.
    Log logged(std::initializer_list<std::string_view> words) const;
};

/// A line of a box order, `rest` being the fields behind the master code.
struct BoxLine {
    Text quantity = u"12";
    Text size = u"34";
    Text barcode = u"204455667788";
    Text master = u"3104527001";
    Text description = u"TENIS CASUAL";
    Text colour = u"AZUL";
    std::vector<Text> rest{u"202611", u"FAIXA A", u"OFERTA"};
};

Text lineOf(const BoxLine& line);

/// The bytes of an order file: a header and lines in code page 1252, each ended by CR LF.
std::string orderFile(TextView header, const std::vector<Text>& lines);

/// The window before it has been loaded, and the machine that it stands on.
struct Workbench {
    FakePlatform machine;
    FrmPadrao form{machine.platform()};
};

/// The window once it has been loaded, with both logos and all faces there; the log is empty.
struct LoadedWorkbench : Workbench {
    LoadedWorkbench();
};

} // namespace etiquetas::test
