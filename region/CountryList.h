#pragma once

#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/Export.h>
#include <ZKStrings/platform/SharedArray.h>
#include <ZKStrings/region/Country.h>

namespace zk {

/// Returns the countries that the app offers, from the module's resource countries.json, in file order. The file is
/// a JSON array of objects in the form that `Country::fromDictionary` reads. Other objects are left out. Returns an empty
/// list if the file is missing, cannot be read or is not JSON, or if the array contains anything but objects.
///
///     for (const zk::Country& country : zk::loadCountries()) std::cout << country.displayName() << "\n";
///
/// Reads the file on every call. Thread-safe.
[[nodiscard]] ZK_EXPORT SharedArray<Country> loadCountries();

/// Returns the countries in the resource countries.json of `bundle`, as `loadCountries` does for the module's own
/// bundle. Thread-safe.
[[nodiscard]] ZK_EXPORT SharedArray<Country> countriesIn(const Bundle& bundle);

}  // namespace zk
