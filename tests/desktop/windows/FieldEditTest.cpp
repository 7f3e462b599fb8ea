#include "desktop/windows/FieldEdit.h"

#include <QtWidgets>
#include <gtest/gtest.h>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

// A field as it looks while another one has the focus.
static QImage pictureOf(const QString& text) {
    FieldEdit edit;
    edit.resize(120, 24);
    edit.setText(text);
    return edit.grab().toImage();
}

TEST(FieldEditTest, showsTheBeginningOfATextThatIsTooLong) {
    const QString beginning = u"3104527 | TÊNIS CASUAL FEMININO"_s;
    EXPECT_EQ(pictureOf(beginning + u" CAFÉ"_s), pictureOf(beginning + u" PRETO FOSCO"_s));
    EXPECT_NE(pictureOf(beginning), pictureOf(u'9' + beginning));
    EXPECT_NE(pictureOf(u"CAFÉ"_s), pictureOf(u"CAFÉS"_s));
}

TEST(FieldEditTest, carriesDarkTextOnPaperInADarkDesktop) {
    QApplication::setPalette(QPalette(QColor(50, 50, 53), QColor(37, 37, 38)));
    FieldEdit edit;
    EXPECT_LT(edit.palette().color(QPalette::Text).lightness(), 64);
    edit.showPaper(Qt::white, true);
    EXPECT_EQ(edit.palette().color(QPalette::Base), QColor(37, 37, 38)) << "of the window";
    QApplication::setPalette(QPalette());
    QEvent changed(QEvent::ApplicationPaletteChange); // which a running program tells its widgets
    QApplication::sendEvent(&edit, &changed);
    EXPECT_GT(edit.palette().color(QPalette::Base).lightness(), 192) << "follows the desktop";
}

} // namespace etiquetas::test
