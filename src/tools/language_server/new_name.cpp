#include "tools/language_server/new_name.h"

#include "base/text.h"
#include "language/builtins.h"
#include "language/second/builtins.h"
#include "language/widgets.h"
#include "scanner/lexer.h"
#include "scanner/second/scanner.h"

#include <algorithm>
#include <optional>

namespace pozhil::language_server {
namespace {

/// Longer ones help nobody, and every file that has the name would grow by it.
constexpr std::size_t MOST_BYTES = 500;

constexpr std::string_view TEST_PREFIX = "சோதி_";

bool isFirstOfName(char byte) {
    constexpr unsigned char FIRST_LONG = 0x80;
    return static_cast<unsigned char>(byte) >= FIRST_LONG || byte == '_' || (byte >= 'a' && byte <= 'z') ||
           (byte >= 'A' && byte <= 'Z');
}

bool isWordOfLanguage(std::string_view name, Edition edition) {
    const auto hasName = [&](const auto& row) { return row.name == name; };
    const auto first = language::builtins();
    const auto second = language::second::builtins();
    const bool isBuiltin = edition == Edition::Second ? std::any_of(second.begin(), second.end(), hasName)
                                                      : std::any_of(first.begin(), first.end(), hasName);
    return isBuiltin || language::findWidget(name) != nullptr || isNameWithMeaning(name);
}

/// What the scanner of the edition makes of the name alone; nothing if that isn't one word.
std::optional<TokenType> typeOf(std::string_view name, Edition edition) {
    const SourcePtr source = makeSource("", std::string(name));
    SecondFaults faults;
    const ScannedSource scanned =
        edition == Edition::Second ? second::scanSecondEdition(source, faults) : Lexer(source).scan(1);
    const bool isWhole = faults.empty() && scanned.faults.empty() && !scanned.places.empty() &&
                         scanned.places.front().begin == 0 && scanned.places.front().end == name.size();
    const bool isName = isWhole && scanned.tokens.front().type != TokenType::STRING && isFirstOfName(name.front());
    return isName ? std::optional<TokenType>(scanned.tokens.front().type) : std::nullopt;
}

} // namespace

bool isNameWithMeaning(std::string_view name) {
    return name == "தான்" || name == "self" || name == "துவக்கம்" || name == "வலைதளம்";
}

bool isTestName(std::string_view name) {
    return startsWith(name, TEST_PREFIX);
}

std::string objectionTo(std::string_view name, Edition edition) {
    if (name.size() > MOST_BYTES) {
        return "புதிய பெயர் மிக நீளமானது.";
    }
    const std::optional<TokenType> type = name.empty() ? std::nullopt : typeOf(name, edition);
    if (!type) {
        return "'" + std::string(name) + "' ஒரு பெயர் அல்ல.";
    }
    if (type != TokenType::IDENTIFIER || isWordOfLanguage(name, edition)) {
        return "'" + std::string(name) + "' மொழியின் சொல்; அதைப் பெயராக வைக்க முடியாது.";
    }
    return "";
}

} // namespace pozhil::language_server
