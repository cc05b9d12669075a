#include "support/working_folder.h"

#include <cstdlib>
#include <fstream>

namespace pozhil::test {

namespace fs = std::filesystem;

void WorkingFolder::SetUp() {
    std::string pattern = (fs::temp_directory_path() / "pozhil-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder_ = pattern;
    fs::current_path(folder_);
}

void WorkingFolder::TearDown() {
    fs::current_path(start_);
    fs::remove_all(folder_);
}

void WorkingFolder::write(const std::string& path, const std::string& text) {
    const fs::path file = fs::u8path(path);
    if (file.has_parent_path()) {
        fs::create_directories(file.parent_path());
    }
    std::ofstream(file, std::ios::binary) << text;
}

} // namespace pozhil::test
