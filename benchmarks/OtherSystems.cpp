#include <ZKStrings/benchmarks/OtherSystems.h>

#include <clocale>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include <libintl.h>
#include <unicode/msgfmt.h>
#include <unicode/putil.h>
#include <unicode/unistr.h>
#include <unicode/ures.h>
#include <unicode/ustring.h>

namespace zk::benchmarks {

namespace {

void execute(const std::string& command) {
  if (std::system(command.c_str()) != 0) throw std::runtime_error("this command failed: " + command);
}

/// `text` with each placeholder replaced with the result of `spell` for its index among the entry's placeholders.
std::string respelled(const std::string& key, std::string text,
                      const std::function<std::string(std::size_t)>& spell) {
  static const auto& names = *[] {
    auto* const byKey = new std::map<std::string, std::vector<std::string>>;
    for (const Kind kind : {Kind::oneSubstitution, Kind::threeSubstitutions}) {
      for (const Request* request : requests(kind)) (*byKey)[request->key] = request->names;
    }
    return byKey;
  }();
  const auto found = names.find(key);
  if (found == names.end()) return text;
  for (std::size_t i = 0; i < found->second.size(); ++i) {
    const std::string placeholder = "%{" + found->second[i] + "}";
    text.replace(text.find(placeholder), placeholder.size(), spell(i));
  }
  return text;
}

/// `text` with a backslash before each of `characters`, and line breaks as \n.
std::string escaped(const std::string& text, const std::string& characters) {
  std::string result;
  for (const char character : text) {
    if (character == '\n') {
      result += "\\n";
      continue;
    }
    if (characters.find(character) != std::string::npos) result += '\\';
    result += character;
  }
  return result;
}

std::string doubled(std::string text, char character) {
  for (std::size_t at = text.find(character); at != std::string::npos; at = text.find(character, at + 2)) {
    text.insert(at, 1, character);
  }
  return text;
}

/// Creates and sets a locale for messages. glibc ignores LANGUAGE in the C locale, and newer releases also in
/// C.UTF-8. A machine may have no other locale.
void useOwnLocale() {
  const std::string directory = workDirectory() + "/locales";
  std::filesystem::create_directories(directory);
  std::ofstream(directory + "/source") << "LC_MESSAGES\nyesexpr \"y\"\nnoexpr \"n\"\nEND LC_MESSAGES\n";
  // localedef fails because the other categories are missing, but writes the locale.
  execute("cd '" + directory + "' && { localedef --no-archive -ci source ./own >log 2>&1 || test -d own; }");
  setenv("LOCPATH", directory.c_str(), 1);
  std::setlocale(LC_ALL, "C.UTF-8");
  if (!std::setlocale(LC_MESSAGES, "own")) throw std::runtime_error("localedef did not create the locale");
}

void makeGettextCatalogue() {
  const std::string directory = workDirectory() + "/gettext/de/LC_MESSAGES";
  std::filesystem::create_directories(directory);
  {
    std::ofstream po(directory + "/zk.po");
    po << "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n";
    for (const auto& [key, text] : germanTexts()) {
      const std::string format = respelled(std::string(key), std::string(text), [](std::size_t i) {
        return std::string("%").append(std::to_string(i + 1)).append("$s");
      });
      po << "\nmsgid \"" << key << "\"\nmsgstr \"" << escaped(format, "\"\\") << "\"\n";
    }
  }
  execute("msgfmt -o '" + directory + "/zk.mo' '" + directory + "/zk.po'");
  useOwnLocale();
  setenv("LANGUAGE", "de", 1);
  bindtextdomain("zk", (workDirectory() + "/gettext").c_str());
  bind_textdomain_codeset("zk", "UTF-8");
  textdomain("zk");
  if (std::string(gettext("About")) == "About")
    throw std::runtime_error("gettext does not use its German catalogue");
}

UResourceBundle* openedICUBundle() {
  const std::string directory = workDirectory() + "/icu";
  std::filesystem::create_directories(directory);
  {
    std::ofstream source(directory + "/de.txt");
    source << "de {\n";
    for (const auto& [key, text] : germanTexts()) {
      const std::string pattern =
          respelled(std::string(key), doubled(std::string(text), '\''),
                    [](std::size_t i) { return std::string("{").append(std::to_string(i)).append("}"); });
      source << "  " << key << " { \"" << escaped(pattern, "\"\\") << "\" }\n";
    }
    source << "}\n";
  }
  execute("genrb --quiet --encoding UTF-8 --destdir '" + directory + "' '" + directory + "/de.txt'");
  UErrorCode status = U_ZERO_ERROR;
  UResourceBundle* const bundle = ures_open(directory.c_str(), "de", &status);
  if (U_FAILURE(status))
    throw std::runtime_error(std::string("ICU cannot open the resource bundle: ") + u_errorName(status));
  return bundle;
}

}  // namespace

std::string textByGettext(const Request& request) {
  static const bool isMade = (makeGettextCatalogue(), true);
  static_cast<void>(isMade);
  const char* const text = gettext(request.lookedUpKey.c_str());
  if (request.names.empty()) return text;
  char buffer[1024];
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"
  const char* const third = request.values.size() > 2 ? request.values[2].c_str() : "";
  const int size = request.values.size() == 1
                       ? std::snprintf(buffer, sizeof(buffer), text, request.values[0].c_str())
                       : std::snprintf(buffer, sizeof(buffer), text, request.values[0].c_str(),
                                       request.values[1].c_str(), third);
#pragma GCC diagnostic pop
  return {buffer, static_cast<std::size_t>(size)};
}

std::string textByICU(const Request& request) {
  static UResourceBundle* const bundle = openedICUBundle();
  UErrorCode status = U_ZERO_ERROR;
  std::int32_t size = 0;
  const UChar* const text = ures_getStringByKey(bundle, request.lookedUpKey.c_str(), &size, &status);
  if (U_FAILURE(status)) throw std::runtime_error("ICU has no text for " + request.lookedUpKey);
  std::string result;
  if (request.names.empty()) {
    char buffer[1024];
    std::int32_t bytes = 0;
    u_strToUTF8(buffer, sizeof(buffer), &bytes, text, size, &status);
    return {buffer, static_cast<std::size_t>(bytes)};
  }
  icu::Formattable arguments[3];
  for (std::size_t i = 0; i < request.values.size(); ++i)
    arguments[i] = icu::UnicodeString::fromUTF8(request.values[i]);
  icu::UnicodeString formatted;
  icu::MessageFormat::format(icu::UnicodeString(text, size), arguments,
                             static_cast<std::int32_t>(request.values.size()), formatted, status);
  return formatted.toUTF8String(result);
}

}  // namespace zk::benchmarks
