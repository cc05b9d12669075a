#pragma once

#include "diagnostics/second_fault.h"
#include "scanner/scanned_source.h"

namespace pozhil::second {

/// A source of the second edition as its tokens, with their places in the text as it stands.
///
/// Names and texts are in Unicode's normal form C, whole numbers in ASCII digits without leading zeros, texts without
/// quotes and escapes; a semicolon is a NEWLINE with the value ";". What is wrong with the text leaves tokens in its
/// place that let the rest of the statement keep its shape.
/// \param[out] faults what is wrong, in the order of the text, MAX_FOUND_FAULTS at most: the tokens end with the last
ScannedSource scanSecondEdition(const SourcePtr& source, SecondFaults& faults);

} // namespace pozhil::second
