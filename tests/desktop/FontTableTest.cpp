#include "desktop/printing/FontTable.h"

#include "PdfTools.h"
#include "desktop/printing/LabelFont.h"

#include <QFile>
#include <QFontDatabase>
#include <QtEndian>
#include <gtest/gtest.h>

namespace etiquetas {

using namespace Qt::StringLiterals;

static const QStringList stand_ins{u"Carlito"_s, u"Libre Franklin Light"_s,
                                   u"Libre Franklin Medium"_s, u"Open Sans Light"_s,
                                   u"Liberation Sans"_s};

TEST(FontTable, drawsAFaceWithTheFirstFamilyThatIsThere) {
    const QString malgun = u"NanumBarunGothic Light"_s, open = u"Open Sans"_s;
    using Case = std::tuple<TextView, bool, QStringList, QString>;
    for (const auto& [face, bold, families, family] :
         {Case{u"calibri", true, stand_ins, u"Carlito"_s},
          Case{u"Calibri", false, {u"Carlito"_s, u"Calibri"_s}, u"Calibri"_s},
          Case{u"Calibri", false, {malgun}, QFont().family()},
          Case{u"Franklin Gothic Medium", false, stand_ins, stand_ins[2]},
          Case{u"Franklin Gothic Semilight", false, stand_ins, stand_ins[1]},
          Case{u"Malgun Gothic Semilight", false, stand_ins, u"Open Sans Light"_s},
          Case{u"Malgun Gothic Semilight", false, {stand_ins[3], malgun}, malgun},
          Case{u"Malgun Gothic Semilight", true, {stand_ins[3], open, malgun}, open},
          Case{u"No Such Face", false, stand_ins, u"Liberation Sans"_s}}) {
        EXPECT_EQ(chooseFont(face, bold, families).family, family);
    }
}

TEST(FontTable, offersTheFamiliesAndTheFacesThatATwinStandsInFor) {
    EXPECT_EQ(offeredFaces(stand_ins), stand_ins + QStringList{u"Calibri"_s});
    EXPECT_EQ(offeredFaces({u"Carlito"_s, u"Calibri"_s}).size(), 2);
    EXPECT_FALSE(installedFamilies().contains(u"Calibri"_s)) << "an alias is no family";
}

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
