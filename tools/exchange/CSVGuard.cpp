#include <ZKStrings/tools/exchange/CSVGuard.h>

#include <algorithm>
#include <cstddef>

namespace zk::tools {

namespace {

/// What a formula begins with; in Japanese and Chinese spreadsheets with the full-width signs as well.
constexpr std::string_view kFormulaSigns[] = {"=", "+", "-", "@", "\t", "\r", "＝", "＋", "－", "＠"};

bool isFormulaBehindApostrophes(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of('\''), text.size()));
  return std::any_of(std::begin(kFormulaSigns), std::end(kFormulaSigns),
                     [&](std::string_view sign) { return text.starts_with(sign); });
}

}  // namespace

std::string guarded(std::string_view text) {
  return (isFormulaBehindApostrophes(text) ? "'" : "") + std::string(text);
}

std::string_view unguarded(std::string_view cell) {
  const bool isGuarded = cell.starts_with('\'') && isFormulaBehindApostrophes(cell);
  return cell.substr(isGuarded ? 1 : 0);
}

}  // namespace zk::tools
