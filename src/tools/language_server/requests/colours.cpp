#include "tools/language_server/requests/colours.h"

#include "language/colours.h"
#include "tools/language_server/names.h"
#include "tools/language_server/protocol.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>

namespace pozhil::language_server {
namespace {

/// Red, green, blue and how opaque, from 0 to 1.
using Colour = std::array<double, 4>;

constexpr double MOST = 255;
constexpr std::array<const char*, 4> COMPONENTS = {"red", "green", "blue", "alpha"};

/// "#RRGGBB" or "#RRGGBBAA".
std::optional<Colour> colourOfDigits(std::string_view text) {
    constexpr std::size_t OPAQUE_LENGTH = 7;
    constexpr std::size_t FULL_LENGTH = 9;
    const bool isWhole = text.size() == OPAQUE_LENGTH || text.size() == FULL_LENGTH;
    if (!isWhole || text[0] != '#' ||
        !std::all_of(text.begin() + 1, text.end(), [](unsigned char c) { return std::isxdigit(c) != 0; })) {
        return std::nullopt;
    }
    Colour colour = {0, 0, 0, 1};
    for (std::size_t i = 0; 1 + 2 * i < text.size(); ++i) {
        colour[i] = std::stoi(std::string(text.substr(1 + 2 * i, 2)), nullptr, 16) / MOST;
    }
    return colour;
}

/// A word alone is a colour where a value of a property stands; elsewhere it is a text like any other.
std::optional<Colour> colourOf(const Outline& outline, std::size_t token) {
    if (!outline.isType(token, TokenType::STRING)) {
        return std::nullopt;
    }
    const std::string& text = outline.token(token).value;
    const language::ColourWord* const word = language::findColourWord(text);
    if (word != nullptr && token > 0 && outline.isType(token - 1, TokenType::COLON)) {
        return Colour{word->red, word->green, word->blue, 1};
    }
    return colourOfDigits(text);
}

std::string digitsOf(const Json& colour) {
    constexpr std::string_view DIGITS = "0123456789ABCDEF";
    std::string text = "#";
    for (const char* component : COMPONENTS) {
        const double share = std::clamp(colour.at(component).get<double>(), 0.0, 1.0);
        const auto byte = static_cast<std::size_t>(std::lround(share * MOST));
        const bool isOpaque = component == COMPONENTS.back() && byte == static_cast<std::size_t>(MOST);
        if (!isOpaque) {
            text += DIGITS[byte / DIGITS.size()];
            text += DIGITS[byte % DIGITS.size()];
        }
    }
    return text;
}

} // namespace

Json documentColours(const Workspace& workspace, const Json& params) {
    const Document* document = nullptr;
    const NamedSource file = askedSource(workspace, params, document);
    Json colours = Json::array();
    for (std::size_t i = 0; i < file.outline->scanned.tokens.size(); ++i) {
        const std::optional<Colour> colour = colourOf(*file.outline, i);
        if (!colour) {
            continue;
        }
        Json told;
        for (std::size_t component = 0; component < COMPONENTS.size(); ++component) {
            told[COMPONENTS[component]] = (*colour)[component];
        }
        colours.push_back({{"range", jsonOf(document->rangeOf(file.outline->placeOf(i)))}, {"color", told}});
    }
    return colours;
}

Json colourPresentations(const Workspace& /*workspace*/, const Json& params) {
    return Json::array({{{"label", "\"" + digitsOf(params.at("color")) + "\""}}});
}

} // namespace pozhil::language_server
