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
    const LabelFont font({u"Carlitx"_s}, false);
    EXPECT_LT(QFontMetricsF(font.font()).ascent(), 1900);
    EXPECT_NEAR(font.ascent(1), 1950.0 / 2048, 1e-9);
    QFontDatabase::removeApplicationFont(id);
}

struct FaceWidths {
    TextView face;
    bool bold;
    QString family;  // that stands in
    double mean;     // em, of the advances of A to Z and 0 to 9, as measured against the face
    double baseline; // em below the top of the cell
};

// Franklin Gothic Medium: capitals 0.591 em, digits 0.578 em, and no wider in bold.
TEST(LabelFont, isAsWideAsTheFaceThatItStandsInForAndStandsOnItsBaseline) {
    constexpr double franklin = (26 * 0.591 + 10 * 0.578) / 36;
    constexpr double calibri = (26 * 0.5538 + 10 * 0.5068) / 36;
    constexpr double calibri_bold = (26 * 0.5679 + 10 * 0.5068) / 36;
    const QString open = u"Open Sans"_s;
    const QString dejavu = u"DejaVu Sans Condensed"_s;
    const QString carlito = u"Carlito"_s;
    for (const FaceWidths& row :
         {FaceWidths{u"Franklin Gothic Medium", false, open, franklin, 0.905},
          {u"Franklin Gothic Medium", true, open, franklin, 0.905},
          {u"Franklin Gothic Medium", false, dejavu, franklin, 0.905},
          {u"Franklin Gothic Medium", true, dejavu, franklin, 0.905},
          {u"Franklin Gothic Semilight", false, open, franklin, 0.905},
          {u"Calibri", false, carlito, calibri, 0.952},
          {u"Calibri", true, carlito, calibri_bold, 0.952}}) {
        ASSERT_TRUE(installedFamilies().contains(row.family)) << row.family.toStdString();
        const LabelFont font(chooseFont(row.face, row.bold, {row.family}), row.bold);
        const double mean = font.width(u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"_s, 1) / 36;
        EXPECT_NEAR(mean / row.mean, 1, 0.03) << row.family.toStdString() << row.bold;
        EXPECT_NEAR(font.ascent(1), row.baseline, 0.001) << row.family.toStdString();
    }
}

} // namespace etiquetas
