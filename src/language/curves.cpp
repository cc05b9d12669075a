#include "language/curves.h"

namespace pozhil::language {
namespace {

// Families.
constexpr Bilingual LINEAR = {"நேர்கோடு", "linear"};
constexpr Bilingual SMOOTH = {"மென்மை", "smooth"};
constexpr Bilingual SINE = {"அலை", "sine"};
constexpr Bilingual QUADRATIC = {"இரண்டாம் படி", "quadratic"};
constexpr Bilingual CUBIC = {"மூன்றாம் படி", "cubic"};
constexpr Bilingual QUARTIC = {"நான்காம் படி", "quartic"};
constexpr Bilingual QUINTIC = {"ஐந்தாம் படி", "quintic"};
constexpr Bilingual EXPONENTIAL = {"அடுக்கு", "exponential"};
constexpr Bilingual CIRCULAR = {"வட்டம்", "circular"};
constexpr Bilingual BACK = {"பின்வாங்கல்", "back"};
constexpr Bilingual BOUNCE = {"துள்ளல்", "bounce"};
constexpr Bilingual ELASTIC = {"மீட்சி", "elastic"};

// Places.
constexpr Bilingual THROUGHOUT = {"முழுவதும்", "throughout"};
constexpr Bilingual START = {"தொடக்கத்தில்", "at the start"};
constexpr Bilingual MIDDLE = {"நடுவில்", "in the middle"};
constexpr Bilingual END = {"முடிவில்", "at the end"};
constexpr Bilingual BOTH_ENDS = {"இரு முனைகளிலும்", "at both ends"};

// clang-format off
constexpr Curve CURVES[] = {
    {"சாதாரண", LINEAR, THROUGHOUT},
    {"இயல்பான", SMOOTH, BOTH_ENDS},
    {"மெது_தொடக்கம்", SMOOTH, START},
    {"மெது_முடிவு", SMOOTH, END},
    {"மெது_மாற்றம்", SMOOTH, BOTH_ENDS},
    {"வேகம்_குறை", SMOOTH, END},
    {"நடு_மெது", SMOOTH, MIDDLE},
    {"அலை_தொடக்கம்", SINE, START},
    {"அலை_முடிவு", SINE, END},
    {"அலை_மாற்றம்", SINE, BOTH_ENDS},
    {"நிதான_முடிவு", SINE, END},
    {"நிதான_தொடக்கம்", SINE, START},
    {"அழுத்த_தொடக்கம்", QUADRATIC, START},
    {"அழுத்த_முடிவு", QUADRATIC, END},
    {"அழுத்த_மாற்றம்", QUADRATIC, BOTH_ENDS},
    {"கன_தொடக்கம்", CUBIC, START},
    {"கன_முடிவு", CUBIC, END},
    {"கன_மாற்றம்", CUBIC, BOTH_ENDS},
    {"வேக_மெது", CUBIC, BOTH_ENDS},
    {"வேக_தொடக்கம்", QUARTIC, START},
    {"வேக_முடிவு", QUARTIC, END},
    {"வேக_மாற்றம்", QUARTIC, BOTH_ENDS},
    {"மின்_வேகம்", QUARTIC, START, CurveName::Usual, "2.5"},
    {"சீறு", QUARTIC, START},
    {"அதிவேக_தொடக்கம்", QUINTIC, START},
    {"அதிவேக_முடிவு", QUINTIC, END},
    {"அதிவேக_மாற்றம்", QUINTIC, BOTH_ENDS},
    {"பாய்_தொடக்கம்", EXPONENTIAL, START},
    {"பாய்_முடிவு", EXPONENTIAL, END},
    {"பாய்_மாற்றம்", EXPONENTIAL, BOTH_ENDS},
    {"வட்ட_தொடக்கம்", CIRCULAR, START},
    {"வட்ட_முடிவு", CIRCULAR, END},
    {"வட்ட_மாற்றம்", CIRCULAR, BOTH_ENDS},
    {"பின்வாங்கல்_தொடக்கம்", BACK, START},
    {"பின்வாங்கல்_முடிவு", BACK, END},
    {"பின்வாங்கல்_மாற்றம்", BACK, BOTH_ENDS},
    {"துள்ளல்_தொடக்கம்", BOUNCE, START},
    {"துள்ளல்", BOUNCE, END},
    {"துள்ளல்_மாற்றம்", BOUNCE, BOTH_ENDS},
    {"பாய்ந்து_அமர்", BOUNCE, END},
    {"மீட்சி_தொடக்கம்", ELASTIC, START},
    {"மீட்சி", ELASTIC, END},
    {"மீட்சி_மாற்றம்", ELASTIC, BOTH_ENDS},

    // Further names, most of them English.
    {"ease_in", QUADRATIC, START, CurveName::Further},
    {"easeIn", QUADRATIC, START, CurveName::Further},
    {"மெதுவா_தொடங்கு", QUADRATIC, START, CurveName::Further},
    {"ease_out", QUADRATIC, END, CurveName::Further},
    {"easeOut", QUADRATIC, END, CurveName::Further},
    {"மெதுவா_முடி", QUADRATIC, END, CurveName::Further},
    {"ease_in_out", QUADRATIC, BOTH_ENDS, CurveName::Further},
    {"easeInOut", QUADRATIC, BOTH_ENDS, CurveName::Further},
    {"மெதுவா_தொடங்கி_முடி", QUADRATIC, BOTH_ENDS, CurveName::Further},
    {"ease_in_cubic", CUBIC, START, CurveName::Further},
    {"easeInCubic", CUBIC, START, CurveName::Further},
    {"ease_out_cubic", CUBIC, END, CurveName::Further},
    {"easeOutCubic", CUBIC, END, CurveName::Further},
    {"ease_in_out_cubic", CUBIC, BOTH_ENDS, CurveName::Further},
    {"easeInOutCubic", CUBIC, BOTH_ENDS, CurveName::Further},
};
// clang-format on

} // namespace

Rows<Curve> curves() {
    return CURVES;
}

} // namespace pozhil::language
