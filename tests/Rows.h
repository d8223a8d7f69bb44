#pragma once

#include <fstream>
#include <string>
#include <tuple>
#include <vector>

#include <nlohmann/json.hpp>

namespace zk::testing {

/// Returns the rows of a table of cases in a file next to its test, such as "platform/LocaleTest.json": a list of
/// lists, each with one value for each of `Columns`.
template <class... Columns>
std::vector<std::tuple<Columns...>> rowsOf(const std::string& table) {
  std::ifstream file(std::string(ZK_PROJECT_ROOT) + "/tests/" + table);
  return nlohmann::json::parse(file).get<std::vector<std::tuple<Columns...>>>();
}

}  // namespace zk::testing
