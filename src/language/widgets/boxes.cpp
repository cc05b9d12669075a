#include "language/property_words.h"
#include "language/widgets/families.h"

namespace pozhil::language {
namespace {

using Start = WidgetStart;
using Form = WidgetForm;
using Role = WidgetRole;
using Children = WidgetChildren;

// clang-format off
constexpr WidgetProperty CONTAINER_PROPERTIES[] = {
    {property::WIDTH, "", ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, "", ValueKind::Size, {"உயரம்", "height"}},
    {property::BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {property::BOX_BACKGROUND, "", ValueKind::Colour, {"`பின்னணி` போன்றது", "as `பின்னணி`"}},
    {property::RADIUS, "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {property::SHADOW, "", ValueKind::Number, {"நிழலின் பரப்பு", "blur of the shadow"}},
    {property::BACKGROUND_IMAGE, "", ValueKind::Path, {"படம், பெட்டி முழுவதும்", "a picture, stretched"}},
    {property::ALIGNMENT, "", ValueKind::Alignment, {"குழந்தைகளின் இடம்", "where its children stand"}},
    {property::ON_PRESS, "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

constexpr WidgetProperty BOX_STYLE_PROPERTIES[] = {
    {property::WIDTH, "", ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, "", ValueKind::Size, {"உயரம்", "height"}},
    {property::BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {property::BOX_BACKGROUND, "", ValueKind::Colour, {"`பின்னணி` போன்றது", "as `பின்னணி`"}},
    {property::RADIUS, "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {property::SHADOW, "", ValueKind::Number, {"நிழலின் பரப்பு", "blur of the shadow"}},
    {property::BACKGROUND_IMAGE, "", ValueKind::Path, {"படம், பெட்டி முழுவதும்", "a picture, stretched"}},
    {property::HOVER_COLOUR, "", ValueKind::Colour, {"சுட்டி மேலிருக்கும்போது நிறம்", "colour under the pointer"}},
};

constexpr WidgetProperty CARD_PROPERTIES[] = {
    {property::WIDTH, "", ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, "", ValueKind::Size, {"உயரம்", "height"}},
    {property::RADIUS, "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {property::BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {property::WIDTH, widget::CARD_STYLE, ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, widget::CARD_STYLE, ValueKind::Size, {"உயரம்", "height"}},
    {property::RADIUS, widget::CARD_STYLE, ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {property::BACKGROUND, widget::CARD_STYLE, ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
};

constexpr WidgetProperty CARD_STYLE_PROPERTIES[] = {
    {property::WIDTH, "", ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, "", ValueKind::Size, {"உயரம்", "height"}},
    {property::RADIUS, "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {property::BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
};

constexpr WidgetProperty LIST_TILE_PROPERTIES[] = {
    {property::WIDTH, "", ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, "", ValueKind::Size, {"உயரம்", "height"}},
    {"முன்னணி", "", ValueKind::Widget, {"முன்னால் நிற்கும் விட்ஜெட்", "a widget in front"}},
    {"தலைப்பு", "", ValueKind::Widget, {"தலைப்பாகும் விட்ஜெட்", "the title, a widget"}},
    {"துணைத்_தலைப்பு", "", ValueKind::Widget, {"துணைத் தலைப்பாகும் விட்ஜெட்", "the subtitle, a widget"}},
    {property::RADIUS, "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {property::BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {property::ON_PRESS, "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

constexpr WidgetProperty IMAGE_PROPERTIES[] = {
    {property::PATH, "", ValueKind::Path, {"கோப்பு", "file"}},
    {property::WIDTH, "", ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, "", ValueKind::Size, {"உயரம்", "height"}},
    {property::RADIUS, "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {"விளக்கம்", "", ValueKind::Text, {"படம் காட்டுவது, சொற்களில்", "what it shows, in words"}},
};

constexpr WidgetProperty AVATAR_PROPERTIES[] = {
    {property::WIDTH, "", ValueKind::Number, {"விட்டம்", "diameter"}},
    {property::RADIUS, "", ValueKind::Number, {"ஆரம்", "radius"}},
    {property::BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {property::BORDER_COLOUR, "", ValueKind::Colour, {"கரையின் நிறம்", "colour of the border"}},
    {property::BORDER_SIZE, "", ValueKind::Number, {"கரையின் தடிமன்", "width of the border"}},
};

constexpr Widget WIDGETS[] = {
    {widget::CONTAINER, TokenType::CONTAINER, true, Start::KindOrName, Form::Container, Role::Widget, CONTAINER_PROPERTIES,
     {"பின்னணி, வளைவு, நிழல், படம் உள்ள பெட்டி", "a box with background, radius, shadow and picture"}, Children::Any},
    {widget::BOX_STYLE, TokenType::BOX_STYLE, true, Start::KindOrName, Form::General, Role::Style, BOX_STYLE_PROPERTIES,
     {"பெட்டியின் தோற்றம்", "the look of a box"}},
    {widget::CARD, TokenType::CARD, true, Start::KindOrName, Form::Card, Role::Widget, CARD_PROPERTIES,
     {"நிழலோடு கூடிய அட்டை", "a card with a shadow"}, Children::Any},
    {widget::CARD_STYLE, TokenType::CARD_STYLE, true, Start::KindOrName, Form::General, Role::Style, CARD_STYLE_PROPERTIES,
     {"அட்டையின் தோற்றம்", "the look of a card"}},
    {widget::LIST_TILE, TokenType::LIST_TILE, true, Start::KindOrName, Form::ListTile, Role::Widget, LIST_TILE_PROPERTIES,
     {"ஒரு பட்டியலின் வரி", "a line of a list"}},
    {widget::IMAGE, TokenType::IMAGE, true, Start::Kind, Form::General, Role::Widget, IMAGE_PROPERTIES,
     {"ஒரு படம்", "a picture"}},
    {widget::AVATAR, TokenType::CIRCLE_IMAGE, true, Start::Kind, Form::General, Role::Widget, AVATAR_PROPERTIES,
     {"வட்டமான படம் அல்லது முதலெழுத்து", "a round picture or initials"}, Children::TextOrImage},
};
// clang-format on

} // namespace

Rows<Widget> boxWidgets() {
    return WIDGETS;
}

} // namespace pozhil::language
