#pragma once

/// What a generated program says as it dies of a fault that nothing in it catches: why, where, and what to look at.
///
/// It is put together where memory, stack and streams may be in any state, so nothing here allocates, locks or throws.

#include <cxxabi.h>

#include <any>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <exception>
#include <new>
#include <stdexcept>

namespace pozhil::last_word {

/// By this variable of its environment a program learns the path of its source.
constexpr const char* SOURCE_VARIABLE = "POZHIL_SOURCE";

/// By this one, the file in which it is to leave where it died.
constexpr const char* TRACE_VARIABLE = "POZHIL_TRACE";

/// A text of at most 4096 bytes, which a pipe takes in one piece. What is more is left out.
class Paragraph {
public:
    /// Adds \p text, or as many whole letters of it as fit into \p limit bytes.
    void add(const char* text, std::size_t limit = CAPACITY) {
        std::size_t length = std::strlen(text);
        const std::size_t room = CAPACITY - size_ < limit ? CAPACITY - size_ : limit;
        if (length > room) {
            length = room;
            while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) {
                --length;
            }
        }
        std::memcpy(bytes_.data() + size_, text, length);
        size_ += length;
    }

    /// Adds a number that isn't negative, in decimal.
    void add(int number) {
        std::array<char, 12> digits{};
        std::size_t first = digits.size() - 1;
        do {
            digits[--first] = static_cast<char>('0' + number % 10);
            number /= 10;
        } while (number > 0);
        add(digits.data() + first);
    }

    void addHexadecimal(std::uintptr_t number) {
        std::array<char, 2 * sizeof number + 1> digits{};
        std::size_t first = digits.size() - 1;
        do {
            digits[--first] = "0123456789abcdef"[number % 16];
            number /= 16;
        } while (number > 0);
        add(digits.data() + first);
    }

    const char* data() const { return bytes_.data(); }
    std::size_t size() const { return size_; }

private:
    static constexpr std::size_t CAPACITY = 4096;

    std::array<char, CAPACITY> bytes_{};
    std::size_t size_ = 0;
};

/// Why a program dies, and what its user can do about it.
struct Cause {
    const char* description;
    const char* remedy;
};

// clang-format off
constexpr Cause WRONG_KIND = {
    "ஒரு மதிப்பு, அது பயன்படும் இடத்துக்கு ஏற்ற வகையில் இல்லை.",
    "கணக்குலயும், செயலுக்குக் கொடுக்கிறதுலயும் மதிப்போட வகை சரியான்னு பாரு மச்சி: \"16\" உரை, 16 முழு எண், 16.0 தசம எண். "
    "'என்னவகை(...)' வகையைச் சொல்லும், 'எண்(...)' உரையை எண்ணாக்கும்!"};
constexpr Cause DIVISION_BY_ZERO = {
    "ஒரு முழு எண்ணைச் சுழியத்தால் (0) வகுக்கவோ, மீதி காணவோ முயன்றது.",
    "'வகு', 'மீதி' வர்ற வரிகளைப் பாரு மச்சி; வகுக்கிற எண் 0 இல்லைன்னு முன்னாடியே 'எனில்' வச்சுச் சோதி, 'முயற்சி' இதைப் பிடிக்காது!"};
constexpr Cause STACK_OVERFLOW = {
    "ஒன்றுக்குள் ஒன்றாக நடந்தவை மிக ஆழமாகி, அடுக்கு நினைவகம் தீர்ந்துவிட்டது (Stack Overflow).",
    "செயல் நிக்காம தன்னைத்தானே கூப்பிடுதான்னு பாரு மச்சி; கூப்பிடுறதைக் குறைச்சு 'சுற்று' வச்சு எழுது, "
    "பட்டியலுக்குள்ள பட்டியலா ரொம்ப ஆழமா அடுக்காதே!"};
constexpr Cause OUT_OF_MEMORY = {
    "நினைவகம் தீர்ந்துவிட்டது, அல்லது ஒரு மதிப்பு அளவு மீறிப் பெரிதாகிவிட்டது (Out of Memory).",
    "ஒரே நேரத்துல நிறைய தரவை வச்சிருக்கே மச்சி; சுற்றுக்குள்ள நிக்காம வளர்ற பட்டியலோ உரையோ இருக்கான்னு பாரு!"};
constexpr Cause UNKNOWN_NAME = {
    "இதுவரை மதிப்பே தராத ஒரு மாறியைப் பயன்படுத்த முயன்றது.",
    "'மாற்று' பராமீட்டருக்குக் கொடுக்கிற மாறிக்கு, செயலைக் கூப்பிடுறதுக்கு முன்னாடியே ஒரு மதிப்பு வை மச்சி!"};
constexpr Cause BROKEN_MEMORY = {
    "நினைவகத்தில் தனக்கு உரியதல்லாத இடத்தைத் தொட முயன்றது.",
    "ஒரு பட்டியலைச் சுற்றிக்கிட்டு இருக்கும்போதே, கூப்பிட்ட செயல் அதே பட்டியலை மாத்துதான்னு பாரு மச்சி; "
    "மாத்தினா, முதல்ல அதை வேற பெயர்ல எடுத்து வச்சுச் சுற்று!"};
constexpr Cause UNKNOWN_FAULT = {
    "யாரும் பிடிக்காத ஒரு பிழை நேர்ந்தது.",
    "வரிகளுக்கு நடுவுல 'அச்சிடு' வச்சு, எது வரைக்கும் ஓடுதுன்னு பாரு மச்சி!"};
/// What an exception says of itself stands in place of the description.
constexpr const char* SPEAKING_REMEDY =
    "முன்னாடியே 'எனில்' வச்சு மதிப்பைச் சோதி மச்சி, இல்லைன்னா 'முயற்சி', 'பிடி' வச்சுப் பிழையைப் பிடி!";
// clang-format on

/// What is known of where a program stands.
struct Place {
    const char* file; ///< path of its source; null if unknown
    int line;         ///< where it called a function last; 0 if it hasn't yet
    int depth;        ///< how many functions it is in
};

inline void addPlace(Paragraph& paragraph, const Place& place) {
    if (place.file != nullptr) {
        constexpr std::size_t LONGEST_PATH = 1024;
        paragraph.add(place.file, LONGEST_PATH);
        paragraph.add(", ");
    }
    if (place.line <= 0) {
        paragraph.add("செயல்களுக்கு வெளியே உள்ள வரிகள்");
        return;
    }
    paragraph.add("வரி ");
    paragraph.add(place.line);
    paragraph.add(place.depth > 0 ? "-இல் கடைசியாக அழைத்த செயல்" : "");
    paragraph.add(", அல்லது அதற்குப் பின் ஓடிய வரிகள்");
}

/// Adds everything that is said.
inline void addWord(Paragraph& paragraph, const Cause& cause, const Place& place) {
    constexpr std::size_t LONGEST_DESCRIPTION = 1024;
    paragraph.add("🚨 நிரல் இடையிலேயே நின்றுவிட்டது: ");
    paragraph.add(cause.description, LONGEST_DESCRIPTION);
    paragraph.add("\n📍 தேட வேண்டிய இடம்: ");
    addPlace(paragraph, place);
    paragraph.add("\n💡 சரி செய்யும் முறை: ");
    paragraph.add(cause.remedy);
    paragraph.add("\n");
}

/// Whether \p text isn't English: the runtime's own faults speak Tamil, those of the C++ library don't.
inline bool isTamil(const char* text) {
    while (*text != '\0' && static_cast<unsigned char>(*text) < 0x80) {
        ++text;
    }
    return *text != '\0';
}

/// Why the exception that is being handled ends the program. Texts of the exception live as long as it does.
inline Cause causeOfException() noexcept {
    if (abi::__cxa_current_exception_type() == nullptr) {
        return UNKNOWN_FAULT;
    }
    try {
        throw;
    } catch (const std::bad_any_cast&) {
        return WRONG_KIND;
    } catch (const std::bad_alloc&) {
        return OUT_OF_MEMORY;
    } catch (const std::length_error&) {
        return OUT_OF_MEMORY;
    } catch (const std::out_of_range&) {
        return UNKNOWN_NAME;
    } catch (const std::exception& exception) {
        return isTamil(exception.what()) ? Cause{exception.what(), SPEAKING_REMEDY} : UNKNOWN_FAULT;
    } catch (...) {
        return UNKNOWN_FAULT;
    }
}

} // namespace pozhil::last_word
