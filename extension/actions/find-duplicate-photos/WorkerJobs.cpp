#include "WorkerJobs.h"
#include "extension/actions/photos/RefusalWords.h"
#include "platform/LocalizedString.h"

#include <array>
#include <cstring>

namespace MenuExtension::SimilarPhotos {

namespace {

/// Both ends are of one build and one machine.
void append(std::string& text, std::uint32_t number)
{
    std::array<char, sizeof(number)> bytes{};
    std::memcpy(bytes.data(), &number, sizeof(number));
    text.append(bytes.data(), bytes.size());
}

std::optional<std::uint32_t> take(std::string_view& text)
{
    std::uint32_t number = 0;
    if (text.size() < sizeof(number))
        return std::nullopt;
    std::memcpy(&number, text.data(), sizeof(number));
    text.remove_prefix(sizeof(number));
    return number;
}

std::string described(const Described& result)
{
    std::string text = "d";
    append(text, result.width);
    append(text, result.height);
    return text + bytesOf(result.thumb);
}

std::string shown(const Shown& result)
{
    std::string text = "s";
    append(text, result.width);
    append(text, result.height);
    return text + result.bytes;
}

/// Text that came from what may be broken.
std::string plain(std::string_view text)
{
    constexpr std::size_t longest = 300;
    return std::string(text.substr(0, longest));
}

} // namespace

std::string jobText(std::uint32_t pixels)
{
    std::string text;
    append(text, pixels);
    return text;
}

std::optional<std::uint32_t> pixelsFrom(std::string_view job)
{
    const auto pixels = take(job);
    return job.empty() ? pixels : std::nullopt;
}

std::string resultText(const Result& result)
{
    if (const auto* picture = std::get_if<Described>(&result))
        return described(*picture);
    if (const auto* picture = std::get_if<Shown>(&result))
        return shown(*picture);
    return "r" + std::get<Refused>(result).why;
}

Result resultFrom(std::string_view text)
{
    const Refused none{NS::LocalizedString("Photos", "cannot be read: what reads pictures has failed")};
    if (text.empty())
        return none;
    const char kind = text.front();
    text.remove_prefix(1);
    if (kind == 'r')
        return Refused{Photos::refusalInWords(plain(text))};
    const auto width = take(text);
    const auto height = take(text);
    if (!width || !height || *width == 0 || *height == 0)
        return none;
    if (kind == 'd') {
        const auto thumb = thumbFrom(text);
        return thumb ? Result(Described{*width, *height, *thumb}) : none;
    }
    constexpr std::uint32_t longest = 1U << 14U;
    const bool isWhole = *width <= longest && *height <= longest && text.size() == std::size_t{*width} * *height * 3;
    return kind == 's' && isWhole ? Result(Shown{*width, *height, std::string(text)}) : none;
}

} // namespace MenuExtension::SimilarPhotos
