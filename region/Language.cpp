#include <ZKStrings/region/CountryList.h>
#include <ZKStrings/region/Language.h>

namespace zk {

Language::Language()
    : countries(loadCountries()),
      locale(Locale::autoupdatingCurrent()),
      preferredLanguages(Locale::preferredLanguages()) {
}

}  // namespace zk
