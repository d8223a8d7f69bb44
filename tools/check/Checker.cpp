#include <ZKStrings/tools/Catalogue.h>
#include <ZKStrings/tools/EnglishTexts.h>
#include <ZKStrings/tools/Languages.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/check/CountryRules.h>
#include <ZKStrings/tools/check/TableRules.h>
#include <ZKStrings/tools/check/TextFeatures.h>
#include <ZKStrings/tools/check/TextRules.h>

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>

namespace zk::tools {

namespace {

/// The words of a comment, between spaces and commas.
std::vector<std::string_view> wordsOfComment(std::string_view comment) {
  constexpr std::string_view kSeparators = " ,\t\r\n";
  std::vector<std::string_view> words;
  while (true) {
    comment.remove_prefix(std::min(comment.find_first_not_of(kSeparators), comment.size()));
    if (comment.empty()) return words;
    words.push_back(comment.substr(0, comment.find_first_of(kSeparators)));
    comment.remove_prefix(words.back().size());
  }
}

/// Whether one of the comments before the entry reads "check: off" and names the rule behind that.
bool isSwitchedOff(const TableEntry& entry, std::string_view rule) {
  return std::any_of(entry.comments.begin(), entry.comments.end(), [&](std::string_view comment) {
    const std::vector<std::string_view> words = wordsOfComment(comment);
    const bool isSwitch = words.size() > 2 && words[0] == "check:" && words[1] == "off";
    return isSwitch && std::find(words.begin() + 2, words.end(), rule) != words.end();
  });
}

class Checker {
 public:
  Checker(const std::string& root, const CheckOptions& options) : root_(root), options_(options) {}

  Faults run() {
    const std::optional<Catalogue> catalogue = readCatalogue();
    const Table base = Table::read(root_, kBase);
    for (const std::string& language : options_.languages.empty() ? languagesIn(root_) : options_.languages) {
      checkTable(language, Table::read(root_, language), catalogue, base);
    }
    if (options_.languages.empty()) apply(countryRules(), CountryFile::read(root_), CountryFile::kFile);
    const auto order = [](const Fault& fault) {
      return std::tie(fault.file, fault.line, fault.column, fault.severity, fault.rule, fault.message);
    };
    std::sort(faults_.begin(), faults_.end(),
              [&](const Fault& one, const Fault& other) { return order(one) < order(other); });
    return std::move(faults_);
  }

 private:
  std::optional<Catalogue> readCatalogue() {
    try {
      return Catalogue::read(root_);
    } catch (const CommandFailed& failed) {
      faults_ = failed.faults;
      return std::nullopt;
    }
  }

  void checkTable(const std::string& language, const Table& table, const std::optional<Catalogue>& catalogue,
                  const Table& base) {
    apply(tableRules(), LanguageTable{language, table}, table.file);
    if (!catalogue) return;
    // The English table is no measure of itself.
    const EnglishTexts english(*catalogue, language == kBase ? Table{} : base);
    apply(keyRules(), KeyedTable{language, table, english}, table.file);
    for (const TableEntry& entry : table.entries) {
      const EnglishText* const text = english.find(entry.key);
      if (!text || isBlank(entry.text)) continue;
      for (const auto rules : {placeholderRules(), textRules(), noteRules()}) {
        apply(rules, Translation{language, entry, *text}, table.file);
      }
    }
  }

  template <class Subject>
  void apply(std::span<const RuleFor<Subject>> rules, const Subject& subject, const std::string& file) {
    for (const RuleFor<Subject>& rule : rules) {
      if (!applies(rule)) continue;
      Findings findings;
      rule.find(subject, findings);
      for (Finding& finding : findings.all()) {
        if (finding.entry && isSwitchedOff(*finding.entry, rule.name)) continue;
        faults_.push_back({rule.severity, file, finding.at.line, finding.at.column, std::string(rule.name),
                           std::move(finding.message)});
      }
    }
  }

  [[nodiscard]] bool applies(const Rule& rule) const {
    if (rule.severity == Severity::note && !options_.notes) return false;
    return std::find(options_.off.begin(), options_.off.end(), rule.name) == options_.off.end();
  }

  const std::string& root_;
  const CheckOptions& options_;
  Faults faults_;
};

}  // namespace

std::vector<Rule> checkRules() {
  std::vector<Rule> rules;
  const auto add = [&](const auto& some) { rules.insert(rules.end(), some.begin(), some.end()); };
  add(tableRules());
  add(keyRules());
  add(placeholderRules());
  add(textRules());
  add(noteRules());
  add(countryRules());
  std::stable_sort(rules.begin(), rules.end(),
                   [](const Rule& one, const Rule& other) { return one.severity < other.severity; });
  return rules;
}

Faults check(const std::string& root, const CheckOptions& options) {
  return Checker(root, options).run();
}

}  // namespace zk::tools
