#pragma once

// The text module: everything that an app includes.

#include <ZKStrings/catalogue/ZKStrings.h>
#include <ZKStrings/engine/BundleGlobals.h>
#include <ZKStrings/engine/Languages.h>
#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/platform/Resolver.h>
#include <ZKStrings/region/CountryList.h>
#include <ZKStrings/region/CurrentLanguage.h>
#include <ZKStrings/region/Language.h>
