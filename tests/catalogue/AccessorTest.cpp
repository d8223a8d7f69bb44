#include <ZKStrings/catalogue/ZKStrings.h>
#include <ZKStrings/region/CurrentLanguage.h>

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

namespace zk {
namespace {

static_assert(!std::is_default_constructible_v<ZKStrings>);

// Releases of clang-format lay out these expressions in different ways.
// clang-format off
template <class Catalogue>
constexpr bool takesANumberForAText =
    requires { Catalogue::badgeCount_Badges(0, 0); } ||
    requires { Catalogue::badgeCount_Badges(4, 4); } ||
    requires { Catalogue::badgeCount_Badges(nullptr, 4); };
// clang-format on
static_assert(!takesANumberForAText<ZKStrings>);

TEST(Accessor, ReturnsTheTextOfItsEntry) {
  Current::language = Language{};
  Current::language->preferredLanguages = {"en-US"};
  const std::pair<std::string, std::string> cases[] = {
      {ZKStrings::About(), "About"},
      {ZKStrings::or_(), "or"},
      {ZKStrings::Coins(), "Coins"},
      {ZKStrings::Coins(1), "Coin"},
      {ZKStrings::active_limit_players("3", "10"), "3/10 players"},
      {ZKStrings::Daily_nChallenge(), "Daily\nChallenge"},
      {ZKStrings::You_got_an_Extra_Life_from_ZK_️(), "You got an Extra Life from ZK! ❤️"},
      {ZKStrings::badgeCount_Badges("0", 0), "No Badges yet"},
      {ZKStrings::badgeCount_Badges(std::string_view("8"), 8), "8 Badges"},
      {ZKStrings::username_username2_and_friendCount_other_friends_were_eliminated("a", "b", "1", 1),
       "a, b, and 1 other friend were eliminated."},
      {ZKStrings::You_ve_got_the_letters_firstLetter_secondLetter_thirdLetter_fourthLetter_and_fifthLetter(
           "a", "b", "c", "d", "e"),
       "You've got the letters a, b, c, d, and e!"},
      {ZKStrings::
           You_ve_violated_the_terms_of_service_so_you_will_not_be_able_to_cash_out_If_you_think_this_may_be_a_()
               .substr(0, 17),
       "You’ve violated"},
  };
  for (const auto& [text, expected] : cases) EXPECT_EQ(text, expected);
  Current::language->preferredLanguages = {"de-DE"};
  EXPECT_EQ(ZKStrings::badgeCount_Badges("1", 1), "1 Abzeichen");
}

}  // namespace
}  // namespace zk
