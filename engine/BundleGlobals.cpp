#include <ZKStrings/engine/BundleGlobals.h>
#include <ZKStrings/engine/ModuleBundle.h>

#include <system_error>
#include <typeinfo>

namespace zk {

namespace {

/// Stands for this module when the platform is asked which bundle holds its code.
class BundleClass {};

}  // namespace

const Bundle* moduleBundle() {
  try {
    // When this throws, the next call runs it again.
    static const Bundle& bundle = Bundle::bundleForClass(typeid(BundleClass));
    return &bundle;
  } catch (const std::system_error&) {
    return nullptr;
  }
}

const Bundle& bundle() {
  const Bundle* const found = moduleBundle();
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

}  // namespace zk
