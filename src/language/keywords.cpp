#include "language/keywords.h"

#include "language/operators.h"
#include "language/property_words.h"
#include "language/widgets.h"

namespace pozhil::language {
namespace {

struct Word {
    std::string_view word;
    TokenType type;
};

// clang-format off
constexpr Word STATEMENT_WORDS[] = {
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
    {"மூலம்", TokenType::KEYWORD},
    {"மெய்", TokenType::BOOLEAN},
    {"பொய்", TokenType::BOOLEAN},
    {property::TEXT_ALIGNMENT, TokenType::IDENTIFIER},
    {property::ID, TokenType::IDENTIFIER},
};

constexpr Word CONDITION_WORDS[] = {
    {"எனில்", TokenType::KEYWORD},
    {"இல்லைஎனில்", TokenType::KEYWORD},
    {"இல்லை", TokenType::KEYWORD},
};

// Words of applications, of the keys of widgets and of databases.
constexpr Word APPLICATION_WORDS[] = {
    {"வலைதளம்", TokenType::WEBAPP},
    {"தரவுத்தளமேலாண்மை", TokenType::DATABASE_MANAGER},
    {"பயர்பேசு_அமைப்பு", TokenType::FIREBASE_CONFIG},
    {"புதுப்பி", TokenType::UPDATE},
    {"தலைமை", TokenType::HEADER},
    {"குமரி", TokenType::UI_BODY},
    {"வரையறை", TokenType::DEFINITION},
    {property::ID, TokenType::IDENTIFIER},
    {"குறுக்கு_எண்ணிக்கை", TokenType::CROSS_AXIS_COUNT},
    {property::HEIGHT, TokenType::HEIGHT},
    {property::WIDTH, TokenType::WIDTH},
    {"பாணி", TokenType::STYLE},
    {property::BUTTON_STYLE, TokenType::BUTTON_STYLE},
    {property::BUTTON_BACKGROUND, TokenType::BUTTON_BACKGROUND},
    {property::TEXT_COLOUR, TokenType::TEXT_COLOR},
    {property::RADIUS, TokenType::RADIUS},
    {property::SHADOW, TokenType::SHADOW},
    {property::ON_PRESS, TokenType::ON_PRESS},
    {"மூலம்", TokenType::SOURCE},
    {property::BOX_BACKGROUND, TokenType::BOX_BACKGROUND},
    {property::BACKGROUND, TokenType::BACKGROUND},
    {property::ASPECT_RATIO, TokenType::ASPECT_RATIO},
    {"உருளும்பட்டை", TokenType::IDENTIFIER},
    {"கிஉருளும்பட்டை", TokenType::IDENTIFIER},
    {property::BORDER_COLOUR, TokenType::BORDER_COLOR},
    {property::BORDER_SIZE, TokenType::BORDER_SIZE},
    {"அடிப்பகுதிதேர்வு", TokenType::BOTTOM_NAV_SELECT},
    {"தேர்வு_நிறம்", TokenType::SELECTED_COLOR},
    {"தேர்வற்ற_நிறம்", TokenType::UNSELECTED_COLOR},
    {"தத்தல்_தேர்வு", TokenType::TAB_SELECT},
    {"செல்க", TokenType::NAVIGATE},
    {"தலைப்பு", TokenType::TITLE},
    {"குறிப்பு", TokenType::HINT},
    {property::COLOUR, TokenType::BACKGROUND},
    {property::TEXT_STYLE, TokenType::STYLE},
    {property::WEIGHT, TokenType::STYLE},
    {property::FONT, TokenType::SOURCE},
    {property::TEXT_ALIGNMENT, TokenType::STYLE},
    {property::UNDERLINE, TokenType::STYLE},
    {property::SIZE, TokenType::HEIGHT},
    {property::TEXT_BUTTON_STYLE, TokenType::TEXT_BUTTON_STYLE},
    {property::BACKGROUND_IMAGE, TokenType::BACKGROUND_IMAGE},
    {property::BACKGROUND_VIDEO, TokenType::BACKGROUND_VIDEO},
    {"எலிவேஷன்", TokenType::ELEVATION},
    {"தேடல்_குறிப்பு", TokenType::SEARCH_HINT},
    {"தேடல்_படம்", TokenType::SEARCH_ICON},
    {"அழி_படம்", TokenType::CLEAR_ICON},
    {property::DIALOG_STYLE, TokenType::ALERT_STYLE},
    {"களப்பின்னணி", TokenType::FIELD_BACKGROUND},
    {"எழுத்தளவு", TokenType::FONT_SIZE},
    {"நிகழ்நேர.தரவுசேர்", TokenType::RTDB_INSERT},
    {"நிகழ்நேர.தரவுமாற்று", TokenType::RTDB_UPDATE},
    {"நிகழ்நேர.தரவுபடி", TokenType::RTDB_READ},
    {"நிகழ்நேர.தரவுஅழி", TokenType::RTDB_DELETE},
};

constexpr Word ANIMATION_WORDS[] = {
    {property::ANIMATION, TokenType::ANIMATION},
    {property::DURATION, TokenType::DURATION},
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
    {property::COLOUR, TokenType::ANIM_COLOR},
    {property::WIDTH, TokenType::ANIM_WIDTH},
    {property::HEIGHT, TokenType::ANIM_HEIGHT},
    {property::RADIUS, TokenType::ANIM_RADIUS},
    {"துள்ளல்", TokenType::BOUNCE},
    {"மீட்சி", TokenType::ELASTIC},
    {"மங்குநழுவு", TokenType::FADE_SLIDE},
    {"பறக்கும்", TokenType::FLY},
    {"மெல்ல_மாறு", TokenType::SOFT_CHANGE},
    {"தள்ளி_மாறு", TokenType::PUSH_CHANGE},
    {"விரிந்து_மாறு", TokenType::GROW_CHANGE},
};

// The words that a misspelt name is compared with, in the order of comparison.
constexpr std::string_view TYPO_CANDIDATES[] = {
    "அச்சிடு", "சுற்று", "எனில்", "இல்லைஎனில்", "இல்லை", "செயல்", "திரும்பு", "ஒவ்வொன்றாக",
    "தேர்வு", "நிலை", "மற்றவை", "கட்டமைப்பு", "வடிவமைப்பு", "முயற்சி", "பிடி", "வலைதளம்", "தலைமை",
    "குமரி", "வரையறை",
};
// clang-format on

void append(std::vector<Keyword>& all, Rows<Word> words, KeywordGroup group) {
    for (const Word& row : words) {
        all.push_back({row.word, row.type, group});
    }
}

} // namespace

const std::vector<Keyword>& keywords() {
    static const std::vector<Keyword> all = [] {
        std::vector<Keyword> words;
        append(words, STATEMENT_WORDS, KeywordGroup::Statement);
        append(words, CONDITION_WORDS, KeywordGroup::Condition);
        append(words, APPLICATION_WORDS, KeywordGroup::Application);
        for (const Widget& widget : widgets()) {
            if (widget.isKeyword) {
                words.push_back({widget.word, widget.token, KeywordGroup::Widget});
            }
        }
        append(words, ANIMATION_WORDS, KeywordGroup::Animation);
        for (const Operator& row : operators()) {
            words.push_back({row.word, row.token, KeywordGroup::Operator});
        }
        return words;
    }();
    return all;
}

Rows<std::string_view> typoCandidates() {
    return TYPO_CANDIDATES;
}

} // namespace pozhil::language
