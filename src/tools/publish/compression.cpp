#include "tools/publish/compression.h"

#include "platform/process.h"

#include <string>
#include <vector>

namespace pozhil::tools {
namespace {

/// Runs a program on all files of a folder; one that isn't installed has nothing to do.
bool runOn(std::vector<std::string> command, const std::vector<std::string>& files) {
    if (!platform::findProgram(command.front())) {
        return true;
    }
    command.insert(command.end(), files.begin(), files.end());
    return platform::runSilently({std::move(command), {}}) == 0;
}

} // namespace

bool compressFiles(const std::filesystem::path& folder) {
    std::vector<std::string> files;
    for (const std::filesystem::directory_entry& entry : std::filesystem::directory_iterator(folder)) {
        files.push_back(entry.path().u8string());
    }
    return runOn({"gzip", "-k", "-n", "-9"}, files) && runOn({"brotli", "-k", "-q", "11"}, files);
}

} // namespace pozhil::tools
