#pragma once

#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/support/Files.h>

#include <string>
#include <string_view>

namespace zk::testing {

/// A project with a small catalogue, its English table and a country list, in a directory of its own that
/// goes with the object.
class TemporaryProject {
 public:
  static constexpr const char* kCatalogue = "catalogue/entries.json";
  static constexpr const char* kCountries = "resources/countries.json";

  TemporaryProject() {
    write(kCatalogue, R"~([
  {"key": "About", "text": "About"},
  {"key": "b_Rules_b", "text": "<b>Rules</b>"},
  {"key": "badgeCount_Badges", "text": "%{badgeCount} Badges", "plural": true},
  {"key": "Be_quick_nBuy_two", "text": "*Be quick!*\nBuy two."},
  {"key": "Coins", "text": "Coins"},
  {"key": "Coins", "text": "Coins", "plural": true},
  {"key": "Download_on", "text": "Download on "},
  {"key": "Kick_username", "text": "Kick %{username}?"},
  {"key": "level_left_of_gameCount", "text": "%{level} left of %{gameCount}", "plural": true},
  {"key": "Referral_code_optional", "text": "Referral code (optional)"},
  {"key": "Tap_it_to_use_one", "text": "Tap it to use one"},
  {"key": "Top_10", "text": "Top 10"},
  {"key": "ZK_Trivia", "text": "ZK Trivia"}
]
)~");
    write(table("Base"), R"~("About" = "About";
"b_Rules_b" = "<b>Rules</b>";
"badgeCount_Badges_zero" = "No Badges";
"badgeCount_Badges_one" = "%{badgeCount} Badge";
"badgeCount_Badges_two" = "%{badgeCount} Badges";
"badgeCount_Badges_few" = "%{badgeCount} Badges";
"badgeCount_Badges_many" = "%{badgeCount} Badges";
"Be_quick_nBuy_two" = "*Be quick!*\nBuy two.";
"Coins" = "Coins";
"Coins_zero" = "Coins";
"Coins_one" = "Coin";
"Coins_two" = "Coins";
"Coins_few" = "Coins";
"Coins_many" = "Coins";
"Download_on" = "Download on ";
"Kick_username" = "Kick %{username}?";
"level_left_of_gameCount_zero" = "%{level} left of %{gameCount}";
"level_left_of_gameCount_one" = "%{level} left of %{gameCount}";
"level_left_of_gameCount_two" = "%{level} left of %{gameCount}";
"level_left_of_gameCount_few" = "%{level} left of %{gameCount}";
"level_left_of_gameCount_many" = "%{level} left of %{gameCount}";
"Referral_code_optional" = "Referral code (optional)";
"Tap_it_to_use_one" = "Tap it to use one";
"Top_10" = "Top 10";
"ZK_Trivia" = "ZK Trivia";
)~");
    write(kCountries, "[\n  {\"name\": \"Austria\", \"phoneCode\": 43, \"iso\": \"AT\"}\n]\n");
  }

  [[nodiscard]] const std::string& root() const { return directory_.path(); }

  static std::string table(const std::string& language) {
    return "resources/" + language + ".lproj/Localizable.strings";
  }

  void write(const std::string& path, std::string_view bytes) const { directory_.write(path, bytes); }

  [[nodiscard]] std::string read(const std::string& path) const { return tools::readFile(root(), path); }

 private:
  TemporaryDirectory directory_;
};

}  // namespace zk::testing
