#pragma once

#include <QDialog>

namespace etiquetas {

class WorkbenchWindow;

/// A small window that tells the keys of the program. It leaves the main window usable.
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
