#include "parser/declarations.h"

#include <iterator>

namespace pozhil {

void Declarations::merge(Declarations imported) {
    functions.merge(imported.functions);
    structs.merge(imported.structs);
    abstractStructs.merge(imported.abstractStructs);
    enums.merge(imported.enums);
    droppedStatements.insert(droppedStatements.end(), std::make_move_iterator(imported.droppedStatements.begin()),
                             std::make_move_iterator(imported.droppedStatements.end()));
}

} // namespace pozhil
