#include "channel/Transporte.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class TransporteTest : public testing::Test, protected Workbench {
  protected:
    // The command file that the first job of a printer writes.
    std::string commandFileFor(TextView port_kind, TextView share,
                               CommandFileEnd end = CommandFileEnd::plain) {
        machine.files.bytes.erase(command);
        form.LBLPORTAPARELELA.caption = u"Lpt2";
        form.lblporta.caption = port_kind;
        form.lblcompartilhamento.caption = share;
        sendProgram(form, {}, end);
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

TEST_F(TransporteTest, AnyPortButAParallelOneIsMappedToTheShare) {
    const CommandFileEnd extra = CommandFileEnd::extra_line_feed;
    const Text unmap = u"net use Lpt2: /delete";
    const Text type = u"type epltemp.prn > Lpt2";
    EXPECT_EQ(commandFileFor(u"PARALELA", u""), fileOf({type}));
    EXPECT_EQ(commandFileFor(u"paralela", u"Zebra", extra), fileOf({type + u"\n"}));
    EXPECT_EQ(commandFileFor(u"PARALELA ", u""),
              fileOf({unmap, u"net use Lpt2: \\\\127.0.0.1\\ /yes", type}));
    EXPECT_EQ(commandFileFor(u"Label17", u" Pé 1 ", extra),
              fileOf({unmap, u"net use Lpt2: \\\\127.0.0.1\\Pé 1 /yes", type + u"\n"}));
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
