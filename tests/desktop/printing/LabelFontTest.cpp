#include "desktop/printing/LabelFont.h"

#include "tests/desktop/PdfTools.h"

#include <QFile>
#include <QFontDatabase>
#include <QtEndian>
#include <gtest/gtest.h>

namespace etiquetas {

using namespace Qt::StringLiterals;

TEST(LabelFont, readsNoAscentFromTablesThatAreCutOff) {
    EXPECT_EQ(windowsAscent(QByteArray(75, '\1'), QByteArray(54, '\1')), std::nullopt);
    EXPECT_EQ(windowsAscent(QByteArray(96, '\1'), QByteArray(19, '\1')), std::nullopt);
}

// Carlito under another name and with the flag that asks for its typographic metrics, which are
// less than the Windows ascent and which the toolkit then takes for the ascent.
TEST(LabelFont, standsOnTheWindowsAscentWhateverTheFontAsksFor) {
    QFile file(QString::fromUtf8(test::outputOf(u"fc-match -f %{file} Carlito"_s)));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray twin = file.readAll();
    twin.replace(QByteArray("C\0a\0r\0l\0i\0t\0o", 13), QByteArray("C\0a\0r\0l\0i\0t\0x", 13));
    const qsizetype os2_entry = twin.indexOf("OS/2"); // tag, checksum, offset, length
    const qsizetype os2 = qFromBigEndian<quint32>(twin.constData() + os2_entry + 8);
    twin[os2 + 63] = '\xC0'; // fsSelection: regular, and the typographic metrics
    const int id = QFontDatabase::addApplicationFontFromData(twin);
    const LabelFont font(u"Carlitx"_s, false, 1.0);
    EXPECT_LT(QFontMetricsF(font.font()).ascent(), 1900);
    EXPECT_NEAR(font.ascent(1), 1950.0 / 2048, 1e-9);
    QFontDatabase::removeApplicationFont(id);
}

} // namespace etiquetas
