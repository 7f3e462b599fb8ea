#pragma once

#include <QDialog>
#include <QString>

#include <cstddef>
#include <memory>

namespace Ui {
class ProgressWindow;
}

namespace etiquetas {

/// Tells how far a long job has come. While it stands, no other window takes keys or clicks.
class ProgressWindow final : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProgressWindow)

  public:
    ProgressWindow();
    ~ProgressWindow() override;

    /// Shows the labels that are done, of how many where that is known (not 0), over a window if
    /// there is one, and lets the windows live for a moment. Before the first label it is the print
    /// system that is waited for. False once the operator has cancelled.
    [[nodiscard]] bool tell(const QWidget* over, std::size_t labels, std::size_t in_all,
                            bool can_cancel);
    /// Hides the window and forgets that it was cancelled.
    void rest();

    void reject() override;

  private:
    void openOver(const QWidget* over);

    std::unique_ptr<Ui::ProgressWindow> form_;
    bool is_cancelled_ = false;
};

} // namespace etiquetas
