#pragma once

#include "Check.h"
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

#include <cmath>
#include <functional>
#include <map>
#include <memory>

namespace etiquetas::fuzz {

inline const Text settings_path = u"/programa/Varesko.ini";

/// The whole machine in memory. Each call that may fail by its interface asks `refuses` first, and
/// fails where that says so. What the system hands over is checked: numbers that are numbers,
/// indices that are there, messages that say something.
class Machine final : public Files,
                      public Pictures,
                      public Printers,
                      public PrintSurface,
                      public MessageBoxes,
                      public Focus,
                      public Pointer,
                      public Process,
                      public FolderPicker,
                      public CommandStart {
  public:
    std::map<Text, std::string, std::less<>> bytes; // of the files, by their paths
    std::function<bool()> refuses = [] { return false; };
    std::function<void(const Message&)> told = [](const Message& /*message*/) {};
    Answer answer = Answer::yes; // to every question
    Text picked;                 // folder that the operator picks
    bool ended = false;

    bool job_is_open = false;
    std::size_t pages = 0;         // ended ones
    std::size_t drawings_left = 0; // until the printer is out of paper, so that no run is long
    std::size_t passed_over = 0;   // failures that the system has passed over

    Machine() { loadPaper(); }

    [[nodiscard]] Platform platform() {
        return {*this, *this, *this, *this, *this, *this, *this, *this, *this, *this};
    }
    void loadPaper() {
        constexpr std::size_t enough_for_a_few_strips = 100;
        drawings_left = enough_for_a_few_strips;
        pages = 0;
    }

    Text programFolder() const override { return u"/programa"; }
    char16_t separator() const override { return u'/'; }
    bool fileExists(TextView path) const override { return bytes.contains(path); }
    bool folderExists(TextView path) const override {
        return path == programFolder() || !filesIn(path).empty();
    }
    std::vector<Text> filesIn(TextView folder) const override {
        std::vector<Text> names;
        for (const auto& [path, content] : bytes) {
            if (path.starts_with(folder) && path.rfind(u'/') == folder.size()) {
                names.push_back(path.substr(folder.size() + 1));
            }
        }
        return names;
    }
    void makeFolder(TextView /*path*/) override { mayFail(); }
    void deleteFile(TextView path) override {
        mayFail();
        bytes.erase(Text(path));
    }
    std::string read(TextView path) const override {
        mayFail();
        const auto found = bytes.find(path);
        return found == bytes.end() ? throw failure() : found->second;
    }
    void replace(TextView path, std::string_view content) override {
        mayFail();
        bytes[Text(path)] = content;
    }

    Picture load(TextView path) override {
        return read(path).starts_with("JPEG")
                   ? std::make_shared<const Raster>(Raster{1, 1, {black_pixel}})
                   : throw failure();
    }
    Raster text(TextView text) override {
        constexpr int height = 10;
        const auto width = 6 * static_cast<int>(text.size());
        return {width, height,
                std::vector<Pixel>(static_cast<std::size_t>(width) * height, black_pixel)};
    }

    std::vector<Text> names() const override {
        mayFail();
        return {u"Balcao", u"Etiquetas"};
    }
    Text defaultName() const override {
        mayFail();
        return u"Etiquetas";
    }
    void makeCurrent(std::size_t index) override {
        require(index < 2, "The current printer is one of the list");
        mayFail();
    }

    void FontName(TextView face) override {
        require(!face.empty(), "A face has a name");
        mayFail();
    }
    void FontSize(float points) override {
        require(points > 0, "A font has a size");
        mayFail();
        points_ = points;
    }
    void FontBold(bool /*bold*/) override { mayFail(); }
    float FontSize() const override {
        mayFail();
        return points_;
    }
    void CurrentX(float x) override { takePlaces({x}); }
    void CurrentY(float y) override { takePlaces({y}); }
    void ScaleMode(etiquetas::ScaleMode /*mode*/) override { mayFail(); }
    void PaperSize(int /*kind*/) override { mayFail(); }
    void Width(int twips) override {
        require(twips > 0, "A page is not empty");
        mayFail();
    }
    void Height(int twips) override { Width(twips); }
    void Print(TextView text) override { draw(!text.empty()); }
    float TextWidth(TextView text) const override {
        mayFail();
        return static_cast<float>(text.size()) * points_ / 7;
    }
    void Line(int /*flags*/, float x1, float y1, float x2, float y2, Pixel /*colour*/) override {
        takePlaces({x1, y1, x2, y2});
        draw(true);
    }
    using PrintSurface::PaintPicture;
    void PaintPicture(const Picture& picture, float x, float y, float width, float height,
                      const SourceArea& /*source*/) override {
        takePlaces({x, y});
        require(width > 0 && height > 0, "A stamp has a size");
        draw(picture != nullptr);
    }
    void NewPage() override {
        mayFail();
        ++pages;
    }
    void EndDoc() override {
        mayFail();
        job_is_open = false;
    }
    std::size_t FontCount() const override {
        mayFail();
        return 1;
    }
    Text Fonts(std::size_t index) const override {
        require(index == 0, "A face that is asked for is one of the list");
        mayFail();
        return u"Calibri";
    }

    Answer show(const Message& message) override {
        require(!message.text.empty(), "A message box says something");
        told(message);
        mayFail();
        return message.buttons == Buttons::yes_no ? answer : Answer::ok;
    }
    void tabForward() override { mayFail(); }
    void tabBackward() override { mayFail(); }
    void moveTo(const TextField& /*field*/) override { mayFail(); }
    void busy() override { mayFail(); }
    void normal() override { mayFail(); }
    void end() override { ended = true; }
    Text pick(TextView /*title*/) override {
        mayFail();
        return picked;
    }
    void start(TextView /*command_file*/) override { mayFail(); }

  private:
    static Failure failure() { return {failure_number::file_access, u"fuzz", u"refused"}; }
    void mayFail() const {
        if (refuses()) {
            throw failure();
        }
    }
    void takePlaces(std::initializer_list<float> places) const {
        for (const float place : places) {
            require(std::isfinite(place), "A place on the label is a number");
        }
        mayFail();
    }
    void draw(bool leaves_ink) {
        mayFail();
        if (drawings_left == 0) {
            throw failure();
        }
        --drawings_left;
        job_is_open = job_is_open || leaves_ink;
    }

    float points_ = 8;
    SkipObserver observer_{[this](const Failure& /*failure*/) { ++passed_over; }};
};

/// A machine in a shop that has been at work: logos, calibrated margins and an order of each
/// family, all with the same bytes.
inline void furnish(Machine& machine, std::string_view order) {
    machine.bytes[u"/programa/brisako.jpg"] = "JPEG";
    machine.bytes[u"/programa/lumira.jpg"] = "JPEG";
    machine.bytes[u"/programa/imagens/3104527.jpg"] = "JPEG";
    machine.bytes[settings_path] =
        "[Config]\r\narquivo=77\r\n[MargemOcultaZebra]\r\nMargem_oculta1=3\r\nMargem_oculta11="
        "45\r\n"
        "Margem_oculta2=3\r\nMx4045_1=0\r\nMx4045_2=40\r\nMx4045=3\r\nPackX=3\r\nPackY=3\r\n";
    for (const TextView word : {u"FRENTE", u"CORRUGADO", u"ACESSORIO"}) {
        machine.bytes[Text(u"/programa/77 ").append(word).append(u".txt")] = order;
    }
}

} // namespace etiquetas::fuzz
