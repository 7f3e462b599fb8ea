#pragma once

#include "desktop/FieldMirror.h"
#include "platform/Keys.h"

#include <QObject>

#include <functional>
#include <vector>

class QInputMethodEvent;
class QKeyEvent;
class QWidget;

namespace etiquetas {

struct FrmPadrao;
class QtFocus;

/// Turns what happens to the window's widgets into the events of the Workbench's fields.
///
/// Before a handler runs, the fields take what the operator typed; after it, the window shows what
/// they hold. A change of focus becomes one leaving and one entering event, which run before the
/// next key or command and never twice, whatever message box a leaving event shows.
class EventBridge final : public QObject {
    Q_OBJECT

  public:
    /// What is told of a failure that no handler caught; the bridge runs nothing more after it.
    using Failed = std::function<void(const QString& description)>;

    /// All must outlive the bridge.
    EventBridge(FrmPadrao& form, QWidget& window, QtFocus& focus, Failed failed);

    /// Runs a handler as an event of the window.
    void run(const std::function<void()>& handler);
    /// Shows what the fields hold.
    void pushAll();
    /// No event runs any more.
    void stop() { stopped_ = true; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void watch(FieldRow& row);
    void pullAll();
    void pushWindow();
    [[nodiscard]] FieldRow* rowOf(const QObject* widget);

    void settleFocus();
    void moveFocus();
    void press(FieldRow& row);
    bool handleKey(FieldRow& row, const QKeyEvent& event);
    bool handleWindowKey(const FieldRow& row, const QKeyEvent& event);
    bool handleCharacter(FieldRow& row, const QKeyEvent& event);
    bool handleComposed(FieldRow& row, const QInputMethodEvent& event);
    [[nodiscard]] KeyCode filtered(FieldRow& row, KeyCode key);
    void deliver(QWidget& widget, QEvent& event);

    FrmPadrao& form_;
    QWidget& window_;
    QtFocus& focus_;
    Failed failed_;
    std::vector<FieldRow> rows_;
    FieldRow* active_ = nullptr; // the field that has had its entering event
    bool running_ = false;
    bool delivering_ = false;
    bool stopped_ = false;
};

} // namespace etiquetas
