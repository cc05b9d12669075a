#pragma once

#include "diagnostics/fault.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

namespace pozhil {

/// The stages between source and output text.
enum class Stage { Scan, Parse, Generate };

/// A stage failed by something that has no box: a fault without a place, or an exception.
class StageFailure : public std::runtime_error {
public:
    StageFailure(Stage failedStage, const std::string& what) : std::runtime_error(what), stage(failedStage) {}
    StageFailure(Stage failedStage, Fault theFault)
        : std::runtime_error(messageOf(theFault)), stage(failedStage), fault(std::move(theFault)) {}

    const Stage stage;
    /// Nothing if an exception ended the stage.
    const std::optional<Fault> fault;
};

/// Runs one stage and returns what it makes; what leaves it without a box tells which stage it was.
/// \throws Fault
/// \throws StageFailure
template <class Work> auto runStage(Stage stage, Work work) {
    try {
        return work();
    } catch (const Fault& fault) {
        if (fault.form == FaultForm::Box) {
            throw;
        }
        throw StageFailure(stage, fault);
    } catch (const std::exception& exception) {
        throw StageFailure(stage, exception.what());
    }
}

} // namespace pozhil
