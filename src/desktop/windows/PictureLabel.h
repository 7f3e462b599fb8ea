#pragma once

#include <QLabel>

namespace etiquetas {

/// Shows a picture as large as it fits, in its proportion and sharp on a screen of any scale.
class PictureLabel final : public QLabel {
    Q_OBJECT

  public:
    /// How a picture stands among others: on its own, as the one that counts, or as one that does
    /// not count just now.
    enum class Standing { alone, marked, faded };

    using QLabel::QLabel;

    void setStanding(Standing standing);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintPaper(QPainter& painter) const;
    void paintPicture(QPainter& painter) const;

    Standing standing_ = Standing::alone;
};

} // namespace etiquetas
