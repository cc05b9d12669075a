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

/// எனில் ப, where ப is a text, a list or a map.
constexpr const char* CONTAINER_AS_CONDITION = "அதில எதுவும் இருக்கான்னு பார்க்க 'நீளம்(…) பெரிது 0' என்று எழுது மச்சி!";

/// அ சமம் 1 அல்லது 2
constexpr const char* HALF_COMPARISON =
    "'மற்றும்', 'அல்லது' சொல்லுக்கு ரெண்டு பக்கமும் முழு ஒப்பீடு வேணும்: 'அ சமம் 1 அல்லது அ சமம் 2' மாதிரி மச்சி!";

/// "அ" பெருக்கு 3
constexpr const char* REPEATED_TEXT =
    "உரையைத் திரும்பத் திரும்பச் சேர்க்க 'உரை_மீண்டும்(உரை, தடவை)' என்று எழுது; அதைப் பெற, கோப்பின் தொடக்கத்துல 'நூஇறக்கி \"உரை\"' "
    "என்று எழுது மச்சி!";

/// நபர்("மலர்") of a structure without துவக்கம்: {1} is its name.
constexpr const char* NO_CONSTRUCTOR =
    "மதிப்புகளை வாங்கிக்க '{1}' கட்டமைப்பில் 'செயல் துவக்கம்(தான், …):' எழுது; இல்லைன்னா '{1}()' என்று மட்டும் எழுது மச்சி!";

/// நாய்.பெயர் without an object: {1} is the structure, {2} the field.
constexpr const char* FIELD_OF_STRUCTURE =
    "பண்பு ஒவ்வொரு பொருளுக்கும் உரியது, கட்டமைப்புக்கு அல்ல: 'அ = {1}(…)' என்று ஒரு பொருளை உருவாக்கி, 'அ.{2}' என்று எழுது மச்சி!";

/// உறுதிசெய்(…) in a program that is no test: {1} is its name.
constexpr const char* ONLY_IN_TESTS =
    "'{1}' சோதனைகளுக்கு மட்டும் உரியது: அதை 'சோதனைகள்' அடைவில உள்ள கோப்பில அழைச்சு, 'பொழில் சோதி' என்று ஓட்டு மச்சி!";

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
