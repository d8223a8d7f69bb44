#include <ZKStrings/engine/LanguageChoice.h>

namespace zk {

void baseLprojIsMissingAmongTheResources() {
  __builtin_trap();
}

void languageDirectoryHasVanished() {
  __builtin_trap();
}

}  // namespace zk
