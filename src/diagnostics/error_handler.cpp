#include "error_handler.h"

#include "error_codes.h"
#ifdef __linux__
#include "last_word/death_watch.h"
#endif

#include <cstdlib>
#include <iostream>
#include <random>
#include <stdexcept>

namespace {

constexpr const char* red = "\033[1;31m";
constexpr const char* blue = "\033[1;34m";
constexpr const char* cyan = "\033[1;36m";
constexpr const char* gold = "\033[1;93m";
constexpr const char* green = "\033[1;32m";
constexpr const char* dim = "\033[2;37m";
constexpr const char* reset = "\033[0m";
constexpr const char* rule = "------------------------------------------------------------";

#ifdef __linux__
[[maybe_unused]] const bool isWatched = pozhil::last_word::watchProgram();
#endif

} // namespace

std::unordered_map<std::string, பிழைதகவல்> pozhil::catalogue::build(const Entry* first, std::size_t count) {
    std::unordered_map<std::string, பிழைதகவல்> catalogue;
    for (const Entry* entry = first; entry != first + count; ++entry) {
        catalogue[entry->code] = {entry->description, entry->remedy};
    }
    return catalogue;
}

void ErrorHandler::அறிக்கை(பிழைவகை category, std::string code, std::string description, std::string file, int line,
                          std::string lineText, std::string remedy) {
    const char* linePadding = line > 9 ? "" : "0";
    std::ostream& box = std::cout;

    box << "\n" << red << rule << reset << "\n";
    box << "  🚨 [ " << gold << code << reset << " ] :: " << red << வகைச்சொல்(category) << reset << "\n";
    box << red << rule << reset << "\n";
    box << "  " << blue << "📂 கோப்பு  " << reset << ": " << file << "\n";
    box << "  " << blue << "📍 இடம்    " << reset << ": வரி " << line << "\n";
    box << dim << "  " << rule << reset << "\n";
    box << cyan << "  🔍 பிழை கண்டறியப்பட்ட பகுதி:" << reset << "\n";
    box << "    " << linePadding << line << " |  " << lineText << "\n";
    // No column is known, so the marker stands at a fixed place.
    box << "       |  " << gold << "        ▲" << reset << "\n";
    box << red << "       ╰── மச்சி, " << description << reset << "\n";
    box << dim << "  " << rule << reset << "\n";
    box << green << "  💡 சரி செய்யும் முறை:" << reset << "\n";
    box << "     " << remedy << "\n";
    box << dim << "  " << rule << reset << "\n";
    box << "  " << gold << "✨ \"" << பொன்மொழி_பெறு() << "\"" << reset << "\n";
    box << dim << "  " << rule << reset << "\n\n";
    box.flush();

    std::exit(1);
}

const char* ErrorHandler::வகைச்சொல்(பிழைவகை category) {
    switch (category) {
    case பிழைவகை::சொல்_பிழை: return "சொல் பிழை";
    case பிழைவகை::இலக்கண_பிழை: return "இலக்கணப் பிழை";
    case பிழைவகை::பொருள்_பிழை: return "பொருள் பிழை";
    case பிழைவகை::செயல்பாட்டு_பிழை: return "செயல்பாட்டுப் பிழை";
    case பிழைவகை::இயக்கநேர_பிழை: return "இயக்கநேரப் பிழை";
    }
    return "பிழை";
}

std::string ErrorHandler::பொன்மொழி_பெறு() {
    static std::random_device seed;
    static std::mt19937 generator(seed());
    const std::vector<std::string>& sayings = பொன்மொழிகள்();
    std::uniform_int_distribution<std::size_t> position(0, sayings.size() - 1);
    return sayings[position(generator)];
}

int ErrorHandler::visualWidth(const std::string& text) {
    int columns = 0;
    std::size_t position = 0;
    while (position < text.size()) {
        const auto lead = static_cast<unsigned char>(text[position]);
        if (lead < 0x80) {
            position += 1;
            columns += 1;
        } else if (lead <= 0xDF) {
            position += 2;
            columns += 1;
        } else if (lead <= 0xEF) {
            position += 3;
            columns += 1;
        } else {
            position += 4;
            columns += 2;
        }
    }
    return columns;
}

void throw_static_error(const std::string& code, const std::string& detail) {
    const auto found = பிழை_அகராதி.find(code);
    if (found == பிழை_அகராதி.end()) {
        throw std::runtime_error("அறியப்படாத பிழைக் குறியீடு: " + code);
    }

    const பிழைதகவல்& entry = found->second;
    std::string message = code + ": " + entry.விளக்கம் + " - " + entry.தீர்வு;
    if (!detail.empty()) {
        message += " (" + detail + ")";
    }
    throw std::runtime_error(message);
}

const std::vector<std::string>& ErrorHandler::பொன்மொழிகள்() {
    // clang-format off
    static const std::vector<std::string> sayings = {
        // Programming
        "பிழைகளைக் கண்டு அஞ்சாதே, அவை உன்னைச் சிறந்த நிரலாளனாகச் செதுக்கும்!",
        "ஒரு வரியைத் திருத்துவது, உன் சிந்தனையைச் சீரமைப்பதற்குச் சமம்.",
        "நிரலாக்கம் என்பது ஒரு கலை; விடாமுயற்சியே அதன் தூரிகை.",
        "இன்று நீ சந்திக்கும் சிக்கலே நாளை உனக்கான அனுபவ அறிவு.",
        "உலகின் மிகப்பெரிய மென்பொருளும் ஒரு சிறிய பிழைத் திருத்தத்தில் தொடங்கியது.",
        "தர்க்க ரீதியான தேடலே ஒரு சிறந்த தீர்வைத் தரும்.",
        "உன் பொழில் பிழை இல்லாமல் ஓடும்போது கிடைக்கும் மகிழ்ச்சியே அலாதியானது.",
        "பிழையைத் தேடிப்பிடிப்பதில் தான் ஒரு நிரலாளனின் திறமை ஒளிந்திருக்கிறது.",
        "சிந்தனை தெளிந்தால், சிக்கல் மறைந்து சீரான பொழில் பிறக்கும்.",
        "நிரலாக்கம் என்பது கணினியோடு நீ பேசும் ஒரு கவிதை.",
        "கடினமான பிழைகளைத் தீர்க்கும்போதுதான் உன் மூளை இன்னும் கூர்மையடைகிறது.",
        "நேற்றைய பிழை இன்றைய பாடம், இன்றைய உழைப்பு நாளைய வெற்றி!",
        "பொழில் எழுதுவது எளிது; அதைச் சரியாகச் செதுக்குவதே சவால்.",
        "தோல்வி என்பது பொழில் ஓடாதது அல்ல, முயற்சியைக் கைவிடுவதுதான்.",
        "ஒரு சிறந்த நிரலாளர் என்பவன் அதிக பிழைகளைச் சரிசெய்தவனே!",
        "கணினி உன் கட்டளைக்கு அடிபணியும் வரை ஓயாதே.",
        "தேடல் உள்ள இடத்தில்தான் புதிய கண்டுபிடிப்புகள் பிறக்கும்.",
        "சிக்கலான தர்க்கங்களைச் சிதைத்து எளிமையாக்குவதே சிறந்த நிரலாக்கம்.",
        "உன் ஒவ்வொரு 'கம்பைல்' முயற்சியும் உன்னை இலக்கை நோக்கி நகர்த்துகிறது.",
        "பிழையைச் சரிசெய்வது என்பது ஒரு புதிர் விளையாட்டை வெல்வது போன்றது.",

        // The Tamil language and its heritage
        "கல் தோன்றி மண் தோன்றாக் காலத்தே முன் தோன்றிய மூத்த மொழி தமிழ்!",
        "எண்சுவடி கற்ற எம் முன்னோர் கண்ட கணிதமே இன்றைய கணினிக்கு அடித்தளம்.",
        "\"யாதும் ஊரே யாவரும் கேளிர்\" - உலகப் பொதுமறையைத் தந்த மொழி நம் தமிழ்.",
        "தமிழ் இனிமை மட்டுமல்ல, அது அறிவியலின் நுணுக்கமான கட்டமைப்பு.",
        "சங்க இலக்கியம் முதல் கணினித் தமிழ் வரை நம் மொழி என்றும் இளமையானது.",
        "இலக்கணம் வகுத்த தமிழ் மொழியில், உன் நிரலுக்கும் ஒரு இலக்கணம் உண்டு.",
        "உலக மொழிகளுக்குத் தாய் மொழி, நம் செம்மொழித் தமிழ்!",
        "ஈரடித் திருக்குறள் காலத்தை வென்றது போல், உன் பொழிலும் சுருக்கமாய் அமைந்து காலம் கடந்து நிற்கட்டும்.",
        "தமிழ் மண்ணின் வீரம் உன் உழைப்பில் மிளிரட்டும்.",
        "கணித்தமிழ் வளர்ந்தால், உலகு எங்கும் தமிழன் புகழ் ஓங்கும்.",
        "செந்தமிழே! உயிரே! நறுந்தேனே! உன்னில் விளைவது அனைத்தும் இனிமையே.",
        "அன்னைத் தமிழில் அறிவியலை விதைப்போம், அகிலத்தைப் போற்ற வைப்போம்.",
        "தமிழ் எழுத்துக்களில் உள்ள சீர்மை, உன் நிரலின் கட்டமைப்பிலும் இருக்கட்டும்.",
        "மூவாயிரம் ஆண்டு வரலாறு கொண்ட மொழியில் புதிய தொழில்நுட்பத்தைப் படைப்போம்.",
        "தமிழன் என்றோர் இனமுண்டு, தனியே அவர்க்கொரு குணமுண்டு!",
        "கீழடி முதல் விண்வெளி வரை தமிழனின் தடம் பதியட்டும்.",
        "\"ஈதல் இசைபட வாழ்தல்\" - கற்ற நிரலாக்கத்தைப் பிறருக்கும் பகிர்ந்து புகழோடு வாழ்வோம்.",
        "தமிழ் அறிவுக்கடல், அதில் மூழ்கி முத்தெடுப்பது உன் அறிவுத்திறன்.",
        "தமிழால் இணைவோம், தொழில்நுட்பத்தால் உயர்வோம்.",
        "தமிழின் தொன்மை, உன் அறிவின் மேன்மைக்கு ஒரு சான்று.",
        "ஒரு சொல்லுக்குப் பல பொருள் தரும் தமிழ் போல், உன் பொழில் பல பயன் தரட்டும்.",
        "இயல், இசை, நாடகம் தாண்டி நான்காம் தமிழாக 'கணினித் தமிழ்' வளர்ப்போம்.",
        "எத்திசை செல்லினும் அத்திசை வெல்லும் ஆற்றல் தமிழனுக்கு உண்டு.",
        "திரைகடல் ஓடியும் திரவியம் தேடிய தமிழன் போல், அறிவைத் தேடி அலைவோம்.",
        "தமிழ் என்ற சொல்லே இனிமை; அதை நிரலாக்கும் போது இன்னும் பெருமை.",
        "பாரதி கண்ட புதுமைக் கனவை நெஞ்சில் ஏந்தி, தமிழில் புதிய தொழில்நுட்பம் படைப்போம்!",
        "தமிழின் வீச்சு எல்லை இல்லாதது, உன் இலக்கும் அப்படியே இருக்கட்டும்.",
        "பண்பாடு காப்போம், தொழில்நுட்பத்தைப் பயனுள்ளதாக்குவோம்.",
        "\"உள்ளுவதெல்லாம் உயர்வுள்ளல்\" - எப்போதும் உயரிய இலக்கை நோக்கிப் பயணி.",
        "தமிழ் வெல்லும், தமிழன் வெல்வான்; தொழில்நுட்பத் துறையிலும் தமிழ் ஆளும்!",
    };
    // clang-format on
    return sayings;
}

// The instantiations that generated programs leave to this object.
#define POZHIL_SHARED_TEMPLATE template
#include "shared_templates.h"
