#pragma once

#include <filesystem>
#include <future>
#include <string>
#include <vector>

namespace pozhil {

/// \p text compressed by gzip; empty if there is no gzip, which the system then does without.
/// \param temporaryDirectory where the text is written for it
std::string compressed(const std::string& text, const std::filesystem::path& temporaryDirectory);

/// Copies of the files of a build, compressed by gzip, which the server sends to whoever takes them: each beside its file,
/// with ".gz" behind its name and the file's own time.
class CompressedCopies {
public:
    /// Begins to make them in the background; the server does without until they are there. Files too large to be anything
    /// but pictures and videos, which don't become smaller, are left out.
    void makeFor(const std::vector<std::filesystem::path>& files);

    /// Waits until nothing is being made, and removes the copies of \p files.
    void clear(const std::vector<std::filesystem::path>& files);

private:
    std::future<void> work_;
};

} // namespace pozhil
