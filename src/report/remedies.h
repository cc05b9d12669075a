#pragma once

/// What is told to do about a fault that an old habit brought about, in place of what the catalogue says: of those that
/// running programs find, and the compiler too where kinds are certain. Holes as in the catalogue.

namespace pozhil::report::remedy {

/// இல்லை அ சமம் 3, where அ is no truth value.
constexpr const char* DENIED_VALUE =
    "'இல்லை' அடுத்துள்ள மதிப்பை மட்டும் மறுக்கும்; ஒப்பீட்டை மறுக்க 'இல்லை (அ சமம் ஆ)' என்று அடைப்புக்குறிக்குள்ள போடு, இல்லைன்னா "
    "'சமமில்லை' எழுது மச்சி!";

/// "பெரிய" எனில் அ பெரிது 3 இல்லைஎனில் "சிறிய"
constexpr const char* REVERSED_CHOICE = "தெரிவுல நிபந்தனை முதல்ல வரணும்: 'நிபந்தனை எனில் அ இல்லைஎனில் ஆ' என்று எழுது மச்சி!";

/// A variable that is called: {1} is its name and that of a function of the language.
constexpr const char* HIDDEN_FUNCTION =
    "இங்க '{1}' உன் மாறி; அதே பெயருள்ள மொழியின் செயலை அது மறைக்குது. மாறிக்கு வேற பெயர் வை மச்சி!";

/// அகராதி.{1}
constexpr const char* KEY_AFTER_DOT =
    "அகராதியில இருக்கிற மதிப்பை '.' குறியால எடுக்க முடியாது; 'அகராதி[\"{1}\"]' மாதிரி எழுது மச்சி!";

/// அ[நீளம்(அ)] = 1
constexpr const char* WRITTEN_AFTER_END =
    "இது பட்டியலின் கடைசிக்கு அடுத்த இடம்; புது உறுப்பைச் சேர்க்க 'பட்டியல்.சேர்(மதிப்பு)' என்று எழுது மச்சி!";

} // namespace pozhil::report::remedy
