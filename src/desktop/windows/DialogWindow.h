#pragma once

#include "desktop/windows/FormLengths.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace etiquetas {

class WorkbenchWindow;

/// A dialog beside the Workbench: the widgets of its form, each named after its field. It stays
/// over the main window, in the same unit, and leaves it usable. It is shown and hidden from
/// outside alone.
class DialogWindow : public QWidget {
    Q_OBJECT

  public:
    /// What runs when the operator closes the window, by its close box or by Esc.
    void onClose(std::function<void()> closed) { closed_ = std::move(closed); }

    /// Shows the dialog in the middle of the main window, its first field ready for typing; one
    /// that is open already comes to the front.
    void openOver(WorkbenchWindow& main);
    /// Hides the dialog and goes back to the main window.
    void closeOver(WorkbenchWindow& main);

  protected:
    DialogWindow();

    /// Takes over what the form has set up, and the field that is ready for typing when the dialog
    /// opens.
    void complete(QWidget& first_field);

    void closeEvent(QCloseEvent* event) override;

  private:
    void followUnit(const WorkbenchWindow& main);
    void standOver(const WorkbenchWindow& main);

    QWidget* first_field_ = this;
    std::optional<FormLengths> lengths_;
    bool follows_ = false;
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
