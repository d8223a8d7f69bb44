#include <ZKStrings/tools/check/Glossary.h>
#include <ZKStrings/tools/check/JsonPlaces.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>

#include <algorithm>
#include <filesystem>
#include <utility>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>

namespace zk::tools {

namespace {

using Json = nlohmann::json;
using Pointer = Json::json_pointer;

/// A value of the file and the way to it.
class Value {
 public:
  Value(const std::string& text, const Json& json, Pointer pointer)
      : text_(text), json_(json), pointer_(std::move(pointer)) {}

  [[nodiscard]] std::string toText() const {
    if (!json_.is_string() || json_.get_ref<const std::string&>().empty())
      failHere("write a text here, \"...\"");
    return json_.get<std::string>();
  }

  [[nodiscard]] std::vector<std::string> toTexts() const {
    std::vector<std::string> texts;
    forEachElement([&](const Value& element) { texts.push_back(element.toText()); });
    return texts;
  }

  [[nodiscard]] Phrases toPhrases() const { return phrasesOf(toTexts()); }

  /// Calls `visit` with each element of the array.
  template <class Visit>
  void forEachElement(const Visit& visit) const {
    if (!json_.is_array()) failHere("write an array here, [...]");
    for (std::size_t i = 0; i < json_.size(); ++i) visit(Value(text_, json_[i], pointer_ / i));
  }

  /// Calls `visit` with the name and the value of each member of the object.
  template <class Visit>
  void forEachMember(const Visit& visit) const {
    if (!json_.is_object()) failHere("write an object here, {...}");
    for (const auto& [name, value] : json_.items()) visit(name, Value(text_, value, pointer_ / name));
  }

  [[noreturn]] void failHere(std::string message) const {
    fail(Glossary::kFile, placeInJson(text_, pointer_), std::move(message));
  }

 private:
  const std::string& text_;
  const Json& json_;
  Pointer pointer_;
};

/// A member that an object may have, and how `Owner` takes it.
template <class Owner>
struct Member {
  const char* name;
  void (*take)(Owner& owner, const Value& value);
};

template <class Owner, std::size_t count>
void takeMembers(const Value& object, Owner& owner, const Member<Owner> (&members)[count]) {
  object.forEachMember([&](const std::string& name, const Value& value) {
    const auto* const member = std::find_if(std::begin(members), std::end(members),
                                            [&](const Member<Owner>& one) { return one.name == name; });
    if (member != std::end(members)) return member->take(owner, value);
    std::vector<std::string> names;
    for (const Member<Owner>& one : members) names.emplace_back(one.name);
    value.failHere(fmt::format("the member \"{}\" is unknown; there are {}", name, fmt::join(names, ", ")));
  });
}

constexpr Member<Term> kTermMembers[] = {
    {"concept", [](Term& term, const Value& value) { term.name = value.toText(); }},
    {"english", [](Term& term, const Value& value) { term.english = value.toPhrases(); }},
    {"except", [](Term& term, const Value& value) { term.exceptions = value.toPhrases(); }},
    {"stems",
     [](Term& term, const Value& value) {
       value.forEachMember([&](const std::string& language, const Value& stems) {
         for (const std::string& stem : stems.toTexts()) term.stems[language].push_back(caseFolded(stem));
       });
     }},
};

constexpr Member<LanguageStyle> kStyleMembers[] = {
    {"quotationMarks",
     [](LanguageStyle& style, const Value& value) { style.quotationMarks = value.toText(); }},
    {"wrongAddress",
     [](LanguageStyle& style, const Value& value) { style.wrongAddress = value.toPhrases(); }},
    {"doubledWords",
     [](LanguageStyle& style, const Value& value) {
       const std::vector<std::string> words = value.toTexts();
       style.doublesWords = words == std::vector<std::string>{"*"};
       style.doubledWords = phrasesOf(words);
     }},
    {"loanWords", [](LanguageStyle& style, const Value& value) { style.loanWords = value.toPhrases(); }},
    {"noBreakBefore",
     [](LanguageStyle& style, const Value& value) { style.noBreakBefore = value.toTexts(); }},
    {"noBreakBehind",
     [](LanguageStyle& style, const Value& value) { style.noBreakBehind = value.toTexts(); }},
};

constexpr Member<Glossary> kGlossaryMembers[] = {
    {"terms",
     [](Glossary& glossary, const Value& value) {
       value.forEachElement([&](const Value& element) {
         Term term;
         takeMembers(element, term, kTermMembers);
         if (term.name.empty() || term.english.empty()) {
           element.failHere("the term has no concept or no English words; give it both");
         }
         glossary.terms.push_back(std::move(term));
       });
     }},
    {"languages",
     [](Glossary& glossary, const Value& value) {
       value.forEachMember([&](const std::string& language, const Value& style) {
         takeMembers(style, glossary.styles[language], kStyleMembers);
       });
     }},
};

}  // namespace

Glossary Glossary::read(const std::string& root) {
  std::error_code failure;
  const bool isMissing = !std::filesystem::exists(std::filesystem::path(root) / kFile, failure) && !failure;
  return isMissing ? Glossary{} : parse(readFile(root, kFile));
}

Glossary Glossary::parse(const std::string& json) {
  Glossary glossary;
  try {
    const Json content = Json::parse(json);
    takeMembers(Value(json, content, Pointer()), glossary, kGlossaryMembers);
  } catch (const Json::parse_error& fault) {
    fail(kFile, positionOf(json, std::max<std::size_t>(fault.byte, 1) - 1),
         "the text is not JSON here; mend it");
  } catch (const Json::exception&) {
    fail(kFile, "a number in the text is out of range; write texts");
  }
  return glossary;
}

const LanguageStyle& Glossary::styleOf(std::string_view language) const {
  static const LanguageStyle unknown;
  const auto style = styles.find(language);
  return style == styles.end() ? unknown : style->second;
}

}  // namespace zk::tools
