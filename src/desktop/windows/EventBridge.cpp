#include "desktop/windows/EventBridge.h"

#include "base/Failure.h"
#include "desktop/machine/QtText.h"
#include "desktop/windows/QtFocus.h"

#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QShortcutEvent>

#include <limits>

namespace etiquetas {

namespace {

// The toolkit would cut a text at 32,767 characters, and the fields would take the cut one.
constexpr int any_length = std::numeric_limits<int>::max();

// Key code of the keys that walk through the fields, 0 for any other.
KeyCode walkingKey(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return key::enter;
    case Qt::Key_Up:
        return key::arrow_up;
    case Qt::Key_Down:
        return key::arrow_down;
    default:
        return key::none;
    }
}

// True for Alt and a letter, which presses a command; where the command is hidden, the letter must
// not be written. AltGr, which writes third characters, arrives as Ctrl and Alt.
bool isMnemonic(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & (Qt::AltModifier | Qt::ControlModifier);
    return modifiers == Qt::AltModifier && !event.text().isEmpty() &&
           event.text().front().isPrint();
}

// True for a key that is held down on a command: that presses it only once, one item, one job.
bool repeatsCommand(const FieldRow& row, const QKeyEvent& event) {
    return row.on.click && event.isAutoRepeat() &&
           (walkingKey(event) == key::enter || event.key() == Qt::Key_Space);
}

// Character of a key, 0 when it writes none. The toolkit gives a text even to keys that only move
// or delete.
KeyCode characterOf(const QKeyEvent& event) {
    if (walkingKey(event) == key::enter) {
        return key::enter;
    }
    const bool writes = event.key() != Qt::Key_Tab && event.key() != Qt::Key_Backtab &&
                        event.key() != Qt::Key_Delete;
    if (!writes) {
        return key::none;
    }
    return event.text().size() == 1 ? event.text().front().unicode() : key::none;
}

// True for what an operator does: keys, composed texts, the mouse and mnemonics.
bool isOfOperator(const QEvent& event) {
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
        return true;
    default:
        return false;
    }
}

// A click on a label also reaches the panel around it, but is no click on the panel.
bool isOn(const QWidget& widget, const QMouseEvent& event) {
    return widget.childAt(event.position().toPoint()) == nullptr;
}

// A list's text is edited by a widget inside it.
const QObject* ownerOf(const QObject* widget) {
    const bool inside_list =
        widget != nullptr && qobject_cast<const QComboBox*>(widget->parent()) != nullptr;
    return inside_list ? widget->parent() : widget;
}

} // namespace

EventBridge::EventBridge(QtFocus& focus, Failed failed)
    : focus_(focus), failed_(std::move(failed)) {
    // Late, when the toolkit has finished its own change of focus: a handler may show a message
    // box.
    connect(
        qApp, &QApplication::focusChanged, this, [this] { asHappening([this] { settleFocus(); }); },
        Qt::QueuedConnection);
    afterwards_timer_.setSingleShot(true);
    connect(&afterwards_timer_, &QTimer::timeout, this, [this] { runKept(); });
}

// What one happening brings about is part of it.
void EventBridge::asHappening(const std::function<void()>& deed) {
    if (!happening_) {
        happening_begun_();
    }
    const QScopedValueRollback<bool> guard(happening_, true);
    deed();
}

void EventBridge::add(BridgedWindow window) {
    windows_.push_back(std::move(window));
    for (FieldRow& row : windows_.back().rows) {
        watch(row);
    }
    for (const WindowKey& key : windows_.back().keys) {
        watch(key, *windows_.back().window);
    }
    pushAll();
}

void EventBridge::watch(FieldRow& row) {
    row.widget->installEventFilter(this);
    if (auto* const edit = qobject_cast<QLineEdit*>(row.widget)) {
        edit->setMaxLength(any_length);
    }
    if (auto* const list = qobject_cast<QComboBox*>(row.widget)) {
        list->lineEdit()->installEventFilter(this);
        list->lineEdit()->setMaxLength(any_length);
        // A typed text is no chosen entry, not even one that an entry equals.
        disconnect(list->lineEdit(), &QLineEdit::editingFinished, list, nullptr);
        connect(list->lineEdit(), &QLineEdit::textEdited, list, [list](const QString& typed) {
            const int caret = list->lineEdit()->cursorPosition();
            list->setCurrentIndex(-1);
            list->setEditText(typed);
            list->lineEdit()->setCursorPosition(caret);
        });
    }
    if (auto* const button = qobject_cast<QPushButton*>(row.widget)) {
        connect(button, &QPushButton::clicked, this,
                [this, &row] { asHappening([&] { press(row); }); });
    }
}

void EventBridge::watch(const WindowKey& key, QWidget& window) {
    auto* const shortcut = new QShortcut(key.key, &window);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, [this, &key] {
        settleFocus();
        run(key.run);
    });
}

void EventBridge::run(const std::function<void()>& handler) {
    if (stopped_ || running_) {
        return;
    }
    asHappening([&] { runAlone(handler); });
    if (afterwards_) {
        // The event that the handler belongs to comes to its end first.
        afterwards_timer_.start();
    }
}

void EventBridge::runKept() {
    if (const auto deed = std::exchange(afterwards_, {})) {
        deed();
    }
}

void EventBridge::runAlone(const std::function<void()>& handler) {
    const QScopedValueRollback<bool> guard(running_, true);
    pullAll();
    try {
        handler();
    } catch (const Failure& failure) {
        stop();
        failed_(toQString(failure.description()));
        return;
    } catch (const std::exception& fault) {
        stop();
        failed_(QStringLiteral("Erro interno: %1").arg(QString::fromUtf8(fault.what())));
        return;
    }
    pushAll();
    ended_();
}

void EventBridge::pullAll() {
    for (const BridgedWindow& window : windows_) {
        for (const FieldRow& row : window.rows) {
            if (row.pull) {
                row.pull();
            }
        }
    }
}

void EventBridge::pushAll() {
    for (const BridgedWindow& window : windows_) {
        for (const FieldRow& row : window.rows) {
            row.push();
        }
        window.push();
    }
}

EventBridge::Place EventBridge::placeOf(const QObject* widget) {
    const QObject* const owner = ownerOf(widget);
    for (BridgedWindow& window : windows_) {
        for (FieldRow& row : window.rows) {
            if (row.widget == owner) {
                return {&window, &row};
            }
        }
    }
    return {};
}

QWidget& EventBridge::activeWindow() {
    for (BridgedWindow& window : windows_) {
        if (window.window->isActiveWindow()) {
            current_ = &window;
        }
    }
    if (current_ == nullptr || current_->window->isHidden()) {
        current_ = &windows_.front();
    }
    return *current_->window;
}

QWidget* EventBridge::focusedWidget() {
    return activeWindow().focusWidget();
}

void EventBridge::giveFocusTo(const TextField& field) {
    for (const BridgedWindow& window : windows_) {
        for (const FieldRow& row : window.rows) {
            if (row.text_field == &field) {
                row.widget->setFocus();
            }
        }
    }
}

bool EventBridge::eventFilter(QObject* watched, QEvent* event) {
    const Place place = delivering_ || stopped_ ? Place{} : placeOf(watched);
    if (place.row == nullptr) {
        return false;
    }
    if (running_) {
        return isOfOperator(*event);
    }
    bool taken = false;
    asHappening([&] { taken = handleEvent(place, *watched, *event); });
    return taken;
}

// True when the widget must not see the event any more.
bool EventBridge::handleEvent(const Place& place, const QObject& watched, QEvent& event) {
    FieldRow* const row = place.row;
    switch (event.type()) {
    case QEvent::KeyPress:
        settleFocus();
        return handleKey(place, static_cast<QKeyEvent&>(event));
    case QEvent::Shortcut:
        // At once: the toolkit would press the command a tenth of a second later, and a key that
        // comes meanwhile would overtake it.
        if (!row->on.click || static_cast<QShortcutEvent&>(event).isAmbiguous()) {
            return false;
        }
        press(*row);
        return true;
    case QEvent::MouseButtonPress:
        // The arrow of a list opens it with what leaving the field before has loaded, unless that
        // hides the list. Elsewhere the entering event comes after the click, and what it selects
        // stays selected.
        if (qobject_cast<const QComboBox*>(&watched) != nullptr) {
            settleFocus();
        }
        return row->widget->isHidden();
    case QEvent::InputMethod:
        settleFocus();
        return handleComposed(*row, static_cast<QInputMethodEvent&>(event));
    case QEvent::MouseButtonDblClick:
        if (row->on.dblclick && isOn(*row->widget, static_cast<QMouseEvent&>(event))) {
            settleFocus();
            run(row->on.dblclick);
        }
        return false;
    case QEvent::Wheel:
        // The wheel turns only a list that has the focus, else the panels around it.
        event.setAccepted(row->widget->hasFocus());
        return !row->widget->hasFocus();
    default:
        return false;
    }
}

// The field that had the focus gets its leaving event, the one that has it its entering event. A
// handler that moves the focus makes for one more round.
void EventBridge::settleFocus() {
    while (!running_ && !stopped_) {
        FieldRow* const focused = placeOf(focusedWidget()).row;
        if (focused == active_) {
            return;
        }
        FieldRow* const left = std::exchange(active_, focused);
        if (left != nullptr && left->on.leave) {
            run(left->on.leave);
        }
        if (active_ != nullptr && active_->on.enter) {
            run(active_->on.enter);
        }
    }
}

void EventBridge::moveFocus() {
    if (const TextField* const target = focus_.takeTarget()) {
        giveFocusTo(*target);
    }
    const int steps = focus_.takeSteps();
    for (int i = 0; i < std::abs(steps); ++i) {
        QKeyEvent tab(QEvent::KeyPress, steps > 0 ? Qt::Key_Tab : Qt::Key_Backtab,
                      steps > 0 ? Qt::NoModifier : Qt::ShiftModifier);
        if (QWidget* const focused = focusedWidget()) {
            deliver(*focused, tab);
        }
    }
    settleFocus();
}

// However a command was pressed, it takes the focus first, so that the field that the operator was
// in gets its leaving event before. That event may hide the command.
void EventBridge::press(FieldRow& row) {
    if (running_) {
        if (row.on.click_waits) {
            doAfterwards([this, &row] { press(row); });
        }
        return;
    }
    row.widget->setFocus();
    settleFocus();
    if (!row.widget->isHidden()) {
        run(row.on.click);
        moveFocus();
    }
}

bool EventBridge::handleKey(const Place& place, const QKeyEvent& event) {
    if (isMnemonic(event) || repeatsCommand(*place.row, event)) {
        return true;
    }
    const bool walked = handleWindowKey(place, event);
    const bool swallowed = handleCharacter(*place.row, event);
    moveFocus();
    return walked || swallowed;
}

// True when the key walked to another field. Enter on a command presses it instead, and the focus
// stays, so that one more Enter prints the next item. A list whose arrow keys walk through its
// entries keeps the window from looking; Alt and an arrow key open any list.
bool EventBridge::handleWindowKey(const Place& place, const QKeyEvent& event) {
    const KeyCode code = walkingKey(event);
    const bool presses = code == key::enter && place.row->on.click;
    const bool opens_list = event.modifiers().testFlag(Qt::AltModifier) &&
                            qobject_cast<const QComboBox*>(place.row->widget) != nullptr;
    if (code == key::none || presses || opens_list || !place.window->keydown) {
        return false;
    }
    bool taken = false;
    run([&] { taken = place.window->keydown(code); });
    return taken;
}

// True when the widget must not see the key any more.
bool EventBridge::handleCharacter(FieldRow& row, const QKeyEvent& event) {
    const KeyCode typed = characterOf(event);
    if (!row.on.key || typed == key::none) {
        return false;
    }
    const KeyCode key = filtered(row, typed);
    if (key == typed) {
        return typed == key::enter; // the handler has done all that Enter does
    }
    if (key != key::none) {
        QKeyEvent changed(event.type(), event.key(), event.modifiers(), QString(QChar(key)));
        deliver(*row.widget, changed);
    }
    return true;
}

// An accent and its letter, or another composed text, comes in one piece: each character of it
// passes as a key of its own.
bool EventBridge::handleComposed(FieldRow& row, const QInputMethodEvent& event) {
    if (!row.on.key || event.commitString().isEmpty()) {
        return false;
    }
    QString passed;
    for (const QChar character : event.commitString()) {
        const KeyCode key = filtered(row, character.unicode());
        if (key != key::none) {
            passed.append(QChar(key));
        }
    }
    QInputMethodEvent changed;
    changed.setCommitString(passed, event.replacementStart(), event.replacementLength());
    deliver(*row.widget, changed);
    return true;
}

KeyCode EventBridge::filtered(FieldRow& row, KeyCode key) {
    KeyCode result = key;
    run([&] { result = row.on.key(key); });
    return result;
}

void EventBridge::deliver(QWidget& widget, QEvent& event) {
    const QScopedValueRollback<bool> guard(delivering_, true);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace etiquetas
