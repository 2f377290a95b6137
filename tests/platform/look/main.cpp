#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("XDG_CURRENT_DESKTOP");
    const QApplication application(argc, argv);
    // Pictures are not to depend on when they are taken.
    QApplication::setCursorFlashTime(0);
    return RUN_ALL_TESTS();
}
