#pragma once

/// What the tests of the engine share.

#include "engine/fault_details.h"
#include "engine/program.h"
#include "engine/text.h"
#include "report/box.h"

#include <string>

/// A value as it is printed.
inline std::string form(const pozhil::engine::Value& value) {
    return pozhil::engine::textForm(value);
}

/// How many hold the block of a value.
inline long long holders(const pozhil::engine::Value& value) {
    return value.block()->references;
}

/// The number of the fault that the action raises, 0 if it raises none.
template <class Action> int faultOf(Action action) {
    try {
        action();
    } catch (const pozhil::engine::Fault& fault) {
        return fault.details->number;
    }
    return 0;
}

/// What பிடி is told of the fault that the action raises, empty if it raises none.
template <class Action> std::string messageOf(Action action) {
    try {
        action();
    } catch (const pozhil::engine::Fault& fault) {
        return form(fault.message());
    }
    return "";
}

/// The whole fault that the action raises.
template <class Action> pozhil::report::FaultText toldBy(Action action) {
    try {
        action();
    } catch (const pozhil::engine::Fault& fault) {
        return pozhil::engine::faultText(fault);
    }
    return {};
}
