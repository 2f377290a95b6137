#include "Support.h"
#include "platform/linux/store/PropertyList.h"

#include <bit>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace DefaultsTests;
using LinuxDesktop::PropertyList::parse;
using LinuxDesktop::PropertyList::serialise;

// Python's side of describe().
const std::string describing = R"(
import sys, plistlib, struct, datetime
def describe(v):
    if v is True or v is False: return str(v).lower()
    if isinstance(v, int): return 'integer %d' % v
    if isinstance(v, float): return 'real ' + ('nan' if v != v else struct.pack('>d', v).hex())
    if isinstance(v, str): return 'string ' + v.encode('utf-8').hex()
    if isinstance(v, bytes): return 'data ' + v.hex()
    if isinstance(v, datetime.datetime):
        return 'date %04d-%02d-%02dT%02d:%02d:%02dZ' % (v.year, v.month, v.day, v.hour, v.minute, v.second)
    if isinstance(v, list): return '[' + ''.join(describe(i) + ',' for i in v) + ']'
    return '{' + ''.join(k.hex() + '=' + describe(i) + ',' for k, i in
                         sorted((k.encode('utf-8'), i) for k, i in v.items())) + '}'
)";

class RandomValues {
public:
    NS::Value value(int levels)
    {
        switch (number(0, levels > 0 ? 7 : 5)) {
        case 0:
            return number(0, 1) == 1;
        case 1:
            return integer();
        case 2:
            return real();
        case 3:
            return NS::Date{static_cast<double>(number(-62135596800, 253402300799))};
        case 4: {
            NS::Data data(static_cast<std::size_t>(number(0, 100)));
            for (auto& byte : data)
                byte = static_cast<std::uint8_t>(number(0, 255));
            return data;
        }
        case 5:
            return text();
        case 6: {
            NS::Value::Array array;
            for (auto count = number(0, 5); count > 0; --count)
                array.push_back(value(levels - 1));
            return array;
        }
        default:
            return dictionary(levels - 1);
        }
    }

    NS::Value::Dictionary dictionary(int levels)
    {
        NS::Value::Dictionary dictionary;
        for (auto count = number(0, 6); count > 0; --count)
            dictionary.insert_or_assign(text(), value(levels));
        return dictionary;
    }

private:
    std::int64_t number(std::int64_t least, std::int64_t most)
    {
        return std::uniform_int_distribution<std::int64_t>(least, most)(m_random);
    }

    NS::Value integer()
    {
        const std::uint64_t bits = m_random() >> number(0, 63);
        return number(0, 1) == 1 ? NS::Value(bits) : NS::Value(static_cast<std::int64_t>(bits));
    }

    NS::Value real()
    {
        // Any bits: subnormal, infinite and not-a-number among them.
        return std::bit_cast<double>(number(0, 9) == 0 ? m_random() | 0x7ff0000000000000U : m_random());
    }

    std::string text()
    {
        static const std::vector<std::string> pieces{"a",
                                                     "Z",
                                                     "0",
                                                     " ",
                                                     "\t",
                                                     "\n",
                                                     "&",
                                                     "<",
                                                     ">",
                                                     "\"",
                                                     "'",
                                                     "]]>",
                                                     "\x7f",
                                                     "\xc3\xa9",
                                                     "\xe2\x82\xac",
                                                     "\xef\xbf\xbd",
                                                     "\xf0\x9f\x98\x80",
                                                     "\xf4\x8f\xbf\xbf"};
        std::string text;
        for (auto count = number(0, 12); count > 0; --count)
            text += pieces.at(static_cast<std::size_t>(number(0, static_cast<std::int64_t>(pieces.size()) - 1)));
        return text;
    }

    std::mt19937_64 m_random{20010324};
};

TEST(PropertyListAndPython, EachReadsWhatTheOtherWrites)
{
    constexpr int count = 400;
    RandomValues random;
    std::string input;
    std::string expected;
    for (int i = 0; i < count; ++i) {
        const NS::Value value(random.dictionary(4));
        const auto bytes = serialise(value);
        ASSERT_TRUE(bytes) << bytes.error();
        input += std::to_string(bytes->size()) + "\n" + *bytes;
        expected += describe(value) + "\n";
    }

    // Python prints what it read, and what it writes of that.
    const auto result = runPython(describing + R"(
source = sys.stdin.buffer
written = []
while (length := source.readline()):
    value = plistlib.loads(source.read(int(length)))
    print(describe(value))
    written.append(plistlib.dumps(value))
print('written')
sys.stdout.flush()
for data in written:
    sys.stdout.buffer.write(b'%d\n' % len(data) + data)
)",
                                  input);
    ASSERT_EQ(result.status, 0) << result.errors;
    const std::string separator = "written\n";
    const auto end = result.output.find(separator);
    ASSERT_NE(end, std::string::npos);
    EXPECT_EQ(result.output.substr(0, end), expected);

    std::string found;
    std::string_view rest = std::string_view(result.output).substr(end + separator.size());
    while (!rest.empty()) {
        const auto line = rest.find('\n');
        const auto length = std::stoul(std::string(rest.substr(0, line)));
        const auto value = parse(rest.substr(line + 1, length));
        ASSERT_TRUE(value) << value.error();
        found += describe(*value) + "\n";
        rest.remove_prefix(line + 1 + length);
    }
    EXPECT_EQ(found, expected);
}

TEST(PropertyListAndPython, TheBytesAreTheSameWhereNeitherHasAChoice)
{
    const auto result = runPython(R"(
import sys, plistlib, datetime
value = {'array': [True, False, 0, -1, 2**64 - 1, -2**63, [], {}, [b'', b'\x00' * 200]], 'text': 'a<b>&"\'\n\t',
         'deep': {'a': {'b': {'c': {'d': {'e': {'f': {'g': {'h': b'\xff' * 40}}}}}}}},
         'date': datetime.datetime(2024, 2, 29, 23, 59, 59), '\u00e9\U0001F600': '', 'B': 1, 'a': 2}
sys.stdout.buffer.write(plistlib.dumps(value)))");
    ASSERT_EQ(result.status, 0) << result.errors;
    const auto value = parse(result.output);
    ASSERT_TRUE(value) << value.error();
    const auto bytes = serialise(*value);
    ASSERT_TRUE(bytes) << bytes.error();
    EXPECT_EQ(*bytes, result.output);
}

TEST(PropertyListAndPython, PythonReadsCarriageReturnsAndInfinities)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const NS::Value value(NS::Value::Dictionary{
        {"a\rb", "\r\n\r"}, {"r", NS::Value::Array{NS::Value(infinity), NS::Value(-infinity), NS::Value(-0.0)}}});
    const auto bytes = serialise(value);
    ASSERT_TRUE(bytes) << bytes.error();
    const auto result = runPython(describing + "print(describe(plistlib.loads(sys.stdin.buffer.read())))", *bytes);
    ASSERT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, describe(value) + "\n");
}

} // namespace
