#include "support/FakePlatform.h"

#include "base/CodePage.h"
#include "workbench/Inicio.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <sstream>

namespace etiquetas::test {

namespace {

Failure refusal(std::int32_t number) {
    return Failure(number, u"fake", u"refused");
}

// Five digits, so that what binary fractions leave behind does not show.
std::string numbers(std::initializer_list<float> values) {
    std::ostringstream text;
    text << std::setprecision(5);
    for (const float value : values) {
        text << ' ' << value;
    }
    return text.str();
}

} // namespace

std::string utf8(TextView text) {
    std::string bytes;
    const auto add = [&](unsigned byte) { bytes.push_back(static_cast<char>(byte)); };
    for (const unsigned code : text) {
        if (code < 0x80) {
            add(code);
        } else if (code < 0x800) {
            add(0xC0 | code >> 6);
            add(0x80 | (code & 0x3F));
        } else {
            add(0xE0 | code >> 12);
            add(0x80 | (code >> 6 & 0x3F));
            add(0x80 | (code & 0x3F));
        }
    }
    return bytes;
}

std::vector<Text> FakeFiles::filesIn(TextView folder) const {
    std::vector<Text> names;
    for (const auto& [path, content] : bytes) {
        const auto slash = path.rfind(part_separator);
        if (TextView(path).substr(0, slash) == folder) {
            names.push_back(path.substr(slash + 1));
        }
    }
    return names;
}

void FakeFiles::makeFolder(TextView path) {
    log.push_back("folder " + utf8(path));
    folders.emplace(path);
}

void FakeFiles::deleteFile(TextView path) {
    log.push_back("delete " + utf8(path));
    bytes.erase(Text(path));
}

std::string FakeFiles::read(TextView path) const {
    const auto found = bytes.find(path);
    if (found == bytes.end()) {
        throw refusal(failure_number::file_access);
    }
    return found->second;
}

void FakeFiles::replace(TextView path, std::string_view content) {
    if (refuses_writes) {
        throw refusal(failure_number::file_access);
    }
    log.push_back("write " + utf8(path));
    bytes[Text(path)] = content;
    on_write();
}

std::vector<Text> FakePrinters::names() const {
    if (fails) {
        throw refusal(failure_number::printer);
    }
    return devices;
}

void FakePrinters::makeCurrent(std::size_t index) {
    log.push_back("printer " + utf8(devices.at(index)));
}

void FakePrintSurface::FontName(TextView face) {
    note("face", utf8(face));
    face_ = face;
}

void FakePrintSurface::ScaleMode(etiquetas::ScaleMode mode) {
    unit_ = static_cast<int>(mode);
    note("unit", std::to_string(unit_));
}

void FakePrintSurface::Print(TextView text) {
    draw();
    note("print", font() + numbers({x_, y_}) + " in " + std::to_string(unit_) + ": " + utf8(text));
}

float FakePrintSurface::TextWidth(TextView text) const {
    measured_in = font();
    return static_cast<float>(text.size()) * character_width * points_ / 7.0F;
}

void FakePrintSurface::Line(int flags, float x1, float y1, float x2, float y2, Pixel colour) {
    draw();
    note("line", std::to_string(flags) + numbers({x1, y1, x2, y2}) + " " + std::to_string(colour));
}

void FakePrintSurface::PaintPicture(const Picture& picture, float x, float y, float width,
                                    float height, const SourceArea& source) {
    draw();
    const std::string size =
        picture == nullptr ? "nothing"
                           : std::to_string(picture->width) + "x" + std::to_string(picture->height);
    note("stamp", size + numbers({x, y, width, height}) + " in " + std::to_string(unit_) +
                      (source.width ? " cropped" : ""));
}

void FakePrintSurface::NewPage() {
    note("page", "");
    page_open_ = false;
}

void FakePrintSurface::EndDoc() {
    note("end", "");
    if (pages > 0) {
        jobs.push_back(pages);
    }
    pages = 0;
    page_open_ = false;
}

std::size_t FakePrintSurface::FontCount() const {
    note("faces", std::to_string(faces.size()));
    return faces.size();
}

std::string FakePrintSurface::font() const {
    return utf8(face_) + numbers({points_}) + (bold_ ? " bold" : "");
}

void FakePrintSurface::note(const std::string& word, const std::string& rest) const {
    if (word == failing) {
        throw refusal(failure_number::printer);
    }
    log.push_back(rest.empty() ? word : word + " " + rest);
}

// A page that NewPage promised begins with the next drawing.
void FakePrintSurface::draw() {
    pages += page_open_ ? 0 : 1;
    page_open_ = true;
}

Answer FakeMessageBoxes::show(const Message& message) {
    constexpr std::array symbols{"none", "stop", "question", "exclamation"};
    const bool question = message.buttons == Buttons::yes_no;
    const std::string text = utf8(message.text);
    shown.push_back(std::string(symbols.at(static_cast<std::size_t>(message.symbol))) +
                    (question ? ", yes no, " : ", ok, ") + utf8(message.title) + ": " + text);
    log.push_back("message " + text);
    if (answers.empty()) {
        return question ? Answer::yes : Answer::ok;
    }
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

Picture FakePictures::load(TextView path) {
    log.push_back("load " + utf8(path));
    if (files.read(path).substr(0, 4) != "JPEG") {
        throw refusal(failure_number::invalid_picture);
    }
    return std::make_shared<const Raster>(Raster{2, 2, std::vector<Pixel>(4, black_pixel)});
}

Raster FakePictures::text(TextView text) {
    log.push_back("letters " + utf8(text));
    const int width = 6 * static_cast<int>(text.size());
    return {width, 10, std::vector<Pixel>(text.size() * 60, black_pixel)};
}

Log FakePlatform::logged(std::initializer_list<std::string_view> words) const {
    Log lines;
    std::copy_if(log.begin(), log.end(), std::back_inserter(lines), [&](const std::string& line) {
        return std::find(words.begin(), words.end(), line.substr(0, line.find(' '))) != words.end();
    });
    return lines;
}

Text lineOf(const BoxLine& line) {
    Text text = line.quantity + u";" + line.colour + u";" + line.size + u";;" + line.description +
                u";" + line.barcode + u";" + line.master;
    for (const Text& field : line.rest) {
        text += u";" + field;
    }
    return text;
}

std::string orderFile(TextView header, const std::vector<Text>& lines) {
    std::string bytes = toCodePage1252(header) + "\r\n";
    for (const Text& line : lines) {
        bytes += toCodePage1252(line) + "\r\n";
    }
    return bytes;
}

LoadedWorkbench::LoadedWorkbench() {
    machine.files.bytes = {{u"/programa/brisako.jpg", "JPEG"}, {u"/programa/lumira.jpg", "JPEG"}};
    FrmPadrao_load(form);
    machine.log.clear();
}

} // namespace etiquetas::test
