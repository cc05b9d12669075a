#pragma once

#include "analysis/facts.h"
#include "analysis/fault_site.h"
#include "analysis/kinds.h"
#include "analysis/scope.h"
#include "analysis/structures.h"
#include "parser/parser.h"

#include <string>

namespace pozhil {

/// Visits the expressions and statements in widgets and pages, in the order in which they are emitted: only whoever
/// writes widgets knows it.
class WidgetWalk {
public:
    virtual ~WidgetWalk() = default;

    /// A widget where a value is expected.
    virtual void visit(const WidgetExpression& slot) = 0;
    /// A widget as a statement of its own.
    virtual void visit(const WidgetNode& widget) = 0;
    /// An application inside a block.
    virtual void visit(const WebAppNode& application) = 0;
};

/// What the walks over expressions, calls and statements share.
struct Walk {
    /// \param functions parameters of the functions that stand outside all others
    Walk(const FunctionTable& functionTable, const Structures& structureTable, const FaultSite& faultSite,
         WidgetWalk& widgetWalk)
        : functions(functionTable), structures(structureTable), faults(faultSite), widgets(widgetWalk),
          kinds(scope, structures, faults) {}

    const FunctionTable& functions;
    const Structures& structures;
    const FaultSite& faults;
    WidgetWalk& widgets;
    Scope scope;
    Kinds kinds;
    Facts facts;
    /// The function that is visited, empty outside all functions.
    std::string function;
};

} // namespace pozhil
