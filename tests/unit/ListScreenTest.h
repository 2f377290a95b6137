#pragma once

#include "support/FakeButton.h"
#include "support/FakePlatform.h"
#include "support/FakeTableView.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a row shows.
struct Row {
    std::string title;
    bool on;
    std::optional<std::string> image;

    friend bool operator==(const Row&, const Row&) = default;
};
void PrintTo(const Row& row, std::ostream* stream);

/// A screen that is a list of `tblcell` rows, over a platform in memory.
class ListScreenTest : public testing::Test {
protected:
    ListScreenTest();

    /// Puts the list, "tblview", into the screen's scene. Its rows are what `makeRow` makes by then.
    void addList(FakeScene& scene);
    /// Rows of the usual class without one of its views.
    void useRowWithout(std::string_view view);
    /// Rows of a class that the screens do not know.
    void useRowOfAnotherClass();

    /// The list of the screen that was made last.
    [[nodiscard]] FakeTableView& table() const { return *m_table; }
    [[nodiscard]] FakeButton& checkbox(std::size_t row) const;
    [[nodiscard]] FakeButton& deleteButton(std::size_t row) const;
    [[nodiscard]] Row row(std::size_t index) const;
    [[nodiscard]] std::vector<Row> rows() const;

    /// Expects that the screen has not touched the button of that name in any of its rows.
    void expectLeftAlone(std::string_view button);
    /// Expects that `show` shows one row, and that as an empty one.
    void expectAnEmptyRow(const std::function<void()>& show) const;
    /// Expects that `show` ends in a row without that view, with `callBefore` as the last call.
    void expectFatalWithout(std::string_view view, std::string_view callBefore, const std::function<void()>& show);

    FakePlatform platform;
    /// Empty for a list without a row scene.
    FakeTableView::RowMaker makeRow;

private:
    FakeTableView* m_table = nullptr;
};
