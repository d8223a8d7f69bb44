#include <ZKStrings/platform/Resolver.h>
#include <ZKStrings/region/CurrentLanguage.h>

#include <optional>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace zk::Current {

namespace {

/// The factory that is registered: it owns a language, and gives copies of it.
struct LanguageFactory {
  std::optional<Language> operator()() const { return captured; }
  Language captured;
};

/// Whether one is an unchanged copy of the other.
bool areUnchanged(const Language& one, const Language& other) {
  const auto& [countries, locale, preferredLanguages] = one;
  static_assert(std::is_empty_v<Locale>, "no locale differs from another");
  return countries.sharesElementsWith(other.countries) &&
         preferredLanguages.sharesElementsWith(other.preferredLanguages);
}

}  // namespace

const LanguageProperty& LanguageProperty::operator=(Language value) const {
  Resolver::register_<Language>(LanguageFactory{std::move(value)}).scope(ResolverScope::application);
  return *this;
}

Language LanguageProperty::get() const {
  return Resolver::resolve<Language>();
}

LanguageAccess::LanguageAccess() : language_(language.get()) {
  using Registration = registry::RegistrationOf<Language, LanguageFactory>;
  auto registration = std::make_shared<Registration>(LanguageFactory{language_});
  captured_ = &registration->factory().captured;
  writeBack_ = std::move(registration);
}

LanguageAccess::~LanguageAccess() {
  if (areUnchanged(language_, *captured_)) return;
  *captured_ = std::move(language_);
  // Nothing here allocates: the entry is there since the access began.
  registry::Entry& entry = registry::entryFor(typeid(Language), std::nullopt);
  registry::registerIn(entry, std::move(writeBack_)).scope(ResolverScope::application);
}

}  // namespace zk::Current
