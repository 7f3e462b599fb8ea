#pragma once

#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "platform/Pictures.h"
#include "platform/Platform.h"
#include "platform/PrintSurface.h"
#include "platform/Printers.h"
#include "review/IdleDesk.h"

#include <functional>
#include <map>
#include <utility>
#include <vector>

namespace etiquetas {

/// Answers No to all questions, and shows nothing.
class UnseenBoxes final : public MessageBoxes {
  public:
    Answer show(const Message& message) override {
        return message.buttons == Buttons::ok ? Answer::ok : Answer::no;
    }
};

/// Hands boxes on to others, which may change.
class HandedBoxes final : public MessageBoxes {
  public:
    explicit HandedBoxes(MessageBoxes& shown) : shown_(&shown) {}

    void showBy(MessageBoxes& shown) { shown_ = &shown; }
    Answer show(const Message& message) override { return shown_->show(message); }

  private:
    MessageBoxes* shown_;
};

/// Reads the files of another machine, and changes none. A folder is listed once.
class UnchangedFiles final : public Files {
  public:
    explicit UnchangedFiles(const Files& files) : files_(&files) {}

    [[nodiscard]] Text programFolder() const override { return files_->programFolder(); }
    [[nodiscard]] char16_t separator() const override { return files_->separator(); }
    [[nodiscard]] bool fileExists(TextView path) const override { return files_->fileExists(path); }
    [[nodiscard]] bool folderExists(TextView path) const override {
        return files_->folderExists(path);
    }
    [[nodiscard]] std::vector<Text> filesIn(TextView folder) const override {
        auto known = listed_.find(folder);
        if (known == listed_.end()) {
            known = listed_.emplace(folder, files_->filesIn(folder)).first;
        }
        return known->second;
    }
    [[nodiscard]] std::string read(TextView path) const override { return files_->read(path); }
    void makeFolder(TextView /*path*/) override {}
    void deleteFile(TextView /*path*/) override {}
    void replace(TextView /*path*/, std::string_view /*bytes*/) override {}

  private:
    const Files* files_;
    mutable std::map<Text, std::vector<Text>, std::less<>> listed_; // folders
};

/// The printers of another machine by their names.
class NamedPrinters final : public Printers {
  public:
    explicit NamedPrinters(const Printers& printers) : printers_(&printers) {}

    [[nodiscard]] std::vector<Text> names() const override { return printers_->names(); }
    [[nodiscard]] Text defaultName() const override { return printers_->defaultName(); }
    void makeCurrent(std::size_t /*index*/) override {}

  private:
    const Printers* printers_;
};

/// Pictures that nobody looks at: a file is not read, and a text has no pixels.
class UnseenPictures final : public Pictures {
  public:
    [[nodiscard]] Picture load(TextView /*path*/) override { return {}; }
    [[nodiscard]] Raster text(TextView /*text*/) override { return {}; }
};

/// A text that was printed, the size that its layout gives it and the one that it shrank to, in
/// points.
struct SetText {
    Text text;
    float design_points;
    float points;
};

/// Measures texts as another surface does, and keeps what is printed instead of printing it. The
/// fonts of that surface change.
class MeasuredSurface final : public PrintSurface {
  public:
    explicit MeasuredSurface(PrintSurface& measure) : measure_(&measure) {}

    /// What was printed since the last call.
    [[nodiscard]] std::vector<SetText> takeTexts() { return std::exchange(texts_, {}); }

    void FontName(TextView face) override { measure_->FontName(face); }
    void FontSize(float points) override { measure_->FontSize(points); }
    // Layouts set the weight after the size; a text that shrinks has its size set alone.
    void FontBold(bool bold) override {
        measure_->FontBold(bold);
        design_points_ = measure_->FontSize();
    }
    [[nodiscard]] float FontSize() const override { return measure_->FontSize(); }
    void CurrentX(float /*x*/) override {}
    void CurrentY(float /*y*/) override {}
    void ScaleMode(etiquetas::ScaleMode mode) override { measure_->ScaleMode(mode); }
    void PaperSize(int /*kind*/) override {}
    void Width(int /*twips*/) override {}
    void Height(int /*twips*/) override {}
    void Print(TextView text) override {
        texts_.push_back({Text(text), design_points_, measure_->FontSize()});
    }
    [[nodiscard]] float TextWidth(TextView text) const override {
        return measure_->TextWidth(text);
    }
    void Line(int /*flags*/, float /*x1*/, float /*y1*/, float /*x2*/, float /*y2*/,
              Pixel /*colour*/) override {}
    void PaintPicture(const Picture& /*picture*/, float /*x*/, float /*y*/, float /*width*/,
                      float /*height*/, const SourceArea& /*source*/) override {}
    void NewPage() override {}
    void EndDoc() override {}
    [[nodiscard]] std::size_t FontCount() const override { return measure_->FontCount(); }
    [[nodiscard]] Text Fonts(std::size_t index) const override { return measure_->Fonts(index); }

  private:
    PrintSurface* measure_;
    std::vector<SetText> texts_;
    float design_points_ = 0;
};

/// A machine to try out what a Workbench would do: it reads what another one has, but changes no
/// file and prints nothing. `boxes` show what is told and asked. All must outlive it.
class DryMachine {
  public:
    DryMachine(const Files& files, const Printers& printers, PrintSurface& measure,
               MessageBoxes& boxes)
        : files_(files), printers_(printers), surface_(measure), boxes_(boxes) {}

    /// Has other boxes shown from here on.
    void showBoxesBy(MessageBoxes& boxes) { boxes_.showBy(boxes); }

    [[nodiscard]] Platform platform() {
        return {printers_, surface_, boxes_, pictures_, files_, desk_, desk_, desk_, desk_, desk_};
    }
    [[nodiscard]] MeasuredSurface& surface() { return surface_; }

  private:
    UnchangedFiles files_;
    NamedPrinters printers_;
    MeasuredSurface surface_;
    UnseenPictures pictures_;
    HandedBoxes boxes_;
    IdleDesk desk_;
};

} // namespace etiquetas
