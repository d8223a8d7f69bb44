#include <ZKStrings/platform/system/UserSettings.h>
#include <ZKStrings/platform/system/windows/Text.h>

#include <string>
#include <string_view>

#include <windows.h>

namespace zk {

namespace {

/// A name such as "de-DE_phoneb" without its sort order.
std::string identifierOf(std::wstring_view name) {
  return toUTF8(name.substr(0, name.find(L'_')));
}

}  // namespace

std::optional<LocaleSettings> systemSettings() {
  wchar_t locale[LOCALE_NAME_MAX_LENGTH];
  if (GetUserDefaultLocaleName(locale, LOCALE_NAME_MAX_LENGTH) == 0) return std::nullopt;
  LocaleSettings settings{identifierOf(locale), {}};

  ULONG count = 0;
  ULONG size = 0;
  GetUserPreferredUILanguages(MUI_LANGUAGE_NAME, &count, nullptr, &size);
  std::wstring names(size, L'\0');
  if (!GetUserPreferredUILanguages(MUI_LANGUAGE_NAME, &count, names.data(), &size)) count = 0;
  std::wstring_view rest = names;  // each name ends with a zero
  for (; count > 0; --count) {
    const std::wstring_view name = rest.substr(0, rest.find(L'\0'));
    settings.preferredLanguages.push_back(identifierOf(name));
    rest.remove_prefix(name.size() + 1);
  }
  if (settings.preferredLanguages.empty()) settings.preferredLanguages.push_back(settings.identifier);
  return settings;
}

}  // namespace zk
