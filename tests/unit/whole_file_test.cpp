#include "base/whole_file.h"
#include "support/working_folder.h"

#include <filesystem>
#include <optional>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace pozhil::test {
namespace {

using namespace std::string_literals;

class WholeFile : public WorkingFolder {};

TEST_F(WholeFile, IsReadByteByByte) {
    for (const std::string& bytes : {""s, "அ\r\nஆ\r"s, "\xEF\xBB\xBF\0\xFF"s, std::string(1'000'000, '\n')}) {
        write("கோப்பு", bytes);
        EXPECT_EQ(readFile("கோப்பு"), bytes);
    }
}

TEST_F(WholeFile, IsNoneWhereThereIsNoFile) {
    std::filesystem::create_directory("folder");
    ASSERT_EQ(mkfifo("pipe", 0644), 0);
    for (const char* path : {"nowhere", "folder", "pipe", ""}) {
        EXPECT_EQ(readFile(path), std::nullopt) << path;
        EXPECT_FALSE(openFile(path).is_open()) << path;
    }
}

} // namespace
} // namespace pozhil::test
