#pragma once

namespace zk::faults {

/// The calls that this program can make fail, for the module and all libraries that it uses: system calls for
/// descriptors, files and directories; allocations, with `new` and with `malloc`; and reads, which then return less
/// than requested.
enum class Kind { systemCall, allocation, shortRead };

struct Failure {
  Kind kind;
  int number;  ///< the value of errno
  bool lasts;  ///< whether all later calls of that kind fail, too
};

/// Makes a later call of the kind of `failure` fail: the one after `before` others.
void begin(const Failure& failure, int before);

/// Ends the failure. Returns whether any call has failed.
bool end();

/// Whether the next call has to fail. Sets errno if so.
[[nodiscard]] bool failsNow(Kind kind);

/// Makes allocations fail even if they fit into memory that was just freed.
void leaveNoRoom();

/// Whether allocations may use memory that was just freed.
[[nodiscard]] bool isRoomLeft();

}  // namespace zk::faults
