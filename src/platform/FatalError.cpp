#include "platform/FatalError.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace NS {

namespace {

std::atomic<void (*)(std::string_view)> lastWordsToSay = nullptr;

} // namespace

void setLastWords(void (*lastWords)(std::string_view what))
{
    lastWordsToSay = lastWords;
}

void fatalError(std::string_view what)
{
    std::fprintf(stderr, "%s: fatal error: %.*s\n", program_invocation_short_name, static_cast<int>(what.size()),
                 what.data());
    // Another fatal error on the way, or on another thread, finds none left to say.
    if (auto* const lastWords = lastWordsToSay.exchange(nullptr))
        lastWords(what);
    std::abort();
}

} // namespace NS
