#include "driver/server/build_fault.h"

#include "base/json_text.h"

#include <condition_variable>
#include <mutex>

namespace pozhil {
namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* NO_FAULT = "{}";

/// Between the build, which tells, and the server's thread, which answers.
struct Telling {
    std::mutex mutex;
    std::condition_variable answered;
    std::string text = NO_FAULT;
    /// Whether a page was told what is to be told now.
    bool isTold = true;
    Clock::time_point lastQuestion;
};

/// Never destroyed: a diagnostic ends the process while the server may be answering.
Telling& telling() {
    static Telling& only = *new Telling;
    return only;
}

void tell(const std::string& text) {
    const std::lock_guard<std::mutex> lock(telling().mutex);
    telling().text = text;
    telling().isTold = false;
}

} // namespace

void tellPages(const BuildFault& fault) {
    tell(json::object({{"code", json::text(fault.code)},
                       {"file", json::text(fault.file)},
                       {"line", std::to_string(fault.line)},
                       {"description", json::text(fault.description)}}));
}

void tellPagesOfSuccess() {
    tell(NO_FAULT);
}

std::string answerToPage() {
    Telling& told = telling();
    const std::lock_guard<std::mutex> lock(told.mutex);
    told.lastQuestion = Clock::now();
    told.isTold = true;
    told.answered.notify_all();
    return told.text;
}

void waitForPages(std::chrono::milliseconds longest) {
    // A page that is open asks more often.
    constexpr std::chrono::seconds SILENCE{2};
    Telling& told = telling();
    std::unique_lock<std::mutex> lock(told.mutex);
    if (Clock::now() - told.lastQuestion < SILENCE) {
        told.answered.wait_for(lock, longest, [&] { return told.isTold; });
    }
}

} // namespace pozhil
