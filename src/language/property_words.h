#pragma once

#include <string_view>

/// The words of the widgets' properties that more than one place of the compiler asks for, each spelt in this one place.
namespace pozhil::language::property {

// Size and place.
constexpr std::string_view WIDTH = "அகலம்";
constexpr std::string_view HEIGHT = "உயரம்";
constexpr std::string_view SIZE = "அளவு";
constexpr std::string_view ASPECT_RATIO = "விகிதம்";
constexpr std::string_view ALIGNMENT = "சீரமைப்பு";
constexpr std::string_view GAP = "இடைவெளி";

// Look.
constexpr std::string_view COLOUR = "நிறம்";
constexpr std::string_view BACKGROUND = "பின்னணி";
constexpr std::string_view BOX_BACKGROUND = "பெட்டிபின்னணி";
constexpr std::string_view BUTTON_BACKGROUND = "பொபின்னணி";
constexpr std::string_view BACKGROUND_IMAGE = "பின்னணிபடம்";
constexpr std::string_view BACKGROUND_VIDEO = "பின்னணிகாணொளி";
constexpr std::string_view HOVER_COLOUR = "மேம்படுத்தப்பட்ட_நிறம்";
constexpr std::string_view RADIUS = "வளைவு";
constexpr std::string_view SHADOW = "நிழல்";
constexpr std::string_view BORDER_COLOUR = "கரை_நிறம்";
constexpr std::string_view BORDER_SIZE = "கரை_அளவு";
constexpr std::string_view ANIMATION = "அசைவூட்டம்";

// Text.
constexpr std::string_view TEXT = "உரை";
constexpr std::string_view MESSAGE = "செய்தி";
constexpr std::string_view TEXT_COLOUR = "எழுத்து_நிறம்";
constexpr std::string_view WEIGHT = "தடிமன்";
constexpr std::string_view TEXT_ALIGNMENT = "உரைசீரமைப்பு";
constexpr std::string_view FONT = "எழுத்துரு";
constexpr std::string_view UNDERLINE = "அடிக்குறிப்பு";
/// Whether a text wraps at the room there is.
constexpr std::string_view WRAP = "மடி";

// What a widget is known by and what it does.
/// Names the variable that shows and hides the widget.
constexpr std::string_view VISIBILITY = "காட்சி_பெயர்";
constexpr std::string_view ID = "அடையாளம்";
constexpr std::string_view PATH = "பாதை";
constexpr std::string_view PAGE = "பக்கம்";
/// What a page is called whose header gives no name.
constexpr const char* UNNAMED_PAGE = "home";
constexpr std::string_view DURATION = "காலம்";
constexpr std::string_view ON_PRESS = "அழுத்தினால்";

// Styles that hold properties.
constexpr std::string_view TEXT_STYLE = "உரைபாணி";
constexpr std::string_view BUTTON_STYLE = "பொ_பாணி";
constexpr std::string_view TEXT_BUTTON_STYLE = "உரைபொ_பாணி";
constexpr std::string_view DIALOG_STYLE = "எச்சரிக்கை_பாணி";

} // namespace pozhil::language::property
