#include "driver/web/compressed_copies.h"

#include "platform/process.h"

#include <cstdint>
#include <fstream>
#include <system_error>

namespace pozhil {
namespace {

namespace fs = std::filesystem;

constexpr const char* ENDING = ".gz";
constexpr const char* ENDING_MEANWHILE = ".gz-new";

fs::path withEnding(const fs::path& file, const char* ending) {
    return fs::path(file) += ending;
}

bool isWorthIt(const fs::path& file) {
    constexpr std::uintmax_t MOST_BYTES = std::uintmax_t{16} * 1024 * 1024;
    std::error_code error;
    const std::uintmax_t size = fs::file_size(file, error);
    return !error && size <= MOST_BYTES;
}

/// Nobody may find a copy before it is whole.
void makeCopy(const fs::path& file) {
    const bool isMade = platform::runSilently({{"gzip", "-k", "-f", "-S", ENDING_MEANWHILE, file.u8string()}, {}}) == 0;
    std::error_code ignored;
    if (isMade) {
        fs::rename(withEnding(file, ENDING_MEANWHILE), withEnding(file, ENDING), ignored);
    } else {
        fs::remove(withEnding(file, ENDING_MEANWHILE), ignored);
    }
}

} // namespace

std::string compressed(const std::string& text, const fs::path& temporaryDirectory) {
    const fs::path file = temporaryDirectory / "பக்கம்.html";
    std::ofstream written(file, std::ios::binary | std::ios::trunc);
    written << text;
    written.close();
    const platform::CommandResult result =
        written ? platform::captureCommand({{"gzip", "-c", file.u8string()}, {}}) : platform::CommandResult{1, "", ""};
    std::error_code ignored;
    fs::remove(file, ignored);
    return result.status == 0 ? result.output : "";
}

void CompressedCopies::makeFor(const std::vector<fs::path>& files) {
    work_ = std::async(std::launch::async, [files] {
        for (const fs::path& file : files) {
            if (isWorthIt(file)) {
                makeCopy(file);
            }
        }
    });
}

void CompressedCopies::clear(const std::vector<fs::path>& files) {
    if (work_.valid()) {
        work_.wait();
    }
    std::error_code ignored;
    for (const fs::path& file : files) {
        fs::remove(withEnding(file, ENDING), ignored);
    }
}

} // namespace pozhil
