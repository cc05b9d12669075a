#include "tools/test/test_files.h"

#include "base/text.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <system_error>

namespace pozhil::tools {
namespace {

namespace fs = std::filesystem;

constexpr const char* SOURCE_ENDING = ".பொழில்";

fs::path wholePath(const fs::path& path) {
    std::error_code ignored;
    const fs::path whole = fs::weakly_canonical(path, ignored);
    return whole.empty() ? path : whole;
}

class Search {
public:
    void add(const std::string& given) {
        const fs::path path = fs::u8path(given);
        std::error_code ignored;
        if (fs::is_regular_file(path, ignored)) {
            addFile(path);
        } else if (fs::is_directory(path, ignored)) {
            addFolder(wholePath(path).filename() == fs::u8path(TEST_FOLDER) ? path : path / fs::u8path(TEST_FOLDER));
        } else {
            found_.missing.push_back("'" + given + "' என்ற கோப்போ அடைவோ இல்லை!");
        }
    }

    TestFiles take() { return std::move(found_); }

private:
    void addFile(const fs::path& path) {
        if (known_.insert(wholePath(path)).second) {
            found_.paths.push_back(path.lexically_normal().u8string());
        }
    }

    void addFolder(const fs::path& folder) {
        const std::string shown = folder.lexically_normal().u8string();
        std::error_code error;
        std::vector<fs::path> files;
        for (fs::directory_iterator at(folder, error); !error && at != fs::directory_iterator(); at.increment(error)) {
            const std::string name = at->path().filename().native();
            std::error_code ignored;
            if (endsWith(name, SOURCE_ENDING) && !startsWith(name, ".") && !fs::is_directory(at->path(), ignored)) {
                files.push_back(at->path());
            }
        }
        if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory) {
            found_.missing.push_back("'" + shown + "' என்ற அடைவு இல்லை; சோதனைகளை அதில் வைக்கவும்!");
        } else if (error) {
            found_.unreadable.push_back("'" + shown + "' என்ற அடைவைப் படிக்க முடியவில்லை!");
        } else if (files.empty()) {
            found_.missing.push_back("'" + shown + "' என்ற அடைவில் எந்த .பொழில் கோப்பும் இல்லை!");
        }
        std::sort(files.begin(), files.end());
        for (const fs::path& file : files) {
            addFile(file);
        }
    }

    TestFiles found_;
    std::set<fs::path> known_;
};

} // namespace

bool isTestFile(const std::string& path) {
    return wholePath(fs::u8path(path)).parent_path().filename() == fs::u8path(TEST_FOLDER);
}

TestFiles findTestFiles(const std::vector<std::string>& given) {
    Search search;
    for (const std::string& path : given) {
        search.add(path);
    }
    return search.take();
}

} // namespace pozhil::tools
