#pragma once

namespace nerida::bench {

/// What this process holds of the system at a moment.
struct Resources {
  long workingSet = 0;  ///< KiB
  long handles = 0;
  long gdiObjects = 0;
  long windows = 0;  ///< of this thread
};

Resources held();
/// What has come in between; negative where less is held.
Resources operator-(const Resources& after, const Resources& before);
/// Prints a figure of each kind.
void print(const char* kind, const Resources& figures);

}  // namespace nerida::bench
