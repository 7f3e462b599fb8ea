#include "desktop/Desktop.h"

#include "Faults.h"
#include "SampleWindow.h"
#include "support/Golden.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

#include <algorithm>

namespace etiquetas::test {

class DesktopTest : public testing::Test, protected SampleWindow {
  protected:
    /// The log without its times and without repeated lines, and with general words for what varies
    /// with the machine.
    [[nodiscard]] std::vector<std::string> log() const {
        struct Varying {
            QString pattern;
            QString word;
        };
        QFile file(folder.filePath(u"etiquetas.log"_s));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QString text = QString::fromUtf8(file.readAll());
        for (const Varying& varying :
             {Varying{u"^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} "_s, u""_s},
              Varying{folder.path(), u"PASTA"_s},
              Varying{u"Etiquetas 0\\.[.\\d]+, Qt "_s + qVersion(), u"Etiquetas 0, Qt"_s},
              Varying{u"Impressoras: .*\"PDF.*"_s, u"Impressoras: \"PDF\""_s},
              Varying{u"fontes: .*"_s, u"fontes: AS QUE FALTAM"_s},
              Varying{u"impressos/[-\\d]+ [-\\d]+"_s, u"impressos/HORA"_s}}) {
            text.replace(QRegularExpression(varying.pattern, QRegularExpression::MultilineOption),
                         varying.word);
        }
        std::vector<std::string> lines;
        for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
            lines.push_back(line.toStdString());
        }
        lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
        return lines;
    }
};

TEST_F(DesktopTest, logsItsStartOrdersJobsBoxesAndItsEnd) {
    open();
    load(oculta, "1400050831");
    EXPECT_FALSE(writtenBy(u"cmd_printacessorio"_s).isEmpty());
    desktop->window().close();
    EXPECT_TRUE(matchesGolden(log(), "log_job"));
}

TEST_F(DesktopTest, logsFailuresThatItPassesOverAndTheOneThatEndsIt) {
    ASSERT_TRUE(QFile(folder.filePath(u"lumira.jpg"_s)).resize(2));
    open();
    load(oculta, "1400050831");
    worker.doubleClick(u"Frame4"_s);
    worker.type(u"txtlote"_s, u"99999"_s); // more than 16 bits hold
    worker.click(u"cmb_referencia"_s);
    worker.press(Qt::Key_Tab);
    desktop->window().close(); // it has ended by then
    EXPECT_TRUE(matchesGolden(log(), "log_failures"));
}

TEST_F(DesktopTest, removesOldDraftsAndNothingElseAtItsStart) {
    struct Left {
        QString name;
        qint64 minutes;
        bool stays;
    };
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"impressos"_s));
    const std::vector<Left> left{{u".0a1b.rascunho"_s, 61, false},
                                 {u".0a1c.rascunho"_s, 59, true}, // of a program that runs
                                 {u"Varesko.ini.backup"_s, 99, true},
                                 {u"impressos/.impressao-aBcDeF.pdf"_s, 61, false},
                                 {u"impressos/.impressao-aBcDeG.pdf"_s, 59, true},
                                 {u"impressos/2024-03-05 07-08-09.pdf"_s, 99, true}};
    for (const Left& file : left) {
        QFile draft(folder.filePath(file.name));
        ASSERT_TRUE(draft.open(QIODevice::WriteOnly));
        const auto time = QDateTime::currentDateTime().addSecs(-60 * file.minutes);
        ASSERT_TRUE(draft.setFileTime(time, QFileDevice::FileModificationTime));
    }
    open();
    for (const Left& file : left) {
        EXPECT_EQ(QFile::exists(folder.filePath(file.name)), file.stays) << qPrintable(file.name);
    }
    const auto lines = log();
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const auto& line) { return line.find("removido") < line.size(); }),
              2);
}

TEST_F(DesktopTest, showsItsWindowWhileThePrintSystemIsWaitedForAndGoesOnWithoutIt) {
    const SilentPrintServer server;
    bool stands = false;
    QTimer clerk;
    clerk.start(10);
    QObject::connect(&clerk, &QTimer::timeout, [&] {
        if (desktop && desktop->progress().isVisible()) {
            stands = desktop->window().isVisible() && desktop->form().CMBPRINTER.entries.empty();
            desktop->progress().reject();
        }
    });
    open();
    EXPECT_TRUE(stands);
    EXPECT_EQ(worker.text(u"CMBPRINTER"_s), u"PDF"_s);
    EXPECT_TRUE(worker.text(u"status_happened"_s).contains(u"não respondeu"_s));
}

// What a closing question says of its job.
struct Doubt {
    QString told;
    QString proposed;
};

class JobOutcomeTest : public DesktopTest {
  protected:
    JobOutcomeTest() {
        open();
        load(oculta, "1400050831");
        desktop->openBy([this](const QString& path) { opened << path; });
    }

    // Prints, and gives what stands at the question.
    [[nodiscard]] Doubt print() {
        Doubt doubt;
        worker.beforeAnswer([&doubt] {
            const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            doubt = {box->informativeText(), box->defaultButton()->text()};
        });
        worker.click(u"cmd_printacessorio"_s);
        worker.beforeAnswer([] {});
        return doubt;
    }

    QStringList opened;
};

TEST_F(JobOutcomeTest, isToldUnderTheQuestionWhereTheJobFailed) {
    const QString place = folder.filePath(u"impressos"_s);
    QFile in_the_way(place);
    ASSERT_TRUE(in_the_way.open(QIODevice::WriteOnly));
    const Doubt failed = print();
    EXPECT_TRUE(failed.told.contains(place)) << failed.told.toStdString();
    EXPECT_EQ(failed.proposed, u"&Não"_s);
    EXPECT_EQ(worker.widget<QLabel>(u"status_happened"_s).property("mood").toString(), u"failed"_s);
    in_the_way.remove();
    const Doubt printed = print();
    EXPECT_EQ(printed.told, QString());
    EXPECT_EQ(printed.proposed, u"&Sim"_s);
    worker.widget<QPushButton>(u"open_pdf"_s).click();
    worker.widget<QPushButton>(u"open_folder"_s).click();
    EXPECT_EQ(opened, jobs() << place);
}

TEST_F(JobOutcomeTest, isNothingWhereTheJobIsCancelled) {
    QString shown;
    QTimer operator_at_the_bar;
    QObject::connect(&operator_at_the_bar, &QTimer::timeout, [&] {
        if (desktop->progress().isVisible()) {
            shown = desktop->progress().findChild<QLabel*>()->text();
            desktop->progress().findChild<QPushButton*>()->click();
        }
    });
    operator_at_the_bar.start(1);
    worker.type(u"txtnumero_0"_s, u"15000"_s);
    const Doubt doubt = print();
    EXPECT_TRUE(shown.contains(u"etiquetas"_s));
    EXPECT_TRUE(doubt.told.startsWith(u"Cancelado: nada foi "_s)) << doubt.told.toStdString();
    EXPECT_EQ(doubt.proposed, u"&Não"_s);
    EXPECT_EQ(jobs(), QStringList());
    EXPECT_FALSE(desktop->progress().isVisible());
}

TEST_F(DesktopTest, runsWithoutALogWhereItCanNotBeWritten) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"etiquetas.log"_s));
    open();
    load(oculta, "1400050831");
    EXPECT_FALSE(writtenBy(u"cmd_printacessorio"_s).isEmpty());
}

} // namespace etiquetas::test
