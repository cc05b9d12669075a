#pragma once

/// The report of a failure at run time, in the look of the compiler's own reports.

#include "global_state.h"
#include "value_types.h"

// --- emitted from here ---

/* --- 🚨 பொழில் இயக்கநேர பிழை பெட்டி --- */
void pozhil_runtime_error(std::string code, std::string file, int line) {
    auto info = பிழை_அகராதி.at(code);
    const std::string separator(60, '-');
    const char* RED = "\033[1;31m";
    const char* GOLD = "\033[1;93m";
    const char* RESET = "\033[0m";
    const char* BLUE = "\033[1;34m";
    const char* DIM_GREY = "\033[38;5;242m";
    const char* CYAN = "\033[1;36m";
    const char* GREEN = "\033[1;32m";

    // மூலக் கோப்பிலிருந்து பிழை நேர்ந்த வரி
    std::string line_content = "(கோப்பு கிடைக்கவில்லை)";
    std::ifstream infile(file);
    if (infile.is_open()) {
        for (int current = 1; current <= line; current++) {
            if (!std::getline(infile, line_content)) {
                line_content.clear();
                break;
            }
        }
    }

    std::cout << "\n" << RED << separator << RESET << "\n";
    std::cout << "  🚨 [ " << GOLD << code << RESET << " ] :: " << RED << "பொருள் பிழை (இயக்கநேரம்)" << RESET << "\n";
    std::cout << RED << separator << RESET << "\n";
    std::cout << "  " << BLUE << "📂 கோப்பு  " << RESET << ": " << file << "\n";
    std::cout << "  " << BLUE << "📍 இடம்    " << RESET << ": வரி " << line << "\n";
    std::cout << DIM_GREY << "  " << separator << RESET << "\n";
    std::cout << CYAN << "  🔍 பிழை கண்டறியப்பட்ட பகுதி:" << RESET << "\n";
    printf("    %02d |  %s\n", line, line_content.c_str());
    std::cout << "       |  " << GOLD << "        ▲" << RESET << "\n";
    std::cout << RED << "       ╰── மச்சி, " << info.விளக்கம் << RESET << "\n";
    std::cout << DIM_GREY << "  " << separator << RESET << "\n";
    std::cout << GREEN << "  💡 சரி செய்யும் முறை:" << RESET << "\n";
    std::cout << "     " << info.தீர்வு << "\n";
    std::cout << DIM_GREY << "  " << separator << RESET << "\n\n";
    std::cout << "  " << GOLD << "✨ \"" << ErrorHandler::பொன்மொழி_பெறு() << "\"" << RESET << "\n";
    std::cout << DIM_GREY << "  " << separator << RESET << "\n\n";
    exit(1);
}
