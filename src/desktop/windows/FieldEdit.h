#pragma once

#include <QColor>
#include <QLineEdit>

namespace etiquetas {

/// A field for typing on paper. While nobody edits it, a text that is too long for it shows its
/// beginning and "…", and the whole in a tool tip.
class FieldEdit final : public QLineEdit {
    Q_OBJECT

  public:
    explicit FieldEdit(QWidget* parent = nullptr);

    /// Lays paper of that colour under the text; a locked field takes the colours of the window.
    void showPaper(const QColor& paper, bool locked);
    /// True while the text is wider than the field.
    [[nodiscard]] bool isTooNarrow() const;
    /// A tool tip of a text that may hold anything, markup among it.
    [[nodiscard]] static QString tipOf(const QString& text);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void applyPaper();
    [[nodiscard]] QRect textRoom() const;
    [[nodiscard]] bool isBeingEdited() const;
    void paintBeginning();

    QColor paper_ = Qt::white;
    bool locked_ = false;
};

} // namespace etiquetas
