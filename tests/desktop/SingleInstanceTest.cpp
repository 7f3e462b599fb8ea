#include "desktop/SingleInstance.h"

#include <QTemporaryDir>
#include <QtTest/QTest>
#include <gtest/gtest.h>

#include <optional>
#include <sys/wait.h>
#include <unistd.h>

namespace etiquetas {

TEST(SingleInstance, callsTheProgramThatHasTheFolderUntilThatEnds) {
    const QTemporaryDir folder;
    const QTemporaryDir other_folder;
    bool is_called = false;
    std::optional<SingleInstance> first(folder.path());
    first->onCalled([&is_called] { is_called = true; });
    EXPECT_TRUE(first->isFirst());
    EXPECT_FALSE(SingleInstance(folder.path() + QStringLiteral("/.")).isFirst());
    EXPECT_TRUE(QTest::qWaitFor([&is_called] { return is_called; }));
    EXPECT_TRUE(SingleInstance(other_folder.path()).isFirst());
    first.reset();
    EXPECT_TRUE(SingleInstance(folder.path()).isFirst());
}

TEST(SingleInstance, takesTheFolderOverFromAProgramThatWasKilled) {
    const QTemporaryDir folder;
    const pid_t killed = fork();
    if (killed == 0) {
        const SingleInstance instance(folder.path());
        _exit(instance.isFirst() ? 0 : 1); // its socket stays
    }
    int status = 1;
    waitpid(killed, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(SingleInstance(folder.path()).isFirst());
}

} // namespace etiquetas
