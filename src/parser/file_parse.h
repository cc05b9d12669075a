#pragma once

#include "parser/declarations.h"
#include "parser/grammar/animation.h"
#include "parser/grammar/application.h"
#include "parser/grammar/assignments.h"
#include "parser/grammar/blocks.h"
#include "parser/grammar/box_widgets.h"
#include "parser/grammar/control_flow.h"
#include "parser/grammar/database.h"
#include "parser/grammar/expressions.h"
#include "parser/grammar/functions.h"
#include "parser/grammar/generic_widget.h"
#include "parser/grammar/imports.h"
#include "parser/grammar/layout_widgets.h"
#include "parser/grammar/message_widgets.h"
#include "parser/grammar/primary_expressions.h"
#include "parser/grammar/statements.h"
#include "parser/grammar/structures.h"
#include "parser/grammar/widgets.h"
#include "parser/import_loader.h"
#include "parser/nesting_limit.h"
#include "parser/node_places.h"
#include "parser/recovery.h"
#include "parser/token_cursor.h"

#include <cstdint>
#include <utility>

namespace pozhil {

/// What the parses of a file and of all that it imports have in common.
struct ParseSession {
    ImportLoader importLoader;
    NodePlaces places{};
    /// Takes the faults that are gone on after; null if the first one ends the parse.
    FaultLog* faults = nullptr;
};

/// The parse of one file: where it stands, what it has found, and the families of the grammar that go on with it.
struct FileParse {
    /// \param shownSource the source whose path and lines faults show
    /// \param nestingHeight that the tree has reached where the file is imported
    FileParse(ParseSession& theSession, ScannedSource theScanned, SourcePtr shownSource, int nestingHeight = 0)
        : session(theSession), scanned(std::move(theScanned)),
          sourceNumber(session.places.addSource(scanned.source, scanned.places.size())),
          cursor(scanned, std::move(shownSource)), nesting(cursor, nestingHeight),
          recovery(cursor, scanned, session.faults) {}

    FileParse(const FileParse&) = delete;
    FileParse& operator=(const FileParse&) = delete;

    ParseSession& session;
    const ScannedSource scanned;
    /// Of the source among the places of nodes.
    const std::uint32_t sourceNumber;
    TokenCursor cursor;
    NestingLimit nesting;
    Recovery recovery;
    Declarations declarations;
    bool isInList = false;

    StatementGrammar statements{*this};
    BlockGrammar blocks{*this};
    ControlFlowGrammar controlFlow{*this};
    AssignmentGrammar assignments{*this};
    FunctionGrammar functions{*this};
    StructureGrammar structures{*this};
    ImportGrammar imports{*this};
    ExpressionGrammar expressions{*this};
    PrimaryGrammar primaries{*this};
    DatabaseGrammar database{*this};
    ApplicationGrammar applications{*this};
    WidgetGrammar widgets{*this};
    GenericWidgetGrammar genericWidgets{*this};
    LayoutGrammar layouts{*this};
    BoxGrammar boxes{*this};
    MessageGrammar messages{*this};
    AnimationGrammar animations{*this};
};

} // namespace pozhil
