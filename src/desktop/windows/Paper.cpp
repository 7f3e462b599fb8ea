#include "desktop/windows/Paper.h"

#include <QApplication>

namespace etiquetas {

namespace {

constexpr QColor ink(0x1A, 0x1A, 0x1A);
constexpr QColor pale_ink(0x60, 0x60, 0x60);
constexpr QColor dark_blue(0x1B, 0x5E, 0x9E); // 6.6 to 1 against white
constexpr QColor light_blue(0x7A, 0xBD, 0xFF);

} // namespace

QPalette paperPalette(const QColor& paper) {
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Base, paper);
    palette.setColor(QPalette::Text, ink);
    palette.setColor(QPalette::PlaceholderText, pale_ink);
    palette.setColor(QPalette::Highlight, dark_blue);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

QPalette lockedPalette() {
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    palette.setColor(QPalette::Text, palette.color(QPalette::WindowText));
    palette.setColor(QPalette::Highlight, dark_blue);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

QColor markColour() {
    constexpr int middle = 128;
    return QApplication::palette().color(QPalette::Window).lightness() < middle ? light_blue
                                                                                : dark_blue;
}

} // namespace etiquetas
