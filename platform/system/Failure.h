#pragma once

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <system_error>

namespace zk {

/// Why the system call just made has failed.
[[nodiscard]] inline std::error_code lastFailure() {
  return {errno, std::generic_category()};
}

/// Whether the same call may succeed in a moment: the process or the system is short of descriptors or
/// memory, or was disturbed. Every other failure is an answer, and stays one.
[[nodiscard]] inline bool isPassing(const std::error_code& failure) {
  constexpr std::errc kPassing[] = {
      std::errc::too_many_files_open, std::errc::too_many_files_open_in_system,
      std::errc::not_enough_memory,   std::errc::io_error,
      std::errc::interrupted,         std::errc::resource_unavailable_try_again,
  };
  return std::find(std::begin(kPassing), std::end(kPassing), failure) != std::end(kPassing);
}

}  // namespace zk
