#include "tools/test/test_run.h"

#include "driver/console/console_style.h"
#include "report/box.h"
#include "report/test_run.h"
#include "tools/test/in_parallel.h"

#include <algorithm>
#include <future>
#include <iostream>
#include <string>
#include <utility>

namespace pozhil::tools {
namespace {

constexpr std::size_t MOST_OUTPUT = std::size_t(16) * 1024 * 1024;
/// Of what a failed test printed, so many bytes are shown: its end, where the fault stands.
constexpr std::size_t SHOWN_OUTPUT = std::size_t(64) * 1024;
constexpr int ENDED_BY_FAULT = 1;

struct Test {
    const TestProgram* program;
    std::string name;
};

class TestRun {
public:
    TestRun(const std::vector<TestProgram>& programs, const TestSettings& settings)
        : programs_(programs), settings_(settings) {
        for (const TestProgram& program : programs) {
            for (const std::string& name : program.tests) {
                if (!program.program.empty()) {
                    tests_.push_back({&program, name});
                }
            }
        }
        results_.resize(tests_.size());
    }

    TestCounts run() {
        inParallel(
            tests_.size(), [&](std::size_t index) { start(index); }, [&](std::size_t index) { finish(index); });
        tellFilesUntil(nullptr);
        return counts_;
    }

private:
    void start(std::size_t index) {
        const Test& test = tests_[index];
        platform::Command command{{test.program->program.u8string()}, {{report::CHOSEN_TEST, test.name}}};
        if (!settings_.coloured) {
            command.environment.emplace_back(report::PLAIN_BOX, "1");
        }
        results_[index] = std::async(std::launch::async, [command = std::move(command), limit = settings_.limit] {
            return platform::captureCommand(command, {limit, MOST_OUTPUT});
        });
    }

    void finish(std::size_t index) {
        const Test& test = tests_[index];
        const platform::LimitedResult result = results_[index].get();
        if (test.program != told_) {
            tellFilesUntil(test.program);
        }
        const std::string why = whyFailed(result);
        const bool hasPassed = result.status == 0 && why.empty();
        ++(hasPassed ? counts_.passed : counts_.failed);
        std::cout << "  " << coloured(hasPassed ? style::GREEN : style::RED, hasPassed ? "✅ " : "❌ ") << test.name
                  << "\n";
        if (!hasPassed) {
            tellOutput(result, why);
        }
        std::cout << std::flush;
    }

    std::string whyFailed(const platform::LimitedResult& result) const {
        if (result.tookTooLong) {
            return "முடியவில்லை: " + std::to_string(settings_.limit.count()) + " வினாடிக்குப் பின் நிறுத்தப்பட்டது.";
        }
        if (result.wroteTooMuch) {
            return "எல்லையில்லாமல் அச்சிடுகிறது: 16 MB-க்குப் பின் நிறுத்தப்பட்டது.";
        }
        const bool isTold = result.status == 0 || result.status == ENDED_BY_FAULT;
        return isTold ? "" : "எதிர்பாராமல் முடிந்தது; முடிவு நிலை " + std::to_string(result.status) + ".";
    }

    void tellOutput(const platform::LimitedResult& result, const std::string& why) const {
        const std::string all = result.output + result.errors;
        std::size_t begin = all.size() - std::min(all.size(), SHOWN_OUTPUT);
        if (begin > 0) {
            begin = std::min(all.find('\n', begin), all.size() - 1) + 1;
            std::cout << "…\n";
        }
        std::cout << all.substr(begin);
        if (all.empty() || all.back() != '\n') {
            std::cout << "\n";
        }
        if (!why.empty()) {
            std::cout << "  " << coloured(style::RED, why) << "\n\n";
        }
    }

    /// Tells of the files up to this one, the last with its name alone; of all that are left for null.
    void tellFilesUntil(const TestProgram* last) {
        while (next_ < programs_.size()) {
            const TestProgram& program = programs_[next_++];
            tellFile(program);
            if (&program == last) {
                told_ = last;
                return;
            }
        }
    }

    void tellFile(const TestProgram& program) {
        const bool hasFailed = !program.refusal.empty() || !program.translation.faults.empty();
        if (!hasFailed && program.tests.empty() && !program.translation.tests.empty()) {
            return; // none of its tests was asked for
        }
        std::cout << coloured(style::CYAN, "🧪 " + program.path) << "\n";
        for (const SecondFault& fault : program.translation.faults) {
            const report::FaultText text = faultText(fault);
            std::cout << (settings_.coloured ? report::faultBox(text) : report::plainFaultBox(text));
        }
        if (!program.refusal.empty()) {
            std::cout << "  " << coloured(style::RED, "❌ " + program.refusal) << "\n";
        }
        if (!hasFailed && program.tests.empty()) {
            std::cout
                << "  ⚠️ 'சோதி_' என்று தொடங்கும் பெயருள்ள செயல் இந்தக் கோப்பில் இல்லை.\n";
        }
    }

    std::string coloured(const char* colour, const std::string& text) const {
        return settings_.coloured ? colour + text + style::RESET : text;
    }

    const std::vector<TestProgram>& programs_;
    const TestSettings settings_;
    std::vector<Test> tests_;
    std::vector<std::future<platform::LimitedResult>> results_;
    TestCounts counts_;
    /// The file whose tests are being told, and the number of the one after it.
    const TestProgram* told_ = nullptr;
    std::size_t next_ = 0;
};

} // namespace

TestCounts runTests(const std::vector<TestProgram>& programs, const TestSettings& settings) {
    return TestRun(programs, settings).run();
}

} // namespace pozhil::tools
