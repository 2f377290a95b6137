#include "platform/linux/bus/interfaces/ObjectPath.h"

#include <gtest/gtest.h>

TEST(ObjectPath, IsThatOfTheNameWithoutWhatAPathMayNotHave)
{
    EXPECT_EQ(BusInterface::objectPath("com.orvik-studio.menu"), "/com/orvik_studio/menu");
}
