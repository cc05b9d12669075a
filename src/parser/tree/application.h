#pragma once

#include "parser/tree/statements.h"

#include <map>
#include <memory>
#include <string>
#include <utility>

namespace pozhil {

/// Properties by name, ordered by key.
using PropertyMap = std::map<std::string, ExpressionPtr>;

/// வலைதளம்: an application, or one page of it. Properties are filled in after construction.
struct WebAppNode : Statement {
    WebAppNode(std::string theName, StatementPtr theDatabaseManager, StatementPtr theHeader, StatementPtr theUiBody,
               StatementPtr theDefinition)
        : name(std::move(theName)), databaseManager(std::move(theDatabaseManager)), header(std::move(theHeader)),
          uiBody(std::move(theUiBody)), definition(std::move(theDefinition)) {}

    std::string name;
    StatementPtr databaseManager;
    StatementPtr header;
    StatementPtr uiBody;
    StatementPtr definition;
    PropertyMap properties;
    bool flag = false;
};

/// தரவுத்தளமேலாண்மை.
struct DatabaseManagerNode : Statement {
    explicit DatabaseManagerNode(StatementPtr theFirebaseConfig) : firebaseConfig(std::move(theFirebaseConfig)) {}

    StatementPtr firebaseConfig;
};

/// பயர்பேசு_அமைப்பு.
struct FirebaseConfigNode : Statement {
    explicit FirebaseConfigNode(PropertyMap theProperties) : properties(std::move(theProperties)) {}

    PropertyMap properties;
};

/// வரையறை: the logic of an application.
struct LogicBlockNode : Statement {
    explicit LogicBlockNode(std::unique_ptr<BlockStatement> theBlock) : block(std::move(theBlock)) {}

    std::unique_ptr<BlockStatement> block;
};

} // namespace pozhil
