#include <ZKStrings/benchmarks/Workload.h>
#include <ZKStrings/engine/LookupRules.h>
#include <ZKStrings/platform/Bundle.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

namespace zk::benchmarks {

namespace {

const nlohmann::json& entries() {
  static const nlohmann::json& entries =
      *new nlohmann::json(nlohmann::json::parse(std::ifstream(ZK_PROJECT_ROOT "/catalogue/entries.json")));
  return entries;
}

std::vector<std::string> placeholderNames(const std::string& text) {
  std::vector<std::string> names;
  for (std::size_t at = text.find("%{"); at != std::string::npos; at = text.find("%{", at)) {
    const std::size_t end = text.find('}', at);
    names.push_back(text.substr(at + 2, end - at - 2));
    at = end;
  }
  return names;
}

bool isOfKind(const Request& request, bool plural, Kind kind) {
  if (kind == Kind::counted) return plural;
  const std::size_t wanted = kind == Kind::plain ? 0 : kind == Kind::oneSubstitution ? 1 : 3;
  return !plural && request.names.size() == wanted;
}

/// All different requests of a kind. The key that is not ASCII is left out: resource bundles cannot hold
/// it.
std::vector<Request> choices(Kind kind) {
  const char* const values[] = {"kim", "1,250", "Sports & Music"};
  std::vector<Request> chosen;
  for (const auto& entry : entries()) {
    Request request{
        entry["key"], entry["text"], std::nullopt, entry["key"], placeholderNames(entry["text"]), {}};
    const bool isAscii = request.key.find('\xEF') == std::string::npos;
    if (!isAscii || !isOfKind(request, entry.contains("plural"), kind)) continue;
    if (kind == Kind::counted) request.names.clear();
    for (std::size_t i = 0; i < request.names.size(); ++i)
      request.values.emplace_back(values[i % std::size(values)]);
    for (std::int64_t count = 0; kind == Kind::counted && count < 9; ++count) {
      request.count = count;
      request.lookedUpKey = request.key + std::string(pluralSuffix(count));
      chosen.push_back(request);
    }
    if (kind != Kind::counted) chosen.push_back(std::move(request));
  }
  return chosen;
}

Requests makeRequests(Kind kind) {
  std::mt19937 random(static_cast<unsigned>(kind) + 1);
  const auto& chosen = *new std::vector<Request>(choices(kind));
  Requests made;
  for (std::size_t i = 0; i < kRequests; ++i) made.push_back(&chosen[random() % chosen.size()]);
  return made;
}

}  // namespace

const Requests& requests(Kind kind) {
  static auto& made = *new std::map<Kind, Requests>;
  const auto [found, isNew] = made.try_emplace(kind);
  if (isNew) found->second = makeRequests(kind);
  return found->second;
}

const std::vector<Pair>& germanTexts() {
  static const auto& texts = *[] {
    auto* const pairs = new std::vector<Pair>;
    const Bundle& german = *Bundle::initWithPath(std::string(ZK_PROJECT_ROOT "/resources/de.lproj"));
    const auto add = [&](const std::string& key) {
      const std::string& kept = *new std::string(key);
      if (key.find('\xEF') == std::string::npos)
        pairs->push_back({kept, german.localizedStringForKey(kept, "")});
    };
    for (const auto& entry : entries()) {
      if (!entry.contains("plural")) add(entry["key"]);
      for (const std::int64_t count : {0, 1, 2, 3, 6}) {
        if (entry.contains("plural")) add(entry["key"].get<std::string>().append(pluralSuffix(count)));
      }
    }
    return pairs;
  }();
  return texts;
}

const std::string& workDirectory() {
  struct Directory {
    std::string path = (std::filesystem::temp_directory_path() / "zk-benchmarks-XXXXXX").string();
    Directory() { path = mkdtemp(path.data()); }
    ~Directory() { std::filesystem::remove_all(path); }
  };
  static const Directory directory;
  return directory.path;
}

}  // namespace zk::benchmarks
