#include <ZKStrings/platform/system/ProcessSeed.h>
#include <ZKStrings/platform/text/Bytes.h>

#include <string_view>

#include <sys/auxv.h>

namespace zk {

std::uint64_t processSeed() {
  constexpr std::size_t kRandomBytes = 16;
  // The kernel gives every process some random bytes. Where it does not, the place where it put the program
  // is random too.
  const auto* const random = reinterpret_cast<const char*>(getauxval(AT_RANDOM));
  if (!random) return reinterpret_cast<std::uintptr_t>(&processSeed) * 0x9E3779B97F4A7C15;
  return hashOf({random, kRandomBytes});
}

}  // namespace zk
