#include "ResizeJob.h"
#include "extension/actions/photos/RefusalWords.h"
#include "platform/LocalizedString.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace MenuExtension::Resizing {

namespace {

constexpr char refused = 'R';
constexpr char resized = 'D';

/// A number as its bytes; both ends are one machine's.
void put(std::string& text, std::uint64_t number)
{
    text.append(reinterpret_cast<const char*>(&number), sizeof(number));
}

class Reader {
public:
    explicit Reader(std::string_view text) : m_rest(text) {}

    std::uint64_t number()
    {
        std::uint64_t number = 0;
        const std::string_view bytes = take(sizeof(number));
        if (bytes.size() == sizeof(number))
            std::memcpy(&number, bytes.data(), sizeof(number));
        return number;
    }
    std::uint32_t length() { return static_cast<std::uint32_t>(number()); }
    std::string_view take(std::uint64_t count)
    {
        m_failed = m_failed || count > m_rest.size();
        const std::string_view taken = m_rest.substr(0, m_failed ? 0 : count);
        m_rest.remove_prefix(taken.size());
        return taken;
    }
    [[nodiscard]] bool isWhole() const { return !m_failed && m_rest.empty(); }

private:
    std::string_view m_rest;
    bool m_failed = false;
};

void put(std::string& text, const Size& size)
{
    put(text, size.width);
    put(text, size.height);
    put(text, size.bytes);
}

void put(std::string& text, const Pixels& pixels)
{
    put(text, pixels.width);
    put(text, pixels.height);
    text.append(pixels.bytes);
}

Size sizeFrom(Reader& reader)
{
    const std::uint32_t width = reader.length();
    const std::uint32_t height = reader.length();
    return {width, height, reader.number()};
}

Pixels pixelsFrom(Reader& reader)
{
    // No screen is that large, and their product is a number.
    constexpr std::uint64_t most = 1U << 16U;
    const std::uint64_t width = reader.number();
    const std::uint64_t height = reader.number();
    const std::string_view bytes = reader.take(width > most || height > most ? UINT64_MAX : width * height * 3);
    return {static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height), std::string(bytes)};
}

} // namespace

std::string textOf(const Job& job)
{
    std::string text;
    put(text, static_cast<std::uint64_t>(job.goal.kind));
    put(text, job.goal.value);
    put(text, static_cast<std::uint64_t>(job.goal.quality));
    put(text, job.goal.longest);
    put(text, job.shownPixels);
    return text;
}

std::optional<Job> jobFrom(std::string_view text)
{
    Reader reader(text);
    const std::uint64_t kind = reader.number();
    const std::uint64_t value = reader.number();
    const std::uint64_t quality = reader.number();
    const std::uint32_t longest = reader.length();
    const std::uint32_t shown = reader.length();
    if (!reader.isWhole() || kind > static_cast<std::uint64_t>(Goal::Kind::Bytes) || value == 0 || quality == 0 ||
        quality > 100)
        return std::nullopt;
    return Job{{static_cast<Goal::Kind>(kind), value, static_cast<int>(quality), longest}, shown};
}

std::string textOf(const Result& result)
{
    if (const auto* refusal = std::get_if<Refused>(&result))
        return refused + refusal->why;
    const auto& done = std::get<Resized>(result);
    std::string text(1, resized);
    put(text, done.before);
    put(text, done.after);
    put(text, done.shownBefore);
    put(text, done.shownAfter);
    put(text, static_cast<std::uint64_t>(done.data));
    return text;
}

Result resultFrom(std::string_view text)
{
    if (text.starts_with(refused))
        return Refused{Photos::refusalInWords(text.substr(1))};
    Reader reader(text.substr(std::min<std::size_t>(1, text.size())));
    Resized done;
    done.before = sizeFrom(reader);
    done.after = sizeFrom(reader);
    done.shownBefore = pixelsFrom(reader);
    done.shownAfter = pixelsFrom(reader);
    done.data = reader.number() == 0 ? Data::Kept : Data::Lost;
    if (!text.starts_with(resized) || !reader.isWhole())
        return Refused{NS::LocalizedString("Photos", "cannot be resized: its worker gave no answer")};
    return done;
}

Size sizeFor(const Goal& goal, const Size& photo)
{
    const double longest = std::max(photo.width, photo.height);
    const auto wanted = goal.kind == Goal::Kind::Bytes ? goal.longest : goal.value;
    double scale = 1;
    if (goal.kind == Goal::Kind::Percent)
        scale = static_cast<double>(goal.value) / 100;
    else if (longest > 0 && wanted > 0)
        scale = static_cast<double>(wanted) / longest;
    scale = std::min(scale, 1.0);
    const auto scaled = [scale](std::uint32_t length) {
        return static_cast<std::uint32_t>(std::max(1.0, std::round(length * scale)));
    };
    return {scaled(photo.width), scaled(photo.height), 0};
}

} // namespace MenuExtension::Resizing
