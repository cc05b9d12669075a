#pragma once

#include "parser/second/animations.h"
#include "parser/second/applications.h"
#include "parser/second/blocks.h"
#include "parser/second/control_flow.h"
#include "parser/second/databases.h"
#include "parser/second/definitions.h"
#include "parser/second/expressions.h"
#include "parser/second/function_values.h"
#include "parser/second/primaries.h"
#include "parser/second/property_values.h"
#include "parser/second/statements.h"
#include "parser/second/structures.h"
#include "parser/second/widget_styles.h"
#include "parser/second/widgets.h"

#include <cstdint>
#include <utility>

namespace pozhil::second {

/// The parse of one file: where it stands, and the families of the grammar that go on with it.
struct FileParse {
    /// \param theScanned the tokens of the file
    /// \param scanFaults what the scanner found wrong with it
    /// \param[out] thePlaces takes the places of nodes
    /// \param[out] faults takes all faults
    /// \param[out] unread takes what could not be read for them
    FileParse(const ScannedSource& theScanned, SecondFaults scanFaults, NodePlaces& thePlaces, SecondFaults& faults,
              Unread& unread)
        : places(thePlaces), sourceNumber(places.addSource(theScanned.source, theScanned.tokens.size())),
          tokens(theScanned), recovery(tokens, std::move(scanFaults), faults, unread) {}

    FileParse(const FileParse&) = delete;
    FileParse& operator=(const FileParse&) = delete;

    NodePlaces& places;
    /// Of the source among the places of nodes.
    const std::uint32_t sourceNumber;
    TokenReader tokens;
    Recovery recovery;
    TreeHeight height;
    /// How many functions and blocks are around the statement that is parsed.
    int functionDepth = 0;
    int blockDepth = 0;
    /// Whether an application is around it.
    bool isInApplication = false;
    /// Whether the value that is parsed may be a percentage.
    bool takesPercentages = false;

    StatementGrammar statements{*this};
    BlockGrammar blocks{*this};
    ControlFlowGrammar controlFlow{*this};
    DefinitionGrammar definitions{*this};
    StructureGrammar structures{*this};
    ExpressionGrammar expressions{*this};
    PrimaryGrammar primaries{*this};
    FunctionValueGrammar functionValues{*this};
    ApplicationGrammar applications{*this};
    DatabaseGrammar databases{*this};
    WidgetGrammar widgets{*this};
    PropertyGrammar properties{*this};
    StyleGrammar styles{*this};
    AnimationGrammar animations{*this};
};

} // namespace pozhil::second
