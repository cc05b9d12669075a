#include "engine/faults.h"

#include "engine/big_stack.h"
#include "engine/fault_details.h"
#include "engine/memory.h"
#include "engine/places.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/text.h"
#include "report/catalogue.h"

#include <memory>

namespace pozhil::engine {
namespace {

std::string filledText(const char* text, const std::vector<std::string>& values) {
    const std::vector<std::string_view> views(values.begin(), values.end());
    return report::filled(text, views.data(), views.size());
}

/// The entry of a fault. A number that the catalogue lacks can only be a mistake of ours, which must not hide the fault.
const report::Entry& entryOf(const Fault::Details& details) {
    static constexpr report::Entry UNKNOWN = {0, "இயக்கநேரப் பிழை", "அறியப்படாத பிழை.", ""};
    const report::Entry* const entry = report::findRunningEntry(details.number);
    return entry == nullptr ? UNKNOWN : *entry;
}

/// Notes both ends of the way that leads to the call that runs.
void noteWay(Fault::Details& details) {
    constexpr std::size_t END = report::MAX_TOLD_CALLS / 2;
    std::size_t depth = 0;
    for (const Frame* frame = Frame::innermost; frame != nullptr; frame = frame->caller()) {
        ++depth;
    }
    const bool isWhole = depth <= report::MAX_TOLD_CALLS;
    details.callsLeftOut = isWhole ? 0 : depth - report::MAX_TOLD_CALLS;
    std::size_t index = 0;
    for (const Frame* frame = Frame::innermost; frame != nullptr; frame = frame->caller()) {
        if (isWhole || index < END || index >= depth - END) {
            details.way.push_back(callOf(*frame));
        }
        ++index;
    }
}

std::unique_ptr<Fault::Details> detailsOf(int number, Place place) {
    auto details = std::make_unique<Fault::Details>();
    details->number = number;
    details->place = place == nullptr && Frame::innermost != nullptr ? Frame::innermost->calledAt() : place;
    return details;
}

} // namespace

void raise(int number, Place place, std::initializer_list<std::string_view> values, std::string_view suggestion,
           std::string_view remedy) {
    auto details = detailsOf(number, place);
    details->values.assign(values.begin(), values.end());
    details->suggestion = suggestion;
    details->remedy = remedy;
    // Nobody is told the way to a fault that is caught, and it may be as long as the stack.
    if (Attempt::running == 0) {
        noteWay(*details);
    }
    throw Fault(details.release());
}

Fault faultWithWay(int number, Place place) {
    auto details = detailsOf(number, place);
    noteWay(*details);
    return Fault(details.release());
}

Fault::Fault(Details* theDetails) : details(theDetails) {}

Fault::Fault(const Fault& other) : details(other.details) {
    ++details->references;
}

Fault::~Fault() {
    const bool tookReserve = details->number == OUT_OF_MEMORY;
    if (--details->references == 0) {
        delete details;
    }
    if (tookReserve) {
        putMemoryBy();
    }
}

void Fault::beginHandler() const {
    putMemoryBy();
}

Value Fault::message() const {
    return makeText(filledText(entryOf(*details).message, details->values));
}

report::FaultText faultText(const Fault& fault) {
    const Fault::Details& details = *fault.details;
    const report::Entry& entry = entryOf(details);
    report::FaultText text;
    text.code = report::codeOf(details.number);
    text.category = entry.category;
    text.message = filledText(entry.message, details.values);
    text.remedy = details.remedy.empty() ? filledText(entry.remedy, details.values) : details.remedy;
    text.suggestion = details.suggestion;
    text.excerpt = excerptOf(details.place);
    text.way = details.way;
    text.callsLeftOut = details.callsLeftOut;
    return text;
}

int Attempt::running = 0;

const Frame* Frame::innermost = nullptr;
const char* Frame::stackLimit = nullptr;

void Frame::makeRoom(Place calledAt) const {
    if (!extendStack(this)) {
        raise(TOO_DEEP, calledAt, {function_});
    }
}

} // namespace pozhil::engine
