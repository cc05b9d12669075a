#include "driver/native/trace_lines.h"

#include <charconv>
#include <cstdint>
#include <map>
#include <optional>

namespace pozhil {
namespace {

constexpr int HEXADECIMAL = 16;

/// Takes the first line off \p text.
std::string_view takeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line;
}

template <class Number> std::optional<Number> numberAt(std::string_view text, int base) {
    Number number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return read.ec == std::errc() ? std::optional(number) : std::nullopt;
}

/// Calls \p use(address, name) for each function in what nm tells, lines such as "0000000000401000 T main".
template <class Use> void eachFunction(std::string_view symbols, const Use& use) {
    constexpr std::string_view FUNCTION_KINDS = "tTwWui";
    while (!symbols.empty()) {
        const std::string_view line = takeLine(symbols);
        const std::size_t kind = line.find(' ') + 1;
        const auto address = numberAt<std::uint64_t>(line, HEXADECIMAL);
        if (address && kind + 2 < line.size() && FUNCTION_KINDS.find(line[kind]) != std::string_view::npos) {
            use(*address, line.substr(kind + 2));
        }
    }
}

std::string hexadecimal(std::uint64_t number) {
    char digits[2 * sizeof number] = {};
    const auto written = std::to_chars(std::begin(digits), std::end(digits), number, HEXADECIMAL);
    return {std::begin(digits), written.ptr};
}

} // namespace

std::vector<std::string> translateAddresses(std::string_view trace, std::string_view symbols,
                                            std::string_view otherSymbols) {
    std::map<std::uint64_t, std::string_view> names;
    eachFunction(symbols, [&](std::uint64_t address, std::string_view name) { names.emplace(address, name); });
    std::map<std::string_view, std::uint64_t> others;
    eachFunction(otherSymbols, [&](std::uint64_t address, std::string_view name) { others.emplace(name, address); });

    std::vector<std::string> translated;
    while (!trace.empty()) {
        const auto address = numberAt<std::uint64_t>(takeLine(trace), HEXADECIMAL);
        const auto after = address ? names.upper_bound(*address) : names.begin();
        if (after == names.begin()) {
            continue;
        }
        const auto function = std::prev(after);
        const auto other = others.find(function->second);
        if (other != others.end()) {
            translated.push_back(hexadecimal(other->second + (*address - function->first)));
        }
    }
    return translated;
}

std::vector<std::size_t> linesOfOutputText(std::string_view places) {
    constexpr std::string_view OUTPUT_TEXT = "generated.cpp:";
    std::vector<std::size_t> lines;
    while (!places.empty()) {
        const std::string_view place = takeLine(places);
        const std::size_t file = place.rfind(OUTPUT_TEXT);
        if (file == std::string_view::npos) {
            continue;
        }
        if (const auto line = numberAt<std::size_t>(place.substr(file + OUTPUT_TEXT.size()), 10)) {
            lines.push_back(*line);
        }
    }
    return lines;
}

} // namespace pozhil
