#pragma once

#include <QTextBrowser>

namespace etiquetas {

/// The operator's manual, which is a part of the program. It is read when it is first shown; the
/// links at its beginning turn to its chapters.
class ManualView final : public QTextBrowser {
    Q_OBJECT

  public:
    explicit ManualView(QWidget* parent = nullptr);

    /// Shows the manual in a window of its own.
    void openAlone();
    /// Turns to the heading that a link names: in lower case, its words joined by "-", without
    /// other marks. False where there is none.
    bool turnTo(const QString& link);

    /// Of the pictures, each as wide as the window shows it at most.
    QVariant loadResource(int type, const QUrl& name) override;

  protected:
    void showEvent(QShowEvent* event) override;
};

} // namespace etiquetas
