#pragma once

#include <QDialog>

namespace etiquetas {

class WorkbenchWindow;

/// The help: the keys of the program, and beside them its manual. It leaves the main window usable.
class KeysWindow final : public QDialog {
    Q_OBJECT

  public:
    explicit KeysWindow(WorkbenchWindow& main);

    /// Shows the window, or brings it to the front.
    void open() override;

  private:
    WorkbenchWindow& main_;
};

} // namespace etiquetas
