#include "desktop/Desktop.h"

#include "SampleWindow.h"

#include <QTimer>
#include <gtest/gtest.h>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

class DesktopTest : public testing::Test, protected SampleWindow {
  protected:
    // A desktop that ended has told the toolkit to quit; the boxes of the next one need a loop that
    // runs.
    ~DesktopTest() override {
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QCoreApplication::exec();
    }

    /// The lines of the log without their times.
    [[nodiscard]] QStringList log() const {
        constexpr qsizetype time_length = 24; // "2024-03-05 07:08:09.123 "
        QFile file(folder.filePath(u"etiquetas.log"_s));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
        for (QString& line : lines) {
            line.remove(0, time_length);
        }
        return lines;
    }

    /// The lines since the last call that hold a text.
    QStringList newEntriesOf(const QString& text) {
        const QStringList all = log();
        return all.mid(std::exchange(seen_, all.size())).filter(text);
    }

  private:
    qsizetype seen_ = 0;
};

TEST_F(DesktopTest, logsItsStartItsPrintersAndItsEnd) {
    open();
    desktop->window().close();
    const QStringList lines = log();
    EXPECT_TRUE(lines.first().startsWith(u"INFO  Início: Etiquetas 0."_s))
        << lines.first().toStdString();
    EXPECT_TRUE(lines.first().endsWith(u"Qt %1, pasta \"%2\""_s.arg(qVersion(), folder.path())))
        << lines.first().toStdString();
    EXPECT_EQ(lines.filter(u"INFO  Impressoras: "_s).size(), 1);
    EXPECT_EQ(lines.filter(u"\"PDF"_s).size(), 1) << "the built-in device";
    EXPECT_EQ(lines.last(), u"INFO  Fim, código 0"_s);
}

TEST_F(DesktopTest, logsOrdersJobsAndBoxes) {
    open();
    load(3, "1400050831");
    const QString order = folder.filePath(
        u"ARQUIVO TXT BRISAKO - FORNECEDOR 48215067000193 - PEDIDO 1400050831 - FRENTE.txt"_s);
    const QString read =
        u"INFO  Arquivo lido: \"%1\", %2 bytes"_s.arg(order).arg(QFileInfo(order).size());
    EXPECT_TRUE(log().contains(read)) << log().join(u'\n').toStdString();
    EXPECT_TRUE(log().filter(u"Varesko"_s).isEmpty());
    newEntriesOf({});
    EXPECT_FALSE(writtenBy(u"cmd_printacessorio"_s).isEmpty());
    const QStringList lines = log();
    const QStringList job = lines.filter(u"INFO  Impressão: arquivo \""_s + folder.path());
    ASSERT_EQ(job.size(), 1) << lines.join(u'\n').toStdString();
    EXPECT_TRUE(job.first().endsWith(u".pdf\", páginas: 14, entregue"_s));
    EXPECT_EQ(newEntriesOf(u"Mensagem"_s),
              QStringList{u"INFO  Mensagem (pergunta): A Impressão está OK"_s});
    EXPECT_EQ(lines.filter(u"INFO  Resposta: Sim"_s).size(), 1);
}

TEST_F(DesktopTest, logsFailuresThatItPassesOverAndTheOneThatEndsIt) {
    QFile logo(folder.filePath(u"lumira.jpg"_s));
    ASSERT_TRUE(logo.resize(2));
    open();
    const QStringList skipped = newEntriesOf(u"AVISO Falha ignorada: Imagem inválida"_s);
    ASSERT_EQ(skipped.size(), 1) << log().join(u'\n').toStdString();
    EXPECT_TRUE(skipped.first().contains(u"lumira.jpg"_s));
    EXPECT_TRUE(skipped.first().endsWith(u"(Pictures, número 481)"_s));
    load(3, "1400050831");
    worker.doubleClick(u"Frame4"_s);
    worker.type(u"txtlote"_s, u"99999"_s); // more than 16 bits hold
    worker.click(u"cmb_referencia"_s);
    newEntriesOf({});
    worker.press(Qt::Key_Tab);
    desktop->window().close(); // it has ended by then
    EXPECT_EQ(newEntriesOf({}),
              (QStringList{
                  u"ERRO  Falha que encerra o programa: Estouro: um número é grande demais."_s,
                  u"INFO  Mensagem (parada): Estouro: um número é grande demais.  O programa será "
                  "encerrado."_s,
                  u"INFO  Resposta: OK"_s, u"INFO  Fim, código 1"_s}));
}

TEST_F(DesktopTest, runsWithoutALogWhereItCanNotBeWritten) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"etiquetas.log"_s));
    open();
    load(3, "1400050831");
    EXPECT_FALSE(writtenBy(u"cmd_printacessorio"_s).isEmpty());
}

} // namespace etiquetas::test
