#pragma once

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

namespace pozhil::test {

/// A test that works in an empty folder of its own.
class WorkingFolder : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Writes a file, with the folders that it needs.
    static void write(const std::string& path, const std::string& text);

    const std::filesystem::path& folder() const { return folder_; }

private:
    std::filesystem::path start_ = std::filesystem::current_path();
    std::filesystem::path folder_;
};

} // namespace pozhil::test
