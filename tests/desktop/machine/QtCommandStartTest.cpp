#include "desktop/machine/QtCommandStart.h"

#include "channel/Transporte.h"
#include "desktop/machine/QtFiles.h"
#include "desktop/machine/QtText.h"
#include "support/FakePlatform.h"

#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace etiquetas {

using namespace Qt::StringLiterals;

class QtCommandStartTest : public testing::Test {
  protected:
    QString place(const QString& name) const { return folder.filePath(name); }
    void write(const QString& name, const std::string& bytes) {
        files.replace(toText(place(name)), bytes);
    }
    // A print program that keeps its arguments, one a line, in "lp-arguments", and its job in
    // "lp-job".
    void writePrintProgram() {
        write(u"lp"_s, "#!/bin/sh\n"
                       "for file; do echo \"$file\"; done > \"$0-arguments\"\n"
                       "cat > \"$0-draft\" && mv \"$0-draft\" \"$0-job\"\n");
        QFile::setPermissions(place(u"lp"_s), QFile::ReadOwner | QFile::ExeOwner);
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
    void expectPrinted(const std::string& bytes, const std::string& share) const {
        EXPECT_EQ(awaited(u"lp-job"_s), bytes);
        EXPECT_EQ(awaited(u"lp-arguments"_s), "-d\n" + share + "\n-o\nraw\n");
    }

    const std::string program{"\2n\r\n\0\xE7\r\n", 8};
    QTemporaryDir folder;
    QtFiles files{folder.path()};
    QtCommandStart commands{place(u"lp"_s), folder.path()};
};

TEST_F(QtCommandStartTest, PrintsOnTheQueueOfTheShareAsItIsNamed) {
    writePrintProgram();
    start("net use LPT1: /delete\r\n"
          "NET USE Lpt1: \\\\127.0.0.1\\-o $(touch a); \xE9\"' /yes\r\n"
          "type epltemp.prn > lpt1\n\r\n");
    expectPrinted(program, "-o $(touch a); \u00E9\"'");
}

TEST_F(QtCommandStartTest, PrintsEachProgramOnceInTheOrderOfTheirSending) {
    write(u"lp"_s, "#!/bin/sh\nsleep 0.05\nread pause\nsleep $pause\n"
                   "echo $pause >> \"$0-draft\"\n"
                   "[ $pause != 0 ] || mv \"$0-draft\" \"$0-job\"\n");
    QFile::setPermissions(place(u"lp"_s), QFile::ReadOwner | QFile::ExeOwner);
    write(u"IMPRIMIR.BAT"_s, "net use LPT1: \\\\127.0.0.1\\Z /yes\r\ntype epltemp.prn > lpt1\r\n");
    for (const char* pause : {"0.2", "0.1", "0"}) {
        write(u"epltemp.prn"_s, std::string(pause) + "\n");
        commands.start(toText(place(u"IMPRIMIR.BAT"_s)));
    }
    EXPECT_EQ(awaited(u"lp-job"_s), "0.2\n0.1\n0\n");
}

TEST_F(QtCommandStartTest, WritesToTheParallelDeviceWhereThePortHasNoShare) {
    for (const std::string mapping : {"", "net use LPT2: \\\\127.0.0.1\\ /yes\r\n",
                                      "net use LPT2: \\\\127.0.0.1\\Z /yes\r\n"
                                      "net use lpt2: /delete\r\n",
                                      "net use LPT1: \\\\127.0.0.1\\Z /yes\r\n"}) {
        write(u"lp1"_s, "");
        start(mapping + "del epltemp.prn\r\ntype epltemp.prn > Lpt2\r\n");
        EXPECT_EQ(awaited(u"lp1"_s), program) << "after " << mapping;
    }
}

TEST_F(QtCommandStartTest, NeitherWaitsForADeviceNorMakesOne) {
    ASSERT_EQ(mkfifo(place(u"lp2"_s).toUtf8(), S_IRUSR | S_IWUSR), 0);
    start("type epltemp.prn > LPT9\r\ntype epltemp.prn > LPT3\r\n");
    commands.start(u"/no/such/file");
    QFile device(place(u"lp2"_s)); // its writer has waited for a reader
    ASSERT_TRUE(device.open(QIODevice::ReadOnly));
    EXPECT_EQ(device.readAll().toStdString(), program);
    EXPECT_FALSE(QFile::exists(place(u"lp8"_s)));
}

// What the channel writes is what is carried out here.
TEST_F(QtCommandStartTest, CarriesOutTheCommandFilesOfTheChannel) {
    test::FakePlatform machine;
    FrmPadrao form({machine.printers, machine.printers, machine, machine.files, files, machine,
                    machine, machine, machine, commands});
    writePrintProgram();
    form.lblcompartilhamento.caption = u"Zebra";
    sendProgram(form, {u"^XA"}, CommandFileEnd::extra_line_feed);
    expectPrinted("^XA\r\n", "Zebra");

    QFile::remove(place(u"IMPRIMIR.BAT"_s));
    write(u"lp2"_s, "");
    form.lblporta.caption = u"PARALELA";
    form.LBLPORTAPARELELA.caption = u"Lpt3";
    sendProgram(form, {u"^XZ"}, CommandFileEnd::extra_line_feed);
    EXPECT_EQ(awaited(u"lp2"_s), "^XZ\r\n");
}

} // namespace etiquetas
