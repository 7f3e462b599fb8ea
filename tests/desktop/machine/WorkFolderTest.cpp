#include "desktop/machine/WorkFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace etiquetas {

// The folder of a user is checked by scripts/check_installation.sh, as a user who may not write the
// one of the program: for root, every folder on disk can be written.

TEST(WorkFolder, isTheOneThatIsNamedElseThatOfThePortableProgram) {
    const QTemporaryDir named;
    EXPECT_EQ(openWorkFolder(named.path()).path, named.path());
    const WorkFolder own = openWorkFolder({});
    EXPECT_EQ(own.path, QCoreApplication::applicationDirPath());
    EXPECT_EQ(tellFolder(own), QString());
    EXPECT_TRUE(QDir(named.path()).isEmpty()); // the trial of writing left nothing
}

TEST(WorkFolder, tellsThatItCanNotBeWritten) {
    const WorkFolder folder = openWorkFolder(QStringLiteral("/proc"));
    EXPECT_FALSE(folder.is_writable);
    EXPECT_TRUE(tellFolder(folder).contains(QStringLiteral("/proc")))
        << tellFolder(folder).toStdString();
}

} // namespace etiquetas
