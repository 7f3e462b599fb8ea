// The windows on desktops of many kinds. CTest runs these tests once for each scale of the screens
// in screens.json, which a program takes only at its start.

#include "SmallOrderTest.h"
#include "desktop/windows/FieldEdit.h"
#include "desktop/windows/FocusRing.h"
#include "desktop/windows/PictureLabel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace etiquetas::test {

namespace {

double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

// Contrast of two colours as WCAG 2.1 defines it, 1 to 21.
double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

// The contrast of what stands out most in a picture to its most common colour.
double contrastIn(const QImage& picture) {
    QHash<QRgb, int> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++colours[picture.pixel(x, y)];
        }
    }
    const QColor paper = std::max_element(colours.cbegin(), colours.cend()).key();
    double best = 1;
    for (const QRgb colour : colours.keys()) {
        best = std::max(best, contrast(colour, paper));
    }
    return best;
}

QPalette darkPalette() {
    QPalette palette(QColor(50, 50, 53), QColor(37, 37, 38));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    return palette;
}

QString textOf(const QWidget& widget) {
    return widget.property(widget.inherits("QComboBox") ? "currentText" : "text").toString();
}

std::string nameOf(const QWidget& widget) {
    return widget.objectName().toStdString() + " \"" + textOf(widget).toStdString() + '"';
}

// The widgets that the form of a window tells and that show.
std::vector<QWidget*> shownWidgets(const QWidget& window) {
    std::vector<QWidget*> shown;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const bool of_form =
            !widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_"_s);
        if (of_form && widget->isVisible() && widget->window() == &window) {
            shown.push_back(widget);
        }
    }
    return shown;
}

void expectRoomForText(const QWidget& widget) {
    const QSize wanted = widget.sizeHint();
    if (const auto* const edit = qobject_cast<const FieldEdit*>(&widget)) {
        const bool may_be_long = edit->alignment().testFlag(Qt::AlignLeft);
        EXPECT_TRUE(may_be_long || !edit->isTooNarrow()) << nameOf(widget);
        EXPECT_GE(widget.height(), wanted.height()) << nameOf(widget);
    } else if (widget.inherits("QComboBox")) {
        EXPECT_GE(widget.height(), wanted.height()) << nameOf(widget);
    } else if (widget.inherits("etiquetas::ElidedLabel")) {
        EXPECT_GE(widget.height(), QFontMetrics(widget.font()).height()) << nameOf(widget);
    } else if (widget.inherits("QPushButton") ||
               (widget.inherits("QLabel") && !widget.inherits("etiquetas::PictureLabel"))) {
        EXPECT_GE(widget.width(), wanted.width()) << nameOf(widget);
        EXPECT_GE(widget.height(), wanted.height()) << nameOf(widget);
    }
}

void expectOwnPlace(const QWidget& widget) {
    const QWidget& parent = *widget.parentWidget();
    if (parent.objectName() != u"qt_scrollarea_viewport"_s) {
        EXPECT_TRUE(parent.rect().contains(widget.geometry())) << nameOf(widget);
    }
    for (const QWidget* const other : parent.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const bool apart = other == &widget || !other->isVisible() || other->isWindow() ||
                           qobject_cast<const FocusRing*>(other) != nullptr ||
                           !other->geometry().intersects(widget.geometry());
        EXPECT_TRUE(apart) << nameOf(widget) << " overlaps " << nameOf(*other);
    }
}

void expectContrast(QWidget& widget) {
    if (!textOf(widget).trimmed().isEmpty()) {
        EXPECT_GE(contrastIn(widget.grab().toImage()), 4.5) << nameOf(widget);
    }
}

void expectReadable(QWidget& window) {
    const QRect screen = window.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(window.frameGeometry()));
    for (QWidget* const widget : shownWidgets(window)) {
        expectRoomForText(*widget);
        expectOwnPlace(*widget);
        expectContrast(*widget);
    }
}

// Face, points, and whether the desktop is dark.
using Look = std::tuple<const char*, int, bool>;

class GeometryTest : public SmallOrderTest, public testing::WithParamInterface<Look> {
  protected:
    GeometryTest() {
        QByteArray lines = "LUMIRA;PEDIDO 77\r\n";
        for (int size = 0; size < 14; ++size) { // of which the hidden labels take five digits
            lines += "2340;PRETO FOSCO;" + QByteArray::number(27 + size) + "/" +
                     QByteArray::number(28 + size) +
                     ";;BOTA CANO CURTO;231045270100;3104527001;139,99;32;BK;26;A1;\r\n";
        }
        write(u"pedido 77 frente.txt"_s, lines);
        const auto& [face, points, dark] = GetParam();
        QApplication::setFont(QFont(QString::fromLatin1(face), points));
        QApplication::setPalette(dark ? darkPalette() : QPalette());
    }
    void TearDown() override {
        desktop.reset();
        QApplication::setFont(font_before);
        QApplication::setPalette(QPalette());
    }

    void standOn(QScreen& screen) {
        QWidget& window = desktop->window();
        window.windowHandle()->setScreen(&screen);
        window.move(screen.availableGeometry().topLeft());
        settle();
        const auto& panels = worker.widget<QWidget>(u"panels"_s);
        const QWidget& sight = *panels.parentWidget();
        EXPECT_LE(panels.width(), sight.width());
        const bool scrolls = panels.height() > sight.height();
        constexpr double least_points = 7.5;
        EXPECT_TRUE(!scrolls || window.font().pointSizeF() <= least_points)
            << panels.height() - sight.height() << " pixels are missing at "
            << window.font().pointSizeF() << " points";
    }

    void expectReadableDialog(const QString& command, const QString& name) {
        worker.click(command);
        worker.turnTo(name);
        for (DialogWindow* const dialog : desktop->dialogs()) {
            if (dialog->isVisible()) {
                expectReadable(*dialog);
            }
        }
        worker.press(Qt::Key_Escape);
        worker.turnTo(u"FrmPadrao"_s);
    }

    const QFont font_before = QApplication::font();
};

TEST_P(GeometryTest, allTextsAreReadableInTheirPlaces) {
    ASSERT_EQ(QFontInfo(QApplication::font()).family(),
              QString::fromLatin1(std::get<0>(GetParam())));
    open();
    load(oculta, "77");
    ASSERT_EQ(worker.text(u"TXTOCULTAS"_s), u"65520"_s);
    worker.doubleClick(u"Frame4"_s);
    ASSERT_EQ(QGuiApplication::screens().size(), 2);
    for (QScreen* const screen : QGuiApplication::screens()) {
        SCOPED_TRACE(screen->name().toStdString());
        standOn(*screen);
        expectReadable(desktop->window());
        expectReadableDialog(u"cmd_calibra"_s, u"FrmMargensOcultaZPL2"_s);
        expectReadableDialog(u"cmd_parametro"_s, u"FrmParametroImpressora"_s);
    }
    load(corrugado, "1400050831");
    for (QScreen* const screen : QGuiApplication::screens()) {
        standOn(*screen);
        expectReadable(desktop->window());
    }
}

INSTANTIATE_TEST_SUITE_P(Looks, GeometryTest,
                         testing::Combine(testing::Values("DejaVu Sans", "Noto Sans", "Cantarell",
                                                          "Liberation Sans"),
                                          testing::Values(9, 11, 14), testing::Bool()));

} // namespace

} // namespace etiquetas::test
