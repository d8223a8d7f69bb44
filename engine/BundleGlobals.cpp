#include <ZKStrings/engine/BundleGlobals.h>
#include <ZKStrings/region/CountryList.h>

#include <system_error>
#include <typeinfo>

namespace zk {

namespace {

/// Identifies this module when the platform is asked which bundle holds its code.
class BundleClass {};

}  // namespace

const Bundle* internal::moduleBundle() {
  try {
    // If this throws, the next call runs it again.
    static const Bundle& bundle = Bundle::bundleForClass(typeid(BundleClass));
    return &bundle;
  } catch (const std::system_error&) {
    return nullptr;
  }
}

const Bundle& bundle() {
  const Bundle* const found = internal::moduleBundle();
  return found ? *found : Bundle::withoutResources("");
}

const Bundle& mainBundle() {
  try {
    static const Bundle& bundle = Bundle::mainBundle();
    return bundle;
  } catch (const std::system_error&) {
    return Bundle::withoutResources("");
  }
}

// Here and not in region/, which does not know the module's bundle.
SharedArray<Country> loadCountries() {
  return countriesIn(bundle());
}

}  // namespace zk
