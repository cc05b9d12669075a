#include "parser/second/foreign_habits.h"

#include "base/text.h"
#include "language/second/foreign_words.h"
#include "parser/second/names.h"
#include "scanner/second/fault_numbers.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

namespace pozhil::second {
namespace {

using language::second::findForeignWord;
using language::second::ForeignPlace;
using language::second::ForeignWord;
using language::second::NO_COMPREHENSION;

/// Where a fault stands among the tokens.
class Site {
public:
    Site(const TokenReader& tokens, std::size_t statement, const SecondFault& fault)
        : tokens_(tokens), number_(fault.number), statement_(statement), faulty_(statement) {
        while (tokens_.rangeOf(faulty_).begin < fault.place.range.begin &&
               tokens_.at(faulty_).type != TokenType::END_OF_FILE) {
            ++faulty_;
        }
    }

    bool hasNumber(int number) const { return number_ == number; }
    std::size_t faulty() const { return faulty_; }
    std::size_t statement() const { return statement_; }
    const Token& at(std::size_t index) const { return tokens_.at(index); }
    /// The token before the faulty one, which is the faulty one itself at the beginning of the statement.
    std::size_t before() const { return faulty_ > statement_ ? faulty_ - 1 : faulty_; }

    bool isFaulty(TokenType type) const { return at(faulty_).type == type; }
    bool isWord(std::size_t index, std::string_view word) const {
        const TokenType type = at(index).type;
        return at(index).value == word && (type == TokenType::KEYWORD || type == TokenType::OPERATOR);
    }
    bool beginsWith(std::string_view word) const { return isWord(statement_, word); }
    bool endsLine(std::size_t index) const {
        const TokenType type = at(index).type;
        return type == TokenType::NEWLINE || type == TokenType::END_OF_FILE;
    }
    /// Whether nothing stands between two tokens, not even a blank.
    bool touches(std::size_t left, std::size_t right) const {
        return tokens_.rangeOf(left).end == tokens_.rangeOf(right).begin;
    }
    /// Whether a token of this type stands from one token up to another, or up to the end of its line.
    bool has(TokenType type, std::size_t first, std::size_t end) const {
        for (std::size_t index = first; index < end && !endsLine(index); ++index) {
            if (at(index).type == type) {
                return true;
            }
        }
        return false;
    }
    /// The bracket around the faulty token that is opened last in the statement; END_OF_FILE if none is.
    TokenType bracketAround() const {
        std::vector<TokenType> open;
        for (std::size_t index = statement_; index < faulty_; ++index) {
            const TokenType type = at(index).type;
            if (type == TokenType::LPAREN || type == TokenType::LBRACKET || type == TokenType::LBRACE) {
                open.push_back(type);
            } else if (!open.empty() &&
                       (type == TokenType::RPAREN || type == TokenType::RBRACKET || type == TokenType::RBRACE)) {
                open.pop_back();
            }
        }
        return open.empty() ? TokenType::END_OF_FILE : open.back();
    }

private:
    const TokenReader& tokens_;
    const int number_;
    const std::size_t statement_;
    std::size_t faulty_;
};

constexpr std::size_t TO_LINE_END = TokenReader::NONE;

// 2 இல் ப
bool isMembership(const Site& site) {
    return site.isWord(site.faulty(), "இல்") && !site.beginsWith("ஒவ்வொன்றாக");
}

// ஒவ்வொன்றாக எ in ப:
bool isForeignIn(const Site& site) {
    const std::string& word = site.at(site.faulty()).value;
    return site.beginsWith("ஒவ்வொன்றாக") && (word == "in" || word == "of");
}

// [எ ஒவ்வொன்றாக எ இல் ப]
bool isComprehension(const Site& site) {
    return site.isWord(site.faulty(), "ஒவ்வொன்றாக") && site.faulty() != site.statement();
}

// பிடி பிழை:
bool isCatchName(const Site& site) {
    return site.isWord(site.before(), "பிடி") && site.isFaulty(TokenType::IDENTIFIER);
}

// நிலை 1, 2:
bool isCaseList(const Site& site) {
    return site.beginsWith("நிலை") && site.isFaulty(TokenType::COMMA);
}

// ஒவ்வொன்றாக சாவி, மதிப்பு இல் ப:
bool isPairLoop(const Site& site) {
    return site.beginsWith("ஒவ்வொன்றாக") && site.isFaulty(TokenType::COMMA);
}

// ப[0:2]
bool isSlice(const Site& site) {
    return site.isFaulty(TokenType::COLON) && site.bracketAround() == TokenType::LBRACKET;
}

// செயல் வாழ்த்து(பெயர் = "மலர்"):
bool isDefaultValue(const Site& site) {
    return site.beginsWith("செயல்") && site.isFaulty(TokenType::ASSIGN);
}

// செயல் வாழ்த்து(பெயர்: உரை):
bool isParameterKind(const Site& site) {
    return site.beginsWith("செயல்") && site.isFaulty(TokenType::COLON) && site.bracketAround() == TokenType::LPAREN;
}

// வயது: எண் = 5
bool isVariableKind(const Site& site) {
    return site.isFaulty(TokenType::COLON) && site.faulty() == site.statement() + 1 &&
           site.has(TokenType::ASSIGN, site.faulty(), TO_LINE_END);
}

// """பல வரிகள்"""
bool isTripleQuote(const Site& site) {
    const Token& before = site.at(site.before());
    return before.type == TokenType::STRING && before.value.empty() && site.isFaulty(TokenType::STRING) &&
           site.touches(site.before(), site.faulty());
}

// "அவள் "வா" என்றாள்"
bool isQuoteInText(const Site& site) {
    return site.at(site.before()).type == TokenType::STRING && site.touches(site.before(), site.faulty()) &&
           site.has(TokenType::STRING, site.faulty(), TO_LINE_END);
}

// f"வணக்கம் {பெயர்}"
bool isFormattedText(const Site& site) {
    const std::string& prefix = site.at(site.before()).value;
    return site.isFaulty(TokenType::STRING) && site.touches(site.before(), site.faulty()) &&
           (prefix == "f" || prefix == "F" || prefix == "r" || prefix == "b");
}

// சொல் = "அ" பெயர்
bool isTextBesideValue(const Site& site) {
    const bool isText = site.isFaulty(TokenType::STRING) || site.at(site.before()).type == TokenType::STRING;
    return site.hasNumber(fault::NO_STATEMENT_END) && site.faulty() > site.statement() + 1 && isText &&
           canBeginValue(site.at(site.faulty()));
}

// அ, ஆ = 1, 2
bool isParallelAssignment(const Site& site) {
    return site.hasNumber(fault::NO_STATEMENT_END) && site.isFaulty(TokenType::COMMA) &&
           !site.has(TokenType::ASSIGN, site.statement(), site.faulty()) &&
           site.has(TokenType::ASSIGN, site.faulty(), TO_LINE_END);
}

/// A comma after a value that can't have another one beside it.
bool isStrayComma(const Site& site) {
    return site.isFaulty(TokenType::COMMA) &&
           (site.hasNumber(fault::NO_STATEMENT_END) || site.hasNumber(fault::NO_SIGN));
}

// அ = 1, 2
// திரும்பு 1, 2
// அ = (1, 2)
bool isValueList(const Site& site) {
    const bool isAssigned = site.has(TokenType::ASSIGN, site.statement(), site.faulty());
    return isStrayComma(site) &&
           (site.beginsWith("திரும்பு") || isAssigned || site.bracketAround() == TokenType::LPAREN);
}

// வாழ்த்து(பெயர்):
bool isDefinitionWithoutWord(const Site& site) {
    return site.hasNumber(fault::NO_STATEMENT_END) && site.isFaulty(TokenType::COLON) &&
           site.at(site.statement()).type == TokenType::IDENTIFIER &&
           site.at(site.statement() + 1).type == TokenType::LPAREN &&
           site.at(site.before()).type == TokenType::RPAREN && site.endsLine(site.faulty() + 1);
}

// எனில் அ சமம் 1 மற்றும்
bool goesOnBelow(const Site& site) {
    return site.hasNumber(fault::NO_VALUE) && site.isFaulty(TokenType::OPERATOR) && site.endsLine(site.faulty() + 1);
}

// மற்றும் அ சமம் 1
bool goesOnFromAbove(const Site& site) {
    return site.hasNumber(fault::NO_VALUE) && site.isFaulty(TokenType::OPERATOR) && site.faulty() == site.statement();
}

// "பெரிய" எனில் அ பெரிது 3 இல்லை "சிறிய"
bool isElseOfChoice(const Site& site) {
    return site.isWord(site.faulty(), "இல்லை") && !site.beginsWith("எனில்") &&
           site.has(TokenType::KEYWORD, site.statement() + 1, site.faulty());
}

// இல்லை அ சமம் 1:
bool isElseWithCondition(const Site& site) {
    return site.hasNumber(fault::NO_STATEMENT_END) && site.beginsWith("இல்லை") && site.isFaulty(TokenType::COLON);
}

// (அ) => { திரும்பு அ }
bool isBlockOfArrow(const Site& site) {
    return site.hasNumber(fault::NO_VALUE) && site.at(site.faulty()).type == TokenType::KEYWORD &&
           site.has(TokenType::ARROW, site.statement(), site.faulty());
}

// எனில் அ ஆ:
bool isValueAfterCondition(const Site& site) {
    const bool isHead = site.beginsWith("எனில்") || site.beginsWith("இல்லைஎனில்") || site.beginsWith("சுற்று");
    return site.hasNumber(fault::NO_SIGN) && isHead && canBeginValue(site.at(site.faulty())) &&
           site.has(TokenType::COLON, site.faulty(), TO_LINE_END);
}

// (அ) => எனில் அ: 1
bool isConditionAsValue(const Site& site) {
    return site.hasNumber(fault::NO_VALUE) && site.isWord(site.faulty(), "எனில்");
}

// வாழ்த்து
bool isNameAlone(const Site& site) {
    return site.hasNumber(fault::VALUE_ALONE) && site.at(site.statement()).type == TokenType::IDENTIFIER &&
           site.endsLine(site.statement() + 1);
}

/// How a habit shows, and what to do about it: {1} is the first word of the statement.
struct Habit {
    bool (*isAt)(const Site& site);
    const char* remedy;
};

// Special ones stand before general ones.
// clang-format off
constexpr Habit HABITS[] = {
    {isMembership, "உள்ளதான்னு கேட்க 'பட்டியல்.கொண்டுள்ளது(மதிப்பு)' என்று எழுது மச்சி; 'இல்' சொல் 'ஒவ்வொன்றாக' சுற்றுல மட்டும் வரும்!"},
    {isForeignIn, "சுற்றுல 'இல்' என்று எழுது: 'ஒவ்வொன்றாக உறுப்பு இல் பட்டியல்:' மாதிரி மச்சி!"},
    {isComprehension, NO_COMPREHENSION},
    {isCatchName, "பிழையின் பெயரை அடைப்புக்குறிக்குள்ள போடு: 'பிடி(பிழை):'. பெயர் வேண்டாம்னா 'பிடி:' போதும் மச்சி!"},
    {isCaseList, "ஒரு 'நிலை'-க்கு ஒரே மதிப்புதான்; ஒவ்வொரு மதிப்புக்கும் தனி 'நிலை' எழுது, இல்லைன்னா 'எனில் அ சமம் 1 அல்லது அ சமம் 2:' என்று எழுது மச்சி!"},
    {isPairLoop, "சுற்றுக்கு ஒரே பெயர்தான்: 'ஒவ்வொன்றாக சாவி இல் அகராதி:' என்று எழுதி, மதிப்பை 'அகராதி[சாவி]' என்று எடு மச்சி!"},
    {isSlice, "துண்டு எடுக்க [ ] உதவாது; பட்டியலுக்கு 'பட்டியல்_பகுதி(அ, 0, 2)', உரைக்கு 'உரை_பகுதி(அ, 0, 2)' என்று எழுது. அவற்றை 'நூஇறக்கி \"பட்டியல்\"', 'நூஇறக்கி \"உரை\"' தரும் மச்சி!"},
    {isDefaultValue, "பராமீட்டருக்கு இயல்பு மதிப்பு கிடையாது; பெயரை மட்டும் எழுதி, அழைக்கும்போது எல்லா மதிப்புகளையும் கொடு மச்சி!"},
    {isParameterKind, "பராமீட்டரின் வகையை எழுத வேண்டாம்; பெயர் மட்டும் போதும் மச்சி!"},
    {isVariableKind, "மாறியின் வகையை எழுத வேண்டாம்: '{1} = …' என்று எழுது மச்சி!"},
    {isTripleQuote, "மூன்று மேற்கோள் குறிகள் வேண்டாம்; ஒரே குறிக்குள்ள உரை பல வரிகளில் போகலாம். குறிப்புன்னா ஒவ்வொரு வரிக்கும் முன்னாடி 'ஃ' போடு மச்சி!"},
    {isQuoteInText, "உரைக்குள்ள மேற்கோள் குறி வேணும்னா அதுக்கு முன்னாடி பின்சாய்வு போடு: \"அவள் \\\"வா\\\" என்றாள்\" மாதிரி மச்சி!"},
    {isFormattedText, "உரையோடு மதிப்பைச் சேர்க்க 'இணை' எழுது: \"வணக்கம் \" இணை பெயர் மாதிரி; மேற்கோள் குறிக்கு முன்னாடி எழுத்து வேண்டாம் மச்சி!"},
    {isTextBesideValue, "உரையையும் மதிப்பையும் ஒன்றாக்க நடுவுல 'இணை' எழுது: \"வணக்கம் \" இணை பெயர் மாதிரி மச்சி!"},
    {isParallelAssignment, "ஒரு கூற்று ஒரு மாறிக்குத்தான் மதிப்பு வைக்கும்; ஒவ்வொரு மாறிக்கும் தனி வரி எழுது: 'அ = 1', அடுத்த வரியில 'ஆ = 2' மாதிரி. இரண்டையும் இடம் மாத்தணும்னா மூணாவது மாறி ஒன்று வேணும் மச்சி!"},
    {isValueList, "இங்க ஒரே மதிப்புதான் வரலாம்; பலவற்றை ஒரு பட்டியலா எழுது: '[1, 2]' மாதிரி மச்சி!"},
    {isStrayComma, "இங்க காற்புள்ளி வராது; அதை நீக்கு, இல்லைன்னா அடுத்ததைத் தனி வரியில எழுது மச்சி!"},
    {isDefinitionWithoutWord, "புதுச் செயல்னா முன்னாடி 'செயல்' எழுது: 'செயல் {1}(…):'. இருக்கும் செயலை அழைக்கணும்னா ':' வேண்டாம் மச்சி!"},
    {goesOnBelow, "அடுத்த வரியிலும் தொடரணும்னா முழுசையும் அடைப்புக்குறிக்குள்ள ( ) போடு; இல்லைன்னா விடுபட்ட மதிப்பை இதே வரியில எழுது மச்சி!"},
    {goesOnFromAbove, "இது முந்தைய வரியின் தொடர்ச்சின்னா முழுசையும் அடைப்புக்குறிக்குள்ள ( ) போடு, இல்லைன்னா ஒரே வரியில எழுது மச்சி!"},
    {isElseOfChoice, "நிபந்தனையை முதல்ல எழுது: 'நிபந்தனை எனில் அ இல்லைஎனில் ஆ' மாதிரி மச்சி!"},
    {isElseWithCondition, "நிபந்தனை இருந்தா 'இல்லைஎனில் நிபந்தனை:' என்று எழுது; இல்லைன்னா 'இல்லை:' மட்டும் போதும் மச்சி!"},
    {isConditionAsValue, "மதிப்பைத் தேர்ந்தெடுக்க நிபந்தனை முன்னாடி வரணும்: 'நிபந்தனை எனில் அ இல்லைஎனில் ஆ' மாதிரி மச்சி!"},
    {isBlockOfArrow, "'=>'-க்கு அப்புறம் ஒரே மதிப்புதான் வரும்; பல கூற்றுகள்னா 'வினை(அ):' என்று எழுதி, அவற்றைக் கீழ உள்ள தள்ளி எழுது மச்சி!"},
    {isValueAfterCondition, "நிபந்தனை இங்க முடிஞ்சா ':' போடு; முடியலைன்னா நடுவுல 'சமம்', 'மற்றும்' மாதிரி ஒரு சொல் விட்டுப்போயிருக்கு மச்சி!"},
    {isNameAlone, "'{1}' செயல்னா அடைப்புக்குறி போட்டு அழை: '{1}()'. மாறின்னா 'அச்சிடு({1})' என்று அச்சிடு மச்சி!"},
};
// clang-format on

const ForeignWord* foreignWordAt(const TokenReader& tokens, std::size_t index, ForeignPlace place) {
    const Token& token = tokens.at(index);
    return token.type == TokenType::IDENTIFIER ? findForeignWord(token.value, place) : nullptr;
}

/// The row of the word that begins a statement and can't be a variable there; null if there is none.
const ForeignWord* foreignBeginning(const TokenReader& tokens, std::size_t statement) {
    switch (tokens.at(statement + 1).type) {
    case TokenType::ASSIGN:
    case TokenType::COMPOUND_ASSIGN:
    case TokenType::LBRACKET:
    case TokenType::DOT: return nullptr;
    default: break;
    }
    const bool isElseIf = tokens.at(statement).value == "else" && tokens.at(statement + 1).value == "if";
    return isElseIf ? findForeignWord("else if") : foreignWordAt(tokens, statement, ForeignPlace::Statement);
}

/// The row of a word within the statement that the fault comes of; null if there is none.
const ForeignWord* foreignInside(const TokenReader& tokens, const Site& site) {
    if (isForeignIn(site)) {
        return nullptr; // which the habits know better
    }
    for (const std::size_t index : {site.faulty(), site.before()}) {
        if (const ForeignWord* const found = foreignWordAt(tokens, index, ForeignPlace::Inside)) {
            return found;
        }
    }
    const bool isCallWithoutBracket = site.faulty() == site.statement() + 1;
    return isCallWithoutBracket ? foreignWordAt(tokens, site.statement(), ForeignPlace::Name) : nullptr;
}

} // namespace

bool beginsForeign(const TokenReader& tokens, std::size_t statement) {
    return foreignBeginning(tokens, statement) != nullptr;
}

void setHabitRemedy(const TokenReader& tokens, std::size_t statement, SecondFault& fault) {
    const Site site(tokens, statement, fault);
    const ForeignWord* foreign = foreignBeginning(tokens, statement);
    foreign = foreign == nullptr ? foreignInside(tokens, site) : foreign;
    if (foreign != nullptr) {
        fault.remedy = language::second::remedyOf(*foreign);
        fault.mend = {std::string(foreign->word), std::string(language::second::dropIn(*foreign))};
        return;
    }
    const auto* const habit =
        std::find_if(std::begin(HABITS), std::end(HABITS), [&](const Habit& row) { return row.isAt(site); });
    if (habit != std::end(HABITS)) {
        fault.remedy = habit->remedy;
        replaceAll(fault.remedy, "{1}", tokens.at(statement).value);
    }
}

} // namespace pozhil::second
