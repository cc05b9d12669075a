#include "tools/publish/messages.h"

#include "driver/web/web_messages.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iomanip>
#include <iostream>
#include <system_error>
#include <vector>

namespace pozhil::tools {
namespace {

namespace fs = std::filesystem;

/// A file and its compressed copies, in bytes; nought for one that isn't there.
struct Sizes {
    std::string name;
    std::array<std::uintmax_t, 3> bytes{};
};

constexpr std::array<const char*, 3> ENDINGS = {"", ".gz", ".br"};

std::uintmax_t sizeOf(const fs::path& file) {
    std::error_code error;
    const std::uintmax_t size = fs::file_size(file, error);
    return error ? 0 : size;
}

std::vector<Sizes> sizesIn(const fs::path& folder) {
    std::vector<Sizes> all;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        const fs::path& file = entry.path();
        if (file.extension() == ENDINGS[1] || file.extension() == ENDINGS[2]) {
            continue;
        }
        Sizes sizes{file.filename().u8string()};
        std::transform(ENDINGS.begin(), ENDINGS.end(), sizes.bytes.begin(),
                       [&](const char* ending) { return sizeOf(fs::path(file) += ending); });
        all.push_back(sizes);
    }
    std::sort(all.begin(), all.end(), [](const Sizes& one, const Sizes& other) { return one.name < other.name; });
    return all;
}

std::string inKilobytes(std::uintmax_t bytes) {
    constexpr std::uintmax_t TENTH = 100;
    constexpr std::uintmax_t TENTHS = 10;
    const std::uintmax_t tenths = (bytes + TENTH / 2) / TENTH;
    return bytes == 0 ? "-" : std::to_string(tenths / TENTHS) + "." + std::to_string(tenths % TENTHS) + " kB";
}

void printRow(const std::string& name, const std::array<std::string, 3>& values) {
    constexpr int NAME_COLUMNS = 20;
    constexpr int VALUE_COLUMNS = 12;
    std::cout << "  " << std::left << std::setw(NAME_COLUMNS) << name << std::right;
    for (const std::string& value : values) {
        std::cout << std::setw(VALUE_COLUMNS) << value;
    }
    std::cout << "\n";
}

} // namespace

void printStep(const std::string& step) {
    std::cout << "⏳ " << step << "..." << std::endl;
}

void printSizes(const fs::path& folder) {
    std::cout << "✅ வெளியிடத் தயார்: " << folder.u8string() << "\n\n";
    printRow("", {"", "gzip", "brotli"});
    // Of each kind, what a page that has just been opened fetches: its files, but not what is there for people.
    std::array<std::uintmax_t, 3> sums{};
    for (const Sizes& sizes : sizesIn(folder)) {
        printRow(sizes.name, {inKilobytes(sizes.bytes[0]), inKilobytes(sizes.bytes[1]), inKilobytes(sizes.bytes[2])});
        for (std::size_t kind = 0; kind < sums.size() && sizes.name.rfind("index.", 0) == 0; ++kind) {
            sums[kind] += sizes.bytes[kind];
        }
    }
    printRow("index.*", {inKilobytes(sums[0]), inKilobytes(sums[1]), inKilobytes(sums[2])});
    std::cout << "\n👉 இந்தக் கோப்புறையில் உள்ள எல்லாவற்றையும் எந்த வலை வழங்கியிலும், எந்த அடைவிலும் ஏற்றலாம்." << std::endl;
}

void printProblem(const FolderProblem& problem) {
    const std::string path = problem.path.u8string();
    switch (problem.kind) {
    case FolderProblem::Kind::Unwritable: printUnwritableDirectory(path); return;
    case FolderProblem::Kind::NotOurs:
        std::cerr << "பிழை: '" << path
                  << "' ஏற்கெனவே இருக்கிறது; அதைப் பொழில் உருவாக்கவில்லை! வேறு அடைவைச் சொல்: --அடைவு <பெயர்>" << std::endl;
        return;
    case FolderProblem::Kind::ForeignFile:
        std::cerr << "பிழை: '" << path
                  << "' பொழில் வைத்தது அல்ல; வெளியிட்டால் அது அழிந்துவிடும்! அதை வேறிடத்துக்கு நகர்த்து, அல்லது வேறு அடைவைச் சொல்: "
                     "--அடைவு <பெயர்>"
                  << std::endl;
    }
}

void printUnfinished(const fs::path& folder) {
    std::cerr << "பிழை: '" << folder.parent_path().parent_path().u8string()
              << "' அடைவில் கோப்புகளை எழுதி முடிக்க முடியவில்லை! வட்டில் இடம் இருக்கிறதா என்று பார்க்கவும்." << std::endl;
}

void printWrongUse(const std::string& text) {
    std::cerr << "பிழை: " << text << " உதவிக்கு: பொழில் வெளியிடு --உதவி" << std::endl;
}

void printMissingSource(const std::string& path) {
    std::cerr << "பிழை: '" << path << "' என்ற கோப்பை திறக்க முடியவில்லை!" << std::endl;
}

void printNoApplication(const std::string& path) {
    std::cerr << "பிழை: '" << path << "' நிரலில் 'வலைதளம்' இல்லை! வலைச் செயலிகளை மட்டுமே வெளியிட முடியும்." << std::endl;
}

} // namespace pozhil::tools
