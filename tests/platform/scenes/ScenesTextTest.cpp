#include "platform/LocalizedString.h"
#include "platform/linux/look/Appearance.h"
#include "platform/linux/scenes/Label.h"
#include "platform/linux/scenes/Paragraph.h"
#include "platform/linux/scenes/Scenes.h"
#include "showcase/ShowcaseCatalogue.h"
#include "support/InLanguage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <tuple>

namespace {

using namespace LinuxDesktop;

/// How much larger than usual the texts are.
struct TextSize {
    const char* name;
    qreal scale;
};

class ScenesText : public testing::TestWithParam<std::tuple<TextSize, const char*>> {
protected:
    ScenesText()
    {
        applyAppearance(ColorScheme::Light);
        QFont font = m_usual;
        font.setPointSizeF(font.pointSizeF() * scale());
        QApplication::setFont(font);
    }
    ~ScenesText() override { QApplication::setFont(m_usual); }

    [[nodiscard]] static qreal scale() { return std::get<TextSize>(GetParam()).scale; }

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
    const InLanguage m_language{std::get<const char*>(GetParam())};
    const QFont m_usual = QApplication::font();
};

/// What is left of the main window's height.
int heightWithout(double menuBarAndTabs)
{
    return 702 - static_cast<int>(menuBarAndTabs);
}

TEST_P(ScenesText, IsWholeInTheMainWindow)
{
    const QSize room(600, heightWithout(80 * scale()));
    for (const char* scene : {"ViewController", "foldersArrvc", "genraltabvc", "aboutVc", "customFoldersVc"})
        expectNothingIsCut(scene, room);
}

TEST_P(ScenesText, IsWholeInTheFirstRun)
{
    expectNothingIsCut("firstRunvc", {600, heightWithout(30 * scale())});
}

TEST_P(ScenesText, IsWholeInTheNarrowestWindow)
{
    for (const char* scene : {"ViewController", "foldersArrvc", "genraltabvc", "customFoldersVc"})
        expectNothingIsCut(scene, {440, 500});
}

TEST_P(ScenesText, OfTheTabsFitsTheMainWindow)
{
    const auto root = makeScene("tabviewcontroller");
    root->resize(600, 600);
    root->show();

    EXPECT_LE(root->findChild<QTabBar*>()->sizeHint().width(), root->width());
}

std::unique_ptr<QWidget> shownCard(std::string_view title, std::string_view description)
{
    auto card = makeScene("collectionView_cell");
    card->resize(430, 220);
    card->findChild<Label*>("lbltitle")->setStringValue(title);
    card->findChild<Label*>("lblapptype")->setStringValue("Utilities");
    card->findChild<Paragraph*>("lblsubtitle")->setStringValue(description);
    card->show();
    QCoreApplication::processEvents();
    return card;
}

TEST_P(ScenesText, IsWholeOnEveryCard)
{
    for (const ShowcaseApplication& application : showcaseCatalogue) {
        const auto card =
            shownCard(application.title, NS::LocalizedString("ShowcaseCatalogue", application.description));
        const auto& description = *card->findChild<Paragraph*>("lblsubtitle");

        EXPECT_GE(description.height(), description.heightForWidth(description.width())) << application.title;
    }
}

TEST_P(ScenesText, MovesNothingElseOnACard)
{
    for (const char* text :
         {"Short.",
          "A sentence that goes on for so long that it takes three lines of a card, which is as many as there "
          "are sentences of that length in any of the texts of these cards."}) {
        const auto card = shownCard("Title", text);

        EXPECT_EQ(card->findChild<QWidget*>("imgview")->y(), card->layout()->contentsMargins().top());
    }
}

INSTANTIATE_TEST_SUITE_P(Each, ScenesText,
                         testing::Combine(testing::Values(TextSize{"Usual", 1.0}, TextSize{"HalfAsLargeAgain", 1.5}),
                                          testing::ValuesIn(languages)),
                         [](const auto& tested) {
                             return std::get<TextSize>(tested.param).name + std::string(std::get<1>(tested.param));
                         });

} // namespace
