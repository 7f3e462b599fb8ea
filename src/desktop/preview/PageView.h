#pragma once

#include "desktop/printing/LabelPage.h"

#include <QAbstractScrollArea>
#include <QImage>
#include <QPointF>
#include <QRectF>

#include <optional>

namespace etiquetas {

/// One page under rulers in millimetres, drawn as it is printed, or by the dots of a print head.
/// Ctrl and the wheel zoom at the pointer.
class PageView final : public QAbstractScrollArea {
    Q_OBJECT

  public:
    explicit PageView(QWidget* parent = nullptr);

    /// The page must stay where it is until another one is shown.
    void showPage(const LabelPage* page);
    /// Shows the dots of a head of this resolution, in dots to the inch; none for the drawing.
    void showDots(std::optional<int> resolution);

    /// Zooms so that the whole page is seen, at every size of the view.
    void fit();
    /// 1 is true size on this screen.
    void zoomTo(double factor);
    [[nodiscard]] double zoom() const;
    /// Where the page stands in the viewport, in its pixels; it may reach beyond.
    [[nodiscard]] QRectF pagePlace() const;

  signals:
    void zoomed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    [[nodiscard]] double trueScale() const;
    [[nodiscard]] double fittingScale() const;
    [[nodiscard]] QSizeF pageSize() const;
    void zoomAt(double factor, const QPointF& anchor);
    void layOut();
    void drawContent(QPainter& painter);
    void drawRulers(QPainter& painter) const;

    const LabelPage* page_ = nullptr;
    std::optional<int> resolution_;
    QImage dots_; // of the page, once they have been shown
    bool fits_ = true;
    double scale_ = 1; // pixels to the millimetre
};

} // namespace etiquetas
