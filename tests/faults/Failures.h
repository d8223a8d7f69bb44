#pragma once

namespace zk::faults {

/// What this program can make fail: calls of the system that reach for descriptors, files and directories;
/// allocations, by `new` as by `malloc`; and reading, which then gives less than it was asked for. The module and
/// all libraries that it uses go through it.
enum class Kind { systemCall, allocation, shortRead };

struct Failure {
  Kind kind;
  int number;  ///< what errno says then
  bool lasts;  ///< whether all later ones fail too
};

/// From now on the call of the kind of `failure` that has `before` others before it fails.
void begin(const Failure& failure, int before);

/// Ends the failure, and says whether any call has failed.
bool end();

/// Whether the call that is about to be made has to fail; sets errno if so.
[[nodiscard]] bool failsNow(Kind kind);

/// From now on also allocations fail that fit into the memory that was freed a moment ago.
void leaveNoRoom();

/// Whether they do.
[[nodiscard]] bool isRoomLeft();

}  // namespace zk::faults
