#pragma once

#include <QComboBox>

namespace etiquetas {

/// A list on paper that takes typed text too. Entries that are too long for it show their beginning
/// and "…", and the whole in a tool tip.
class FieldList final : public QComboBox {
    Q_OBJECT

  public:
    explicit FieldList(QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;

  private:
    void applyPaper();
};

} // namespace etiquetas
