#include "desktop/FontTable.h"

#include "PdfTools.h"
#include "desktop/LabelFont.h"
#include "desktop/QtText.h"

#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QtEndian>
#include <gtest/gtest.h>

#include <cmath>

namespace etiquetas {

using namespace Qt::StringLiterals;
namespace {

const QStringList stand_ins{u"Carlito"_s, u"Libre Franklin Light"_s, u"Libre Franklin Medium"_s,
                            u"Open Sans Light"_s, u"Liberation Sans"_s};

TEST(FontTable, drawsAFaceWithTheFirstFamilyThatIsThere) {
    struct Case {
        TextView face;
        QStringList families;
        TextView family;
    };
    const QStringList bare{u"Liberation Sans"_s};
    const std::vector<Case> cases{
        {u"Calibri", stand_ins, u"Carlito"},
        {u"Calibri", stand_ins + QStringList{u"Calibri"_s}, u"Calibri"},
        {u"calibri", stand_ins, u"Carlito"},
        {u"Calibri", bare, u"Liberation Sans"},
        {u"Franklin Gothic Medium", stand_ins, u"Libre Franklin Medium"},
        {u"Franklin Gothic Medium", {u"Libre Franklin"_s}, u""},
        {u"Franklin Gothic Medium", bare, u"Liberation Sans"},
        {u"Franklin Gothic Semilight", stand_ins, u"Libre Franklin Light"},
        {u"Malgun Gothic Semilight", stand_ins, u"Open Sans Light"},
        {u"Malgun Gothic Semilight", stand_ins + QStringList{u"NanumBarunGothic Light"_s},
         u"NanumBarunGothic Light"},
        {u"Estrangelo Edessa", stand_ins, u"Liberation Sans"},
        {u"No Such Face", stand_ins, u"Liberation Sans"},
        {u"", stand_ins, u"Liberation Sans"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(toQString(each.face).toStdString());
        const TextView family = each.family;
        EXPECT_EQ(chooseFont(each.face, each.families).family,
                  family.empty() ? QFont().family() : toQString(family));
    }
}

TEST(FontTable, offersTheFamiliesAndTheFacesThatATwinStandsInFor) {
    EXPECT_EQ(offeredFaces(stand_ins), stand_ins + QStringList{u"Calibri"_s});
    const QStringList real{u"Carlito"_s, u"Calibri"_s};
    EXPECT_EQ(offeredFaces(real), real);
    const QStringList near{u"Liberation Sans"_s};
    EXPECT_EQ(offeredFaces(near), near);
}

TEST(FontTable, namesFamiliesWithoutTheirFoundry) {
    const QStringList families = installedFamilies();
    EXPECT_TRUE(families.contains(u"Carlito"_s));
    EXPECT_TRUE(families.filter(u"["_s).isEmpty());
    EXPECT_FALSE(families.contains(u"Calibri"_s)) << "an alias is no family";
}

QByteArray table(qsizetype size, qsizetype offset, quint16 number) {
    QByteArray bytes(size, '\0');
    bytes[offset] = static_cast<char>(number >> 8);
    bytes[offset + 1] = static_cast<char>(number & 0xFF);
    return bytes;
}

TEST(LabelFont, readsTheWindowsAscentOnlyFromWholeTables) {
    const QByteArray os2 = table(96, 74, 1950);
    const QByteArray head = table(54, 18, 2048);
    EXPECT_EQ(windowsAscent(os2, head), 1950.0 / 2048);
    EXPECT_EQ(windowsAscent(os2.left(76), head.left(20)), 1950.0 / 2048);
    EXPECT_EQ(windowsAscent(os2.left(75), head), std::nullopt);
    EXPECT_EQ(windowsAscent(os2, head.left(19)), std::nullopt);
    EXPECT_EQ(windowsAscent({}, head), std::nullopt);
    EXPECT_EQ(windowsAscent(os2, table(54, 18, 0)), std::nullopt);
}

// Carlito under another name and with the flag that asks for its typographic metrics, which are
// less than the Windows ascent and which the toolkit then takes for the ascent.
QByteArray typographicTwin() {
    QFile file(
        QString::fromUtf8(test::outputOf(u"fc-match"_s, {u"-f"_s, u"%{file}"_s, u"Carlito"_s})));
    file.open(QIODevice::ReadOnly);
    QByteArray font = file.readAll();
    font.replace("Carlito", "Carlitx");
    font.replace(QByteArray("C\0a\0r\0l\0i\0t\0o", 13), QByteArray("C\0a\0r\0l\0i\0t\0x", 13));
    const qsizetype entry = font.indexOf("OS/2"); // tag, checksum, offset, length
    const auto os2 = qFromBigEndian<quint32>(font.constData() + entry + 8);
    constexpr quint32 fs_selection = 62;
    constexpr char use_typographic_metrics = '\x80';
    char& flags = font[static_cast<qsizetype>(os2 + fs_selection + 1)];
    flags = static_cast<char>(flags | use_typographic_metrics);
    return font;
}

TEST(LabelFont, standsOnTheWindowsAscentWhateverTheFontAsksFor) {
    const int id = QFontDatabase::addApplicationFontFromData(typographicTwin());
    ASSERT_EQ(QFontDatabase::applicationFontFamilies(id), QStringList{u"Carlitx"_s});
    const LabelFont font(u"Carlitx"_s, false, 1.0);
    EXPECT_NE(std::lround(QFontMetricsF(font.font()).ascent()), 1950);
    EXPECT_NEAR(font.ascent(1), 1950.0 / 2048, 1e-9);
    QFontDatabase::removeApplicationFont(id);
}

TEST(LabelFont, scalesAStandInToTheProportionsOfTheFace) {
    const QString family = u"Open Sans Light"_s;
    const QString text = u"0123456789"_s;
    const LabelFont plain(family, false, 1.0);
    const LabelFont scaled(family, false, 0.5);
    EXPECT_DOUBLE_EQ(scaled.width(text, 10), plain.width(text, 10) / 2);
    EXPECT_DOUBLE_EQ(scaled.ascent(10), plain.ascent(10) / 2);
    EXPECT_DOUBLE_EQ(scaled.scaleFor(10), plain.scaleFor(10) / 2);

    LabelFonts fonts(installedFamilies());
    const LabelFont& general = fonts.get(u"Liberation Sans", false);
    EXPECT_NEAR(fonts.get(u"Malgun Gothic Semilight", false).width(text, 10),
                general.width(text, 10), 0.1);
    EXPECT_EQ(&fonts.get(u"Liberation Sans", false), &general) << "made once";
}

} // namespace
} // namespace etiquetas
