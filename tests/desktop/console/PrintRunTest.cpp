#include "desktop/console/PrintRun.h"

#include "desktop/console/ConsoleText.h"
#include "tests/desktop/SampleWindow.h"

#include <gtest/gtest.h>

#include <map>

namespace etiquetas::test {

class PrintRunTest : public testing::Test, protected SampleWindow {
  protected:
    static constexpr const char* order = "1400050831";

    [[nodiscard]] ConsoleOptions options(const QString& kind) const {
        return {.task = Task::print,
                .folder = folder.path(),
                .order = QString::fromLatin1(order),
                .kind = kind,
                .printer = u"PDF"_s};
    }

    // Labels by item, of the jobs since the last call.
    [[nodiscard]] std::map<QString, int> labels() {
        std::map<QString, int> counts;
        for (const PrintedJob& job : JobHistory(folder.path()).jobs()) {
            counts[job.item.item] += job.labels;
        }
        QFile::remove(folder.filePath(u"historico.sqlite"_s));
        return counts;
    }

    // Takes a field of the lines of an order away.
    void replaceInOrder(const QString& file, const char* text, const char* other) {
        const QStringList names =
            QDir(folder.path()).entryList({u"*%1*%2*"_s.arg(QString::fromLatin1(order), file)});
        ASSERT_EQ(names.size(), 1);
        QFile order_file(folder.filePath(names.first()));
        ASSERT_TRUE(order_file.open(QIODevice::ReadWrite));
        const QByteArray bytes = order_file.readAll().replace(text, other);
        order_file.resize(0);
        order_file.seek(0);
        order_file.write(bytes);
    }
};

TEST_F(PrintRunTest, printsWhatTheOperatorWouldItemByItem) {
    EXPECT_EQ(PrintRun(options(u"Oculta"_s)).run(), exit_code::success);
    const auto all = labels();
    ASSERT_GE(all.size(), 4U);
    EXPECT_EQ(jobs().size(), static_cast<qsizetype>(all.size()));
    // Later items first taken from the middle of the list: each has the labels that it had then.
    ConsoleOptions some = options(u"Oculta"_s);
    some.items = {{2, 4}};
    some.output = folder.filePath(u"saida"_s);
    EXPECT_EQ(PrintRun(some).run(), exit_code::success);
    const auto chosen = labels();
    EXPECT_EQ(chosen.size(), 3U);
    for (const auto& [item, count] : chosen) {
        EXPECT_EQ(count, all.at(item)) << item.toStdString();
    }
    EXPECT_EQ(QDir(some.output).entryList(QDir::Files).size(), 3);
}

TEST_F(PrintRunTest, printsTheKindThatIsNotOffered) {
    ConsoleOptions first = options(u"Frente de Caixa100x40"_s);
    first.items = {{1, 1}};
    EXPECT_EQ(PrintRun(first).run(), exit_code::success);
    EXPECT_EQ(labels().size(), 1U);
}

// The sample has volumes 1 to 12 in its first pack and 13 to 16 in its second one.
TEST_F(PrintRunTest, narrowsVolumes) {
    ConsoleOptions some = options(u"Corrugado"_s);
    some.volumes = {12, 14};
    EXPECT_EQ(PrintRun(some).run(), exit_code::success);
    const auto counts = labels();
    ASSERT_EQ(counts.size(), 2U);
    EXPECT_EQ(counts.begin()->second + counts.rbegin()->second, 3);
    some.volumes = {1000, 1001};
    EXPECT_EQ(PrintRun(some).run(), exit_code::failure);
    EXPECT_TRUE(labels().empty());
}

TEST_F(PrintRunTest, stopsAtAQuestionUnlessItIsAnswered) {
    replaceInOrder(u"FRENTE"_s, "CAF\xC9            ", "                ");
    ConsoleOptions asked = options(u"Oculta"_s);
    EXPECT_EQ(PrintRun(asked).run(), exit_code::question);
    EXPECT_TRUE(labels().empty());
    asked.answer = Answer::yes;
    EXPECT_EQ(PrintRun(asked).run(), exit_code::success);
    asked.answer = Answer::no;
    EXPECT_EQ(PrintRun(asked).run(), exit_code::failure);
}

// A barcode that is gone ends the command with its job open: the items after it come out alone.
TEST_F(PrintRunTest, goesOnAfterAnItemThatFails) {
    EXPECT_EQ(PrintRun(options(u"Oculta"_s)).run(), exit_code::success);
    auto all = labels();
    replaceInOrder(u"FRENTE"_s, "231045270101;", ";");
    EXPECT_EQ(PrintRun(options(u"Oculta"_s)).run(), exit_code::failure);
    const auto rest = labels();
    EXPECT_EQ(rest.size(), all.size() - 1);
    for (const auto& [item, count] : rest) {
        EXPECT_EQ(count, all.at(item)) << item.toStdString();
    }
}

TEST_F(PrintRunTest, tellsWrongOrdersItemsAndPrinters) {
    ConsoleOptions wrong = options(u"Oculta"_s);
    wrong.order = u"999"_s;
    EXPECT_EQ(PrintRun(wrong).run(), exit_code::failure);
    wrong = options(u"Oculta"_s);
    wrong.items = {{1, 99}};
    EXPECT_EQ(PrintRun(wrong).run(), exit_code::failure);
    wrong = options(u"Oculta"_s);
    for (const QString& printer : {u"pdf"_s, u"Pré-visualização"_s}) { // which needs its window
        wrong.printer = printer;
        EXPECT_EQ(PrintRun(wrong).run(), exit_code::wrong_use);
    }
    EXPECT_TRUE(jobs().isEmpty());
}

} // namespace etiquetas::test
