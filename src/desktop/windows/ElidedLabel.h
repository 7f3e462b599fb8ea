#pragma once

#include <QLabel>

namespace etiquetas {

/// A label of plain text that leaves out the middle of a text that is wider than it is; the tool
/// tip tells it whole.
class ElidedLabel final : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

    void setText(const QString& text);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace etiquetas
