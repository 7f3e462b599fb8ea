#pragma once

#include "platform/PrintSurface.h"
#include "platform/Printers.h"
#include "support/Journal.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace etiquetas::test {

/// A number with a decimal comma, to the hundredth.
inline std::string decimal(float value) {
    std::ostringstream digits;
    digits << std::round(value * 100) / 100;
    std::string text = digits.str();
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

/// A coordinate or length: as `decimal`, with at least one digit after the comma.
inline std::string measure(float value) {
    const std::string text = decimal(value);
    return text.find(',') == std::string::npos ? text + ",0" : text;
}

/// What a picture is, and what it says, if anything.
struct KnownPicture {
    std::string name = "unknown picture", text;
};

/// Printers and what they draw on. The surface keeps its state as a real one does; the transcript
/// tells the state that a text has. Sizes are held in steps of `size_step`, or any where that is 0.
struct FakePrinters final : Printers, PrintSurface, Fake {
    using Fake::Fake;

    std::vector<Text> devices{u"Balcao", u"Etiquetas", u"Papel"};
    std::vector<Text> faces{u"Malgun Gothic Semilight", u"CALIBRI ", u"Franklin Gothic Medium",
                            u"Estrangelo Edessa"};
    std::string face, weight = "plain", unit;
    float points = 0, x = 0, y = 0, size_step = 0;
    std::map<std::vector<Pixel>, KnownPicture> known_pictures; // by their pixels

    std::vector<Text> names() const override {
        journal.note("printers");
        return devices;
    }
    Text defaultName() const override { return u"Papel"; }
    void makeCurrent(std::size_t at) override { journal.tell("printer", utf8(devices.at(at))); }

    void FontName(TextView name) override { face = utf8(name); }
    void FontSize(float size) override {
        points = size_step > 0 ? std::round(size / size_step) * size_step : size;
    }
    void FontBold(bool bold) override { weight = bold ? "bold" : "plain"; }
    float FontSize() const override { return points; }
    void CurrentX(float at) override { x = at; }
    void CurrentY(float at) override { y = at; }
    void ScaleMode(etiquetas::ScaleMode mode) override {
        unit = mode == ScaleMode::millimetres ? "millimetres" : "pixels";
        journal.tell("unit", unit);
    }
    void PaperSize(int kind) override { journal.tellStep("paper", "paper", kind); }
    void Width(int twips) override { journal.tellStep("width", "page width", twips, "twips"); }
    void Height(int twips) override { journal.tellStep("height", "page height", twips, "twips"); }
    /// An empty text leaves no line, since it draws nothing.
    void Print(TextView text) override {
        if (!text.empty()) {
            journal.tell("text", measure(x), measure(y), face, decimal(points), weight,
                         inQuotes(text));
        }
    }
    /// One millimetre a character at 7 points, of 24 pixels; other faces have widths of their own,
    /// so that a text that is measured in the wrong one shows.
    float TextWidth(TextView text) const override {
        constexpr float pixels_per_millimetre = 24;
        journal.noteAside("measure", face, points);
        return static_cast<float>(text.size()) * points * faceWidth() / 7.0F *
               (unit == "pixels" ? pixels_per_millimetre : 1.0F);
    }
    void Line(int flags, float x1, float y1, float x2, float y2, Pixel colour) override {
        const bool is_rule = flags == filled_box && colour == black_pixel;
        journal.tell(is_rule ? "rule" : "line", measure(x1), measure(y1), measure(x2), measure(y2));
    }
    using PrintSurface::PaintPicture;
    void PaintPicture(const Picture& picture, float left, float top, float width, float height,
                      const SourceArea& source) override {
        if (!picture) {
            return;
        }
        std::string crop = source.x || source.y || source.height ? " from within" : "";
        if (source.width) {
            crop += " first " + decimal(*source.width) + " pixels";
        }
        const auto known = known_pictures.find(picture->pixels);
        const auto [name, text] = known == known_pictures.end() ? KnownPicture{} : known->second;
        journal.tell(name, measure(left), measure(top), measure(width),
                     measure(height) + crop + text);
    }
    void NewPage() override {
        journal.noteAside("page");
        journal.tell("page");
    }
    void EndDoc() override { journal.tellStep("end", "end of job"); }
    std::size_t FontCount() const override {
        journal.note("faces");
        return faces.size();
    }
    Text Fonts(std::size_t index) const override { return faces.at(index); }

  private:
    [[nodiscard]] float faceWidth() const {
        if (face == "Calibri") {
            return 0.84F;
        }
        return face == "Malgun Gothic Semilight" ? 1.05F : 1.0F;
    }
};

} // namespace etiquetas::test
