#include <ZKStrings/tools/check/TextRules.h>
#include <ZKStrings/tools/support/Nearest.h>
#include <ZKStrings/tools/texts/Placeholders.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <set>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

using Names = std::vector<std::string_view>;

/// The names that a translation may use.
struct AllowedNames {
  /// Of more names than accessors have, no misspelling is looked up: each look takes its time.
  static constexpr std::size_t kMostNearest = 10;

  Names inOrder;
  std::set<std::string_view> sorted;

  explicit AllowedNames(const EnglishText& english)
      : inOrder(english.placeholders()), sorted(inOrder.begin(), inOrder.end()) {}

  [[nodiscard]] bool contains(std::string_view name) const { return sorted.contains(name); }
  /// The name that `name` is or misspells.
  [[nodiscard]] std::optional<std::string_view> meantBy(std::string_view name) const {
    if (const auto same = sorted.find(name); same != sorted.end()) return *same;
    return inOrder.size() > kMostNearest ? std::nullopt : nearest(name, inOrder);
  }
};

/// What may stand instead of a placeholder that may not.
std::string mendFor(std::string_view name, const AllowedNames& allowed) {
  if (const auto meant = allowed.meantBy(name)) return fmt::format("write \"%{{{}}}\"", *meant);
  const Names& names = allowed.inOrder;
  if (names.empty()) return "remove it, the English text has no placeholders";
  if (names.size() > AllowedNames::kMostNearest) return "write one of those that the English text has";
  return fmt::format("write {}\"%{{{}}}\"", names.size() == 1 ? "" : "one of ",
                     fmt::join(names, "}\", \"%{"));
}

void findUnknown(const Translation& translation, Findings& findings) {
  const AllowedNames allowed(translation.english);
  TextPlaces places(translation.entry);
  for (const PlaceholderUse& use : placeholderUses(translation.entry.text)) {
    if (!use.isRight || allowed.contains(use.name)) continue;
    findings.add(translation.entry, places.at(use.offset),
                 fmt::format("the English text has no placeholder \"{}\"; {}", use.spelled,
                             mendFor(use.name, allowed)));
  }
}

/// Whether `use` is a placeholder written wrongly. Braces stand for nothing else; a percent sign may, so that
/// behind it only what is like a name counts.
bool isMisspelt(const PlaceholderUse& use, const AllowedNames& allowed) {
  if (use.isRight) return false;
  return use.hasBrace || allowed.meantBy(use.name);
}

void findMisspelt(const Translation& translation, Findings& findings) {
  const AllowedNames allowed(translation.english);
  std::set<std::string_view> inEnglish;
  for (const PlaceholderUse& use : placeholderUses(translation.english.text)) inEnglish.insert(use.spelled);
  TextPlaces places(translation.entry);
  for (const PlaceholderUse& use : placeholderUses(translation.entry.text)) {
    if (inEnglish.contains(use.spelled) || !isMisspelt(use, allowed)) continue;
    findings.add(translation.entry, places.at(use.offset),
                 fmt::format("\"{}\" is no placeholder and shows as it stands; {}", escaped(use.spelled),
                             mendFor(use.name, allowed)));
  }
}

/// The names of placeholders that `text` uses, also those that it misspells: that is another rule's to tell.
std::set<std::string_view> usedNames(std::string_view text, const AllowedNames& allowed) {
  std::set<std::string_view> used;
  for (const PlaceholderUse& use : placeholderUses(text)) {
    if (const auto meant = allowed.meantBy(use.name)) used.insert(*meant);
  }
  return used;
}

void findUnused(const Translation& translation, Findings& findings) {
  const EnglishText& english = translation.english;
  const std::set<std::string_view> used = usedNames(translation.entry.text, AllowedNames(english));
  const std::string_view dispensable = english.dispensable();
  for (const std::string_view name : placeholderNames(english.text)) {
    if (used.contains(name) || name == dispensable) continue;
    findings.add(
        translation.entry,
        fmt::format("the placeholder \"%{{{}}}\" of the English text is not used; write it where its "
                    "value belongs",
                    name));
  }
}

using Counts = std::map<std::string_view, std::size_t>;

Counts countsIn(std::string_view text) {
  Counts counts;
  for (const std::string_view name : placeholderNames(text)) ++counts[name];
  return counts;
}

/// A plural form may use a placeholder as often as its entry, also where the English form does without.
void findRepeated(const Translation& translation, Findings& findings) {
  Counts allowed = countsIn(translation.english.text);
  for (const auto& [name, count] : countsIn(translation.english.entry->text)) {
    allowed[name] = std::max(allowed[name], count);
  }
  for (const auto& [name, count] : countsIn(translation.entry.text)) {
    const auto most = allowed.find(name);
    if (most == allowed.end() || count <= most->second) continue;
    findings.add(
        translation.entry,
        fmt::format("the placeholder \"%{{{}}}\" stands {} times in the text, in the English one {}; write "
                    "it as often",
                    name, count, most->second == 1 ? "once" : fmt::format("{} times", most->second)));
  }
}

constexpr RuleFor<Translation> kRules[] = {
    {{"unknown-placeholder", Severity::error, "a placeholder that the English text does not have"},
     findUnknown},
    {{"placeholder-spelling", Severity::error, "a placeholder written otherwise than %{name}"}, findMisspelt},
    {{"unused-placeholder", Severity::warning,
      "a placeholder of the English text that is not used; _zero and _one may leave the number's out"},
     findUnused},
    {{"repeated-placeholder", Severity::warning, "a placeholder more often than in the English text"},
     findRepeated},
};

}  // namespace

std::span<const RuleFor<Translation>> placeholderRules() {
  return kRules;
}

}  // namespace zk::tools
