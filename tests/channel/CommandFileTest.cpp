#include "channel/CommandFile.h"

#include "support/Cases.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(CommandFileTest, OtherLinesArePassedOver) {
    const std::vector<PortCommand> expected{UnmapPort{u"LPT1"}, TypeFile{u"a.prn", u"LPT1"}};
    EXPECT_EQ(readCommandFile(u"@echo off\r\n\r\nnet use LPT1: /delete\n\r\ntype a.prn > LPT1"),
              expected);
    EXPECT_EQ(readCommandFile(u""), std::vector<PortCommand>());
}

TEST(CommandFileTest, WhatIsWrittenIsReadBack) {
    for (const std::optional<Text>& share : {std::optional<Text>(), {u""}, {u"Pé 1: \\b /yes"}}) {
        for (const PortCommand& command : portCommands(u"Lpt2", share)) {
            EXPECT_EQ(readCommandLine(commandLine(command)), command);
        }
    }
}

struct LineCase {
    std::string name;
    Text line;
    std::optional<PortCommand> command;
};

class CommandLineTest : public testing::TestWithParam<LineCase> {};

TEST_P(CommandLineTest, IsReadWithoutRegardToCase) {
    EXPECT_EQ(readCommandLine(GetParam().line), GetParam().command);
}

// clang-format off
static const std::vector<LineCase> lines{
    // name, line, command
    {"Unmap", u"NET Use lpt1: /Delete", UnmapPort{u"lpt1"}},
    {"UnmapNoPort", u"net use : /delete", {}},
    {"UnmapMore", u"net use LPT1: /delete ", {}},
    {"Map", u"NET USE Lpt1: \\\\127.0.0.1\\Zebra /YES", MapPort{u"Lpt1", u"Zebra"}},
    {"MapBlanks", u"net use LPT1: \\\\127.0.0.1\\ Z 1  /yes", MapPort{u"LPT1", u" Z 1 "}},
    {"MapNoShare", u"net use LPT1: \\\\127.0.0.1\\ /yes", MapPort{u"LPT1", u""}},
    {"MapNoPort", u"net use : \\\\127.0.0.1\\Z /yes", {}},
    {"MapOtherMachine", u"net use LPT1: \\\\127.0.0.2\\Z /yes", {}},
    {"MapWithQuestion", u"net use LPT1: \\\\127.0.0.1\\Z", {}},
    {"Type", u"TYPE my job.prn > Lpt3", TypeFile{u"my job.prn", u"Lpt3"}},
    {"TypeLastArrow", u"type a > b > LPT1", TypeFile{u"a > b", u"LPT1"}},
    {"TypeNoFile", u"type  > LPT1", {}},
    {"TypeNoPort", u"type a.prn > ", {}},
    {"OtherCommand", u"del epltemp.prn", {}},
    {"Empty", u"", {}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(, CommandLineTest, testing::ValuesIn(lines), CaseName());

} // namespace etiquetas::test
