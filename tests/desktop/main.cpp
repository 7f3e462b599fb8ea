#include <QApplication>
#include <gtest/gtest.h>

int main(int count, char** arguments) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0); // unless another one is set
    const QApplication application(count, arguments);
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
