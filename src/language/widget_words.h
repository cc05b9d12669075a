#pragma once

#include <string_view>

/// The words of the widgets, each spelt in this one place.
namespace pozhil::language::widget {

// Texts, buttons and what a program is told by.
constexpr std::string_view TEXT = "உரை";
constexpr std::string_view BUTTON = "பொத்தான்";
constexpr std::string_view TEXT_BUTTON = "உரைபொத்தான்";
constexpr std::string_view TEXT_FIELD = "உரைபெட்டி";
constexpr std::string_view PASSWORD_FIELD = "கடவுமறை";
constexpr std::string_view SEARCH_BAR = "தேடல்_பட்டை";
constexpr std::string_view SEARCH_FIELD = "தேடுபொறி";
constexpr std::string_view SEARCH_STYLE = "தேடல்_பாணி";
constexpr std::string_view CHECKBOX = "தேர்வுபெட்டி";
constexpr std::string_view RADIO = "வட்டத்தேர்வு";
constexpr std::string_view SWITCH = "மாற்றி";
constexpr std::string_view SLIDER = "அளவி";
constexpr std::string_view DROPDOWN = "கீழ்வரி";

// Layouts.
constexpr std::string_view COLUMN = "நெடுவரிசை";
constexpr std::string_view ROW = "கிடைவரிசை";
constexpr std::string_view STACK = "அடுக்கி";
constexpr std::string_view WRAP = "மடிப்பு";
constexpr std::string_view LIST_VIEW = "பட்டியல்_காட்சி";
constexpr std::string_view GRID_VIEW = "கட்டம்_காட்சி";
constexpr std::string_view EXPANDED = "விரிவாக்கம்";
constexpr std::string_view FLEXIBLE = "நெகிழ்வு";
constexpr std::string_view SHARE = "பங்கு";
constexpr std::string_view SPACER = "வெற்றிடம்";
constexpr std::string_view GAP = "இவெ";
constexpr std::string_view PADDING = "உள்_இவெ";
constexpr std::string_view PADDING_MISSPELT = "உள்_இவே";

// Boxes.
constexpr std::string_view CONTAINER = "பெட்டி";
constexpr std::string_view BOX_STYLE = "பெட்டி_பாணி";
constexpr std::string_view CARD = "அட்டை";
constexpr std::string_view CARD_STYLE = "அட்டை_பாணி";
constexpr std::string_view LIST_TILE = "பட்டியல்_உருப்படி";
constexpr std::string_view IMAGE = "படம்";
constexpr std::string_view AVATAR = "வட்டபடம்";

// Bars, pages, and what stands above a page.
constexpr std::string_view DIALOG = "எச்சரிக்கை";
constexpr std::string_view SNACK_BAR = "அறிவிப்பு_பட்டை";
constexpr std::string_view TAB_BAR = "தத்தல்";
constexpr std::string_view TAB_ITEM = "தத்தல்_உருப்படி";
constexpr std::string_view BOTTOM_NAVIGATION = "அடிப்பகுதி";
constexpr std::string_view BOTTOM_NAVIGATION_ITEM = "அடி_உருப்படி";
constexpr std::string_view PAGE = "பக்கம்";

// Indicators.
constexpr std::string_view DIVIDER = "பிரிப்பான்";
constexpr std::string_view PROGRESS_BAR = "முன்னேற்றவரி";
constexpr std::string_view SPINNER = "சுழல்_காட்டி";
constexpr std::string_view INFO_PILL = "தகவல்பட்டை";

} // namespace pozhil::language::widget
