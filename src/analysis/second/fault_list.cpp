#include "analysis/second/fault_list.h"

#include "analysis/second/doubt.h"
#include "front_end/second_edition.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace pozhil::second {

void FaultList::add(int number, resolved::Place place, std::vector<std::string> values, std::string suggestion,
                    std::string remedy, Mend mend) {
    notes_.push_back({place,
                      {number,
                       {program_.files[place.file].source, place.range},
                       std::move(values),
                       std::move(suggestion),
                       std::move(remedy),
                       std::move(mend)}});
}

SecondFaults FaultList::found(const Doubt& doubt) {
    notes_.erase(std::remove_if(notes_.begin(), notes_.end(),
                                [&](const Note& note) {
                                    return doubt.mayExplain(note.fault.number, note.place, note.fault.values);
                                }),
                 notes_.end());
    const auto order = [](const Note& note) {
        return std::tie(note.place.file, note.place.range.begin, note.place.range.end, note.fault.number,
                        note.fault.values);
    };
    std::stable_sort(notes_.begin(), notes_.end(), [&](const Note& a, const Note& b) { return order(a) < order(b); });
    notes_.erase(
        std::unique(notes_.begin(), notes_.end(), [&](const Note& a, const Note& b) { return order(a) == order(b); }),
        notes_.end());
    SecondFaults faults;
    for (std::size_t index = 0; index < notes_.size() && index < MAX_FOUND_FAULTS; ++index) {
        faults.push_back(std::move(notes_[index].fault));
    }
    return faults;
}

} // namespace pozhil::second
