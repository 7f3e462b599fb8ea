#include "desktop/windows/ProgressWindow.h"

#include "ui_ProgressWindow.h"

#include <QCoreApplication>
#include <QLocale>
#include <QWindow>

namespace etiquetas {

using namespace Qt::StringLiterals;

ProgressWindow::ProgressWindow() : form_(std::make_unique<Ui::ProgressWindow>()) {
    form_->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    setCursor(Qt::BusyCursor);
    connect(form_->cancel, &QPushButton::clicked, this, &ProgressWindow::reject);
}

ProgressWindow::~ProgressWindow() = default;

bool ProgressWindow::tell(const QWidget* over, std::size_t labels, std::size_t in_all,
                          bool can_cancel) {
    const QLocale brazil(QLocale::Portuguese, QLocale::Brazil);
    const QString done = brazil.toString(static_cast<qulonglong>(labels));
    const QString all = brazil.toString(static_cast<qulonglong>(in_all));
    form_->progress_text->setText(in_all > 0   ? u"%1 de %2 etiquetas"_s.arg(done, all)
                                  : labels > 0 ? u"%1 etiquetas desenhadas"_s.arg(done)
                                               : u"Aguardando o sistema de impressão…"_s);
    // A bar without an end moves to and fro.
    form_->progress_bar->setMaximum(static_cast<int>(in_all));
    form_->progress_bar->setValue(static_cast<int>(labels));
    form_->cancel->setEnabled(can_cancel);
    openOver(over);
    QCoreApplication::processEvents();
    return !is_cancelled_;
}

void ProgressWindow::openOver(const QWidget* over) {
    if (!isHidden()) {
        return;
    }
    adjustSize();
    if (over != nullptr) {
        winId(); // makes the window that is to know the one below it
        windowHandle()->setTransientParent(over->windowHandle());
        move(over->frameGeometry().center() - rect().center());
    }
    show();
}

void ProgressWindow::rest() {
    hide();
    is_cancelled_ = false;
}

// By the button, Esc or the close box; the job then ends at its next step.
void ProgressWindow::reject() {
    is_cancelled_ = form_->cancel->isEnabled();
}

} // namespace etiquetas
