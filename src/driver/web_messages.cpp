#include "driver/web_messages.h"

#include <iostream>
#include <string>

namespace pozhil {

void printWebStart() {
    constexpr int RULE_COLUMNS = 55;
    std::cout << "🚀 பொழில் - வலைத்தள உருவாக்கம் தொடங்குகிறது...\n"
              << std::string(RULE_COLUMNS, '-') << "\n"
              << "⌛ உங்கள் பொழில் ஆழமாகப் பகுப்பாய்வு செய்யப்படுகிறது...    " << std::flush;
}

void printWebGeneration() {
    std::cout << "முடிந்தது\n"
              << "🎨 பயனர் இடைமுகம் மற்றும் அசைவூட்டங்கள் செதுக்கப்படுகிறது... " << std::flush;
}

} // namespace pozhil
