#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/scenes/Accessibility.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    // A death test runs the program anew up to its statement, clear of this one's threads.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Nobody's sizes of windows.
    const QTemporaryDir state;
    qputenv("XDG_STATE_HOME", state.path().toLocal8Bit());
    const QApplication application(argc, argv);
    LinuxDesktop::installAccessibleContainers();
    LinuxDesktop::installAccessibility();
    return RUN_ALL_TESTS();
}
