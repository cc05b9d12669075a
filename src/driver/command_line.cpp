#include "driver/command_line.h"

#include "base/source_text.h"
#include "base/text.h"
#include "driver/console/banner.h"
#include "driver/vocabulary_json.h"

#include <iostream>

namespace pozhil {
namespace {

constexpr const char* DEFAULT_SOURCE = "முதன்மை.பொழில்";
constexpr const char* SOURCE_ENDING = ".பொழில்";

/// For documents, editors and tests, not for whoever writes programs: the help doesn't name it.
constexpr const char* VOCABULARY_SWITCH = "--சொல்வளம்-json";

Invocation failure() {
    Invocation invocation;
    invocation.exitCode = 1;
    return invocation;
}

} // namespace

Invocation readCommandLine(const std::vector<std::string>& arguments) {
    if (arguments.size() < 2 && !canReadSource(DEFAULT_SOURCE)) {
        std::cerr << "பிழை: இயலவில்லை! \n"
                  << "பயன்பாடு: ./பொழி <கோப்புப்பெயர்.பொழில்>\n"
                  << "அல்லது 'முதன்மை.பொழில்' என்ற கோப்பை உருவாக்கவும்.\n";
        return failure();
    }
    Invocation invocation;
    for (std::size_t index = 1; index < arguments.size(); ++index) {
        const std::string& argument = arguments[index];
        if (isVersionSwitch(argument)) {
            printVersionScreen();
            invocation.exitCode = 0;
            return invocation;
        }
        if (argument == VOCABULARY_SWITCH) {
            std::cout << vocabularyJson() << "\n";
            invocation.exitCode = 0;
            return invocation;
        }
        if (argument == "--வலை") {
            invocation.web = true;
        } else if (argument == "--கண்காணி") {
            invocation.watch = true;
        } else if (endsWith(argument, SOURCE_ENDING)) {
            invocation.sourcePath = argument;
        }
    }
    if (invocation.sourcePath.empty()) {
        if (!canReadSource(DEFAULT_SOURCE)) {
            std::cerr << "பிழை: செல்லாத கோப்பு அல்லது கோப்பு இல்லை! ❌\n";
            return failure();
        }
        invocation.sourcePath = DEFAULT_SOURCE;
        std::cout
            << "ℹ️ கோப்புப் பெயர் தரப்படவில்லை. தானாகவே 'முதன்மை.பொழில்' எடுக்கப்படுகிறது...\n";
    }
    return invocation;
}

} // namespace pozhil
