#pragma once

#include <QMainWindow>

#include <functional>

namespace etiquetas {

class StatusLine;

/// The window of the Workbench: the widgets of its form, each named after its field. It knows
/// nothing of what the fields do.
class WorkbenchWindow final : public QMainWindow {
    Q_OBJECT

  public:
    WorkbenchWindow();

    /// The foot of the window.
    [[nodiscard]] StatusLine& status() { return *status_; }
    /// Marks the sizes, by their property "notLoaded", as those of another item than the list
    /// shows.
    void markSizes(bool not_loaded);
    /// What runs when the window is to be closed; tells whether it closes.
    void onClose(std::function<bool()> closed) { closed_ = std::move(closed); }
    /// What runs when the window gets another size.
    void onResize(std::function<void()> resized) { resized_ = std::move(resized); }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    StatusLine* status_;
    bool is_not_loaded_ = false;
    std::function<bool()> closed_ = [] { return true; };
    std::function<void()> resized_ = [] {};
};

} // namespace etiquetas
