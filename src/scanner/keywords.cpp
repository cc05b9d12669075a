#include "scanner/keywords.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace pozhil {
namespace {

struct Keyword {
    std::string_view word;
    TokenType type;
};

// clang-format off
// Asked before every other table: these words keep their kind although some stand in a later table too.
constexpr Keyword STATEMENT_KEYWORDS[] = {
    {"அச்சிடு", TokenType::KEYWORD},
    {"சுற்று", TokenType::KEYWORD},
    {"காத்திரு", TokenType::KEYWORD},
    {"இப்போதுநேரம்", TokenType::KEYWORD},
    {"தேர்வு", TokenType::KEYWORD},
    {"நிலை", TokenType::KEYWORD},
    {"மற்றவை", TokenType::KEYWORD},
    {"ஒவ்வொன்றாக", TokenType::KEYWORD},
    {"இல்", TokenType::KEYWORD},
    {"வரம்பு", TokenType::KEYWORD},
    {"நிறுத்து", TokenType::KEYWORD},
    {"தொடர்", TokenType::KEYWORD},
    {"வகை", TokenType::KEYWORD},
    {"விடு", TokenType::KEYWORD},
    {"ரகசிய", TokenType::PRIVATE},
    {"ரகசியம்", TokenType::PRIVATE},
    {"பொது", TokenType::KEYWORD},
    {"முயற்சி", TokenType::KEYWORD},
    {"பிடி", TokenType::KEYWORD},
    {"வடிவமைப்பு", TokenType::KEYWORD},
    {"கட்டமைப்பு", TokenType::KEYWORD},
    {"செயல்", TokenType::KEYWORD},
    {"மாற்று", TokenType::KEYWORD},
    {"திரும்பு", TokenType::KEYWORD},
    {"வினை", TokenType::KEYWORD},
    {"நூஇறக்கி", TokenType::KEYWORD},
    {"புதுப்பி", TokenType::UPDATE},
    {"சுட்டி_மேல்", TokenType::HOVER},
    {"மூலம்", TokenType::KEYWORD},
    {"எதிர்இருமை", TokenType::BIT_NOT},
    {"மெய்", TokenType::BOOLEAN},
    {"பொய்", TokenType::BOOLEAN},
    {"உரைசீரமைப்பு", TokenType::IDENTIFIER},
    {"அடையாளம்", TokenType::IDENTIFIER},
    {"மிகை", TokenType::UNARY_PLUS},
    {"குறை", TokenType::UNARY_MINUS},
};

// Conditional words.
constexpr Keyword IF_KEYWORDS[] = {
    {"எனில்", TokenType::KEYWORD},
    {"இல்லைஎனில்", TokenType::KEYWORD},
    {"இல்லை", TokenType::KEYWORD},
};

// Application, widget, property and database words.
constexpr Keyword WEB_KEYWORDS[] = {
    {"வலைதளம்", TokenType::WEBAPP},
    {"தரவுத்தளமேலாண்மை", TokenType::DATABASE_MANAGER},
    {"பயர்பேசு_அமைப்பு", TokenType::FIREBASE_CONFIG},
    {"தலைமை", TokenType::HEADER},
    {"குமரி", TokenType::UI_BODY},
    {"வரையறை", TokenType::DEFINITION},
    {"அடையாளம்", TokenType::IDENTIFIER},
    {"நெடுவரிசை", TokenType::COLUMN},
    {"கிடைவரிசை", TokenType::ROW},
    {"அடுக்கி", TokenType::STACK},
    {"இவெ", TokenType::PADDING},
    {"பட்டியல்_காட்சி", TokenType::LIST_VIEW},
    {"கட்டம்_காட்சி", TokenType::GRID_VIEW},
    {"பெட்டி", TokenType::CONTAINER},
    {"உள்_இவெ", TokenType::INNER_PADDING},
    {"உள்_இவே", TokenType::INNER_PADDING},
    {"குறுக்கு_எண்ணிக்கை", TokenType::CROSS_AXIS_COUNT},
    {"உயரம்", TokenType::HEIGHT},
    {"அகலம்", TokenType::WIDTH},
    {"உரை", TokenType::TEXT},
    {"பொத்தான்", TokenType::BUTTON},
    {"தேர்வுபெட்டி", TokenType::CHECKBOX},
    {"பாணி", TokenType::STYLE},
    {"பொ_பாணி", TokenType::BUTTON_STYLE},
    {"அளவி", TokenType::SLIDER},
    {"பொபின்னணி", TokenType::BUTTON_BACKGROUND},
    {"எழுத்து_நிறம்", TokenType::TEXT_COLOR},
    {"வளைவு", TokenType::RADIUS},
    {"நிழல்", TokenType::SHADOW},
    {"அழுத்தினால்", TokenType::ON_PRESS},
    {"பெட்டி_பாணி", TokenType::BOX_STYLE},
    {"வட்டத்தேர்வு", TokenType::RADIO},
    {"மாற்றி", TokenType::TOGGLE},
    {"படம்", TokenType::IMAGE},
    {"மூலம்", TokenType::SOURCE},
    {"பெட்டிபின்னணி", TokenType::BOX_BACKGROUND},
    {"பின்னணி", TokenType::BACKGROUND},
    {"கீழ்வரி", TokenType::UNDERLINE},
    {"விகிதம்", TokenType::ASPECT_RATIO},
    {"விரிவாக்கம்", TokenType::EXPANDED},
    {"நெகிழ்வு", TokenType::FLEXIBLE},
    {"வெற்றிடம்", TokenType::SPACER},
    {"பங்கு", TokenType::FLEX_SHARE},
    {"உருளும்பட்டை", TokenType::IDENTIFIER},
    {"கிஉருளும்பட்டை", TokenType::IDENTIFIER},
    {"வட்டபடம்", TokenType::CIRCLE_IMAGE},
    {"கரை_நிறம்", TokenType::BORDER_COLOR},
    {"கரை_அளவு", TokenType::BORDER_SIZE},
    {"எச்சரிக்கை", TokenType::ALERT},
    {"அடிப்பகுதி", TokenType::BOTTOM_NAV},
    {"அடி_உருப்படி", TokenType::BOTTOM_NAV_ITEM},
    {"அடிப்பகுதிதேர்வு", TokenType::BOTTOM_NAV_SELECT},
    {"தேர்வு_நிறம்", TokenType::SELECTED_COLOR},
    {"தேர்வற்ற_நிறம்", TokenType::UNSELECTED_COLOR},
    {"தத்தல்", TokenType::TAB},
    {"தத்தல்_உருப்படி", TokenType::TAB_ITEM},
    {"தத்தல்_தேர்வு", TokenType::TAB_SELECT},
    {"பக்கம்", TokenType::PAGE},
    {"செல்க", TokenType::NAVIGATE},
    {"தலைப்பு", TokenType::TITLE},
    {"உரைபெட்டி", TokenType::TEXT_FIELD},
    {"தேடுபொறி", TokenType::TEXT_FIELD},
    {"குறிப்பு", TokenType::HINT},
    {"நிறம்", TokenType::BACKGROUND},
    {"உரைபாணி", TokenType::STYLE},
    {"தடிமன்", TokenType::STYLE},
    {"எழுத்துரு", TokenType::SOURCE},
    {"உரைசீரமைப்பு", TokenType::STYLE},
    {"அடிக்குறிப்பு", TokenType::STYLE},
    {"அளவு", TokenType::HEIGHT},
    {"உரைபொத்தான்", TokenType::TEXT_BUTTON},
    {"உரைபொ_பாணி", TokenType::TEXT_BUTTON_STYLE},
    {"பின்னணிபடம்", TokenType::BACKGROUND_IMAGE},
    {"பின்னணிகாணொளி", TokenType::BACKGROUND_VIDEO},
    {"அறிவிப்பு_பட்டை", TokenType::SNACKBAR},
    {"அட்டை", TokenType::CARD},
    {"அட்டை_பாணி", TokenType::CARD_STYLE},
    {"பட்டியல்_உருப்படி", TokenType::LIST_TILE},
    {"கடவுமறை", TokenType::IDENTIFIER},
    {"எலிவேஷன்", TokenType::ELEVATION},
    {"தேடல்_பட்டை", TokenType::SEARCH_BAR},
    {"தேடல்_குறிப்பு", TokenType::SEARCH_HINT},
    {"தேடல்_படம்", TokenType::SEARCH_ICON},
    {"அழி_படம்", TokenType::CLEAR_ICON},
    {"தேடல்_பாணி", TokenType::SEARCH_STYLE},
    {"எச்சரிக்கை_பாணி", TokenType::ALERT_STYLE},
    {"களப்பின்னணி", TokenType::FIELD_BACKGROUND},
    {"எழுத்தளவு", TokenType::FONT_SIZE},
    {"நிகழ்நேர.தரவுசேர்", TokenType::RTDB_INSERT},
    {"நிகழ்நேர.தரவுமாற்று", TokenType::RTDB_UPDATE},
    {"நிகழ்நேர.தரவுபடி", TokenType::RTDB_READ},
    {"நிகழ்நேர.தரவுஅழி", TokenType::RTDB_DELETE},
};

// Animation words.
constexpr Keyword ANIMATION_KEYWORDS[] = {
    {"அசைவூட்டம்", TokenType::ANIMATION},
    {"காலம்", TokenType::DURATION},
    {"வகை", TokenType::ANIMATION_KIND},
    {"இலக்கு", TokenType::TARGET},
    {"நிலைமை", TokenType::HOVER},
    {"சுட்டி_மேல்", TokenType::HOVER},
    {"தெளிவு", TokenType::FADE_IN},
    {"மறைவு", TokenType::FADE_OUT},
    {"விரிவு", TokenType::SCALE_UP},
    {"சுருக்கம்", TokenType::SCALE_DOWN},
    {"இடது_நழுவு", TokenType::SLIDE_LEFT},
    {"வலது_நழுவு", TokenType::SLIDE_RIGHT},
    {"மேல்_நழுவு", TokenType::SLIDE_UP},
    {"கீழ்_நழுவு", TokenType::SLIDE_DOWN},
    {"வலஞ்சுழி", TokenType::ROTATE_CW},
    {"இடஞ்சுழி", TokenType::ROTATE_CCW},
    {"கி_நகர்வு", TokenType::MOVE_X},
    {"நெ_நகர்வு", TokenType::MOVE_Y},
    {"நிறம்", TokenType::ANIM_COLOR},
    {"அகலம்", TokenType::ANIM_WIDTH},
    {"உயரம்", TokenType::ANIM_HEIGHT},
    {"வளைவு", TokenType::ANIM_RADIUS},
    {"துள்ளல்", TokenType::BOUNCE},
    {"மீட்சி", TokenType::ELASTIC},
    {"மங்குநழுவு", TokenType::FADE_SLIDE},
    {"பறக்கும்", TokenType::FLY},
    {"மெல்ல_மாறு", TokenType::SOFT_CHANGE},
    {"தள்ளி_மாறு", TokenType::PUSH_CHANGE},
    {"விரிந்து_மாறு", TokenType::GROW_CHANGE},
};

// Word operators.
constexpr Keyword OPERATOR_KEYWORDS[] = {
    {"கூட்டு", TokenType::OPERATOR},
    {"கழி", TokenType::OPERATOR},
    {"பெருக்கு", TokenType::OPERATOR},
    {"வகு", TokenType::OPERATOR},
    {"மீதி", TokenType::OPERATOR},
    {"சமம்", TokenType::OPERATOR},
    {"சமமில்லை", TokenType::OPERATOR},
    {"பெரிது", TokenType::OPERATOR},
    {"சிறிது", TokenType::OPERATOR},
    {"பெரிதுசமம்", TokenType::OPERATOR},
    {"சிறிதுசமம்", TokenType::OPERATOR},
    {"மற்றும்", TokenType::OPERATOR},
    {"அல்லது", TokenType::OPERATOR},
    {"இணை", TokenType::OPERATOR},
    {"பெருக்குஇருமை", TokenType::OPERATOR},
    {"கூட்டுஇருமை", TokenType::OPERATOR},
    {"வேறுஇருமை", TokenType::OPERATOR},
    {"இடதுஇருமை", TokenType::OPERATOR},
    {"வலதுஇருமை", TokenType::OPERATOR},
    {"ஒன்றுசேர்", TokenType::COMPOUND_ASSIGN},
    {"ஒன்றுகழி", TokenType::COMPOUND_ASSIGN},
};

// Compound assignment words.
constexpr Keyword ASSIGN_KEYWORDS[] = {
    {"கூட்டிசேர்", TokenType::COMPOUND_ASSIGN},
    {"கழிசேர்", TokenType::COMPOUND_ASSIGN},
    {"பெருக்குசேர்", TokenType::COMPOUND_ASSIGN},
    {"வகுசேர்", TokenType::COMPOUND_ASSIGN},
    {"மீதிசேர்", TokenType::COMPOUND_ASSIGN},
    {"பெஇசேர்", TokenType::COMPOUND_ASSIGN},
    {"கூட்டுஇசேர்", TokenType::COMPOUND_ASSIGN},
    {"வேஇசேர்", TokenType::COMPOUND_ASSIGN},
    {"இடதுஇசேர்", TokenType::COMPOUND_ASSIGN},
    {"வலதுஇசேர்", TokenType::COMPOUND_ASSIGN},
};

// Reserved for increment and decrement; OPERATOR_KEYWORDS answers first.
constexpr Keyword INC_DEC_KEYWORDS[] = {
    {"ஒன்றுசேர்", TokenType::INCREMENT},
    {"ஒன்றுகழி", TokenType::DECREMENT},
};

// The words that a misspelt name is compared with, in the order of comparison.
constexpr std::array<std::string_view, 19> TYPO_CANDIDATES = {
    "அச்சிடு", "சுற்று", "எனில்", "இல்லைஎனில்", "இல்லை", "செயல்", "திரும்பு", "ஒவ்வொன்றாக",
    "தேர்வு", "நிலை", "மற்றவை", "கட்டமைப்பு", "வடிவமைப்பு", "முயற்சி", "பிடி", "வலைதளம்", "தலைமை",
    "குமரி", "வரையறை",
};
// clang-format on

using KeywordMap = std::unordered_map<std::string_view, TokenType>;

template <std::size_t N> void append(KeywordMap& map, const Keyword (&table)[N]) {
    for (const Keyword& keyword : table) {
        map.emplace(keyword.word, keyword.type); // the first table that knows a word decides its kind
    }
}

const KeywordMap& keywordMap() {
    static const KeywordMap map = [] {
        KeywordMap merged;
        append(merged, STATEMENT_KEYWORDS);
        append(merged, IF_KEYWORDS);
        append(merged, WEB_KEYWORDS);
        append(merged, ANIMATION_KEYWORDS);
        append(merged, OPERATOR_KEYWORDS);
        append(merged, ASSIGN_KEYWORDS);
        append(merged, INC_DEC_KEYWORDS);
        return merged;
    }();
    return map;
}

const std::vector<std::string_view>& sortedKeywords() {
    static const std::vector<std::string_view> words = [] {
        std::vector<std::string_view> sorted;
        for (const auto& entry : keywordMap()) {
            sorted.push_back(entry.first);
        }
        std::sort(sorted.begin(), sorted.end());
        return sorted;
    }();
    return words;
}

} // namespace

TokenType lookupKeyword(std::string_view word) {
    const KeywordMap& map = keywordMap();
    const auto found = map.find(word);
    return found == map.end() ? TokenType::IDENTIFIER : found->second;
}

bool beginsLongerKeyword(std::string_view word) {
    const std::vector<std::string_view>& words = sortedKeywords();
    const auto next = std::upper_bound(words.begin(), words.end(), word);
    return next != words.end() && next->substr(0, word.size()) == word;
}

std::size_t longestKeyword() {
    static const std::size_t length = [] {
        std::size_t longest = 0;
        for (const std::string_view word : sortedKeywords()) {
            longest = std::max(longest, word.size());
        }
        return longest;
    }();
    return length;
}

const std::vector<std::string_view>& typoCandidates() {
    static const std::vector<std::string_view> words(TYPO_CANDIDATES.begin(), TYPO_CANDIDATES.end());
    return words;
}

} // namespace pozhil
