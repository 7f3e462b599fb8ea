#pragma once

#include "desktop/Desktop.h"

#include <QString>
#include <QTimer>

#include <functional>
#include <stdexcept>
#include <utility>
#include <vector>

class QFileDialog;
class QMessageBox;

namespace etiquetas {

/// A message box as the operator saw it.
struct SeenBox {
    QString title;
    QString text;
};

/// Works the real windows as an operator does: by keys and clicks on their widgets, and by OK or
/// Yes to their message boxes.
class Operator {
  public:
    /// Starts answering message boxes at once, so that one can watch over a start-up.
    Operator();

    /// Takes a seat at the main window, which has been shown.
    void sitAt(Desktop& desktop);
    /// Works from here on on the window of that name, an open dialog or the main window. All names
    /// of widgets are those of this window.
    void turnTo(const QString& window);

    /// Chooses from a list by its arrow keys, after a click into it.
    void choose(const QString& list, int position) const;
    /// Clicks into a field, replaces its text by typing, and stays there.
    void type(const QString& field, const QString& text);
    /// Presses one key where the focus is.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Presses Alt and the letter of a command, and waits for the command to let go.
    void pressMnemonic(Qt::Key letter);
    /// Types characters where the focus is.
    void keys(const QString& text);
    /// Clicks on a widget with the mouse.
    void click(const QString& name) const;
    void doubleClick(const QString& name) const;

    /// The widget that has the focus, by its name.
    [[nodiscard]] QString focused() const;
    /// The text of a field, list or label.
    [[nodiscard]] QString text(const QString& name) const;
    /// The widget of that name and type. Throws a `std::invalid_argument` where there is none.
    template <typename Widget>
    [[nodiscard]] Widget& widget(const QString& name) const {
        auto* const found = window_->findChild<Widget*>(name);
        if (found == nullptr) {
            throw std::invalid_argument("no widget " + name.toStdString());
        }
        return *found;
    }

    /// What runs while a box stands, before it is answered.
    void beforeAnswer(std::function<void()> look) { look_ = std::move(look); }
    /// The folder that the folder picker is answered with; without one it is cancelled.
    void willPick(const QString& folder) { picked_ = folder; }
    /// The boxes since the last call.
    std::vector<SeenBox> takeBoxes() { return std::exchange(boxes_, {}); }

  private:
    void answer();
    void answer(QMessageBox& box);
    void answer(QFileDialog& picker) const;
    [[nodiscard]] QWidget& focusedWidget() const;

    Desktop* desktop_ = nullptr;
    QWidget* window_ = nullptr;
    QTimer watch_;
    std::vector<SeenBox> boxes_;
    QString picked_;
    std::function<void()> look_ = [] {};
};

} // namespace etiquetas
