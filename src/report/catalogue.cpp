#include "report/catalogue.h"

#include "report/catalogue_rows.h"

namespace pozhil::report {
namespace {

constexpr std::size_t HOLE_SIZE = 3;

/// Whether \p text begins with a hole such as {1}.
bool beginsWithHole(std::string_view text) {
    return text.size() >= HOLE_SIZE && text[0] == '{' && text[1] >= '1' && text[1] <= '9' && text[2] == '}';
}

template <std::size_t count> const Entry* findIn(const EntryRows (&blocks)[count], int number) {
    for (const EntryRows& rows : blocks) {
        for (const Entry& entry : rows) {
            if (entry.number == number) {
                return &entry;
            }
        }
    }
    return nullptr;
}

} // namespace

Catalogue catalogue() {
    return {{writingRows(), meaningRows(), valueRows(), applicationRows(), runningRows()}};
}

const Entry* findEntry(int number) {
    return findIn(catalogue().blocks, number);
}

const Entry* findRunningEntry(int number) {
    return findIn({valueRows(), runningRows()}, number);
}

std::string codeOf(int number) {
    return "பொழி-" + std::to_string(number);
}

std::string filled(const char* text, std::initializer_list<std::string_view> values) {
    return filled(text, values.begin(), values.size());
}

std::string filled(const char* text, const std::string_view* values, std::size_t count) {
    std::string result;
    // One pass: what looks like a hole in a value is text of the user.
    for (std::string_view rest = text; !rest.empty();) {
        if (!beginsWithHole(rest)) {
            result += rest.front();
            rest.remove_prefix(1);
            continue;
        }
        const auto index = static_cast<std::size_t>(rest[1] - '1');
        if (index < count) {
            result += values[index];
        }
        rest.remove_prefix(HOLE_SIZE);
    }
    return result;
}

} // namespace pozhil::report
