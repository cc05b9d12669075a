#include "support/published_programs.h"

#include "front_end/front_end.h"

#include <fstream>

namespace pozhil::test {
namespace {

namespace fs = std::filesystem;

/// The programs of a page, each after the files that it imports.
void addPage(const fs::path& page, std::vector<PublishedProgram>& samples) {
    std::ifstream file(page);
    std::string line;
    PublishedProgram sample;
    int number = 0;
    while (std::getline(file, line)) {
        ++number;
        if (line.rfind("```", 0) != 0) {
            continue;
        }
        const std::string tag = line.substr(3);
        sample.place = page.stem().u8string() + ":" + std::to_string(number);
        std::string text;
        while (std::getline(file, line) && line != "```") {
            ++number;
            text += line + "\n";
        }
        ++number;
        // A word after the tag of a page names its picture, one after that of a program the file that it is.
        if (tag == "பொழில்" || tag.substr(0, tag.find(' ')) == "பொழில்-வலை") {
            sample.text = text;
            samples.push_back(sample);
            sample = {};
        } else if (const std::size_t blank = tag.find(' '); blank != std::string::npos) {
            sample.files[tag.substr(blank + 1)] = text;
        }
    }
}

} // namespace

std::vector<PublishedProgram> publishedPrograms(const fs::path& directory) {
    std::vector<PublishedProgram> samples;
    for (const auto& entry : fs::recursive_directory_iterator(directory)) {
        const std::string ending = entry.path().extension().u8string();
        if (ending == ".md") {
            addPage(entry.path(), samples);
        } else if (ending == ".பொழில்") {
            samples.push_back({entry.path().stem().u8string(), readSourceText(entry.path().u8string()).value()});
        }
    }
    return samples;
}

} // namespace pozhil::test
