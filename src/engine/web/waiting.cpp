#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/system.h"

namespace pozhil::engine {

void passTime(Decimal /*seconds*/, Place place) {
    raise(CANNOT_WAIT, place);
}

} // namespace pozhil::engine
