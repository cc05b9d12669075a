#pragma once

/// The report of a failure at run time, in the look of the compiler's own reports.

#include "call_guard.h"
#include "value_types.h"

// clang-format off
// --- emitted from here ---

/* --- 🚨 பொழில் இயக்கநேர பிழை பெட்டி --- */
inline void pozhil_runtime_error(std::string code, std::string file, int line) {
    auto info = பிழை_அகராதி.at(code);
    const char* separator = "------------------------------------------------------------";
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

    const std::string line_number = std::to_string(line);
    const std::string saying = ErrorHandler::பொன்மொழி_பெறு();
    const char* head[] = {
        "\n", RED, separator, RESET, "\n",
        "  🚨 [ ", GOLD, code.c_str(), RESET, " ] :: ", RED, "பொருள் பிழை (இயக்கநேரம்)", RESET, "\n",
        RED, separator, RESET, "\n",
        "  ", BLUE, "📂 கோப்பு  ", RESET, ": ", file.c_str(), "\n",
        "  ", BLUE, "📍 இடம்    ", RESET, ": வரி ", line_number.c_str(), "\n",
        DIM_GREY, "  ", separator, RESET, "\n",
        CYAN, "  🔍 பிழை கண்டறியப்பட்ட பகுதி:", RESET, "\n",
    };
    const char* tail[] = {
        "       |  ", GOLD, "        ▲", RESET, "\n",
        RED, "       ╰── மச்சி, ", info.விளக்கம்.c_str(), RESET, "\n",
        DIM_GREY, "  ", separator, RESET, "\n",
        GREEN, "  💡 சரி செய்யும் முறை:", RESET, "\n",
        "     ", info.தீர்வு.c_str(), "\n",
        DIM_GREY, "  ", separator, RESET, "\n\n",
        "  ", GOLD, "✨ \"", saying.c_str(), "\"", RESET, "\n",
        DIM_GREY, "  ", separator, RESET, "\n\n",
    };
    for (const char* piece : head) {
        std::cout << piece;
    }
    printf("    %02d |  %s\n", line, line_content.c_str());
    for (const char* piece : tail) {
        std::cout << piece;
    }
    exit(1);
}
