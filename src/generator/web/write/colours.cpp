#include "generator/web/write/colours.h"

#include "emit/emitted_block.h"
#include "language/colours.h"
#include "parser/syntax_tree.h"

#include <array>
#include <cstdio>
#include <string_view>

namespace pozhil {
namespace {

constexpr float FULL = 255.0F;
constexpr Colour BLACK = {0.0F, 0.0F, 0.0F, 1.0F};

/// RRGGBB or RRGGBBAA. There is no short form: anything below six digits is black.
Colour parseHexColour(std::string hex) {
    constexpr std::size_t WITH_ALPHA = 8;
    constexpr std::size_t SHORTEST = 6;
    if (!hex.empty() && hex.front() == '#') {
        hex.erase(0, 1);
    }
    std::array<unsigned int, 4> parts = {0, 0, 0, 255};
    if (hex.size() == WITH_ALPHA) {
        std::sscanf(hex.c_str(), "%02x%02x%02x%02x", &parts[0], &parts[1], &parts[2], &parts[3]);
    } else if (hex.size() >= SHORTEST) {
        std::sscanf(hex.c_str(), "%02x%02x%02x", &parts[0], &parts[1], &parts[2]);
    }
    const auto component = [](unsigned int part) { return static_cast<float>(part & 0xFFU) / FULL; };
    return {component(parts[0]), component(parts[1]), component(parts[2]), component(parts[3])};
}

} // namespace

Colour parsePozhilColor(const std::string& text, bool isHex) {
    if (isHex) {
        return parseHexColour(text);
    }
    const language::ColourWord* colour = language::findColourWord(text);
    return colour == nullptr ? BLACK : Colour{colour->red, colour->green, colour->blue, 1.0F};
}

Colour styleColour(const std::string& text) {
    return parsePozhilColor(text, text.rfind('#', 0) == 0);
}

ByteColour byteColour(const Colour& colour) {
    const auto byteOf = [](float component) { return static_cast<int>(FULL * component); };
    return {byteOf(colour.red), byteOf(colour.green), byteOf(colour.blue), byteOf(colour.alpha)};
}

std::string cssColour(const Colour& colour) {
    const ByteColour bytes = byteColour(colour);
    return "rgba(" + std::to_string(bytes.red) + "," + std::to_string(bytes.green) + "," + std::to_string(bytes.blue) +
           "," + std::to_string(colour.alpha) + ")";
}

std::optional<Colour> colourOf(const Expression* value) {
    if (const auto* colour = nodeCast<ColorExpression>(value)) {
        return parsePozhilColor(colour->isHex ? colour->hexValue : colour->colorName, colour->isHex);
    }
    if (const auto* text = nodeCast<StringLiteral>(value)) {
        return styleColour(text->value);
    }
    const auto* member = nodeCast<GetExpression>(value);
    const auto* object = member == nullptr ? nullptr : nodeCast<VariableAccess>(member->object.get());
    if (object != nullptr && object->name == "நிறம்") {
        return parsePozhilColor(member->member.value, false);
    }
    return std::nullopt;
}

std::string byteColourText(const Colour& colour) {
    const ByteColour bytes = byteColour(colour);
    return "nvgRGBA(" + std::to_string(bytes.red) + ", " + std::to_string(bytes.green) + ", " +
           std::to_string(bytes.blue) + ", " + std::to_string(bytes.alpha) + ")";
}

std::string floatColour(const Colour& colour) {
    return "nvgRGBAf(" + floatConstant(colour.red) + ", " + floatConstant(colour.green) + ", " +
           floatConstant(colour.blue) + ", " + floatConstant(colour.alpha) + ")";
}

} // namespace pozhil
