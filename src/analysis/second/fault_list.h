#pragma once

#include "analysis/second/resolved/node.h"
#include "diagnostics/second_fault.h"

#include <string>
#include <vector>

namespace pozhil {
struct SecondProgram;
}

namespace pozhil::second {

class Doubt;

/// Gathers what is wrong with a program, in whatever order it is found.
class FaultList {
public:
    /// \param program outlives the list
    explicit FaultList(const SecondProgram& program) : program_(program) {}

    /// Notes a fault. The same one noted twice is told once.
    /// \param values for the holes of its message and remedy
    /// \param suggestion what may have been meant, as a sentence
    /// \param remedy what to do about it, if that isn't what the catalogue says
    /// \param mend what to write instead, where one thing alone is right
    void add(int number, resolved::Place place, std::vector<std::string> values = {}, std::string suggestion = {},
             std::string remedy = {}, Mend mend = {});

    bool isEmpty() const { return notes_.empty(); }

    /// Whether there are so many that this one will hardly be among those that are told: what takes long to find out about it
    /// needn't be.
    bool isLong() const { return notes_.size() >= LONG; }

    /// The faults in the order of the files and of their texts, MAX_FOUND_FAULTS at most, without those that may come of
    /// what could not be read.
    SecondFaults found(const Doubt& doubt);

private:
    static constexpr std::size_t LONG = 100;

    struct Note {
        resolved::Place place;
        SecondFault fault;
    };

    const SecondProgram& program_;
    std::vector<Note> notes_;
};

} // namespace pozhil::second
