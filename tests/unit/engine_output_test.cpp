#include "child_process.h"
#include "engine_support.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include <gtest/gtest.h>

namespace {

using namespace pozhil::engine;

constexpr Place HERE = "1:0-1";
/// More lines than a pipe or the buffer takes.
constexpr int MANY = 100'000;

int exitStatusOf(void (*start)()) {
    return run({start, nullptr, 0, nullptr, 0, nullptr, 0});
}

void printMany() {
    for (int i = 0; i < MANY; ++i) {
        print({i});
    }
}

/// What printMany prints.
std::string manyLines() {
    std::string lines;
    for (int i = 0; i < MANY; ++i) {
        lines += std::to_string(i) + "\n";
    }
    return lines;
}

/// All that comes out of a pipe until its other end is closed.
std::string allOf(int pipeEnd) {
    std::string all;
    std::array<char, 4096> piece{};
    for (ssize_t size = 0; (size = read(pipeEnd, piece.data(), piece.size())) > 0;) {
        all.append(piece.data(), static_cast<std::size_t>(size));
    }
    return all;
}

/// Programs that do something besides printing, in an empty folder.
class Output : public testing::Test {
protected:
    Output() {
        std::string pattern = (std::filesystem::temp_directory_path() / "engine_output_XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
    }
    ~Output() override { std::filesystem::remove_all(folder_); }

    /// Lets a program run whose standard output \p prepare has set up; it prints, writes a file, and prints again.
    ChildResult resultOf(const std::function<void()>& prepare) const {
        return runInChild([&] {
            std::filesystem::current_path(folder_);
            prepare();
            _exit(exitStatusOf([] {
                printMany();
                writeFile(text("குறிப்பு"), text("கோப்பு"), HERE);
                print({text("யாரும் இல்லை")});
            }));
        });
    }

    /// What the program has written into its file.
    std::string written() const {
        std::ifstream file(folder_ / std::filesystem::u8path("குறிப்பு"));
        return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }

private:
    std::filesystem::path folder_;
};

TEST_F(Output, ThatIsClosedSwallowsWhatIsPrinted) {
    EXPECT_EQ(resultOf([] { close(STDOUT_FILENO); }).exitStatus, 0);
    EXPECT_EQ(written(), "கோப்பு") << "what is printed must not get into a file of the program";
}

TEST_F(Output, ThatIsFullIsNoFault) {
    EXPECT_EQ(resultOf([] { dup2(open("/dev/full", O_WRONLY), STDOUT_FILENO); }).exitStatus, 0);
    EXPECT_EQ(written(), "கோப்பு");
}

TEST_F(Output, WhoseReaderHasGoneEndsTheProgram) {
    constexpr int BY_A_SIGNAL = -2;
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    close(ends[0]);
    const ChildResult result = resultOf([&] {
        std::signal(SIGPIPE, SIG_DFL);
        dup2(ends[1], STDOUT_FILENO);
    });
    close(ends[1]);
    EXPECT_EQ(result.exitStatus, BY_A_SIGNAL);
    EXPECT_EQ(written(), "") << "it ends where it prints";
}

/// As those get it that are started by a program which reads from them when it finds the time.
TEST_F(Output, ThatDoesNotWaitGetsEverything) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    std::string seen;
    std::thread reader([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        seen = allOf(ends[0]);
    });
    const ChildResult result = resultOf([&] {
        fcntl(ends[1], F_SETFL, O_NONBLOCK);
        dup2(ends[1], STDOUT_FILENO);
    });
    close(ends[1]);
    reader.join();
    close(ends[0]);
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_EQ(seen, manyLines() + "யாரும் இல்லை\n");
}

} // namespace
