#include "tools/explain/known_faults.h"

#include "base/text.h"
#include "error_codes.h"
#include "language/diagnostic_causes.h"
#include "report/catalogue.h"
#include "report/catalogue_rows.h"

#include <algorithm>
#include <array>

namespace pozhil::tools {
namespace {

constexpr std::string_view PREFIX = "பொழி-";
constexpr std::string_view ELLIPSIS = "…";

/// A message or remedy of the second edition, where its source would be quoted.
std::string withoutValues(const char* text) {
    std::array<std::string_view, 9> values{};
    values.fill(ELLIPSIS);
    return report::filled(text, values.data(), values.size());
}

KnownFault ofFirstEdition(const catalogue::Entry& entry) {
    const auto causes = language::diagnosticCauses();
    const auto* cause = std::find_if(causes.begin(), causes.end(),
                                     [&](const language::DiagnosticCause& row) { return row.code == entry.code; });
    KnownFault fault;
    fault.number = faultNumber(entry.code).value_or(0);
    fault.code = entry.code;
    fault.message = entry.description;
    fault.remedy = entry.remedy;
    fault.isRaised = cause != causes.end();
    if (fault.isRaised) {
        fault.cause = cause->cause;
    }
    return fault;
}

KnownFault ofSecondEdition(const report::Entry& entry) {
    KnownFault fault;
    fault.number = entry.number;
    fault.code = report::codeOf(entry.number);
    fault.message = withoutValues(entry.message);
    fault.remedy = withoutValues(entry.remedy);
    return fault;
}

/// The value of the digit that \p text begins with, taken off it; nothing if it begins with none.
std::optional<int> takeDigit(std::string_view& text) {
    constexpr std::array<std::string_view, 10> TAMIL_DIGITS = {"௦", "௧", "௨", "௩", "௪", "௫", "௬", "௭", "௮", "௯"};
    if (text.front() >= '0' && text.front() <= '9') {
        const int value = text.front() - '0';
        text.remove_prefix(1);
        return value;
    }
    for (std::size_t value = 0; value < TAMIL_DIGITS.size(); ++value) {
        if (startsWith(text, TAMIL_DIGITS[value])) {
            text.remove_prefix(TAMIL_DIGITS[value].size());
            return static_cast<int>(value);
        }
    }
    return std::nullopt;
}

} // namespace

std::vector<KnownFault> knownFaults() {
    std::vector<KnownFault> all;
    std::transform(std::begin(catalogue::entries), std::end(catalogue::entries), std::back_inserter(all),
                   ofFirstEdition);
    for (const report::EntryRows& rows : report::catalogue().blocks) {
        std::transform(rows.begin(), rows.end(), std::back_inserter(all), ofSecondEdition);
    }
    std::sort(all.begin(), all.end(), [](const KnownFault& a, const KnownFault& b) { return a.number < b.number; });
    return all;
}

std::optional<int> faultNumber(std::string_view argument) {
    constexpr int LARGEST = 99'999'999; // so that no number overflows
    constexpr int BASE = 10;
    if (startsWith(argument, PREFIX)) {
        argument.remove_prefix(PREFIX.size());
    }
    if (argument.empty()) {
        return std::nullopt;
    }
    int number = 0;
    while (!argument.empty()) {
        const std::optional<int> digit = takeDigit(argument);
        if (!digit || number > LARGEST) {
            return std::nullopt;
        }
        number = number * BASE + *digit;
    }
    return number;
}

} // namespace pozhil::tools
