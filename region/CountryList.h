#pragma once

#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/Export.h>
#include <ZKStrings/platform/SharedArray.h>
#include <ZKStrings/region/Country.h>

namespace zk {

/// Reads the countries that the app offers from the module's resource countries.json, in file order: a JSON
/// array of objects, each as `Country::fromDictionary` takes it. Objects that describe no country are left
/// out. The list is empty when there is no such file, when it cannot be read or is not JSON, and when
/// anything but objects stands in the array.
///
/// Every call looks for the file and reads it again. Any thread may call it.
[[nodiscard]] ZK_EXPORT SharedArray<Country> loadCountries();

/// The same for the resource of another bundle than the module's own.
[[nodiscard]] ZK_EXPORT SharedArray<Country> countriesIn(const Bundle& bundle);

}  // namespace zk
