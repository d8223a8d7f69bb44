#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/check/Glossary.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Json.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zk::tools {

namespace {

Phrases phrasesIn(const JsonValue& value) {
  return phrasesOf(value.texts());
}

constexpr KnownMember<Term> kTermMembers[] = {
    {"concept", [](Term& term, const JsonValue& value) { term.name = value.nonEmptyText(); }},
    {"english", [](Term& term, const JsonValue& value) { term.english = phrasesIn(value); }},
    {"except", [](Term& term, const JsonValue& value) { term.exceptions = phrasesIn(value); }},
    {"stems",
     [](Term& term, const JsonValue& value) {
       for (const auto& [language, nameAt, stems] : value.members()) {
         for (const std::string& stem : stems.texts()) term.stems[language].push_back(caseFolded(stem));
       }
     }},
};

constexpr KnownMember<LanguageStyle> kStyleMembers[] = {
    {"quotationMarks",
     [](LanguageStyle& style, const JsonValue& value) { style.quotationMarks = value.nonEmptyText(); }},
    {"wrongAddress",
     [](LanguageStyle& style, const JsonValue& value) { style.wrongAddress = phrasesIn(value); }},
    {"doubledWords",
     [](LanguageStyle& style, const JsonValue& value) {
       const std::vector<std::string> words = value.texts();
       style.doublesWords = words == std::vector<std::string>{"*"};
       style.doubledWords = phrasesOf(words);
     }},
    {"loanWords", [](LanguageStyle& style, const JsonValue& value) { style.loanWords = phrasesIn(value); }},
    {"noBreakBefore",
     [](LanguageStyle& style, const JsonValue& value) { style.noBreakBefore = value.texts(); }},
    {"noBreakAfter",
     [](LanguageStyle& style, const JsonValue& value) { style.noBreakAfter = value.texts(); }},
    {"nounsInflect",
     [](LanguageStyle& style, const JsonValue& value) { style.nounsInflect = value.boolean(); }},
    {"sentenceStops",
     [](LanguageStyle& style, const JsonValue& value) { style.sentenceStops = value.boolean(); }},
};

constexpr KnownMember<Glossary> kGlossaryMembers[] = {
    {"terms",
     [](Glossary& glossary, const JsonValue& value) {
       for (const JsonValue& element : value.elements()) {
         Term term;
         storeMembers(element, term, kTermMembers);
         if (term.name.empty() || term.english.empty()) {
           element.fail("the term has no concept or no English words; add both");
         }
         glossary.terms.push_back(std::move(term));
       }
     }},
    {"languages",
     [](Glossary& glossary, const JsonValue& value) {
       for (const auto& [language, nameAt, style] : value.members()) {
         storeMembers(style, glossary.styles[language], kStyleMembers);
       }
     }},
};

}  // namespace

Glossary Glossary::read(const std::string& root) {
  Glossary glossary;
  if (pathExists(pathBelow(root, kFile)))
    storeMembers(JsonValue::parse(readFile(root, kFile), kFile), glossary, kGlossaryMembers);
  return glossary;
}

const LanguageStyle& Glossary::styleOf(std::string_view language) const {
  static const LanguageStyle unknown;
  const auto style = styles.find(language);
  return style == styles.end() ? unknown : style->second;
}

}  // namespace zk::tools
