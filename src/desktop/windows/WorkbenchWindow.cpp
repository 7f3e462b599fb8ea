#include "desktop/windows/WorkbenchWindow.h"

#include "desktop/windows/StatusLine.h"
#include "ui_WorkbenchWindow.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFont>
#include <QRegularExpression>
#include <QSizePolicy>
#include <QStatusBar>
#include <QStyle>
#include <QVariant>

#include <utility>

namespace etiquetas {

namespace {

// The size of a font stands in the form as a factor of the font that the machine gives its windows.
void scaleFont(QWidget& widget) {
    const QVariant scale = widget.property("fontScale");
    if (scale.isValid()) {
        QFont font = widget.font();
        font.setPointSizeF(font.pointSizeF() * scale.toDouble());
        widget.setFont(font);
    }
}

// The window keeps its shape when a field is hidden.
void keepRoom(QWidget& widget, bool keep) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(keep);
    widget.setSizePolicy(policy);
}

} // namespace

WorkbenchWindow::WorkbenchWindow() : status_(new StatusLine) {
    Ui::WorkbenchWindow form;
    form.setupUi(this);
    form.status->addWidget(status_, 1); // which owns it
    const QList<QWidget*> widgets = form.centre->findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        scaleFont(*widget);
        keepRoom(*widget, true);
    }
    // One of the two item panels shows, and takes all the room.
    keepRoom(*form.Frame1, false);
    keepRoom(*form.Frame3, false);
    const QList<QComboBox*> lists = findChildren<QComboBox*>();
    for (QComboBox* const list : lists) {
        list->setCompleter(nullptr);
    }
    // Not where the label kind is: leaving that would load the last order before another is typed.
    form.txtarquivo->setFocus();
}

void WorkbenchWindow::markSizes(bool not_loaded) {
    if (std::exchange(is_not_loaded_, not_loaded) == not_loaded) {
        return;
    }
    static const QRegularExpression sizes(QStringLiteral("^(Label7|txtnumero)_\\d+$"));
    for (QWidget* const widget : findChildren<QWidget*>(sizes)) {
        widget->setProperty("notLoaded", not_loaded);
        widget->style()->unpolish(widget);
        widget->style()->polish(widget);
    }
}

void WorkbenchWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(closed_());
}

void WorkbenchWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    resized_();
}

} // namespace etiquetas
