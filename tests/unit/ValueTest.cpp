#include "platform/Value.h"

#include "support/FakeUserDefaults.h"
#include "support/PrintValue.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace {

using Kind = NS::Value::Kind;

/// A value of each kind, in the order of the kinds.
const std::vector<NS::Value> oneOfEachKind{
    true, 1, 1.0, "1", NS::Date{1.0}, NS::Data{1}, NS::Value::Array{1}, NS::Value::Dictionary{{"1", 1}}};

TEST(Value, AnswersForItsOwnKindAndForNoOther)
{
    for (std::size_t position = 0; position < oneOfEachKind.size(); ++position) {
        const NS::Value& value = oneOfEachKind[position];
        const Kind kind = static_cast<Kind>(position);
        SCOPED_TRACE(testing::PrintToString(value));
        EXPECT_EQ(value.kind(), kind);
        EXPECT_EQ(value.boolean().has_value(), kind == Kind::Boolean);
        EXPECT_EQ(value.integer().has_value(), kind == Kind::Integer);
        EXPECT_EQ(value.real().has_value(), kind == Kind::Real);
        EXPECT_EQ(value.string() != nullptr, kind == Kind::String);
        EXPECT_EQ(value.date().has_value(), kind == Kind::Date);
        EXPECT_EQ(value.data() != nullptr, kind == Kind::Data);
        EXPECT_EQ(value.array() != nullptr, kind == Kind::Array);
        EXPECT_EQ(value.dictionary() != nullptr, kind == Kind::Dictionary);
        EXPECT_FALSE(value.largeInteger());
    }
}

TEST(Value, IsEqualToNoneOfAnotherKind)
{
    for (const NS::Value& one : oneOfEachKind) {
        for (const NS::Value& other : oneOfEachKind)
            EXPECT_EQ(one == other, &one == &other);
    }
}

TEST(Value, HoldsTheWholeRangeOfIntegers)
{
    using Limits = std::numeric_limits<std::int64_t>;
    const std::vector<std::int64_t> integers{Limits::min(), -1, 0, Limits::max()};
    const NS::Value::Array values(integers.begin(), integers.end());

    for (std::size_t position = 0; position < integers.size(); ++position)
        EXPECT_EQ(values[position].integer(), integers[position]);
}

TEST(Value, AnIntegerBeyondThatRangeIsHeldButIsNotAnInt64)
{
    const NS::Value value = std::numeric_limits<std::uint64_t>::max();
    EXPECT_EQ(value.kind(), Kind::Integer);
    EXPECT_FALSE(value.integer());
    EXPECT_EQ(value.largeInteger(), std::numeric_limits<std::uint64_t>::max());
}

TEST(Value, CopiesShareWhatTheyContain)
{
    const NS::Value list = NS::Value::Array{"1", "2"};
    const NS::Value record = NS::Value::Dictionary{{"list", list}};
    const NS::Value copy = record;

    EXPECT_EQ(copy.dictionary(), record.dictionary());
    EXPECT_EQ(copy.dictionary()->at("list").array(), list.array());
}

TEST(Value, ACopyStaysAsItIsWhenTheOriginalIsAssignedTo)
{
    NS::Value original = NS::Value::Array{1, 2};
    const NS::Value copy = original;
    original = NS::Value::Array{3};

    EXPECT_EQ(copy, NS::Value(NS::Value::Array{1, 2}));
    EXPECT_NE(copy, original);
}

TEST(Value, AContainerThatWasMovedFromIsStillOne)
{
    NS::Value original = NS::Value::Array{1, 2};
    const NS::Value moved = std::move(original);

    EXPECT_EQ(original.kind(), Kind::Array);
    EXPECT_NE(original.array(), nullptr);
    EXPECT_EQ(moved, NS::Value(NS::Value::Array{1, 2}));
}

TEST(Value, ContainersThatAreNotSharedAreComparedByWhatTheyHold)
{
    EXPECT_EQ(NS::Value(NS::Value::Array{1, "2"}), NS::Value(NS::Value::Array{1, "2"}));
    EXPECT_NE(NS::Value(NS::Value::Array{1, "2"}), NS::Value(NS::Value::Array{1, 2}));
    EXPECT_EQ(NS::Value(NS::Value::Dictionary{{"1", 1}}), NS::Value(NS::Value::Dictionary{{"1", 1}}));
    EXPECT_NE(NS::Value(NS::Value::Dictionary{{"1", 1}}), NS::Value(NS::Value::Dictionary{{"2", 1}}));
}

TEST(UserDefaults, ArrayForKeyGivesAnArrayAndNothingElse)
{
    CallLog calls;
    NS::Value::Dictionary domain{{"list", NS::Value::Array{1, "two"}}, {"text", "list"}};
    FakeUserDefaults defaults(calls, "defaults", domain);

    EXPECT_EQ(defaults.arrayForKey("list"), (NS::Value::Array{1, "two"}));
    EXPECT_EQ(defaults.arrayForKey("text"), std::nullopt);
    EXPECT_EQ(defaults.arrayForKey("absent"), std::nullopt);
}

} // namespace
