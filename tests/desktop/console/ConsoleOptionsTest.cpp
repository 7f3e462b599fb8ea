#include "desktop/console/ConsoleOptions.h"

#include "support/Cases.h"

#include <QtWidgets>
#include <gtest/gtest.h>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

struct ArgumentsCase {
    std::string name;
    QStringList arguments;    // after the program's name
    std::optional<Task> task; // none where the use is wrong
};

class ConsoleOptionsTest : public testing::TestWithParam<ArgumentsCase> {};

TEST_P(ConsoleOptionsTest, tellsTasksFromWrongUse) {
    const ReadOptions read = readOptions(QStringList(u"etiquetas"_s) + GetParam().arguments);
    EXPECT_EQ(read.fault.isEmpty() ? std::optional(read.options.task) : std::nullopt,
              GetParam().task)
        << read.fault.toStdString();
}

const QStringList order{u"--pedido"_s, u"1"_s, u"--tipo"_s, u"Corrugado"_s};

INSTANTIATE_TEST_SUITE_P(
    Arguments, ConsoleOptionsTest,
    testing::Values(
        ArgumentsCase{"nothing", {}, Task::window},
        ArgumentsCase{"folder", {u"--pasta=/"_s}, Task::window},
        ArgumentsCase{"folder_that_is_missing", {u"--pasta=/nenhuma"_s}, {}},
        ArgumentsCase{"help_before_all", order + QStringList{u"--help"_s}, Task::help},
        ArgumentsCase{"order", order + QStringList{u"--volumes=2-40"_s}, Task::print},
        ArgumentsCase{"order_without_kind", {u"--pedido=1"_s}, {}},
        ArgumentsCase{"kind_in_other_case", {u"--pedido=1"_s, u"--tipo=oculta"_s}, {}},
        ArgumentsCase{"volumes_backwards", order + QStringList{u"--volumes=5-4"_s}, {}},
        ArgumentsCase{
            "volumes_of_other_kinds", {u"--pedido=1"_s, u"--tipo=Oculta"_s, u"--volumes=1"_s}, {}},
        ArgumentsCase{"item_zero", order + QStringList{u"--itens=0-2"_s}, {}},
        ArgumentsCase{"items_with_a_gap", order + QStringList{u"--itens=1,,2"_s}, {}},
        ArgumentsCase{"both_answers", order + QStringList{u"--sim"_s, u"--nao"_s}, {}},
        ArgumentsCase{"items_to_list", order + QStringList{u"--listar=itens"_s}, Task::list},
        ArgumentsCase{"unknown_list", {u"--listar=tudo"_s}, {}},
        ArgumentsCase{"history_of_an_order", {u"--historico"_s, u"1400"_s}, Task::history},
        ArgumentsCase{"a_word_too_many", {u"--conferir=1"_s, u"2"_s}, {}},
        ArgumentsCase{"option_without_task", {u"--json"_s}, {}},
        ArgumentsCase{"unknown_option", {u"--foo"_s}, {}}),
    CaseName());

TEST(NumberRangesTest, readsNumbersAndRanges) {
    EXPECT_EQ(numberRanges(u"1,3-5"_s), (std::vector<NumberRange>{{1, 1}, {3, 5}}));
}

} // namespace etiquetas::test
