#pragma once

#include "desktop/windows/FieldMirror.h"
#include "platform/Keys.h"

#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>
#include <vector>

class QInputMethodEvent;
class QKeyEvent;
class QWidget;

namespace etiquetas {

class QtFocus;

/// A key that runs an event of a window, whatever field has the focus.
struct WindowKey {
    Qt::Key key = Qt::Key_unknown;
    std::function<void()> run;
};

/// A window of the program, and what it has to do with the fields.
struct BridgedWindow {
    QWidget* window = nullptr;
    std::vector<FieldRow> rows;
    /// Shows what the window as a whole tells of the fields: its title, whether it is open.
    std::function<void()> push;
    /// The window's look at a key that walks through the fields; tells whether it took the key.
    /// Empty where it takes none.
    std::function<bool(KeyCode)> keydown;
    std::vector<WindowKey> keys{};
};

/// Turns what happens to the widgets of the windows into the events of their fields.
///
/// Before a handler runs, the fields take what the operator typed; after it, the windows show what
/// they hold. A change of focus becomes one leaving and one entering event, which run before the
/// next key or command and never twice, whatever message box a leaving event shows.
///
/// One event at a time: a handler that shows a message box lets the toolkit go on, and what comes
/// meanwhile by key, mouse or timer is dropped, in all windows. Only what ends the program waits.
class EventBridge final : public QObject {
    Q_OBJECT

  public:
    /// What is told of a failure that no handler caught; the bridge runs nothing more after it.
    using Failed = std::function<void(const QString& description)>;

    /// `focus` must outlive the bridge.
    EventBridge(QtFocus& focus, Failed failed);

    /// What is called as each happening begins: a key or a click with all the events that it makes,
    /// a change of focus, a handler that is run by itself.
    void onHappening(std::function<void()> begun) { happening_begun_ = std::move(begun); }
    /// What is told when an event has ended and the windows show what it left.
    void onEventEnded(std::function<void()> told) { ended_ = std::move(told); }

    /// Takes a window over, the main window first. It must outlive the bridge.
    void add(BridgedWindow window);

    /// Runs a handler as an event of the program; while another one runs it is dropped.
    void run(const std::function<void()>& handler);
    /// True while a handler runs, be it that a message box of it waits for its answer.
    [[nodiscard]] bool isRunning() const { return running_; }
    /// Keeps a deed until the handler that runs has ended; the last one kept counts.
    void doAfterwards(std::function<void()> deed) { afterwards_ = std::move(deed); }
    /// Shows what the fields hold.
    void pushAll();
    /// The window that is active, or was so last: another program's window and a message box don't
    /// count.
    [[nodiscard]] QWidget& activeWindow();
    /// No event runs any more.
    void stop() { stopped_ = true; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // A row and the window it stands in; both null for a widget that shows no field.
    struct Place {
        BridgedWindow* window = nullptr;
        FieldRow* row = nullptr;
    };

    void asHappening(const std::function<void()>& deed);
    void watch(FieldRow& row);
    void watch(const WindowKey& key, QWidget& window);
    void pullAll();
    void runAlone(const std::function<void()>& handler);
    void runKept();
    [[nodiscard]] Place placeOf(const QObject* widget);
    [[nodiscard]] QWidget* focusedWidget();
    void giveFocusTo(const TextField& field);

    bool handleEvent(const Place& place, const QObject& watched, QEvent& event);
    void settleFocus();
    void moveFocus();
    void press(FieldRow& row);
    bool handleKey(const Place& place, const QKeyEvent& event);
    bool handleWindowKey(const Place& place, const QKeyEvent& event);
    bool handleCharacter(FieldRow& row, const QKeyEvent& event);
    bool handleComposed(FieldRow& row, const QInputMethodEvent& event);
    [[nodiscard]] KeyCode filtered(FieldRow& row, KeyCode key);
    void deliver(QWidget& widget, QEvent& event);

    QtFocus& focus_;
    Failed failed_;
    std::function<void()> happening_begun_ = [] {};
    bool happening_ = false;
    std::function<void()> ended_ = [] {};
    std::deque<BridgedWindow> windows_; // which stay where they are
    BridgedWindow* current_ = nullptr;  // the one that was active last
    FieldRow* active_ = nullptr;        // the field that has had its entering event
    std::function<void()> afterwards_;  // what waits for the handler that runs
    QTimer afterwards_timer_;
    bool running_ = false;
    bool delivering_ = false;
    bool stopped_ = false;
};

} // namespace etiquetas
