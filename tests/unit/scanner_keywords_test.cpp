#include "scanner/keywords.h"
#include "support/scanning.h"
#include "support/token_kinds.h"

#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

using pozhil::lookupKeyword;
using pozhil::Token;
using pozhil::TokenType;
using pozhil::test::scan;
using pozhil::test::scanFault;
using pozhil::test::TOKEN_KINDS;
using pozhil::test::TokenKind;

constexpr bool kindsStandAtTheirNumbers() {
    int number = 0;
    for (const TokenKind& kind : TOKEN_KINDS) {
        if (kind.number != number || static_cast<int>(kind.type) != number) {
            return false;
        }
        ++number;
    }
    return true;
}

static_assert(std::size(TOKEN_KINDS) == 145);
static_assert(kindsStandAtTheirNumbers());
static_assert(sizeof(TokenType) == 4);

struct WordsOfKind {
    TokenType kind;
    std::vector<std::string> words;
};

// clang-format off
const std::vector<WordsOfKind> vocabulary = {
    {TokenType::KEYWORD,
     {"அச்சிடு", "சுற்று", "காத்திரு", "இப்போதுநேரம்", "தேர்வு", "நிலை", "மற்றவை", "ஒவ்வொன்றாக", "இல்",
      "வரம்பு", "நிறுத்து", "தொடர்", "வகை", "விடு", "பொது", "முயற்சி", "பிடி", "வடிவமைப்பு", "கட்டமைப்பு",
      "செயல்", "மாற்று", "திரும்பு", "வினை", "நூஇறக்கி", "மூலம்", "எனில்", "இல்லைஎனில்", "இல்லை"}},
    {TokenType::IDENTIFIER, {"உரைசீரமைப்பு", "அடையாளம்", "உருளும்பட்டை", "கிஉருளும்பட்டை", "கடவுமறை"}},
    {TokenType::BOOLEAN, {"மெய்", "பொய்"}},
    {TokenType::PRIVATE, {"ரகசிய", "ரகசியம்"}},
    {TokenType::OPERATOR,
     {"கூட்டு", "கழி", "பெருக்கு", "வகு", "மீதி", "சமம்", "சமமில்லை", "பெரிது", "சிறிது", "பெரிதுசமம்",
      "சிறிதுசமம்", "மற்றும்", "அல்லது", "இணை", "பெருக்குஇருமை", "கூட்டுஇருமை", "வேறுஇருமை", "இடதுஇருமை",
      "வலதுஇருமை"}},
    {TokenType::WEBAPP, {"வலைதளம்"}},
    {TokenType::DATABASE_MANAGER, {"தரவுத்தளமேலாண்மை"}},
    {TokenType::FIREBASE_CONFIG, {"பயர்பேசு_அமைப்பு"}},
    {TokenType::HEADER, {"தலைமை"}},
    {TokenType::UI_BODY, {"குமரி"}},
    {TokenType::DEFINITION, {"வரையறை"}},
    {TokenType::COLUMN, {"நெடுவரிசை"}},
    {TokenType::ROW, {"கிடைவரிசை"}},
    {TokenType::STACK, {"அடுக்கி"}},
    {TokenType::LIST_VIEW, {"பட்டியல்_காட்சி"}},
    {TokenType::GRID_VIEW, {"கட்டம்_காட்சி"}},
    {TokenType::CROSS_AXIS_COUNT, {"குறுக்கு_எண்ணிக்கை"}},
    {TokenType::CONTAINER, {"பெட்டி"}},
    {TokenType::INNER_PADDING, {"உள்_இவெ", "உள்_இவே"}},
    {TokenType::PADDING, {"இவெ"}},
    {TokenType::HEIGHT, {"உயரம்", "அளவு"}},
    {TokenType::WIDTH, {"அகலம்"}},
    {TokenType::TEXT, {"உரை"}},
    {TokenType::BUTTON, {"பொத்தான்"}},
    {TokenType::STYLE, {"பாணி", "உரைபாணி", "தடிமன்", "அடிக்குறிப்பு"}},
    {TokenType::BUTTON_STYLE, {"பொ_பாணி"}},
    {TokenType::BUTTON_BACKGROUND, {"பொபின்னணி"}},
    {TokenType::TEXT_COLOR, {"எழுத்து_நிறம்"}},
    {TokenType::RADIUS, {"வளைவு"}},
    {TokenType::SHADOW, {"நிழல்"}},
    {TokenType::ON_PRESS, {"அழுத்தினால்"}},
    {TokenType::TEXT_BUTTON, {"உரைபொத்தான்"}},
    {TokenType::TEXT_BUTTON_STYLE, {"உரைபொ_பாணி"}},
    {TokenType::CHECKBOX, {"தேர்வுபெட்டி"}},
    {TokenType::TOGGLE, {"மாற்றி"}},
    {TokenType::RADIO, {"வட்டத்தேர்வு"}},
    {TokenType::SLIDER, {"அளவி"}},
    {TokenType::UNDERLINE, {"கீழ்வரி"}},
    {TokenType::IMAGE, {"படம்"}},
    {TokenType::SOURCE, {"எழுத்துரு"}},
    {TokenType::BOX_STYLE, {"பெட்டி_பாணி"}},
    {TokenType::BOX_BACKGROUND, {"பெட்டிபின்னணி"}},
    {TokenType::BACKGROUND, {"பின்னணி", "நிறம்"}},
    {TokenType::ASPECT_RATIO, {"விகிதம்"}},
    {TokenType::EXPANDED, {"விரிவாக்கம்"}},
    {TokenType::FLEXIBLE, {"நெகிழ்வு"}},
    {TokenType::SPACER, {"வெற்றிடம்"}},
    {TokenType::FLEX_SHARE, {"பங்கு"}},
    {TokenType::CIRCLE_IMAGE, {"வட்டபடம்"}},
    {TokenType::BORDER_COLOR, {"கரை_நிறம்"}},
    {TokenType::BORDER_SIZE, {"கரை_அளவு"}},
    {TokenType::ALERT, {"எச்சரிக்கை"}},
    {TokenType::BOTTOM_NAV, {"அடிப்பகுதி"}},
    {TokenType::BOTTOM_NAV_ITEM, {"அடி_உருப்படி"}},
    {TokenType::BOTTOM_NAV_SELECT, {"அடிப்பகுதிதேர்வு"}},
    {TokenType::SELECTED_COLOR, {"தேர்வு_நிறம்"}},
    {TokenType::UNSELECTED_COLOR, {"தேர்வற்ற_நிறம்"}},
    {TokenType::TAB, {"தத்தல்"}},
    {TokenType::TAB_ITEM, {"தத்தல்_உருப்படி"}},
    {TokenType::TAB_SELECT, {"தத்தல்_தேர்வு"}},
    {TokenType::PAGE, {"பக்கம்"}},
    {TokenType::NAVIGATE, {"செல்க"}},
    {TokenType::TITLE, {"தலைப்பு"}},
    {TokenType::TEXT_FIELD, {"உரைபெட்டி", "தேடுபொறி"}},
    {TokenType::HINT, {"குறிப்பு"}},
    {TokenType::UPDATE, {"புதுப்பி"}},
    {TokenType::BACKGROUND_IMAGE, {"பின்னணிபடம்"}},
    {TokenType::BACKGROUND_VIDEO, {"பின்னணிகாணொளி"}},
    {TokenType::SNACKBAR, {"அறிவிப்பு_பட்டை"}},
    {TokenType::CARD, {"அட்டை"}},
    {TokenType::CARD_STYLE, {"அட்டை_பாணி"}},
    {TokenType::LIST_TILE, {"பட்டியல்_உருப்படி"}},
    {TokenType::ELEVATION, {"எலிவேஷன்"}},
    {TokenType::SEARCH_BAR, {"தேடல்_பட்டை"}},
    {TokenType::SEARCH_HINT, {"தேடல்_குறிப்பு"}},
    {TokenType::SEARCH_ICON, {"தேடல்_படம்"}},
    {TokenType::CLEAR_ICON, {"அழி_படம்"}},
    {TokenType::SEARCH_STYLE, {"தேடல்_பாணி"}},
    {TokenType::ALERT_STYLE, {"எச்சரிக்கை_பாணி"}},
    {TokenType::FIELD_BACKGROUND, {"களப்பின்னணி"}},
    {TokenType::FONT_SIZE, {"எழுத்தளவு"}},
    {TokenType::RTDB_INSERT, {"நிகழ்நேர.தரவுசேர்"}},
    {TokenType::RTDB_UPDATE, {"நிகழ்நேர.தரவுமாற்று"}},
    {TokenType::RTDB_DELETE, {"நிகழ்நேர.தரவுஅழி"}},
    {TokenType::RTDB_READ, {"நிகழ்நேர.தரவுபடி"}},
    {TokenType::ANIMATION, {"அசைவூட்டம்"}},
    {TokenType::DURATION, {"காலம்"}},
    {TokenType::TARGET, {"இலக்கு"}},
    {TokenType::HOVER, {"சுட்டி_மேல்", "நிலைமை"}},
    {TokenType::FADE_IN, {"தெளிவு"}},
    {TokenType::FADE_OUT, {"மறைவு"}},
    {TokenType::SCALE_UP, {"விரிவு"}},
    {TokenType::SCALE_DOWN, {"சுருக்கம்"}},
    {TokenType::SLIDE_LEFT, {"இடது_நழுவு"}},
    {TokenType::SLIDE_RIGHT, {"வலது_நழுவு"}},
    {TokenType::SLIDE_UP, {"மேல்_நழுவு"}},
    {TokenType::SLIDE_DOWN, {"கீழ்_நழுவு"}},
    {TokenType::ROTATE_CW, {"வலஞ்சுழி"}},
    {TokenType::ROTATE_CCW, {"இடஞ்சுழி"}},
    {TokenType::MOVE_X, {"கி_நகர்வு"}},
    {TokenType::MOVE_Y, {"நெ_நகர்வு"}},
    {TokenType::BOUNCE, {"துள்ளல்"}},
    {TokenType::ELASTIC, {"மீட்சி"}},
    {TokenType::FADE_SLIDE, {"மங்குநழுவு"}},
    {TokenType::FLY, {"பறக்கும்"}},
    {TokenType::SOFT_CHANGE, {"மெல்ல_மாறு"}},
    {TokenType::PUSH_CHANGE, {"தள்ளி_மாறு"}},
    {TokenType::GROW_CHANGE, {"விரிந்து_மாறு"}},
    {TokenType::BIT_NOT, {"எதிர்இருமை"}},
    {TokenType::COMPOUND_ASSIGN,
     {"ஒன்றுசேர்", "ஒன்றுகழி", "கூட்டிசேர்", "கழிசேர்", "பெருக்குசேர்", "வகுசேர்", "மீதிசேர்", "பெஇசேர்",
      "கூட்டுஇசேர்", "வேஇசேர்", "இடதுஇசேர்", "வலதுஇசேர்"}},
    {TokenType::UNARY_PLUS, {"மிகை"}},
    {TokenType::UNARY_MINUS, {"குறை"}},
};
// clang-format on

TEST(Keywords, HaveTheirKinds) {
    for (const auto& [kind, words] : vocabulary) {
        for (const std::string& word : words) {
            EXPECT_EQ(lookupKeyword(word), kind) << word;
        }
    }
}

TEST(Keywords, AreOneTokenEachWithTheirTextAsValue) {
    for (const auto& [kind, words] : vocabulary) {
        for (const std::string& word : words) {
            if (word == "எலிவேஷன்") {
                EXPECT_EQ(scanFault(word), "பொழி-115 வரி 1"); // its own ஷ forbids to write it
                continue;
            }
            const std::vector<Token> tokens = scan(word);
            ASSERT_EQ(tokens.size(), 2U) << word;
            EXPECT_EQ(tokens[0].type, kind) << word;
            EXPECT_EQ(tokens[0].value, word);
            EXPECT_EQ(tokens[1].type, TokenType::END_OF_FILE) << word;
        }
    }
}

TEST(Keywords, OfTheTableAreDistinct) {
    std::set<std::string> distinct;
    for (const WordsOfKind& row : vocabulary) {
        for (const std::string& word : row.words) {
            EXPECT_TRUE(distinct.insert(word).second) << word;
        }
    }
    EXPECT_EQ(distinct.size(), 182U);
}

struct KindOfWord {
    const char* word;
    TokenType kind;
};

TEST(Keywords, ThatTwoTablesClaimHaveTheKindOfTheFirst) {
    const std::vector<KindOfWord> expected = {
        {"மூலம்", TokenType::KEYWORD},            // not SOURCE
        {"உரைசீரமைப்பு", TokenType::IDENTIFIER},   // not STYLE
        {"வகை", TokenType::KEYWORD},             // not ANIMATION_KIND
        {"நிறம்", TokenType::BACKGROUND},         // not ANIM_COLOR
        {"அகலம்", TokenType::WIDTH},              // not ANIM_WIDTH
        {"உயரம்", TokenType::HEIGHT},             // not ANIM_HEIGHT
        {"வளைவு", TokenType::RADIUS},            // not ANIM_RADIUS
        {"ஒன்றுசேர்", TokenType::COMPOUND_ASSIGN}, // not INCREMENT
        {"ஒன்றுகழி", TokenType::COMPOUND_ASSIGN}, // not DECREMENT
    };
    for (const auto& [word, kind] : expected) {
        EXPECT_EQ(lookupKeyword(word), kind) << word;
    }
}

TEST(Keywords, AreComparedAsWholeWords) {
    for (const char* word : {"", "அச்சிட", "அச்சிடுக", " அச்சிடு", "அச்சிடு ", "print", "TEXT", "கூட்டுசேர்", "சுட்டிமேல்",
                             "நிகழ்நேர", "நிகழ்நேர.", "நிகழ்நேர.தரவு", "தரவுசேர்"}) {
        EXPECT_EQ(lookupKeyword(word), TokenType::IDENTIFIER) << word;
    }
}

TEST(Keywords, AreFoundByTheirBeginning) {
    EXPECT_TRUE(pozhil::beginsLongerKeyword("இல்லை"));
    EXPECT_TRUE(pozhil::beginsLongerKeyword("கூட்டி"));
    EXPECT_TRUE(pozhil::beginsLongerKeyword(""));
    EXPECT_FALSE(pozhil::beginsLongerKeyword("இல்லைஎனில்"));
    EXPECT_FALSE(pozhil::beginsLongerKeyword("அச்சிடுக"));
    EXPECT_FALSE(pozhil::beginsLongerKeyword("ஃ"));
}

TEST(TypoCandidates, StandInTheOrderOfComparison) {
    EXPECT_EQ(pozhil::typoCandidates(),
              (std::vector<std::string_view>{"அச்சிடு", "சுற்று", "எனில்", "இல்லைஎனில்", "இல்லை", "செயல்", "திரும்பு",
                                             "ஒவ்வொன்றாக", "தேர்வு", "நிலை", "மற்றவை", "கட்டமைப்பு", "வடிவமைப்பு", "முயற்சி",
                                             "பிடி", "வலைதளம்", "தலைமை", "குமரி", "வரையறை"}));
}

} // namespace
