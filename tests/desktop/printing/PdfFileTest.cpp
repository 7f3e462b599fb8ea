#include "desktop/printing/PdfFile.h"

#include "base/Failure.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace etiquetas {

using namespace Qt::StringLiterals;

class PdfFileTest : public testing::Test {
  protected:
    QString write(const QByteArray& bytes) {
        return writePdfFile(written.path(), stem, [&bytes](const QString& draft) {
            QFile file(draft);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(bytes);
        });
    }

    [[nodiscard]] QStringList files() const {
        return written.entryList(QDir::Files | QDir::Hidden);
    }

    QTemporaryDir folder;
    QDir written{folder.filePath(u"impressos"_s)}; // which is not there yet
    QString stem = u"2024-03-05 07-08-09"_s;
};

TEST_F(PdfFileTest, isNamedByItsStemAndGetsANumberWhereThatNameIsTaken) {
    EXPECT_EQ(write("%PDF first %%EOF\n"), written.filePath(u"2024-03-05 07-08-09.pdf"_s));
    EXPECT_EQ(write("%PDF second %%EOF\n"), written.filePath(u"2024-03-05 07-08-09 (2).pdf"_s));
    EXPECT_EQ(write("%PDF third %%EOF\n"), written.filePath(u"2024-03-05 07-08-09 (3).pdf"_s));
    EXPECT_EQ(files().size(), 3) << "a draft";
    QFile second(written.filePath(u"2024-03-05 07-08-09 (2).pdf"_s));
    ASSERT_TRUE(second.open(QIODevice::ReadOnly));
    EXPECT_EQ(second.readAll(), "%PDF second %%EOF\n");
}

TEST_F(PdfFileTest, isNotThereWhereItsDraftIsCutOff) {
    EXPECT_THROW(write("%PDF first %%EO"), Failure);
    EXPECT_THROW(write(""), Failure);
    EXPECT_TRUE(files().isEmpty());
}

} // namespace etiquetas
