#include "driver/source_watch.h"

#include "support/working_folder.h"

#include <atomic>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>

using namespace pozhil;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

const std::string SOURCE = "அ.பொழில்";
const std::string MARKER = "ஃ பொழில் 2\n";
const std::string GOOD = MARKER + "அச்சிடு(1)\n";
const std::string FAULTY = MARKER + "அச்சிடு(இல்லாதது)\nஅச்சிடு(அதுவும்)\n";

/// Leaves the watch loop, which never ends by itself.
struct Done : std::runtime_error {
    Done() : std::runtime_error("done") {}
};

/// Writes the source, each text once the loop is done with the one before, and notes which steps the loop takes for them.
class WatchedSource : public test::WorkingFolder {
protected:
    void SetUp() override {
        WorkingFolder::SetUp();
        write(SOURCE, GOOD);
        std::filesystem::last_write_time(std::filesystem::u8path(SOURCE),
                                         std::filesystem::file_time_type::clock::now() - 1h);
    }

    /// What happens for each of \p texts, the last of which must be noted.
    void watch(const std::vector<std::string>& texts, bool isForPages = false) {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        std::thread writer([&] {
            std::this_thread::sleep_for(700ms); // until the loop has looked at the file
            for (std::size_t i = 0; i < texts.size(); ++i) {
                while (noted_ < i) {
                    std::this_thread::sleep_for(5ms);
                }
                replaceSource(texts[i]);
            }
        });
        SecondWatchSteps steps;
        steps.changeNote = "மாற்றம்";
        steps.isForPages = isForPages;
        const auto note = [&](const std::string& step) {
            steps_.push_back(step);
            ++noted_;
            if (steps_.size() == texts.size()) {
                throw Done();
            }
        };
        steps.build = [&](const SecondTranslation&) { note("build"); };
        steps.afterFaults = [&](const SecondFaults& faults) { note(std::to_string(faults.size()) + " faults"); };
        steps.afterOtherKind = [&] { note("other kind"); };
        EXPECT_THROW(watchSource(SOURCE, {}, steps), Done);
        writer.join();
        output_ = testing::internal::GetCapturedStdout();
        errors_ = testing::internal::GetCapturedStderr();
    }

    /// As many editors do it, so that nobody reads half of it.
    static void replaceSource(const std::string& text) {
        write("புதிது", text);
        std::filesystem::rename(std::filesystem::u8path("புதிது"), std::filesystem::u8path(SOURCE));
    }

    std::vector<std::string> steps_;
    std::atomic<std::size_t> noted_{0};
    std::string output_;
    std::string errors_;
};

TEST_F(WatchedSource, IsBuiltWhenItChanges) {
    watch({GOOD + "அச்சிடு(2)\n"});
    EXPECT_THAT(steps_, ElementsAre("build"));
    EXPECT_EQ(output_, "மாற்றம்\n");
    EXPECT_EQ(errors_, "");
}

TEST_F(WatchedSource, IsWatchedOnAfterFaults) {
    watch({FAULTY, GOOD + "அச்சிடு(2)\n"});
    EXPECT_THAT(steps_, ElementsAre("2 faults", "build"));
    EXPECT_THAT(output_, HasSubstr("இல்லாதது"));
    EXPECT_THAT(output_, HasSubstr("அதுவும்"));
}

TEST_F(WatchedSource, IsNotBuiltAsOneOfTheOtherEdition) {
    watch({"அச்சிடு(1)\n", "ஃ பொழில் 7\nஅச்சிடு(1)\n", GOOD + "அச்சிடு(2)\n"});
    EXPECT_THAT(steps_, ElementsAre("other kind", "1 faults", "build"));
    EXPECT_THAT(errors_, HasSubstr("முதல் வரியில் 'ஃ பொழில் 2' இப்போது இல்லை! அதைத் திரும்ப எழுது"));
    EXPECT_THAT(output_, HasSubstr("பொழி-501"));
}

TEST_F(WatchedSource, OfAnApplicationIsNotBuiltWithoutOne) {
    watch({GOOD + "அச்சிடு(2)\n"}, true);
    EXPECT_THAT(steps_, ElementsAre("other kind"));
    EXPECT_THAT(errors_, HasSubstr("நிரலில் 'வலைதளம்' இப்போது இல்லை! அதைத் திரும்ப எழுது"));
}

} // namespace
