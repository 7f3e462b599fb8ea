#pragma once

#include <QMainWindow>

#include <functional>

namespace etiquetas {

/// The window of the Workbench: the widgets of its form, each named after its field. It knows
/// nothing of what the fields do.
class WorkbenchWindow final : public QMainWindow {
    Q_OBJECT

  public:
    WorkbenchWindow();

    /// Shows a line at the foot of the window until the next one; the tool tip tells more.
    void tell(const QString& status, const QString& tooltip);
    /// What runs when the window is to be closed; tells whether it closes.
    void onClose(std::function<bool()> closed) { closed_ = std::move(closed); }
    /// What runs when the window gets another size.
    void onResize(std::function<void()> resized) { resized_ = std::move(resized); }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    std::function<bool()> closed_ = [] { return true; };
    std::function<void()> resized_ = [] {};
};

} // namespace etiquetas
