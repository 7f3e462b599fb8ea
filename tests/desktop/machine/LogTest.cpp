#include "desktop/machine/Log.h"

#include "tests/desktop/Faults.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace etiquetas::test {

class LogTest : public testing::Test {
  protected:
    [[nodiscard]] QStringList lines() const {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"ação.log"_s);
};

TEST_F(LogTest, writesEachEntryAsOneLineWithDateTimeAndLevel) {
    Log(path).info(u"ação {} %v"_s);
    Log log(path); // goes on
    log.warning(u"uma\r\ncaixa\tlarga"_s);
    log.error(u"fim"_s);
    QStringList entries;
    static const QRegularExpression stamp(
        u"^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} "_s);
    for (QString line : lines()) {
        EXPECT_TRUE(line.contains(stamp)) << line.toStdString();
        entries.append(line.remove(stamp));
    }
    EXPECT_EQ(entries,
              (QStringList{u"INFO  ação {} %v"_s, u"AVISO uma  caixa larga"_s, u"ERRO  fim"_s}));
}

TEST_F(LogTest, keepsThreeFilesOfAtMostAMegabyte) {
    Log log(path);
    const QString long_text(300'000, u'x');
    for (int entry = 1; entry <= 20; ++entry) {
        log.info(QString::number(entry) + long_text);
    }
    log.info(u"a última"_s);
    const QFileInfoList files = QDir(folder.path()).entryInfoList(QDir::Files);
    EXPECT_EQ(files.size(), 3);
    for (const QFileInfo& file : files) {
        EXPECT_LE(file.size(), 1'000'000) << file.fileName().toStdString();
    }
    EXPECT_TRUE(lines().last().endsWith(u"a última"_s));
}

TEST_F(LogTest, losesWhatAFullDiskDoesNotTakeAndGoesOnOnceThereIsRoom) {
    Log log(path);
    log.info(u"antes"_s);
    onFullDisk([&log] { log.info(QString(50'000, u'x')); });
    log.info(u"depois"_s);
    EXPECT_TRUE(lines().last().endsWith(u"depois"_s));
}

TEST_F(LogTest, outlivesAFolderThatGoesAwayWhileItMakesRoom) {
    Log log(path);
    log.info(QString(999'900, u'x'));
    ASSERT_TRUE(QDir(folder.path()).removeRecursively());
    QFile in_its_place(folder.path());
    ASSERT_TRUE(in_its_place.open(QIODevice::WriteOnly));
    log.info(QString(200, u'x'));
    log.info(u"nowhere"_s);
    EXPECT_EQ(in_its_place.size(), 0);
    in_its_place.remove();
}

} // namespace etiquetas::test
