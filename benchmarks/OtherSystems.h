#pragma once

#include <ZKStrings/benchmarks/Workload.h>

#include <string>

namespace zk::benchmarks {

/// glibc's gettext on the German texts, copied into a `std::string`, with `snprintf` for placeholders. Stops
/// the program with a message when the catalogue cannot be made or is not used.
[[nodiscard]] std::string textByGettext(const Request& request);

/// The same by an ICU resource bundle, as UTF-8, with MessageFormat for placeholders.
[[nodiscard]] std::string textByICU(const Request& request);

}  // namespace zk::benchmarks
