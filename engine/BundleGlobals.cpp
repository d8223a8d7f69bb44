#include <ZKStrings/engine/BundleGlobals.h>

#include <typeinfo>

namespace zk {

namespace {

/// Stands for this module when the platform is asked which bundle holds its code.
class BundleClass {};

}  // namespace

const Bundle& bundle() {
  static const Bundle& bundle = Bundle::bundleForClass(typeid(BundleClass));
  return bundle;
}

const Bundle& mainBundle() {
  static const Bundle& bundle = Bundle::mainBundle();
  return bundle;
}

}  // namespace zk
