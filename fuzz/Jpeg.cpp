// Any bytes as a picture file: loaded soon and of a sane size, or refused.
//
// Input: the JPEG file.

#include "Check.h"
#include "desktop/machine/QtPictures.h"
#include "desktop/machine/QtText.h"

#include <QGuiApplication>
#include <QTemporaryFile>

#include <ctime>

namespace etiquetas::fuzz {

namespace {

constexpr std::size_t most_pixels = 30'000'000;
constexpr double most_seconds = 2; // by the sanitizers; an optimised program takes a fraction

double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

void checkPicture(const Picture& picture) {
    require(picture != nullptr, "What is loaded is a picture");
    require(picture->width > 0 && picture->height > 0, "A picture has a size");
    const std::size_t pixels =
        static_cast<std::size_t>(picture->width) * static_cast<std::size_t>(picture->height);
    require(picture->pixels.size() == pixels && pixels <= most_pixels, "It has all its pixels");
}

void check(std::string_view bytes) {
    QTemporaryFile file;
    require(file.open(), "There is room for a file");
    file.write(bytes.data(), static_cast<qint64>(bytes.size()));
    file.close();
    const Text path = file.fileName().toStdU16String();
    const double begin = processorSeconds();
    goesThrough([&] { checkPicture(QtPictures().load(path)); });
    require(processorSeconds() - begin < most_seconds, "A picture is loaded soon");
}

} // namespace

} // namespace etiquetas::fuzz

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    etiquetas::fuzz::check(etiquetas::fuzz::bytesOf(data, size));
    return 0;
}
