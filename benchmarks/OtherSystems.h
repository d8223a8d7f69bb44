#pragma once

#include <ZKStrings/benchmarks/Workload.h>

#include <string>

namespace zk::benchmarks {

/// Returns a German text by glibc's gettext, copied into a `std::string`, with `snprintf` for placeholders.
/// Throws `std::runtime_error` if the catalogue cannot be made or is not used.
[[nodiscard]] std::string textByGettext(const Request& request);

/// Returns a German text by an ICU resource bundle, as UTF-8, with MessageFormat for placeholders. Throws
/// `std::runtime_error` if the bundle cannot be made or has no such text.
[[nodiscard]] std::string textByICU(const Request& request);

}  // namespace zk::benchmarks
