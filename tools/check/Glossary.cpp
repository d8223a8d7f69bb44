#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/check/Glossary.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Json.h>

#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

namespace {

Phrases phrasesIn(const JsonValue& value) {
  return phrasesOf(value.texts());
}

Term termFrom(const JsonValue& object) {
  Term term;
  const auto storeStems = [&](const JsonValue& value) {
    for (const auto& [language, nameAt, stems] : value.members()) {
      for (const std::string& stem : stems.texts()) term.stems[language].push_back(caseFolded(stem));
    }
  };
  storeMembers(object, {{"concept", [&](const JsonValue& value) { term.name = value.nonEmptyText(); }},
                        {"english", [&](const JsonValue& value) { term.english = phrasesIn(value); }},
                        {"except", [&](const JsonValue& value) { term.exceptions = phrasesIn(value); }},
                        {"stems", storeStems}});
  if (term.name.empty() || term.english.empty())
    object.fail("the term needs both a concept and English words");
  return term;
}

void storeStyle(const JsonValue& object, LanguageStyle& style) {
  const auto storeDoubledWords = [&](const JsonValue& value) {
    const std::vector<std::string> words = value.texts();
    style.doublesWords = words == std::vector<std::string>{"*"};
    style.doubledWords = phrasesOf(words);
  };
  storeMembers(
      object,
      {{"quotationMarks", [&](const JsonValue& value) { style.quotationMarks = value.nonEmptyText(); }},
       {"wrongAddress", [&](const JsonValue& value) { style.wrongAddress = phrasesIn(value); }},
       {"doubledWords", storeDoubledWords},
       {"loanWords", [&](const JsonValue& value) { style.loanWords = phrasesIn(value); }},
       {"noBreakBefore", [&](const JsonValue& value) { style.noBreakBefore = value.texts(); }},
       {"noBreakAfter", [&](const JsonValue& value) { style.noBreakAfter = value.texts(); }},
       {"nounsInflect", [&](const JsonValue& value) { style.nounsInflect = value.boolean(); }},
       {"sentenceStops", [&](const JsonValue& value) { style.sentenceStops = value.boolean(); }}});
}

}  // namespace

Glossary Glossary::read(const std::string& root) {
  Glossary glossary;
  if (!pathExists(pathBelow(root, kFile))) return glossary;
  const auto storeTerms = [&](const JsonValue& value) {
    for (const JsonValue& term : value.elements()) glossary.terms.push_back(termFrom(term));
  };
  const auto storeStyles = [&](const JsonValue& value) {
    for (const auto& [language, nameAt, style] : value.members())
      storeStyle(style, glossary.styles[language]);
  };
  storeMembers(JsonValue::parse(readFile(root, kFile), kFile),
               {{"terms", storeTerms}, {"languages", storeStyles}});
  return glossary;
}

const LanguageStyle& Glossary::styleOf(std::string_view language) const {
  static const LanguageStyle unknown;
  const auto style = styles.find(language);
  return style == styles.end() ? unknown : style->second;
}

}  // namespace zk::tools
