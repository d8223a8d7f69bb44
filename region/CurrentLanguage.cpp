#include <ZKStrings/platform/Resolver.h>
#include <ZKStrings/region/CurrentLanguage.h>

#include <utility>

namespace zk::Current {

const LanguageProperty& LanguageProperty::operator=(Language value) const {
  Resolver::register_<Language>([captured = std::move(value)] {
    return captured;
  }).scope(ResolverScope::application);
  return *this;
}

LanguageProperty::operator Language() const {
  return Resolver::resolve<Language>();
}

LanguageAccess::LanguageAccess() : language_(language) {
}

LanguageAccess::~LanguageAccess() {
  language = std::move(language_);
}

}  // namespace zk::Current
