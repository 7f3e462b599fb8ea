#include "desktop/windows/WorkbenchWindow.h"

#include "desktop/windows/FocusRing.h"
#include "desktop/windows/KeysWindow.h"
#include "desktop/windows/StatusLine.h"
#include "ui_WorkbenchWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontInfo>
#include <QIcon>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QSizePolicy>
#include <QStatusBar>
#include <QWindow>

#include <utility>

// A linker leaves out what nothing names; the toolkit wants this one outside all namespaces.
static void nameIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace etiquetas {

namespace {

// What the desktop puts around a window: a title bar above it, thin edges elsewhere.
constexpr QSize desktop_frame(4, 40);

// The window keeps its shape when a field is hidden.
void keepRoom(QWidget& widget, bool keep) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(keep);
    widget.setSizePolicy(policy);
}

// A font is told in points or in pixels.
double pointsOf(const QFont& font) {
    return font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
}

QIcon programIcon() {
    nameIcons();
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        icon.addFile(QStringLiteral(":/icons/etiquetas-%1.png").arg(size));
    }
    return icon;
}

QSize roomOn(const QScreen& screen) {
    return screen.availableSize() - desktop_frame;
}

} // namespace

WorkbenchWindow::WorkbenchWindow() : status_(new StatusLine) {
    Ui::WorkbenchWindow form;
    form.setupUi(this);
    form.status->addWidget(status_, 1); // which owns it
    QApplication::setWindowIcon(programIcon());
    lengths_.emplace(*this);
    middle_ = form.middle;
    lumira_ = form.pctlogo2;
    brisako_ = form.pctlogo1;
    const QList<QWidget*> widgets = form.centre->findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        keepRoom(*widget, true);
    }
    // One of the two item panels shows, and takes all the room that the options leave.
    for (QWidget* const panel : {form.Frame1, form.Frame2, form.Frame3}) {
        keepRoom(*panel, false);
    }
    new FocusRing(*this);
    addKeys();
    connect(qApp, &QApplication::focusChanged, &focus_watch_,
            [this](QWidget* /*before*/, QWidget* now) { showFocused(now); });
    // Not where the label kind is: leaving that would load the last order before another is typed.
    form.txtarquivo->setFocus();
}

void WorkbenchWindow::addKeys() {
    auto* const keys = new KeysWindow(*this);
    auto* const help = new QShortcut(Qt::Key_F1, this);
    help->setContext(Qt::ApplicationShortcut);
    connect(help, &QShortcut::activated, keys, &KeysWindow::open);
    const auto* const folder = new QShortcut(Qt::Key_F5, this);
    connect(folder, &QShortcut::activated, this, [this] { show_folder_(); });
    const auto* const findings = new QShortcut(Qt::Key_F6, this);
    connect(findings, &QShortcut::activated, this, [this] { show_findings_(); });
}

void WorkbenchWindow::showSize(TwipSize size) {
    if (size != size_) {
        size_ = size;
        applyUnit();
    }
}

void WorkbenchWindow::applyUnit() {
    if (size_.width <= 0 || size_.height <= 0) {
        return;
    }
    const QFont font = QApplication::font();
    const QSize room = roomOn(*screen());
    unit_ = WindowUnit(pointsOf(font), logicalDpiY(), size_, room);
    lengths_->show(unit_, font);
    setFixedSize(unit_.pixels(size_).boundedTo(room));
    emit unitChanged();
}

// The screen that the window stands on may change, and so may that screen.
void WorkbenchWindow::followScreen() {
    for (const QMetaObject::Connection& watched : screen_watch_) {
        disconnect(watched);
    }
    screen_watch_ = {
        connect(screen(), &QScreen::availableGeometryChanged, this, [this] { applyUnit(); }),
        connect(screen(), &QScreen::logicalDotsPerInchChanged, this, [this] { applyUnit(); })};
    applyUnit();
}

void WorkbenchWindow::showFocused(QWidget* widget) {
    constexpr int sight_of_caption = 30; // pixels at the reference font
    if (widget != nullptr && middle_->isAncestorOf(widget)) {
        middle_->ensureWidgetVisible(widget, 0, unit_.pixels(sight_of_caption));
    }
}

void WorkbenchWindow::showBanner(std::optional<bool> is_lumira) {
    using enum PictureLabel::Standing;
    const auto standing = [&](bool current) {
        return is_lumira ? (current ? marked : faded) : alone;
    };
    lumira_->setStanding(standing(is_lumira == true));
    brisako_->setStanding(standing(is_lumira == false));
}

void WorkbenchWindow::markSizes(bool not_loaded) {
    if (std::exchange(is_not_loaded_, not_loaded) == not_loaded) {
        return;
    }
    static const QRegularExpression sizes(QStringLiteral("^(Label7|txtnumero)_\\d+$"));
    for (QWidget* const widget : findChildren<QWidget*>(sizes)) {
        QFont font = widget->font();
        font.setStrikeOut(not_loaded);
        widget->setFont(font);
    }
}

bool WorkbenchWindow::event(QEvent* event) {
    const bool taken = QMainWindow::event(event);
    if (event->type() == QEvent::ApplicationFontChange) {
        applyUnit();
    }
    return taken;
}

void WorkbenchWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(closed_());
}

void WorkbenchWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    resized_();
}

void WorkbenchWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    connect(windowHandle(), &QWindow::screenChanged, this, &WorkbenchWindow::followScreen,
            Qt::UniqueConnection);
    followScreen();
}

} // namespace etiquetas
