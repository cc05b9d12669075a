#pragma once

namespace pozhil::platform {

/// From now on a write beyond the largest file that the system allows (ulimit -f) fails as one to a full disk does, with
/// std::errc::file_too_large, instead of ending this process. Programs that it starts aren't concerned.
void failWritesBeyondFileLimit();

} // namespace pozhil::platform
