#pragma once

#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/bus/ApplicationName.h"
#include "platform/linux/bus/SessionBus.h"

#include <gtest/gtest.h>

/// The desktop's own platform, installed for the test, with no files of its own.
class WholePlatform : public testing::Test {
protected:
    WholePlatform() { NS::installPlatform(&platform); }
    ~WholePlatform() override { NS::installPlatform(nullptr); }

    NS::ClassTable classes;
    LinuxDesktop::SessionBus bus{""};
    LinuxDesktop::ApplicationName name{bus, "org.example.Whole"};
    LinuxDesktop::LinuxPlatform platform{classes, QStringLiteral("/nonexistent"), bus, name};
};
