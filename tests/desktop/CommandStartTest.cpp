#include "desktop/machine/QtCommandStart.h"
#include "desktop/machine/QtFiles.h"
#include "desktop/machine/QtText.h"

#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace etiquetas {

using namespace Qt::StringLiterals;

class CommandStartTest : public testing::Test {
  protected:
    QString place(const QString& name) const { return folder.filePath(name); }
    void write(const QString& name, const std::string& bytes) {
        files.replace(toText(place(name)), bytes);
    }
    void start(const std::string& command_file) {
        write(u"epltemp.prn"_s, program);
        write(u"IMPRIMIR.BAT"_s, command_file);
        commands.start(toText(place(u"IMPRIMIR.BAT"_s)));
    }
    // What the file holds once there is something in it; fails where nothing comes.
    std::string awaited(const QString& name) const {
        for (int tries = 0; QFile(place(name)).size() == 0 && tries < 2000; ++tries) {
            QThread::msleep(5);
        }
        return files.read(toText(place(name)));
    }

    const std::string program{"\2n\r\n\0\xE7\r\n", 8};
    QTemporaryDir folder;
    QtFiles files{folder.path()};
    QtCommandStart commands{place(u"lp"_s), folder.path()};
};

TEST_F(CommandStartTest, printsOnTheQueueOfTheShareAsItIsNamed) {
    // Keeps its arguments, one a line, and the file that the last of them names.
    write(u"lp"_s, "#!/bin/sh\nfor file; do echo \"$file\"; done > \"$0-draft\"\n"
                   "cat \"$file\" >> \"$0-draft\" && mv \"$0-draft\" \"$0-job\"\n");
    QFile::setPermissions(place(u"lp"_s), QFile::ReadOwner | QFile::ExeOwner);
    for (const std::string share : {"Zebra", "-o $(touch a); \xE9\"'"}) {
        start("net use LPT1: /delete\r\nNET USE Lpt1: \\\\127.0.0.1\\" + share +
              " /yes\r\ntype epltemp.prn > lpt1\n\r\n");
        const QString arguments = u"-d\n%1\n-o\nraw\n--\n%2\n"_s.arg(
            QString::fromLatin1(share.c_str()), place(u"epltemp.prn"_s));
        EXPECT_EQ(awaited(u"lp-job"_s), arguments.toStdString() + program);
        QFile::remove(place(u"lp-job"_s));
    }
}

TEST_F(CommandStartTest, writesToTheParallelDeviceWhereThePortHasNoShare) {
    const std::string to_share = " \\\\127.0.0.1\\Z /yes\r\n";
    for (const std::string& mapping :
         {std::string(), std::string("net use LPT2: \\\\127.0.0.1\\ /yes\r\n"),
          "net use LPT2:" + to_share + "net use lpt2: /delete\r\n", "net use LPT1:" + to_share}) {
        write(u"lp1"_s, "");
        start(mapping + "del epltemp.prn\r\ntype epltemp.prn > Lpt2\r\n");
        EXPECT_EQ(awaited(u"lp1"_s), program);
    }
}

TEST_F(CommandStartTest, neitherWaitsForADeviceNorMakesOne) {
    ASSERT_EQ(mkfifo(place(u"lp2"_s).toUtf8(), S_IRUSR | S_IWUSR), 0);
    start("type epltemp.prn > LPT9\r\ntype epltemp.prn > LPT3\r\n");
    commands.start(u"/no/such/file");
    EXPECT_EQ(files.read(toText(place(u"lp2"_s))), program); // its writer has waited for a reader
    EXPECT_FALSE(QFile::exists(place(u"lp8"_s)));
}

} // namespace etiquetas
