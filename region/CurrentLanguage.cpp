#include <ZKStrings/platform/Resolver.h>
#include <ZKStrings/region/CurrentLanguage.h>

#include <memory>
#include <optional>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace zk::Current {

namespace {

/// The factory that is registered. It owns a language and returns copies of it.
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
  using Registration = zk::internal::RegistrationOf<Language, LanguageFactory>;
  auto registration = std::make_shared<Registration>(LanguageFactory{language_});
  captured_ = &registration->factory.captured;
  writeBack_ = std::move(registration);
}

LanguageAccess::~LanguageAccess() {
  if (!isAlwaysWrittenBack_ && areUnchanged(language_, *captured_)) return;
  *captured_ = std::move(language_);
  // This allocates nothing, because the entry was created when the access began.
  zk::internal::Entry& entry = zk::internal::entryFor(typeid(Language), std::nullopt);
  ResolverOptions(entry, std::move(writeBack_)).scope(ResolverScope::application);
}

}  // namespace zk::Current
