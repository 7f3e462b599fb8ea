#pragma once

#include "desktop/windows/FieldMirror.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <variant>
#include <vector>

class QWidget;

namespace etiquetas {

// A widget bears the name of its field, and the label above a field that name and "_caption". The
// fields of an array bear their index: `txtnumero_0`. A table of bindings is the one place that
// knows a field, its name and its handlers.

/// What handles the events of a field. All handlers are told the same: the Workbench, and those of
/// a margin dialog that dialog too.
template <typename... Told>
struct Handlers {
    void (*enter)(Told&...) = nullptr;
    KeyCode (*key)(Told&..., KeyCode) = nullptr;
    void (*leave)(Told&...) = nullptr;
    void (*dblclick)(Told&...) = nullptr;
    void (*click)(Told&...) = nullptr;
    bool click_waits = false;
};

/// A member of a form, the name of its widget, and its handlers.
template <typename Form, typename... Told>
struct Binding {
    const char* name;
    std::variant<TextField Form::*, ListField Form::*, Label Form::*, PictureField Form::*,
                 Panel Form::*, Command Form::*>
        field;
    Handlers<Told...> on{};
};

/// The handlers as the events of one form.
template <typename... Told>
[[nodiscard]] FieldEvents eventsOf(const Handlers<Told...>& on, Told&... told) {
    const auto event = [&](void (*handler)(Told & ...)) -> std::function<void()> {
        if (handler == nullptr) {
            return {};
        }
        return [handler, &told...] { handler(told...); };
    };
    FieldEvents events{.enter = event(on.enter),
                       .key = {},
                       .leave = event(on.leave),
                       .dblclick = event(on.dblclick),
                       .click = event(on.click),
                       .click_waits = on.click_waits};
    if (on.key != nullptr) {
        events.key = [key = on.key, &told...](KeyCode code) { return key(told..., code); };
    }
    return events;
}

/// Binds the fields of one window to its widgets, which are found by their names.
class WindowBinder {
  public:
    /// The window, with all its widgets, and the fields must outlive the rows.
    explicit WindowBinder(const QWidget& window) : window_(window) {}

    /// Binds one field to the widget of that name. A text field or list that has a caption needs
    /// the label of its caption as well.
    void add(const QString& name, TextField& field, FieldEvents on = {});
    void add(const QString& name, ListField& field, FieldEvents on = {});
    void add(const QString& name, Label& field, FieldEvents on = {});
    void add(const QString& name, PictureField& field, FieldEvents on = {});
    void add(const QString& name, Panel& field, FieldEvents on = {});
    void add(const QString& name, Command& field, FieldEvents on = {});

    /// Binds each field of a table, a member of the form.
    template <typename Form, typename... Told, std::size_t count>
    void add(const Binding<Form, Told...> (&table)[count], Form& form, Told&... told) {
        for (const auto& binding : table) {
            std::visit(
                [&](auto field) {
                    add(QString::fromLatin1(binding.name), form.*field,
                        eventsOf(binding.on, told...));
                },
                binding.field);
        }
    }

    /// The rows of all fields. Throws a `std::logic_error` that names each widget that the window
    /// lacks or has as one of another type.
    [[nodiscard]] std::vector<FieldRow> takeRows();

  private:
    template <typename Widget>
    [[nodiscard]] Widget* find(const QString& name, bool needed = true);
    template <typename Widget, typename Field>
    void addCaptioned(const QString& name, Field& field, FieldEvents&& on);
    template <typename Widget, typename Field>
    void addPlain(const QString& name, Field& field, FieldEvents&& on);
    void take(FieldRow row, FieldEvents on);

    const QWidget& window_;
    std::vector<FieldRow> rows_;
    QStringList missing_;
};

} // namespace etiquetas
