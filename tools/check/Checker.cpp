#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/check/Glossary.h>
#include <ZKStrings/tools/check/Rules.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/TextFeatures.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <tuple>
#include <utility>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace {

class Checker {
 public:
  Checker(const std::string& root, const CheckOptions& options)
      : root_(root), options_(options), off_(options.off.begin(), options.off.end()) {}

  CheckResult run() {
    const std::optional<Catalogue> catalogue = readCatalogue();
    const auto english = catalogue ? std::optional<EnglishTexts>(*catalogue) : std::nullopt;
    tryTo([&] { glossary_ = Glossary::read(root_); });
    const Table base = Table::read(root_, kBase);
    for (const std::string& language : languagesToCheck(base)) {
      const Table table = language == kBase ? base : Table::read(root_, language);
      checkTable(language, table, isListable(table), english ? &*english : nullptr);
    }
    if (options_.languages.empty()) checkCountries(catalogue && catalogue->settings().name.isModule());
    const auto order = [](const Diagnostic& diagnostic) {
      return std::tie(diagnostic.file, diagnostic.line, diagnostic.column, diagnostic.severity,
                      diagnostic.rule, diagnostic.message);
    };
    std::sort(result_.diagnostics.begin(), result_.diagnostics.end(),
              [&](const Diagnostic& one, const Diagnostic& other) { return order(one) < order(other); });
    return std::move(result_);
  }

  Diagnostics errorsIn(const std::string& language, const Table& table, const EnglishTexts& english) {
    glossary_ = Glossary::read(root_);
    checkTable(language, table, true, &english);
    return std::move(result_.diagnostics);
  }

 private:
  /// Calls `read` and keeps the errors of the file that it reads. Returns whether there were none.
  template <class Read>
  bool tryTo(const Read& read) {
    try {
      read();
      return true;
    } catch (const CommandFailed& failed) {
      result_.diagnostics.insert(result_.diagnostics.end(), failed.diagnostics.begin(),
                                 failed.diagnostics.end());
      return false;
    }
  }

  std::optional<Catalogue> readCatalogue() {
    std::optional<Catalogue> catalogue;
    CatalogueSettings settings;
    if (!tryTo([&] { settings = CatalogueSettings::read(root_); })) return std::nullopt;
    for (const auto& [name, at] : settings.rulesOff) {
      off_.insert(name);
      const std::string error = errorInRuleName(name);
      if (!error.empty())
        result_.diagnostics.push_back(
            {Severity::error, CatalogueSettings::kFile, at.line, at.column, "", error});
    }
    tryTo([&] { catalogue = Catalogue::read(root_); });
    return catalogue;
  }

  /// Without the English table, every app stops at its first text, in every language.
  [[nodiscard]] std::vector<std::string> languagesToCheck(const Table& base) const {
    std::vector<std::string> languages = options_.languages.empty() ? languagesIn(root_) : options_.languages;
    const bool hasBase = std::find(languages.begin(), languages.end(), kBase) != languages.end();
    const bool isMissing = !base.diagnostics.empty() && base.diagnostics.front().rule == Table::kMissing;
    if (isMissing && !hasBase) languages.emplace_back(kBase);
    return languages;
  }

  /// Whether the module can list the directory of `table`; it skips a language whose directory it cannot list.
  [[nodiscard]] bool isListable(const Table& table) const {
    std::error_code failure;
    static_cast<void>(entriesOf(pathBelow(root_, table.file.substr(0, table.file.rfind('/'))), failure));
    return !failure;
  }

  void checkCountries(bool isModule) {
    if (!CountryFile::isExpected(root_, isModule)) return;
    const CountryFile file = CountryFile::read(root_);
    result_.countries = file.elements.size();
    apply(countryRules(), file, CountryFile::kFile);
  }

  void checkTable(const std::string& language, const Table& table, bool isListable,
                  const EnglishTexts* english) {
    ++result_.tables;
    const CheckedTable checked{language, table, english, glossary_.styleOf(language), isListable};
    apply(tableRules(), checked, table.file);
    if (!english) return;
    apply(pluralRules(), checked, table.file);
    for (const TableEntry& entry : table.entries) {
      const EnglishText* const text = english->find(entry.key);
      if (!text || isBlank(entry.text)) continue;
      const Translation translation{language, entry, *text, glossary_};
      apply(textRules(), translation, table.file);
      apply(languageRules(), translation, table.file);
    }
  }

  template <class Subject>
  void apply(std::span<const RuleFor<Subject>> rules, const Subject& subject, const std::string& file) {
    for (const RuleFor<Subject>& rule : rules) {
      if (!applies(rule)) continue;
      Findings findings;
      rule.find(subject, findings);
      const TableEntry* last = nullptr;  // one entry may have many findings and many comments
      bool isOff = false;
      for (Finding& finding : findings.all()) {
        if (finding.entry != last) isOff = finding.entry && isTurnedOff(*finding.entry, rule.name);
        last = finding.entry;
        if (isOff) continue;
        result_.diagnostics.push_back({rule.severity, file, finding.at.line, finding.at.column,
                                       std::string(rule.name), std::move(finding.message)});
      }
    }
  }

  [[nodiscard]] bool applies(const Rule& rule) const {
    if (rule.severity == Severity::note && !options_.notes) return false;
    return !off_.contains(rule.name);
  }

  const std::string& root_;
  const CheckOptions& options_;
  std::set<std::string, std::less<>> off_;
  Glossary glossary_;
  CheckResult result_;
};

}  // namespace

std::vector<Rule> checkRules() {
  std::vector<Rule> rules;
  const auto add = [&](const auto& some) { rules.insert(rules.end(), some.begin(), some.end()); };
  add(tableRules());
  add(pluralRules());
  add(textRules());
  add(languageRules());
  add(countryRules());
  std::stable_sort(rules.begin(), rules.end(),
                   [](const Rule& one, const Rule& other) { return one.severity < other.severity; });
  return rules;
}

std::string errorInRuleName(std::string_view name) {
  std::vector<std::string_view> names;
  for (const Rule& rule : checkRules()) names.push_back(rule.name);
  if (std::find(names.begin(), names.end(), name) != names.end()) return "";
  const std::optional<std::string_view> meant = nearest(name, names);
  return fmt::format("unknown rule \"{}\"; {}", name,
                     didYouMean(meant, "zkstrings check --rules lists all rules"));
}

CheckResult check(const std::string& root, const CheckOptions& options) {
  return Checker(root, options).run();
}

Diagnostics checkTable(const std::string& root, const std::string& language, const Table& table,
                       const Catalogue& catalogue) {
  CheckOptions options;
  for (const auto& [rule, at] : catalogue.settings().rulesOff) options.off.push_back(rule);
  return Checker(root, options).errorsIn(language, table, EnglishTexts(catalogue));
}

}  // namespace zk::tools
