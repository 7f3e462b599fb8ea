#include "desktop/Desktop.h"

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

TEST_F(DesktopTest, runsWithoutALogWhereItCanNotBeWritten) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"etiquetas.log"_s));
    open();
    load(oculta, "1400050831");
    EXPECT_FALSE(writtenBy(u"cmd_printacessorio"_s).isEmpty());
}

} // namespace etiquetas::test
