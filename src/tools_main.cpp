#include "driver/console/fault_report.h"
#include "driver/console/stage_report.h"
#include "driver/web/emscripten_environment.h"
#include "front_end/stage.h"
#include "platform/console.h"
#include "platform/file_limit.h"
#include "platform/interrupt.h"
#include "platform/paths.h"
#include "platform/stack.h"
#include "tools/command.h"
#include "tools/word.h"

#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

namespace {

using namespace pozhil;

/// The whole command, with what it tells of its failures.
int run(const std::vector<std::string>& arguments) {
    try {
        injectEmscriptenEnvironment(platform::executableDirectory());
        return tools::runCommand(arguments);
    } catch (const Fault& fault) {
        reportFault(fault);
    } catch (const StageFailure& failure) {
        reportFirstFailure(failure);
        return failure.fault ? tools::FAULT_IN_SOURCE : tools::FAILED;
    } catch (const std::exception& exception) {
        std::error_code missing;
        if (std::filesystem::current_path(missing).empty()) {
            std::cerr << "பிழை: இப்போதைய அடைவு இப்போது இல்லை! வேறோர் அடைவுக்குப் போய் மீண்டும் முயலவும்." << std::endl;
            return tools::FAILED;
        }
        std::cerr << "பிழை: எதிர்பாராத சிக்கல்! (" << exception.what() << ")" << std::endl;
    }
    return tools::FAILED;
}

} // namespace

int main(int argc, char** argv) {
    platform::setUpConsole();
    platform::failWritesBeyondFileLimit();
    platform::passOnEndSignals();
    return platform::runOnOwnStack([&] { return run(std::vector<std::string>(argv, argv + argc)); });
}
