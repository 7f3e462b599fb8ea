#pragma once

#include "desktop/windows/FormLengths.h"
#include "desktop/windows/WindowUnit.h"

#include <QMainWindow>
#include <QMetaObject>

#include <functional>
#include <optional>

class QScrollArea;

namespace etiquetas {

class PictureLabel;
class StatusLine;

/// The window of the Workbench: the widgets of its form, each named after its field. It knows
/// nothing of what the fields do.
///
/// It has one size, told in twips, in a unit that follows the desktop's font; where the screen is
/// too small even for the smallest readable texts, the panels in its middle scroll.
class WorkbenchWindow final : public QMainWindow {
    Q_OBJECT

  public:
    WorkbenchWindow();

    /// Gives the window its size, twips.
    void showSize(TwipSize size);
    /// The unit of this window and of the dialogs beside it.
    [[nodiscard]] const WindowUnit& unit() const { return unit_; }
    /// Marks the logo of one of the two banners, LUMIRA or the other one, and fades the other;
    /// nothing is marked where no banner is shown.
    void showBanner(std::optional<bool> is_lumira);
    /// The foot of the window.
    [[nodiscard]] StatusLine& status() { return *status_; }
    /// Marks the sizes, by striking them out, as those of another item than the list
    /// shows.
    void markSizes(bool not_loaded);
    /// What runs when the window is to be closed; tells whether it closes.
    void onClose(std::function<bool()> closed) { closed_ = std::move(closed); }
    /// What runs when the window gets another size.
    void onResize(std::function<void()> resized) { resized_ = std::move(resized); }
    /// What runs when the folder of the last labels is to be shown.
    void onShowFolder(std::function<void()> shown) { show_folder_ = std::move(shown); }
    /// What runs when the findings of the order are to be shown.
    void onShowFindings(std::function<void()> shown) { show_findings_ = std::move(shown); }

  signals:
    /// The font of the desktop or the screen has changed, and the unit with it.
    void unitChanged();

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void addKeys();
    void followScreen();
    void applyUnit();
    void showFocused(QWidget* widget);

    StatusLine* status_;
    TwipSize size_;
    WindowUnit unit_;
    std::optional<FormLengths> lengths_;
    QList<QMetaObject::Connection> screen_watch_;
    QScrollArea* middle_ = nullptr;
    PictureLabel* lumira_ = nullptr;
    PictureLabel* brisako_ = nullptr;
    bool is_not_loaded_ = false;
    std::function<bool()> closed_ = [] { return true; };
    std::function<void()> resized_ = [] {};
    std::function<void()> show_folder_ = [] {};
    std::function<void()> show_findings_ = [] {};
    QObject focus_watch_; // ends before the widgets, among which the focus moves as they end
};

} // namespace etiquetas
