#include "driver/native_watch.h"

#include "driver/output_stage.h"
#include "scanner/source_text.h"

#include <chrono>
#include <iostream>
#include <thread>

namespace pozhil {
namespace {

/// One pass over the changed source, on objects of its own.
void rebuild(const std::string& sourcePath, const std::vector<std::string>& moduleDirectories,
             const std::filesystem::path& output, NativeBuild& build) {
    SourceFile source;
    source.path = sourcePath;
    source.text = readSourceText(sourcePath).value_or("");
    parseSource(source, moduleDirectories);
    if (writeOutput(output, generateText(source))) {
        build.start();
        build.finish();
    }
}

} // namespace

void watchNative(const std::string& sourcePath, const std::vector<std::string>& moduleDirectories,
                 const std::filesystem::path& output, NativeBuild& build) {
    constexpr std::chrono::milliseconds PAUSE{500};
    const std::filesystem::path file = std::filesystem::u8path(sourcePath);
    auto last = std::filesystem::last_write_time(file);
    while (true) {
        const auto now = std::filesystem::last_write_time(file);
        if (now != last) {
            last = now;
            std::cout << "\n🔄 மாற்றம் கண்டறியப்பட்டது! புதுப்பிக்கப்படுகிறது..." << std::endl;
            try {
                rebuild(sourcePath, moduleDirectories, output, build);
            } catch (const StageFailure& failure) {
                reportWatchFailure(failure);
            }
        }
        std::this_thread::sleep_for(PAUSE);
    }
}

} // namespace pozhil
