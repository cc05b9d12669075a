#include "driver/native/toolchain.h"

#include "platform/paths.h"

#include <iostream>
#include <system_error>

namespace pozhil {

namespace fs = std::filesystem;

platform::Command compilerCommand(std::vector<std::string> arguments) {
    platform::Command command;
    command.arguments = std::move(arguments);
    const fs::path linkers = platform::fastLinkerDirectory();
    if (!linkers.empty()) {
        command.environment.emplace_back("COMPILER_PATH", linkers.u8string());
    }
    return command;
}

std::vector<std::string> programArguments(const ProgramParts& parts) {
    std::vector<std::string> arguments = {"g++", parts.source.u8string(),  parts.library.u8string(),
                                          "-o",  parts.program.u8string(), "-std=c++17"};
    arguments.insert(arguments.end(), parts.options.begin(), parts.options.end());
    arguments.insert(arguments.end(), {"-static", "-static-libstdc++", "-static-libgcc"});
    return arguments;
}

void tellMissingCompiler() {
    std::cerr << "பிழை: 'g++' கிடைக்கவில்லை! 'sudo apt install g++' என்று கட்டளையிட்டு நிறுவிக்கொள்." << std::endl;
}

BuiltProgram::BuiltProgram(const fs::path& directory, const fs::path& freshName)
    : fresh(directory / freshName), program(directory / "பொழில்_செயலி") {}

int BuiltProgram::run(std::vector<std::pair<std::string, std::string>> environment) const {
    return settle() ? platform::run_command({{program.u8string()}, std::move(environment)}) : platform::COULD_NOT_START;
}

bool BuiltProgram::settle() const {
    std::error_code failure;
    fs::rename(fresh, program, failure);
    return !failure;
}

} // namespace pozhil
