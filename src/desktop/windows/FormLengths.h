#pragma once

#include <QList>
#include <QMargins>
#include <QPointer>
#include <QSize>

class QFont;
class QGridLayout;
class QLayout;
class QWidget;

namespace etiquetas {

class WindowUnit;

/// The lengths that the form of a window tells, in pixels at the reference font: the margins and
/// gaps of its layouts, the least sizes of its widgets, and the fonts of widgets, which stand there
/// as factors of the window's font (the property `fontScale`).
class FormLengths {
  public:
    /// Takes the lengths of a window that has just been set up from its form.
    explicit FormLengths(QWidget& window);

    /// Gives the window and its widgets a font and their lengths in the unit.
    void show(const WindowUnit& unit, const QFont& desktop_font) const;

  private:
    struct Gaps {
        QLayout* layout = nullptr;
        QMargins margins;
        int horizontal = 0;
        int vertical = 0; // of a grid
    };
    struct LeastSize {
        QWidget* widget = nullptr;
        QSize size;
    };

    void show(const Gaps& gaps, const WindowUnit& unit) const;

    QWidget* window_;
    QList<Gaps> gaps_;
    QList<LeastSize> least_sizes_;
    QList<QWidget*> scaled_fonts_;
};

} // namespace etiquetas
