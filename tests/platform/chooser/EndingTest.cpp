#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include <QApplication>
#include <QTimer>

#include <gtest/gtest.h>

using LinuxDesktop::FileChooser;

namespace {

/// Runs a panel inside the program's event loop. Returns its answer and the event loop's.
std::pair<int, int> runInProgram(FileChooser& chooser, const std::function<void(const ShownChooser&)>& steps)
{
    constexpr int endedByTest = 42;
    int answer = 0;
    const QObject program;
    QTimer::singleShot(0, &program, [&] {
        answer = runChooser(chooser, steps);
        QTimer::singleShot(100, &program, [] { QCoreApplication::exit(endedByTest); });
    });
    const int status = QApplication::exec();
    return {answer, status};
}

struct Ending : testing::Test {
    LinuxDesktop::ModalState modal;
    FileChooser chooser{modal};
};

} // namespace

TEST_F(Ending, QuittingTheProgramCancels)
{
    const auto [answer, status] = runInProgram(chooser, [](const ShownChooser&) { QCoreApplication::quit(); });
    EXPECT_EQ(answer, NS::ModalResponseCancel);
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(chooser.URL());
    EXPECT_FALSE(modal.active());
}

TEST_F(Ending, LeavingTheEventLoopsCancels)
{
    const auto [answer, status] = runInProgram(chooser, [](const ShownChooser& shown) {
        QCoreApplication::exit(3);
        shown.dialog().hide();
    });
    EXPECT_EQ(answer, NS::ModalResponseCancel);
    EXPECT_EQ(status, 3);
}

TEST_F(Ending, CancellingTheOnlyWindowDoesNotQuitTheProgram)
{
    const auto [answer, status] = runInProgram(chooser, [](const ShownChooser& shown) { shown.dialog().close(); });
    EXPECT_EQ(answer, NS::ModalResponseCancel);
    EXPECT_EQ(status, 42);
}

TEST_F(Ending, ConfirmingTheOnlyWindowDoesNotQuitTheProgram)
{
    const TemporaryFolder folder;
    chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.file("file")));
    const auto [answer, status] =
        runInProgram(chooser, [](const ShownChooser& shown) { shown.press(shown.confirmButton()); });
    EXPECT_EQ(answer, NS::ModalResponseOK);
    EXPECT_EQ(status, 42);
}
