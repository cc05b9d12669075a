#include "driver/console/banner.h"

#include "driver/console/console_style.h"
#include "error_handler.h"
#include "platform/interrupt.h"
#include "platform/paths.h"

#include <iostream>
#include <thread>

namespace pozhil {
namespace {

using namespace style;

std::string repeat(const std::string& text, int count) {
    std::string repeated;
    for (int index = 0; index < count; ++index) {
        repeated += text;
    }
    return repeated;
}

/// \p text in the middle of so many columns.
std::string centred(const std::string& text, int columns, const std::string& before = "",
                    const std::string& after = "") {
    const int free = columns - ErrorHandler::visualWidth(text);
    const int left = free / 2;
    return repeat(" ", left) + before + text + after + repeat(" ", free - left);
}

} // namespace

void printBanner(Edition edition) {
    const platform::EndingText uncoloured(RESET);
    constexpr int INNER_COLUMNS = 56;
    const std::string emptyRow = "│" + repeat(" ", INNER_COLUMNS) + "│";
    std::cout << BLUE << "┌" << repeat("─", INNER_COLUMNS) << "┐" << std::endl;
    std::cout << emptyRow << std::endl;
    std::cout << "│" << centred("பொ ழி ல்", INNER_COLUMNS, CYAN, BLUE) << "│" << std::endl;
    std::cout << emptyRow << std::endl;
    std::cout << "└" << repeat("─", INNER_COLUMNS) << "┘" << std::endl;
    std::cout << GREEN << "  பதிப்பு: 0.2-" << (edition == Edition::Second ? "இரண்டாம்_பதிப்பு" : "முதல்_பதிப்பு")
              << "  |  உருவாக்கம்: பொழில் குழு" << RESET << "\n"
              << std::endl;
}

void animateCompilation(const std::string& file, std::chrono::milliseconds delay) {
    const platform::EndingText uncoloured(RESET);
    std::cout << CYAN;
    for (const char byte : "✨ பொழில் -> " + file + " தொகுக்கப்படுகிறது...") {
        std::cout << byte << std::flush;
        if (delay.count() > 0) {
            std::this_thread::sleep_for(delay);
        }
    }
    std::cout << RESET << std::endl;
}

bool isVersionSwitch(std::string_view argument) {
    return argument == "--பதிப்பு" || argument == "--version" || argument == "-v";
}

void printVersionScreen() {
    constexpr int INNER_COLUMNS = 44;
    std::string platformName = platform::systemName();
    if (platformName.empty()) {
        platformName = "தெரியாத தளம்";
    }
    std::cout << "\n" << CYAN << "┌" << repeat("─", INNER_COLUMNS) << "┐\n";
    std::cout << "│" << centred("பொழில்", INNER_COLUMNS) << "│\n";
    std::cout << "└" << repeat("─", INNER_COLUMNS) << "┘" << RESET << "\n";
    std::cout << YELLOW << "  தமிழில் சிந்தி, தமிழில் நிரல் எழுது!" << RESET << "\n";
    std::cout << WHITE << "  பதிப்பு" << RESET << ": மு-பதிப்பு - 0.2\n";
    std::cout << WHITE << "  உருவாக்கம்" << RESET << ": பொழில் குழு\n";
    std::cout << WHITE << "  தளம்" << RESET << ": " << platformName << "\n\n";
    std::cout << GREEN << "  உன் எண்ணம் தமிழில் இருந்தால்,\n";
    std::cout << "  உன் நிரலும் தமிழில் இருக்கட்டும்.\n";
    std::cout << "  வாழ்க தமிழ்! வளர்க பொழில்!" << RESET << "\n" << std::endl;
}

} // namespace pozhil
