#include "platform/linux/widgets/Appearance.h"
#include "platform/linux/widgets/Scenes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace LinuxDesktop;

/// How much larger than usual the texts are.
struct TextSize {
    const char* name;
    qreal scale;
};

class ScenesText : public testing::TestWithParam<TextSize> {
protected:
    ScenesText()
    {
        applyAppearance(ColorScheme::Light);
        QFont font = m_usual;
        font.setPointSizeF(font.pointSizeF() * GetParam().scale);
        QApplication::setFont(font);
    }
    ~ScenesText() override { QApplication::setFont(m_usual); }

    static void expectWhole(const std::string& scene, const QWidget& widget, const QString& text, QSize needed)
    {
        EXPECT_GE(widget.width(), needed.width()) << scene << ": " << text.toStdString();
        EXPECT_GE(widget.height(), needed.height()) << scene << ": " << text.toStdString();
    }

    static void expectNothingIsCut(const std::string& scene, QSize size)
    {
        const auto root = makeScene(scene);
        root->resize(size);
        root->show();
        QCoreApplication::processEvents();
        EXPECT_EQ(root->size(), size) << scene << " does not fit its window";
        for (const QLabel* label : root->findChildren<QLabel*>()) {
            if (!label->isVisible() || label->text().isEmpty())
                continue;
            const int width = label->wordWrap() ? 0 : label->sizeHint().width();
            const int height = label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
            expectWhole(scene, *label, label->text(), {width, height});
        }
        for (const QAbstractButton* button : root->findChildren<QAbstractButton*>()) {
            if (button->isVisible())
                expectWhole(scene, *button, button->text(), button->minimumSizeHint());
        }
    }

private:
    const QFont m_usual = QApplication::font();
};

/// What is left of the main window's height.
int heightWithout(double menuBarAndTabs)
{
    return 702 - static_cast<int>(menuBarAndTabs);
}

TEST_P(ScenesText, IsWholeInTheMainWindow)
{
    const QSize room(600, heightWithout(80 * GetParam().scale));
    for (const char* scene : {"ViewController", "foldersArrvc", "genraltabvc", "aboutVc", "customFoldersVc"})
        expectNothingIsCut(scene, room);
}

TEST_P(ScenesText, IsWholeInTheFirstRun)
{
    expectNothingIsCut("firstRunvc", {600, heightWithout(30 * GetParam().scale)});
}

TEST_P(ScenesText, IsWholeInTheNarrowestWindow)
{
    for (const char* scene : {"ViewController", "foldersArrvc", "genraltabvc", "customFoldersVc"})
        expectNothingIsCut(scene, {440, 500});
}

INSTANTIATE_TEST_SUITE_P(Each, ScenesText, testing::Values(TextSize{"Usual", 1.0}, TextSize{"HalfAsLargeAgain", 1.5}),
                         [](const auto& tested) { return tested.param.name; });

} // namespace
