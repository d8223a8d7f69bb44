#include <ZKStrings/platform/Locale.h>
#include <ZKStrings/platform/system/UserSettings.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace zk {

namespace {

constexpr std::string_view kDefaultIdentifier = "en";

/// The modifiers of POSIX locale names that mean a script.
constexpr std::pair<std::string_view, std::string_view> kScripts[] = {
    {"@latin", "-Latn"}, {"@cyrillic", "-Cyrl"}, {"@devanagari", "-Deva"}, {"@iqtelif", "-Latn"}};

std::string_view environment(const char* name) {
  const char* const value = std::getenv(name);
  return value ? value : "";
}

/// A POSIX locale name, language[_region][.encoding][@modifier], without its encoding and modifier.
std::string_view languageAndRegion(std::string_view posixName) {
  return posixName.substr(0, posixName.find_first_of(".@"));
}

bool isCOrPosix(std::string_view posixName) {
  const std::string_view name = languageAndRegion(posixName);
  return name == "C" || name == "POSIX";
}

/// The identifier of a POSIX locale name; nothing for C, POSIX and a name without a language.
std::optional<std::string> identifierOf(std::string_view posixName) {
  if (isCOrPosix(posixName)) return std::nullopt;
  std::string identifier(languageAndRegion(posixName));
  std::replace(identifier.begin(), identifier.end(), '_', '-');
  identifier.erase(identifier.find_last_not_of('-') + 1);  // "de_" names no region
  const std::size_t languageSize = std::min(identifier.find('-'), identifier.size());
  if (languageSize == 0) return std::nullopt;

  for (const auto& [modifier, script] : kScripts) {
    if (posixName.ends_with(modifier)) identifier.insert(languageSize, script);
  }
  return identifier;
}

/// The settings from the process environment.
LocaleSettings settingsFromEnvironment() {
  std::string_view locale;
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    locale = environment(variable);
    if (!locale.empty()) break;
  }
  if (locale.empty()) {
    if (std::optional<LocaleSettings> settings = systemSettings()) return *settings;
  }
  const std::optional<std::string> identifier = identifierOf(locale);
  if (!identifier) return {std::string(kDefaultIdentifier), {std::string(kDefaultIdentifier)}};

  LocaleSettings settings{*identifier, {}};
  std::set<std::string> known;
  const auto prefer = [&](const std::string& language) {
    if (known.insert(language).second) settings.preferredLanguages.push_back(language);
  };
  for (std::string_view rest = environment("LANGUAGE"); !rest.empty();) {
    const std::string_view name = rest.substr(0, rest.find(':'));
    rest.remove_prefix(std::min(name.size() + 1, rest.size()));
    if (isCOrPosix(name)) prefer(std::string(kDefaultIdentifier));
    if (const std::optional<std::string> preferred = identifierOf(name)) prefer(*preferred);
  }
  prefer(*identifier);
  return settings;
}

using Source = std::function<LocaleSettings()>;

struct CurrentSource {
  std::mutex mutex{};
  std::shared_ptr<const Source> source = std::make_shared<const Source>(settingsFromEnvironment);
};

CurrentSource& currentSource() {
  static auto& current = *new CurrentSource;  // never destroyed: settings may be asked for at any time
  return current;
}

LocaleSettings settings() {
  CurrentSource& current = currentSource();
  std::unique_lock lock(current.mutex);
  const std::shared_ptr<const Source> source = current.source;
  lock.unlock();
  return (*source)();
}

}  // namespace

SharedArray<std::string> Locale::preferredLanguages() {
  return settings().preferredLanguages;
}

void Locale::readSettingsFrom(Source source) {
  auto replacement = std::make_shared<const Source>(source ? std::move(source) : settingsFromEnvironment);
  CurrentSource& current = currentSource();
  const std::lock_guard lock(current.mutex);
  current.source.swap(replacement);
}

std::string Locale::identifier() const {
  return settings().identifier;
}

}  // namespace zk
