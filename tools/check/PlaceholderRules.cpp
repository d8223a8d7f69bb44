#include <ZKStrings/tools/Nearest.h>
#include <ZKStrings/tools/Placeholders.h>
#include <ZKStrings/tools/check/TextRules.h>

#include <algorithm>
#include <optional>

#include <fmt/format.h>

namespace zk::tools {

namespace {

using Names = std::vector<std::string_view>;

bool contains(const Names& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// What may stand instead of a placeholder that may not.
std::string mendFor(std::string_view name, const Names& allowed) {
  if (const auto meant = nearest(name, allowed)) return fmt::format("write \"%{{{}}}\"", *meant);
  if (allowed.empty()) return "remove it, the English text has no placeholders";
  return fmt::format("write {}\"%{{{}}}\"", allowed.size() == 1 ? "" : "one of ",
                     fmt::join(allowed, "}\", \"%{"));
}

void findUnknown(const Translation& translation, Findings& findings) {
  const Names allowed = translation.english.placeholders();
  for (const PlaceholderUse& use : placeholderUses(translation.entry.text)) {
    if (!use.isRight || contains(allowed, use.name)) continue;
    findings.add(translation.entry, translation.entry.placeOf(use.offset),
                 fmt::format("the English text has no placeholder \"{}\"; {}", use.spelled,
                             mendFor(use.name, allowed)));
  }
}

/// Whether `use` is a placeholder written wrongly. Braces stand for nothing else; a percent sign may, so that
/// behind it only what is like a name counts.
bool isMisspelt(const PlaceholderUse& use, const Names& allowed) {
  if (use.isRight) return false;
  return use.spelled.find('{') != std::string_view::npos || nearest(use.name, allowed);
}

void findMisspelt(const Translation& translation, Findings& findings) {
  const Names allowed = translation.english.placeholders();
  const std::vector<PlaceholderUse> inEnglish = placeholderUses(translation.english.text);
  for (const PlaceholderUse& use : placeholderUses(translation.entry.text)) {
    const auto isSame = [&](const PlaceholderUse& other) { return other.spelled == use.spelled; };
    const bool isMeant = std::any_of(inEnglish.begin(), inEnglish.end(), isSame);
    if (isMeant || !isMisspelt(use, allowed)) continue;
    findings.add(translation.entry, translation.entry.placeOf(use.offset),
                 fmt::format("\"{}\" is no placeholder and shows as it stands; {}", escaped(use.spelled),
                             mendFor(use.name, allowed)));
  }
}

/// Those of `allowed` that `text` uses, also those that it misspells: that is another rule's to tell.
Names usedNames(std::string_view text, const Names& allowed) {
  Names used;
  for (const PlaceholderUse& use : placeholderUses(text)) {
    if (const auto meant = nearest(use.name, allowed)) used.push_back(*meant);
  }
  return used;
}

void findUnused(const Translation& translation, Findings& findings) {
  const EnglishText& english = translation.english;
  const Names used = usedNames(translation.entry.text, english.placeholders());
  for (const std::string_view name : placeholderNames(english.text)) {
    if (contains(used, name) || name == english.dispensable()) continue;
    findings.add(
        translation.entry,
        fmt::format("the placeholder \"%{{{}}}\" of the English text is not used; write it where its "
                    "value belongs",
                    name));
  }
}

constexpr RuleFor<Translation> kRules[] = {
    {{"unknown-placeholder", Severity::error, "a placeholder that the English text does not have"},
     findUnknown},
    {{"placeholder-spelling", Severity::error, "a placeholder written otherwise than %{name}"}, findMisspelt},
    {{"unused-placeholder", Severity::warning,
      "a placeholder of the English text that is not used; _zero and _one may leave the number's out"},
     findUnused},
};

}  // namespace

std::span<const RuleFor<Translation>> placeholderRules() {
  return kRules;
}

}  // namespace zk::tools
