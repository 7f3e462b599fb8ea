#include "desktop/records/JobHistory.h"

#include "base/Failure.h"
#include "tests/desktop/SampleWindow.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class JobHistoryTest : public testing::Test, protected SampleWindow {};

TEST_F(JobHistoryTest, keepsTheJobsOfTheWindowAndTheirAnswers) {
    open();
    load(oculta, "1400050831");
    const PrintedItem item = shownItem(desktop->form());
    EXPECT_FALSE(writtenBy(u"cmd_printacessorio"_s).isEmpty());
    const JobHistory history(folder.path());
    const auto job = history.lastOf(item);
    ASSERT_TRUE(job);
    EXPECT_EQ(job->item.order, u"1400050831"_s);
    EXPECT_EQ(job->item.kind, u"Oculta"_s);
    EXPECT_EQ(job->labels, 28); // two for each of 14 pairs
    EXPECT_EQ(job->answer, Answer::yes);
    EXPECT_LT(job->time.secsTo(QDateTime::currentDateTime()), 600);
    EXPECT_FALSE(history.lastOf(shownItem(desktop->form()))); // the next item
    EXPECT_TRUE(history.jobs(u"1500031742"_s).empty());
}

TEST_F(JobHistoryTest, leavesTestPrintsOut) {
    open();
    load(oculta, "1400050831");
    worker.click(u"cmd_calibra"_s);
    worker.turnTo(u"FrmMargensOcultaZPL2"_s);
    worker.click(u"cmd_teste"_s);
    EXPECT_EQ(jobs().size(), 1);
    EXPECT_TRUE(JobHistory(folder.path()).jobs().empty());
}

TEST_F(JobHistoryTest, neverStandsInTheWayOfPrinting) {
    QDir(folder.path()).mkdir(u"historico.sqlite"_s); // no database can have that name then
    open();
    load(oculta, "1400050831");
    EXPECT_FALSE(writtenBy(u"cmd_printacessorio"_s).isEmpty());
    EXPECT_THROW((void)JobHistory(folder.path()).jobs(), Failure);
}

} // namespace etiquetas::test
