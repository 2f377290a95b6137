#include "ListScreenTest.h"

#include "support/FakeImageView.h"
#include "support/FakeTextField.h"
#include "support/FatalLine.h"
#include "ui/tblcell.h"

#include <memory>
#include <ostream>

namespace {

/// Tags of a button that its scene has just made, before and after a click. No row has them.
constexpr std::ptrdiff_t untouched = -7;
constexpr std::ptrdiff_t clicked = -8;

void addButton(FakeScene& scene, std::string_view name)
{
    auto& button = scene.add<FakeButton>(name);
    button.setTag(untouched);
    button.setAction([](NS::Control& sender) { sender.setTag(clicked); });
}

} // namespace

void PrintTo(const Row& row, std::ostream* stream)
{
    *stream << '"' << row.title << "\" " << (row.on ? "on" : "off") << ' ' << row.image.value_or("no image");
}

ListScreenTest::ListScreenTest()
{
    useRowWithout("");
}

void ListScreenTest::useRowWithout(std::string_view view)
{
    makeRow = [missing = std::string(view)](FakeScene& scene) {
        scene.add<FakeTextField>("lbltitle");
        scene.add<FakeImageView>("imgview");
        addButton(scene, "checkbox");
        addButton(scene, "btnDelete");
        if (!missing.empty())
            scene.remove(missing);
        return std::make_unique<tblcell>();
    };
}

void ListScreenTest::useRowOfAnotherClass()
{
    makeRow = [](FakeScene&) { return std::make_unique<NS::TableCellView>(); };
}

void ListScreenTest::addList(FakeScene& scene)
{
    m_table = &scene.add<FakeTableView>("tblview");
    if (makeRow)
        m_table->addRowScene("tblcell", makeRow);
}

FakeButton& ListScreenTest::checkbox(std::size_t row) const
{
    return table().rowScene(row).view<FakeButton>("checkbox");
}

FakeButton& ListScreenTest::deleteButton(std::size_t row) const
{
    return table().rowScene(row).view<FakeButton>("btnDelete");
}

Row ListScreenTest::row(std::size_t index) const
{
    FakeScene& views = table().rowScene(index);
    const auto& image = views.view<FakeImageView>("imgview").image();
    return {views.view<FakeTextField>("lbltitle").text(), checkbox(index).state() == NS::ControlState::On,
            image ? std::optional(image->name()) : std::nullopt};
}

std::vector<Row> ListScreenTest::rows() const
{
    std::vector<Row> shown;
    shown.reserve(table().rowCount());
    for (std::size_t index = 0; index < table().rowCount(); ++index)
        shown.push_back(row(index));
    return shown;
}

void ListScreenTest::expectLeftAlone(std::string_view button)
{
    EXPECT_EQ(platform.calls.containing('.' + std::string(button) + '.'), std::vector<std::string>{});
    ASSERT_GT(table().rowCount(), 1U);
    for (std::size_t index = 0; index < table().rowCount(); ++index) {
        auto& control = table().rowScene(index).view<FakeButton>(button);
        EXPECT_EQ(control.tag(), untouched) << "row " << index;
        control.click();
        EXPECT_EQ(control.tag(), clicked) << "row " << index;
    }
}

void ListScreenTest::expectAnEmptyRow(const std::function<void()>& show) const
{
    show();

    ASSERT_EQ(table().rowCount(), 1U);
    EXPECT_EQ(table().rowView(0), nullptr);
}

void ListScreenTest::expectFatalWithout(std::string_view view, std::string_view callBefore,
                                        const std::function<void()>& show)
{
    useRowWithout(view);

    EXPECT_DEATH(
        {
            platform.calls.echoOnStandardError();
            show();
        },
        fatalLineAfter(callBefore, "the outlet \"" + std::string(view) + "\" is empty"));
}
