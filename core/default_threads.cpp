// Reads the environment's numbers of threads.

#include "default_threads.hpp"

#include <charconv>
#include <cstring>

namespace vorcore {

namespace {

constexpr bool isBlank(char c) { return c == ' ' || c == '\t'; }

// A positive number up to the end of the text or the separator, with blanks around it; 0 for anything else.
// One that is too large is the largest.
std::int32_t positive(const char* text, char separator)
{
    if (!text) return 0;
    while (isBlank(*text)) ++text;
    std::int32_t number = 0;
    auto [end, error] = std::from_chars(text, text + std::strlen(text), number);
    if (end == text || *text == '-') return 0;
    while (isBlank(*end)) ++end;
    if (*end && *end != separator) return 0;
    return error == std::errc::result_out_of_range ? INT32_MAX : number;
}

}  // namespace

std::int32_t defaultThreads(const char* vormNumThreads, const char* ompNumThreads, std::int32_t processors)
{
    if (const std::int32_t number = positive(vormNumThreads, '\0')) return number;
    if (const std::int32_t number = positive(ompNumThreads, ',')) return number;
    return processors;
}

}  // namespace vorcore
