#pragma once

#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/exchange/ExchangeFormat.h>

#include <string>
#include <string_view>

#include <fmt/format.h>

namespace zk::testing {

/// What the command reads from a file `name` that holds `bytes`.
inline tools::Translations readBack(std::string_view bytes, const std::string& name) {
  const TemporaryDirectory directory;
  return tools::readTranslations(directory.write(name, bytes));
}

/// The one unit of a file as "key|source|target|state".
inline std::string unitIn(std::string_view bytes, const std::string& name) {
  const tools::Translations translations = readBack(bytes, name);
  if (translations.units.size() != 1) return fmt::format("{} units", translations.units.size());
  const tools::TranslationUnit& unit = translations.units[0];
  return fmt::format("{}|{}|{}|{}", unit.key, unit.source, unit.target, tools::nameOf(unit.state));
}

}  // namespace zk::testing
