#include "platform/linux/scenes/PushButton.h"

#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace LinuxDesktop;
using Events = std::vector<std::string>;

class Owner : public NS::Responder {
public:
    void mouseEntered() override { events.emplace_back("entered"); }
    void mouseExited() override { events.emplace_back("exited"); }

    Events events;
};

TEST(TrackingArea, FollowsTheButtonsSize)
{
    QWidget window;
    window.resize(400, 200);
    PushButton button(&window);
    button.setGeometry(10, 10, 50, 30);
    Owner owner;
    button.addTrackingArea({.rect = button.bounds(), .options = 641, .owner = &owner});
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QTest::mouseMove(&window, {390, 190});
    QCoreApplication::processEvents();
    owner.events.clear();

    button.resize(300, 100);
    QTest::mouseMove(&window, {250, 90});
    QCoreApplication::processEvents();
    EXPECT_EQ(owner.events, (Events{"entered"}));
    QTest::mouseMove(&window, {390, 190});
    QCoreApplication::processEvents();
    EXPECT_EQ(owner.events, (Events{"entered", "exited"}));
}

} // namespace
