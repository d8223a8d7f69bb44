#include <ZKStrings/tools/translation/Coverage.h>

#include <gtest/gtest.h>

namespace {

using zk::tools::Coverage;

TEST(Coverage, IsComplete100PercentOnly) {
  EXPECT_EQ((Coverage{"de", {0, 0, 0, 1000}}).percent(), 100u);
  EXPECT_EQ((Coverage{"de", {0, 0, 1, 999}}).percent(), 99u);
  EXPECT_EQ((Coverage{"de", {0, 1, 0, 999}}).percent(), 99u);
  EXPECT_EQ((Coverage{"de", {1, 0, 0, 999}}).percent(), 99u);
  EXPECT_EQ((Coverage{"de", {1, 0, 0, 0}}).percent(), 0u);
}

}  // namespace
