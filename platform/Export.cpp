#include <ZKStrings/platform/Export.h>

void zk::internal::ZK_STANDARD_LIBRARY() {
}
