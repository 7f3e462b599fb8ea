#pragma once

#include <QLabel>
#include <QString>
#include <QWidget>

namespace etiquetas {

// The widgets of a window bear the names of their fields.

/// The widget of that name; it must be there.
template <typename Widget>
[[nodiscard]] Widget& widgetNamed(const QString& name, const QWidget& window) {
    auto* const found = window.findChild<Widget*>(name);
    Q_ASSERT_X(found != nullptr, "widgetNamed", qPrintable(name));
    return *found;
}

/// The caption of a field; null where it has none.
[[nodiscard]] inline QLabel* captionOf(const QString& name, const QWidget& window) {
    return window.findChild<QLabel*>(name + QStringLiteral("_caption"));
}

} // namespace etiquetas
