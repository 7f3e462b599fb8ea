#pragma once

#include <QFocusFrame>

namespace etiquetas {

/// A ring around the widget of a window that has the focus, plain in every desktop theme.
class FocusRing final : public QFocusFrame {
    Q_OBJECT

  public:
    explicit FocusRing(QWidget& window);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace etiquetas
