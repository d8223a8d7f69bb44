#pragma once

namespace zk::faults {

/// What this program can make fail: calls of the system that reach for descriptors, files and directories, and
/// allocations, by `new` as by `malloc`. The module and all libraries that it uses go through it.
enum class Kind { systemCall, allocation };

struct Shortage {
  Kind kind;
  int number;  ///< what errno says then
  bool lasts;  ///< whether all later ones fail too
};

/// From now on the call of the kind of `shortage` that has `before` others before it fails.
void begin(const Shortage& shortage, int before);

/// Ends the shortage, and says whether any call has failed.
bool end();

/// Whether the call that is about to be made has to fail; sets errno if so.
[[nodiscard]] bool failsNow(Kind kind);

}  // namespace zk::faults
