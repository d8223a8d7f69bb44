#include <ZKStrings/tools/support/Diagnostic.h>

#include <gtest/gtest.h>

namespace zk::tools {
namespace {

TEST(Diagnostic, IsAlwaysOneLine) {
  const Diagnostic diagnostic{
      Severity::error, "d\n.strings", 1, 2, "", "\"\x1B[2J\r\n\x7F\u009B31m \u00E9\xFF\tx\""};
  EXPECT_EQ(formatted(diagnostic, false),
            "d\\U000a.strings:1:2: error: \"\\U001b[2J\\U000d\\U000a"
            "\\U007f\\U009b31m \u00E9\xFF\\U0009x\"");
}

}  // namespace
}  // namespace zk::tools
