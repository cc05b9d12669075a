#pragma once

#include <cstdint>
#include <string>

namespace pozhil {

// clang-format off
/// Every kind of token. The numeric order is fixed: tools and tests address kinds by number.
enum class TokenType : std::int32_t {
    // Words, literals and punctuation of the logic part.
    KEYWORD, IDENTIFIER, NUMBER, STRING, CHAR, BOOLEAN, PRIVATE, PERCENT, OPERATOR, LPAREN, RPAREN, COLON,
    QUESTION, ARROW, DOT, LBRACKET, RBRACKET, LBRACE, RBRACE,

    // Application, widget and property vocabulary. WRAP has no keyword of its own: its word stays an identifier.
    WEBAPP, DATABASE_MANAGER, FIREBASE_CONFIG, HEADER, UI_BODY, DEFINITION, COLUMN, ROW, STACK, WRAP,
    LIST_VIEW, GRID_VIEW, CROSS_AXIS_COUNT, CONTAINER, INNER_PADDING, PADDING, HEIGHT, WIDTH, TEXT, BUTTON,
    STYLE, BUTTON_STYLE, BUTTON_BACKGROUND, TEXT_COLOR, RADIUS, SHADOW, ON_PRESS, TEXT_BUTTON,
    TEXT_BUTTON_STYLE, CHECKBOX, TOGGLE, RADIO, SLIDER, UNDERLINE, IMAGE, SOURCE, BOX_STYLE, BOX_BACKGROUND,
    BACKGROUND, ASPECT_RATIO, EXPANDED, FLEXIBLE, SPACER, FLEX_SHARE, CIRCLE_IMAGE, BORDER_COLOR, BORDER_SIZE,
    ALERT, BOTTOM_NAV, BOTTOM_NAV_ITEM, BOTTOM_NAV_SELECT, SELECTED_COLOR, UNSELECTED_COLOR, TAB, TAB_ITEM,
    TAB_SELECT, PAGE, NAVIGATE, TITLE, TEXT_FIELD, HINT, UPDATE, BACKGROUND_IMAGE, BACKGROUND_VIDEO, SNACKBAR,
    CARD, CARD_STYLE, LIST_TILE, ELEVATION, SEARCH_BAR, SEARCH_HINT, SEARCH_ICON, CLEAR_ICON, SEARCH_STYLE,
    ALERT_STYLE, FIELD_BACKGROUND, FONT_SIZE,

    // Database and animation vocabulary.
    RTDB_INSERT, RTDB_UPDATE, RTDB_DELETE, RTDB_READ, ANIMATION, DURATION, ANIMATION_KIND, TARGET, HOVER,
    FADE_IN, FADE_OUT, SCALE_UP, SCALE_DOWN, SLIDE_LEFT, SLIDE_RIGHT, SLIDE_UP, SLIDE_DOWN, ROTATE_CW,
    ROTATE_CCW, MOVE_X, MOVE_Y, ANIM_COLOR, ANIM_WIDTH, ANIM_HEIGHT, ANIM_RADIUS, BOUNCE, ELASTIC, FADE_SLIDE,
    FLY, SOFT_CHANGE, PUSH_CHANGE, GROW_CHANGE,

    // Layout and the remaining operators. The RESERVED kinds, ARROW, INCREMENT, DECREMENT and SKIP are never
    // produced by the scanner; the parser still accepts them where its grammar names them.
    INDENT, DEDENT, RESERVED_130, BIT_NOT, RESERVED_132, INCREMENT, DECREMENT, COMPOUND_ASSIGN, RESERVED_136,
    UNARY_PLUS, UNARY_MINUS, NEWLINE, COMMA, ASSIGN, SKIP, STAR, END_OF_FILE,
};
// clang-format on

/// One token. There are no columns anywhere in the system: a diagnostic knows its line only.
struct Token {
    TokenType type = TokenType::END_OF_FILE;
    /// The text as written: a string without its quotes, a percentage with its sign, a width for INDENT and DEDENT.
    std::string value;
    /// Source line, counted from 1.
    std::int32_t line = 0;
};

} // namespace pozhil
