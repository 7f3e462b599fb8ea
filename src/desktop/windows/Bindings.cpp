#include "desktop/windows/Bindings.h"

#include "desktop/windows/FieldEdit.h"
#include "desktop/windows/PictureLabel.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <stdexcept>
#include <utility>

namespace etiquetas {

void WindowBinder::add(const QString& name, TextField& field, FieldEvents on) {
    addCaptioned<FieldEdit>(name, field, std::move(on));
}

void WindowBinder::add(const QString& name, ListField& field, FieldEvents on) {
    addCaptioned<QComboBox>(name, field, std::move(on));
}

void WindowBinder::add(const QString& name, Label& field, FieldEvents on) {
    addPlain<QLabel>(name, field, std::move(on));
}

void WindowBinder::add(const QString& name, PictureField& field, FieldEvents on) {
    addPlain<PictureLabel>(name, field, std::move(on));
}

void WindowBinder::add(const QString& name, Panel& field, FieldEvents on) {
    addPlain<QGroupBox>(name, field, std::move(on));
}

void WindowBinder::add(const QString& name, Command& field, FieldEvents on) {
    addPlain<QPushButton>(name, field, std::move(on));
}

std::vector<FieldRow> WindowBinder::takeRows() {
    if (!missing_.isEmpty()) {
        const QString fault = QStringLiteral("Faltam na janela %1: %2")
                                  .arg(window_.objectName(), missing_.join(QStringLiteral(", ")));
        throw std::logic_error(fault.toStdString());
    }
    return std::move(rows_);
}

template <typename Widget>
Widget* WindowBinder::find(const QString& name, bool needed) {
    auto* const found = window_.findChild<Widget*>(name);
    if (found == nullptr && needed) {
        missing_.append(QLatin1String(Widget::staticMetaObject.className()) + u' ' + name);
    }
    return found;
}

template <typename Widget, typename Field>
void WindowBinder::addCaptioned(const QString& name, Field& field, FieldEvents&& on) {
    auto* const widget = find<Widget>(name);
    auto* const caption = find<QLabel>(name + QStringLiteral("_caption"), !field.caption.empty());
    if (widget != nullptr) {
        take(mirrored(*widget, caption, field), std::move(on));
    }
}

template <typename Widget, typename Field>
void WindowBinder::addPlain(const QString& name, Field& field, FieldEvents&& on) {
    if (auto* const widget = find<Widget>(name)) {
        take(mirrored(*widget, field), std::move(on));
    }
}

void WindowBinder::take(FieldRow row, FieldEvents on) {
    row.on = std::move(on);
    rows_.push_back(std::move(row));
}

} // namespace etiquetas
