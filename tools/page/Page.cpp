#include <ZKStrings/tools/page/Page.h>
#include <ZKStrings/tools/page/PageData.h>
#include <ZKStrings/tools/page/PageParts.h>

namespace zk::tools {

std::string pageOf(const std::string& root) {
  std::string page(kPageBeforeData);
  for (const char byte : pageData(root)) {
    // No text may end the data, or begin a comment in it. In JSON the sign stands in strings alone.
    if (byte == '<') {
      page += "\\u003c";
    } else {
      page += byte;
    }
  }
  return page.append(kPageBehindData);
}

}  // namespace zk::tools
