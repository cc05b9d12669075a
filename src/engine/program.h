#pragma once

/// All that the emitted text of a program uses.

#include "engine/calls.h"
#include "engine/collections.h"
#include "engine/counting.h"
#include "engine/faults.h"
#include "engine/library.h"
#include "engine/list.h"
#include "engine/members.h"
#include "engine/operations.h"
#include "engine/value.h"
