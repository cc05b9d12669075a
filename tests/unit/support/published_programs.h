#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace pozhil::test {

/// A program that is published, and the files beside it by name.
struct PublishedProgram {
    /// Its file; of a page, with the line of the program.
    std::string place;
    std::string text;
    std::map<std::string, std::string> files{};
};

/// The programs below a directory: files of the language, and what the pages of documents show as such, each with the
/// files that the page shows before it.
std::vector<PublishedProgram> publishedPrograms(const std::filesystem::path& directory);

} // namespace pozhil::test
