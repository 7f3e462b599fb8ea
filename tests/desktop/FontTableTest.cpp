#include "desktop/FontTable.h"

#include "PdfTools.h"
#include "desktop/LabelFont.h"

#include <QFile>
#include <QFontDatabase>
#include <QtEndian>
#include <gtest/gtest.h>

#include <cmath>

namespace etiquetas {

using namespace Qt::StringLiterals;

static const QStringList stand_ins{u"Carlito"_s, u"Libre Franklin Light"_s,
                                   u"Libre Franklin Medium"_s, u"Open Sans Light"_s,
                                   u"Liberation Sans"_s};
static const QStringList bare{u"Liberation Sans"_s};

TEST(FontTable, drawsAFaceWithTheFirstFamilyThatIsThere) {
    const auto family = [](TextView face, const QStringList& families) {
        return chooseFont(face, families).family;
    };
    const QString malgun_twin = u"NanumBarunGothic Light"_s;
    EXPECT_EQ(family(u"calibri", stand_ins), u"Carlito"_s);
    EXPECT_EQ(family(u"Calibri", stand_ins + QStringList{u"Calibri"_s}), u"Calibri"_s);
    EXPECT_EQ(family(u"Calibri", bare), u"Liberation Sans"_s);
    EXPECT_EQ(family(u"Calibri", {u"Libre Franklin"_s}), QFont().family());
    EXPECT_EQ(family(u"Franklin Gothic Medium", stand_ins), u"Libre Franklin Medium"_s);
    EXPECT_EQ(family(u"Franklin Gothic Semilight", stand_ins), u"Libre Franklin Light"_s);
    EXPECT_EQ(family(u"Malgun Gothic Semilight", stand_ins), u"Open Sans Light"_s);
    EXPECT_EQ(family(u"Malgun Gothic Semilight", stand_ins + QStringList{malgun_twin}),
              malgun_twin);
    EXPECT_EQ(family(u"No Such Face", stand_ins), u"Liberation Sans"_s);
}

TEST(FontTable, offersTheFamiliesAndTheFacesThatATwinStandsInFor) {
    EXPECT_EQ(offeredFaces(stand_ins), stand_ins + QStringList{u"Calibri"_s});
    EXPECT_EQ(offeredFaces(bare), bare);
    const QStringList real{u"Carlito"_s, u"Calibri"_s};
    EXPECT_EQ(offeredFaces(real), real);
    EXPECT_FALSE(installedFamilies().contains(u"Calibri"_s)) << "an alias is no family";
    EXPECT_TRUE(installedFamilies().filter(u"["_s).isEmpty()) << "a foundry is no part of a name";
}

TEST(LabelFont, readsTheWindowsAscentOnlyFromWholeTables) {
    const QByteArray os2 = QByteArray(74, '\0') + QByteArray::fromHex("079e");
    const QByteArray head = QByteArray(18, '\0') + QByteArray::fromHex("0800");
    EXPECT_EQ(windowsAscent(os2, head), 1950.0 / 2048);
    EXPECT_EQ(windowsAscent(os2.chopped(1), head), std::nullopt);
    EXPECT_EQ(windowsAscent(os2, head.chopped(1)), std::nullopt);
    EXPECT_EQ(windowsAscent(os2, QByteArray(20, '\0')), std::nullopt);
}

// Carlito under another name and with the flag that asks for its typographic metrics, which are
// less than the Windows ascent and which the toolkit then takes for the ascent.
static QByteArray typographicTwin() {
    QFile file(QString::fromUtf8(test::outputOf(u"fc-match -f %{file} Carlito"_s)));
    file.open(QIODevice::ReadOnly);
    QByteArray font = file.readAll();
    font.replace("Carlito", "Carlitx");
    font.replace(QByteArray("C\0a\0r\0l\0i\0t\0o", 13), QByteArray("C\0a\0r\0l\0i\0t\0x", 13));
    const qsizetype entry = font.indexOf("OS/2"); // tag, checksum, offset, length
    const qsizetype os2 = qFromBigEndian<quint32>(font.constData() + entry + 8);
    constexpr qsizetype fs_selection = 62;
    constexpr char use_typographic_metrics = '\x80';
    char& flags = font[os2 + fs_selection + 1];
    flags = static_cast<char>(flags | use_typographic_metrics);
    return font;
}

TEST(LabelFont, standsOnTheWindowsAscentWhateverTheFontAsksFor) {
    const int id = QFontDatabase::addApplicationFontFromData(typographicTwin());
    const LabelFont font(u"Carlitx"_s, false, 1.0);
    EXPECT_LT(QFontMetricsF(font.font()).ascent(), 1900);
    EXPECT_NEAR(font.ascent(1), 1950.0 / 2048, 1e-9);
    QFontDatabase::removeApplicationFont(id);
}

TEST(LabelFont, scalesAStandInToTheProportionsOfTheFace) {
    LabelFonts fonts(installedFamilies());
    EXPECT_NEAR(fonts.get(u"Malgun Gothic Semilight", false).width(u"0123456789"_s, 10),
                fonts.get(u"Liberation Sans", false).width(u"0123456789"_s, 10), 0.1);
}

} // namespace etiquetas
