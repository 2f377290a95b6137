#include "platform/linux/text/SizeText.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace {

using LinuxDesktop::sizeText;

TEST(SizeText, IsReadByPeople)
{
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(sizeText(0), "0 bytes");
    EXPECT_EQ(sizeText(1), "1 byte");
    EXPECT_EQ(sizeText(2), "2 bytes");
    EXPECT_EQ(sizeText(1'500'000), "1.5 MB");
}

} // namespace
