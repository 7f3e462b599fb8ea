#pragma once

#include <QWidget>

#include <functional>

namespace etiquetas {

/// A dialog beside the Workbench: the widgets of its form, each named after its field. It stays
/// over the main window and leaves it usable. It is shown and hidden from outside alone.
class DialogWindow : public QWidget {
    Q_OBJECT

  public:
    /// What runs when the operator closes the window, by its close box or by Esc.
    void onClose(std::function<void()> closed) { closed_ = std::move(closed); }

    /// Shows the dialog in the middle of the main window, its first field ready for typing; one
    /// that is open already comes to the front.
    void openOver(QWidget& main);
    /// Hides the dialog and goes back to the main window.
    void closeOver(QWidget& main);

  protected:
    DialogWindow();

    /// The field that is ready for typing when the dialog opens.
    void startAt(QWidget& field) { first_field_ = &field; }

    void closeEvent(QCloseEvent* event) override;

  private:
    QWidget* first_field_ = this;
    std::function<void()> closed_ = [] {};
};

/// A margin dialog. The form is that of all of them; what a dialog lacks is hidden by its fields.
class MarginWindow final : public DialogWindow {
    Q_OBJECT

  public:
    explicit MarginWindow(const QString& name);
};

/// The dialog of the printer parameters. What the operator has no part in is not on it.
class ParameterWindow final : public DialogWindow {
    Q_OBJECT

  public:
    ParameterWindow();
};

} // namespace etiquetas
