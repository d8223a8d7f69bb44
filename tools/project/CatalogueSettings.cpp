#include <ZKStrings/catalogue/KeyRule.h>
#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/project/CatalogueSettings.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Json.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// The words that cannot be the name of an accessor: reserved words, and two names that the module's class itself needs.
constexpr std::string_view kReserved[] = {
    "Text",     "ZKStrings", "alignas",  "alignof",   "and",     "and_eq",    "asm",      "auto",
    "bitand",   "bitor",     "bool",     "break",     "case",    "catch",     "char",     "class",
    "co_await", "co_return", "co_yield", "compl",     "concept", "const",     "continue", "decltype",
    "default",  "delete",    "do",       "double",    "else",    "enum",      "explicit", "export",
    "extern",   "false",     "float",    "for",       "friend",  "goto",      "if",       "inline",
    "int",      "long",      "mutable",  "namespace", "new",     "noexcept",  "not",      "not_eq",
    "nullptr",  "operator",  "or",       "or_eq",     "private", "protected", "public",   "register",
    "requires", "return",    "short",    "signed",    "sizeof",  "static",    "struct",   "switch",
    "template", "this",      "throw",    "true",      "try",     "typedef",   "typeid",   "typename",
    "union",    "unsigned",  "using",    "virtual",   "void",    "volatile",  "while",    "xor",
    "xor_eq"};

bool isReserved(std::string_view name) {
  return std::find(std::begin(kReserved), std::end(kReserved), name) != std::end(kReserved);
}

/// Whether `name` has letters, marks, digits and "_" alone, and no digit at its beginning.
bool hasSignsOfNames(std::string_view name) {
  if (name.empty() || (name.front() >= '0' && name.front() <= '9')) return false;
  for (const CodePoint next : CodePoints(name)) {
    if (next.bytes != "_" && !(next.value && isLetterMarkOrDigit(*next.value))) return false;
  }
  return true;
}

/// Whether `word` is an identifier of C++ with ASCII letters, digits and "_", and not a reserved word.
bool isIdentifier(std::string_view word) {
  const auto isAscii = [](char character) { return static_cast<signed char>(character) >= 0; };
  return hasSignsOfNames(word) && std::all_of(word.begin(), word.end(), isAscii) && !isReserved(word);
}

bool isNamespace(std::string_view name) {
  for (std::size_t end = 0; end != name.npos;) {
    end = name.find("::");
    if (!isIdentifier(name.substr(0, end))) return false;
    if (end != name.npos) name.remove_prefix(end + 2);
  }
  return true;
}

using Words = std::vector<std::string_view>;

CatalogueSettings::Example exampleFrom(const JsonValue& value) {
  CatalogueSettings::Example example;
  if (!value.isObject()) {
    example.text = value.nonEmptyText();
    return example;
  }
  storeMembers(value, {{"key", [&](const JsonValue& key) { example.key = key.nonEmptyText(); }},
                       {"count", [&](const JsonValue& count) { example.count = count.integer(); }}});
  if (example.key.empty()) value.fail("the example has no key; write {\"key\": \"...\"}");
  return example;
}

/// Returns how many of the words from `begin` on are `name`, 0 if they are another word.
std::size_t sizeOfName(const std::string& name, Words::const_iterator begin, Words::const_iterator end) {
  if (!name.starts_with(*begin)) return 0;
  const Words words = wordsOf(name);
  const bool isHere =
      static_cast<std::size_t>(end - begin) >= words.size() && std::equal(words.begin(), words.end(), begin);
  return isHere ? words.size() : 0;
}

}  // namespace

std::string identifierFor(std::string_view name) {
  const std::string spelled = hasSignsOfNames(name) ? std::string(name) : keyForText(name);
  return isReserved(spelled) ? spelled + "_" : spelled;
}

std::string CatalogueName::error() const {
  if (isModule()) return "";
  if (!isIdentifier(name))
    return fmt::format("\"{}\" is not a valid class name; use letters, digits and _, as in Texts", name);
  if (!nameSpace.empty() && !isNamespace(nameSpace))
    return fmt::format(
        "\"{}\" is not a valid namespace; use letters, digits and _, as in myapp or myapp::texts", nameSpace);
  if (name == nameSpace)
    return fmt::format("the class and the namespace are both named \"{}\"; rename one", name);
  return "";
}

CatalogueSettings CatalogueSettings::read(const std::string& root) {
  CatalogueSettings settings;
  if (!pathExists(pathBelow(root, kFile))) return settings;
  settings.name = {"", ""};
  const auto storeRules = [&](const JsonValue& value) {
    for (const JsonValue& rule : value.elements())
      settings.rulesOff.push_back({rule.nonEmptyText(), rule.at()});
  };
  const auto storeExamples = [&](const JsonValue& value) {
    for (const JsonMember& member : value.members())
      settings.examples[member.name] = exampleFrom(member.value);
  };
  const JsonValue object = JsonValue::parse(readFile(root, kFile), kFile);
  storeMembers(
      object,
      {{"name", [&](const JsonValue& value) { settings.name.name = value.text(); }},
       {"namespace", [&](const JsonValue& value) { settings.name.nameSpace = value.text(); }},
       {"appName", [&](const JsonValue& value) { settings.appName = value.nonEmptyText(); }},
       {"names", [&](const JsonValue& value) { settings.names = value.texts(); }},
       {"rulesOff", storeRules},
       {"numberPlaceholders", [&](const JsonValue& value) { settings.numberPlaceholders = value.texts(); }},
       {"examples", storeExamples}});
  if (const std::string error = settings.name.error(); !error.empty()) object.fail(error);
  return settings;
}

bool CatalogueSettings::isNumber(std::string_view placeholder) const {
  return placeholder.ends_with("Count") || std::find(numberPlaceholders.begin(), numberPlaceholders.end(),
                                                     placeholder) != numberPlaceholders.end();
}

std::vector<std::string_view> CatalogueSettings::wordsToTranslate(std::string_view text) const {
  const Words words = wordsToRead(text);
  Words translatable;
  for (auto word = words.begin(); word != words.end();) {
    std::size_t longest = 0;
    for (const std::string& one : names) longest = std::max(longest, sizeOfName(one, word, words.end()));
    if (longest == 0) translatable.push_back(*word);
    word += static_cast<std::ptrdiff_t>(std::max<std::size_t>(longest, 1));
  }
  return translatable;
}

bool CatalogueSettings::isSameEverywhere(std::string_view text) const {
  return wordsToTranslate(withoutPlaceholders(text)).empty();
}

}  // namespace zk::tools
