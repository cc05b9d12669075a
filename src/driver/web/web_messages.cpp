#include "driver/web/web_messages.h"

#include "driver/console/console_style.h"

#include <iostream>

namespace pozhil {
namespace {

using namespace style;

const std::string& rule() {
    constexpr int COLUMNS = 55;
    static const std::string line = std::string(COLUMNS, '-') + "\n";
    return line;
}

} // namespace

void printWebStart() {
    std::cout << "🚀 பொழில் - வலைத்தள உருவாக்கம் தொடங்குகிறது...\n"
              << rule() << "⌛ உங்கள் பொழில் ஆழமாகப் பகுப்பாய்வு செய்யப்படுகிறது...    " << std::flush;
}

void printWebGeneration() {
    std::cout << "முடிந்தது\n"
              << "🎨 பயனர் இடைமுகம் மற்றும் அசைவூட்டங்கள் செதுக்கப்படுகிறது... " << std::flush;
}

void printWebGenerated() {
    std::cout << "முடிந்தது\n";
}

void printWebPacking() {
    std::cout << "📦 ஊடகக் கோப்புகள் அனைத்தும் இணைக்கப்படுகிறது...        " << std::endl;
    std::cout << "🌍 நவீன வலைத்தளம் முழுமையாகத் தொகுக்கப்படுகிறது...      " << std::endl;
}

void printWebSuccess(const std::string& place, const std::string& address) {
    std::cout << "வெற்றி!\n"
              << rule() << "🚀 " << GREEN << "உள்ளூர் சேவையகம் " << place << "-ல் கெத்தாக இயங்குகிறது..." << RESET << "\n"
              << "👉 " << CYAN << address << RESET << "\n"
              << "👀 கோப்பு கண்காணிக்கப்படுகிறது... (நிறுத்த Ctrl+C அழுத்தவும்)\n"
              << rule();
    std::cout << "🌍 பிரவுசர் தானாகவே திறக்கப்படுகிறது..." << std::endl;
}

void printInvalidHost(const std::string& host) {
    std::cerr << "பிழை: POZHIL_HOST-இல் உள்ள '" << host << "' முகவரி அல்ல! 127.0.0.1 போல எண்களால் எழுதவும்." << std::endl;
}

void printWebFailure(Edition edition) {
    // What is wrong with a program of the second edition was told before em++ got it.
    const char* const advice = edition == Edition::Second ? "காரணம் மேலே உள்ளது." : "குறியீட்டில் உள்ள பிழைகளைச் சரிசெய்யவும்.";
    std::cout << RED << "தோல்வி! " << advice << RESET << std::endl;
}

void printNoWebApplication(const std::string& path) {
    std::cerr << "பிழை: '" << path << "' நிரலில் 'வலைதளம்' இல்லை! '--வலை' இல்லாமல் ஓட்டு." << std::endl;
}

void printWebUpdated() {
    std::cout << "✅ தளம் புதுப்பிக்கப்பட்டது! பிரவுசரில் பார்க்கவும்." << std::endl;
}

void printMissingTemplate(const std::filesystem::path& appDirectory) {
    std::cerr << "பிழை: template.html கோப்பு கிடைக்கவில்லை! '" << appDirectory.u8string()
              << "/உள்ளடக்கம்/template.html' உள்ளதா எனச் சரிபார்க்கவும்.\n";
}

void printMissingVideo(const std::string& path) {
    std::cerr << "\n⚠️ எச்சரிக்கை: " << path << " என்ற கோப்பு காணப்படவில்லை! \n";
}

void printCompilationFailure() {
    std::cout << RED << "\n🚨 (பொழி-404): நிரலைத் தொகுப்பதில் (Compilation) சிக்கல்!" << RESET << "\n"
              << GOLD << "💡 குறிப்பு: உமது தமிழ் நிரலின் கட்டமைப்பை (Syntax) ஒருமுறை சரிபார்க்கவும்." << RESET << std::endl;
}

void printMissingCompiler() {
    std::cerr << "பிழை: 'em++' கிடைக்கவில்லை! வலைத்தளங்களைத் தொகுக்க அது தேவை. 'sudo apt install emscripten' என்று "
                 "கட்டளையிட்டு நிறுவிக்கொள்."
              << std::endl;
}

void printMissingObject(const std::string& path) {
    std::cerr << "பிழை: '" << path
              << "' கிடைக்கவில்லை! 'sudo apt install emscripten' என்று கட்டளையிட்டு, பிறகு பொழிலை மீண்டும் உருவாக்கி "
                 "நிறுவிக்கொள்."
              << std::endl;
}

void printUnwritableDirectory(const std::string& path) {
    std::cerr << "பிழை: '" << path << "' அடைவில் எழுத முடியவில்லை! அதற்கு அனுமதி இருக்கிறதா என்று பார்க்கவும்." << std::endl;
}

void printFullDisk(const std::string& path) {
    std::cerr << "பிழை: '" << path << "' இருக்கும் வட்டில் இடம் இல்லை! தேவையற்ற கோப்புகளை நீக்கிவிட்டு மீண்டும் முயலவும்."
              << std::endl;
}

} // namespace pozhil
