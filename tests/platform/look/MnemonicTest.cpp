#include "platform/linux/look/Appearance.h"

#include <QApplication>
#include <QPushButton>

#include <gtest/gtest.h>

namespace {

using namespace LinuxDesktop;

QImage pictureOf(const QString& title)
{
    QPushButton button(title);
    button.setFixedSize(300, 40);
    return button.grab().toImage();
}

class Mnemonic : public testing::Test {
protected:
    Mnemonic() { applyAppearance(ColorScheme::Light); }
    ~Mnemonic() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
};

TEST_F(Mnemonic, IsUnderlinedWhereLettersStandAlone)
{
    EXPECT_NE(pictureOf(QStringLiteral("&Choose")), pictureOf(QStringLiteral("Choose")));
}

TEST_F(Mnemonic, LeavesLettersJoinedThatAreWrittenFromTheRight)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(pictureOf(QStringLiteral("اختر ال&مجلدات")), pictureOf(QStringLiteral("اختر المجلدات")));
}

} // namespace
