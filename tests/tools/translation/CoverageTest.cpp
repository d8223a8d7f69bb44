#include <ZKStrings/tools/translation/Coverage.h>

#include <gtest/gtest.h>

namespace {

using zk::tools::Coverage;

TEST(Coverage, IsComplete100PercentOnly) {
  EXPECT_EQ((Coverage{"de", 1000}).percent(), 100u);
  EXPECT_EQ((Coverage{"de", 999, 1}).percent(), 99u);
  EXPECT_EQ((Coverage{"de", 999, 0, 1}).percent(), 99u);
  EXPECT_EQ((Coverage{"de", 999, 0, 0, 1}).percent(), 99u);
  EXPECT_EQ((Coverage{"de", 0, 0, 0, 1}).percent(), 0u);
}

}  // namespace
