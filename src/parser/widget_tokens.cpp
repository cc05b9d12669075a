#include "parser/widget_tokens.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace pozhil {
namespace {

/// Widget words that can also arrive as plain names.
constexpr std::array<std::string_view, 19> WIDGET_NAMES = {
    "பெட்டி",        "மடிப்பு",     "விரிவாக்கம்",     "நெகிழ்வு",        "அட்டை",      "அட்டை_பாணி", "வெற்றிடம்",
    "பட்டியல்_காட்சி", "கட்டம்_காட்சி", "தேடுபொறி",      "பட்டியல்_உருப்படி", "உரைபொத்தான்", "உரை",       "உள்_இவெ",
    "உள்_இவே",       "பெட்டி_பாணி", "அறிவிப்பு_பட்டை", "தேடல்_பட்டை",      "தேடல்_பாணி",
};

} // namespace

bool isWidgetToken(const Token& token) {
    switch (token.type) {
    case TokenType::TEXT:
    case TokenType::BUTTON:
    case TokenType::CHECKBOX:
    case TokenType::TOGGLE:
    case TokenType::RADIO:
    case TokenType::SLIDER:
    case TokenType::UNDERLINE:
    case TokenType::IMAGE:
    case TokenType::COLUMN:
    case TokenType::ROW:
    case TokenType::CONTAINER:
    case TokenType::BOTTOM_NAV:
    case TokenType::BOTTOM_NAV_ITEM:
    case TokenType::ALERT:
    case TokenType::CIRCLE_IMAGE:
    case TokenType::TEXT_FIELD:
    case TokenType::TAB:
    case TokenType::TAB_ITEM:
    case TokenType::EXPANDED:
    case TokenType::FLEXIBLE:
    case TokenType::SPACER:
    case TokenType::LIST_VIEW:
    case TokenType::GRID_VIEW:
    case TokenType::STACK:
    case TokenType::WRAP:
    case TokenType::INNER_PADDING:
    case TokenType::PADDING:
    case TokenType::TEXT_BUTTON:
    case TokenType::BOX_STYLE:
    case TokenType::SNACKBAR:
    case TokenType::CARD:
    case TokenType::CARD_STYLE:
    case TokenType::LIST_TILE:
    case TokenType::SEARCH_BAR: return true;
    case TokenType::IDENTIFIER:
        return std::find(WIDGET_NAMES.begin(), WIDGET_NAMES.end(), token.value) != WIDGET_NAMES.end();
    default: return false;
    }
}

} // namespace pozhil
