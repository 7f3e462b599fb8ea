#include "channel/Transporte.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class TransporteTest : public testing::Test, protected Workbench {
  protected:
    struct Printer {
        Text port_kind;
        Text share;
        CommandFileEnd end = CommandFileEnd::plain;
    };

    // The command file that the first job of this printer writes.
    std::string commandFileFor(const Printer& printer) {
        machine.files.bytes.erase(command);
        form.LBLPORTAPARELELA.caption = u"Lpt2";
        form.lblporta.caption = printer.port_kind;
        form.lblcompartilhamento.caption = printer.share;
        sendProgram(form, {}, printer.end);
        return machine.files.bytes[command];
    }

    const Text command = u"/programa/IMPRIMIR.BAT";
    const Text job = u"/programa/epltemp.prn";
};

TEST_F(TransporteTest, JobIsWrittenBeforeItsCommandFileIsStarted) {
    sendProgram(form, {u"^XA", u"ç"}, CommandFileEnd::plain);
    EXPECT_EQ(machine.files.bytes[job], "^XA\r\n\xE7\r\n");
    EXPECT_EQ(machine.log, (Log{"write /programa/epltemp.prn", "write /programa/IMPRIMIR.BAT",
                                "start /programa/IMPRIMIR.BAT"}));
}

TEST_F(TransporteTest, ParallelPortIsReachedAsItIs) {
    EXPECT_EQ(commandFileFor({.port_kind = u"PARALELA"}), fileOf({u"type epltemp.prn > Lpt2"}));
    EXPECT_EQ(
        commandFileFor(
            {.port_kind = u"paralela", .share = u"Zebra", .end = CommandFileEnd::extra_line_feed}),
        fileOf({u"type epltemp.prn > Lpt2\n"}));
}

TEST_F(TransporteTest, AnyOtherPortIsMappedToTheShare) {
    EXPECT_EQ(commandFileFor({.port_kind = u"PARALELA "}),
              fileOf({u"net use Lpt2: /delete", u"net use Lpt2: \\\\127.0.0.1\\ /yes",
                      u"type epltemp.prn > Lpt2"}));
    EXPECT_EQ(
        commandFileFor(
            {.port_kind = u"Label17", .share = u" Pé 1 ", .end = CommandFileEnd::extra_line_feed}),
        fileOf({u"net use Lpt2: /delete", u"net use Lpt2: \\\\127.0.0.1\\Pé 1 /yes",
                u"type epltemp.prn > Lpt2\n"}));
}

TEST_F(TransporteTest, CommandFileThatIsThereStaysEvenWhereItsStartFails) {
    machine.files.bytes[command] = "old";
    machine.failing = {"start"};
    sendProgram(form, {}, CommandFileEnd::plain);
    EXPECT_EQ(machine.files.bytes[command], "old");
    EXPECT_EQ(machine.files.bytes[job], "");
}

TEST_F(TransporteTest, JobThatCannotBeWrittenLeavesNoneToSendTwice) {
    machine.files.bytes[job] = "before";
    machine.failing = {"write"};
    sendProgram(form, {u"^XA"}, CommandFileEnd::plain);
    EXPECT_FALSE(machine.files.fileExists(job));
    EXPECT_EQ(machine.log.back(), "start /programa/IMPRIMIR.BAT");
}

} // namespace etiquetas::test
