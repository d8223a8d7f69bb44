// Generated from catalogue/entries.json by `zkstrings generate`. Do not edit: change the catalogue instead.
// clang-format off

#include <ZKStrings/catalogue/ZKStrings.h>

#include <optional>

#include <ZKStrings/engine/StringLookup.h>

namespace zk {

std::string ZKStrings::_1st() {
  return localizedString("_1st", "1st", std::nullopt, {});
}

std::string ZKStrings::_2nd() {
  return localizedString("_2nd", "2nd", std::nullopt, {});
}

std::string ZKStrings::_3rd() {
  return localizedString("_3rd", "3rd", std::nullopt, {});
}

std::string ZKStrings::A_cashout_request_has_already_been_submitted() {
  return localizedString("A_cashout_request_has_already_been_submitted", "A cashout request has already been submitted.", std::nullopt, {});
}

std::string ZKStrings::A_phone_number_is_required() {
  return localizedString("A_phone_number_is_required", "A phone number is required", std::nullopt, {});
}

std::string ZKStrings::A_valid_country_is_required() {
  return localizedString("A_valid_country_is_required", "A valid country is required", std::nullopt, {});
}

std::string ZKStrings::A_valid_PayPal_email_address_is_required() {
  return localizedString("A_valid_PayPal_email_address_is_required", "A valid PayPal email address is required", std::nullopt, {});
}

std::string ZKStrings::About() {
  return localizedString("About", "About", std::nullopt, {});
}

std::string ZKStrings::Accept() {
  return localizedString("Accept", "Accept", std::nullopt, {});
}

std::string ZKStrings::Accept_friend() {
  return localizedString("Accept_friend", "Accept friend", std::nullopt, {});
}

std::string ZKStrings::Account() {
  return localizedString("Account", "Account", std::nullopt, {});
}

std::string ZKStrings::active_limit_players(Text active, Text limit) {
  return localizedString("active_limit_players", "%{active}/%{limit} players", std::nullopt, {{"active", active}, {"limit", limit}});
}

std::string ZKStrings::Add() {
  return localizedString("Add", "Add", std::nullopt, {});
}

std::string ZKStrings::Add_friend() {
  return localizedString("Add_friend", "Add friend", std::nullopt, {});
}

std::string ZKStrings::Add_Friends_on_ZK() {
  return localizedString("Add_Friends_on_ZK", "Add Friends on ZK", std::nullopt, {});
}

std::string ZKStrings::Add_people_you_know() {
  return localizedString("Add_people_you_know", "Add people you know", std::nullopt, {});
}

std::string ZKStrings::Agree_and_Continue() {
  return localizedString("Agree_and_Continue", "Agree and Continue", std::nullopt, {});
}

std::string ZKStrings::Airing_Soon() {
  return localizedString("Airing_Soon", "Airing Soon", std::nullopt, {});
}

std::string ZKStrings::All_shows_have_been_reviewed_You_re_all_set_for_cashing_out_Learn_more() {
  return localizedString("All_shows_have_been_reviewed_You_re_all_set_for_cashing_out_Learn_more", "All shows have been reviewed! You’re all set for cashing out. Learn more", std::nullopt, {});
}

std::string ZKStrings::All_time() {
  return localizedString("All_time", "All time", std::nullopt, {});
}

std::string ZKStrings::Allow_ZK_access_to_your_camera_so_you_can_take_photos_during_the_game() {
  return localizedString("Allow_ZK_access_to_your_camera_so_you_can_take_photos_during_the_game", "Allow ZK access to your camera so you can take photos during the game.", std::nullopt, {});
}

std::string ZKStrings::Already_submitted() {
  return localizedString("Already_submitted", "Already submitted", std::nullopt, {});
}

std::string ZKStrings::An_error_occurred_while_accepting_request() {
  return localizedString("An_error_occurred_while_accepting_request", "An error occurred while accepting request.", std::nullopt, {});
}

std::string ZKStrings::An_error_occurred_while_blocking_user() {
  return localizedString("An_error_occurred_while_blocking_user", "An error occurred while blocking user.", std::nullopt, {});
}

std::string ZKStrings::An_error_occurred_while_cancelling_request() {
  return localizedString("An_error_occurred_while_cancelling_request", "An error occurred while cancelling request.", std::nullopt, {});
}

std::string ZKStrings::An_error_occurred_while_retrieving_user() {
  return localizedString("An_error_occurred_while_retrieving_user", "An error occurred while retrieving user.", std::nullopt, {});
}

std::string ZKStrings::An_error_occurred_while_retrieving_your_profile() {
  return localizedString("An_error_occurred_while_retrieving_your_profile", "An error occurred while retrieving your profile.", std::nullopt, {});
}

std::string ZKStrings::An_error_occurred_while_sending_friend_request_to_user() {
  return localizedString("An_error_occurred_while_sending_friend_request_to_user", "An error occurred while sending friend request to user.", std::nullopt, {});
}

std::string ZKStrings::An_error_occurred_while_unfriending_user() {
  return localizedString("An_error_occurred_while_unfriending_user", "An error occurred while unfriending user.", std::nullopt, {});
}

std::string ZKStrings::An_update_to_the_latest_version_of_the_app_is_required() {
  return localizedString("An_update_to_the_latest_version_of_the_app_is_required", "An update to the latest version of the app is required", std::nullopt, {});
}

std::string ZKStrings::and_b_Rules_b() {
  return localizedString("and_b_Rules_b", "and <b>Rules</b>", std::nullopt, {});
}

std::string ZKStrings::Answer_questions_think_fast() {
  return localizedString("Answer_questions_think_fast", "Answer questions, think fast", std::nullopt, {});
}

std::string ZKStrings::Answer_trivia_questions_to_win_rewards() {
  return localizedString("Answer_trivia_questions_to_win_rewards", "Answer trivia questions to win rewards!", std::nullopt, {});
}

std::string ZKStrings::Apple() {
  return localizedString("Apple", "Apple", std::nullopt, {});
}

std::string ZKStrings::Apply_referral_code() {
  return localizedString("Apply_referral_code", "Apply referral code", std::nullopt, {});
}

std::string ZKStrings::Approved() {
  return localizedString("Approved", "Approved", std::nullopt, {});
}

std::string ZKStrings::Are_you_sure_you_want_to_block_username(Text username) {
  return localizedString("Are_you_sure_you_want_to_block_username", "Are you sure you want to block %{username}?", std::nullopt, {{"username", username}});
}

std::string ZKStrings::Are_you_sure_you_want_to_cashout_to_PayPal_account_email(Text email) {
  return localizedString("Are_you_sure_you_want_to_cashout_to_PayPal_account_email", "Are you sure you want to cashout to PayPal account %{email}?", std::nullopt, {{"email", email}});
}

std::string ZKStrings::Are_you_sure_you_want_to_kick_username(Text username) {
  return localizedString("Are_you_sure_you_want_to_kick_username", "Are you sure you want to kick %{username}?", std::nullopt, {{"username", username}});
}

std::string ZKStrings::Are_you_sure_you_want_to_leave_the_game() {
  return localizedString("Are_you_sure_you_want_to_leave_the_game", "Are you sure you want to leave the game?", std::nullopt, {});
}

std::string ZKStrings::Are_you_sure_you_want_to_logout() {
  return localizedString("Are_you_sure_you_want_to_logout", "Are you sure you want to logout?", std::nullopt, {});
}

std::string ZKStrings::Art_Design() {
  return localizedString("Art_Design", "Art & Design", std::nullopt, {});
}

std::string ZKStrings::Available() {
  return localizedString("Available", "Available", std::nullopt, {});
}

std::string ZKStrings::Available_Balance() {
  return localizedString("Available_Balance", "Available Balance", std::nullopt, {});
}

std::string ZKStrings::b_Back_in_the_game_b_You_used_an_Extra_Life() {
  return localizedString("b_Back_in_the_game_b_You_used_an_Extra_Life", "<b>Back in the game!</b> You used an Extra Life.", std::nullopt, {});
}

std::string ZKStrings::b_Error_loading_schedule_b() {
  return localizedString("b_Error_loading_schedule_b", "<b>Error loading schedule</b>", std::nullopt, {});
}

std::string ZKStrings::b_Game_now_live_b() {
  return localizedString("b_Game_now_live_b", "<b>Game now live</b>", std::nullopt, {});
}

std::string ZKStrings::b_No_games_scheduled_b() {
  return localizedString("b_No_games_scheduled_b", "<b>No games scheduled</b>", std::nullopt, {});
}

std::string ZKStrings::b_Privacy_Policy_b() {
  return localizedString("b_Privacy_Policy_b", "<b>Privacy Policy</b>,", std::nullopt, {});
}

std::string ZKStrings::b_Terms_of_Service_b() {
  return localizedString("b_Terms_of_Service_b", "<b>Terms of Service</b>,", std::nullopt, {});
}

std::string ZKStrings::b_Terms_of_Use_b() {
  return localizedString("b_Terms_of_Use_b", "<b>Terms of Use</b>,", std::nullopt, {});
}

std::string ZKStrings::Back_in_the_game() {
  return localizedString("Back_in_the_game", "Back in the game!", std::nullopt, {});
}

std::string ZKStrings::Back_in_the_game_You_used_an_Extra_Life() {
  return localizedString("Back_in_the_game_You_used_an_Extra_Life", "Back in the game! You used an Extra Life.", std::nullopt, {});
}

std::string ZKStrings::Badge_unlocked() {
  return localizedString("Badge_unlocked", "Badge unlocked!", std::nullopt, {});
}

std::string ZKStrings::badgeCount_Badges(Text badgeCount, std::int64_t count) {
  return localizedString("badgeCount_Badges", "%{badgeCount} Badges", count, {{"badgeCount", badgeCount}});
}

std::string ZKStrings::badgeCount_Badges_unlocked(Text badgeCount) {
  return localizedString("badgeCount_Badges_unlocked", "%{badgeCount} Badges unlocked!", std::nullopt, {{"badgeCount", badgeCount}});
}

std::string ZKStrings::badgeName_Level_level(Text badgeName, Text level) {
  return localizedString("badgeName_Level_level", "%{badgeName} Level %{level}", std::nullopt, {{"badgeName", badgeName}, {"level", level}});
}

std::string ZKStrings::Badges() {
  return localizedString("Badges", "Badges", std::nullopt, {});
}

std::string ZKStrings::Badges_in_this_set() {
  return localizedString("Badges_in_this_set", "Badges in this set", std::nullopt, {});
}

std::string ZKStrings::Balance() {
  return localizedString("Balance", "Balance", std::nullopt, {});
}

std::string ZKStrings::Balance_In_Review() {
  return localizedString("Balance_In_Review", "Balance In Review", std::nullopt, {});
}

std::string ZKStrings::Be_prepared_Buy_Extra_Lives_before_the_game_begins() {
  return localizedString("Be_prepared_Buy_Extra_Lives_before_the_game_begins", "Be prepared! Buy Extra Lives before the game begins.", std::nullopt, {});
}

std::string ZKStrings::Be_prepared_Buy_Extra_Lives_for_this_game_to_help_you_win() {
  return localizedString("Be_prepared_Buy_Extra_Lives_for_this_game_to_help_you_win", "Be prepared! Buy Extra Lives for this game to help you win.", std::nullopt, {});
}

std::string ZKStrings::Be_prepared_Buy_more_Extra_Lives_to_help_you_win() {
  return localizedString("Be_prepared_Buy_more_Extra_Lives_to_help_you_win", "Be prepared! Buy more Extra Lives to help you win.", std::nullopt, {});
}

std::string ZKStrings::Beta() {
  return localizedString("Beta", "Beta", std::nullopt, {});
}

std::string ZKStrings::Block() {
  return localizedString("Block", "Block", std::nullopt, {});
}

std::string ZKStrings::Block_user() {
  return localizedString("Block_user", "Block user", std::nullopt, {});
}

std::string ZKStrings::Bonus() {
  return localizedString("Bonus", "Bonus:", std::nullopt, {});
}

std::string ZKStrings::bonusStrikeCount_Bonus_Strikes(Text bonusStrikeCount, std::int64_t count) {
  return localizedString("bonusStrikeCount_Bonus_Strikes", "%{bonusStrikeCount} Bonus Strikes", count, {{"bonusStrikeCount", bonusStrikeCount}});
}

std::string ZKStrings::Boost() {
  return localizedString("Boost", "Boost", std::nullopt, {});
}

std::string ZKStrings::Boosted() {
  return localizedString("Boosted", "Boosted", std::nullopt, {});
}

std::string ZKStrings::Bundle() {
  return localizedString("Bundle", "Bundle", std::nullopt, {});
}

std::string ZKStrings::Business() {
  return localizedString("Business", "Business", std::nullopt, {});
}

std::string ZKStrings::Buy() {
  return localizedString("Buy", "Buy", std::nullopt, {});
}

std::string ZKStrings::Buy_More_Coins() {
  return localizedString("Buy_More_Coins", "Buy More Coins", std::nullopt, {});
}

std::string ZKStrings::By_continuing_you_agree_to_the_terms_and_pp(Text terms, Text pp) {
  return localizedString("By_continuing_you_agree_to_the_terms_and_pp", "By continuing, you agree to the %{terms} and %{pp}.", std::nullopt, {{"terms", terms}, {"pp", pp}});
}

std::string ZKStrings::By_entering_you_agree_to_the_competition(Text competition) {
  return localizedString("By_entering_you_agree_to_the_competition", "By entering you agree to the %{competition}", std::nullopt, {{"competition", competition}});
}

std::string ZKStrings::By_signing_up_you_agree_to_the() {
  return localizedString("By_signing_up_you_agree_to_the", "By signing up you agree to the", std::nullopt, {});
}

std::string ZKStrings::By_signing_up_you_agree_to_the_n_terms_privacy_and_rules(Text terms, Text privacy, Text rules) {
  return localizedString("By_signing_up_you_agree_to_the_n_terms_privacy_and_rules", "By signing up you agree to the\n %{terms}, %{privacy}, and %{rules}", std::nullopt, {{"terms", terms}, {"privacy", privacy}, {"rules", rules}});
}

std::string ZKStrings::By_signing_up_you_agree_to_the_terms_privacy_and_rules(Text terms, Text privacy, Text rules) {
  return localizedString("By_signing_up_you_agree_to_the_terms_privacy_and_rules", "By signing up you agree to the %{terms}, %{privacy}, and %{rules}", std::nullopt, {{"terms", terms}, {"privacy", privacy}, {"rules", rules}});
}

std::string ZKStrings::By_tapping_Agree_and_continue_you_agree_to_the_terms_privacy_and_rules(Text terms, Text privacy, Text rules) {
  return localizedString("By_tapping_Agree_and_continue_you_agree_to_the_terms_privacy_and_rules", "By tapping Agree and continue you agree to the %{terms}, %{privacy}, and %{rules}", std::nullopt, {{"terms", terms}, {"privacy", privacy}, {"rules", rules}});
}

std::string ZKStrings::By_tapping_Get_Started_an_SMS_may_be_sent_Message_data_rates_may_apply() {
  return localizedString("By_tapping_Get_Started_an_SMS_may_be_sent_Message_data_rates_may_apply", "By tapping Get Started, an SMS may be sent. Message & data rates may apply.", std::nullopt, {});
}

std::string ZKStrings::By_tapping_Next_an_SMS_may_be_sent_Message_data_rates_may_apply() {
  return localizedString("By_tapping_Next_an_SMS_may_be_sent_Message_data_rates_may_apply", "By tapping Next, an SMS may be sent. Message & data rates may apply.", std::nullopt, {});
}

std::string ZKStrings::Calculating_rewards() {
  return localizedString("Calculating_rewards", "Calculating rewards", std::nullopt, {});
}

std::string ZKStrings::Call_me() {
  return localizedString("Call_me", "Call me", std::nullopt, {});
}

std::string ZKStrings::Camera_Access_Disabled() {
  return localizedString("Camera_Access_Disabled", "Camera Access Disabled", std::nullopt, {});
}

std::string ZKStrings::Can_retry_in_seconds(Text seconds) {
  return localizedString("Can_retry_in_seconds", "Can retry in %{seconds}", std::nullopt, {{"seconds", seconds}});
}

std::string ZKStrings::Can_t_Cashout() {
  return localizedString("Can_t_Cashout", "Can't Cashout", std::nullopt, {});
}

std::string ZKStrings::Cancel() {
  return localizedString("Cancel", "Cancel", std::nullopt, {});
}

std::string ZKStrings::Cashout() {
  return localizedString("Cashout", "Cashout", std::nullopt, {});
}

std::string ZKStrings::Cashout_amount(Text amount) {
  return localizedString("Cashout_amount", "Cashout %{amount}", std::nullopt, {{"amount", amount}});
}

std::string ZKStrings::Cashout_Complete() {
  return localizedString("Cashout_Complete", "Cashout Complete", std::nullopt, {});
}

std::string ZKStrings::Cashout_Currently_Disabled() {
  return localizedString("Cashout_Currently_Disabled", "Cashout Currently Disabled", std::nullopt, {});
}

std::string ZKStrings::Cashout_for_one_or_more_shows_that_you_have_won_is_temporarily_disabled_Please_try_again_later() {
  return localizedString("Cashout_for_one_or_more_shows_that_you_have_won_is_temporarily_disabled_Please_try_again_later", "Cashout for one or more shows that you have won is temporarily disabled. Please try again later.", std::nullopt, {});
}

std::string ZKStrings::Cashout_with_PayPal() {
  return localizedString("Cashout_with_PayPal", "Cashout with PayPal", std::nullopt, {});
}

std::string ZKStrings::Cashouts_are_currently_disabled_Please_try_again_later() {
  return localizedString("Cashouts_are_currently_disabled_Please_try_again_later", "Cashouts are currently disabled. Please try again later.", std::nullopt, {});
}

std::string ZKStrings::Cashouts_are_disabled() {
  return localizedString("Cashouts_are_disabled", "Cashouts are disabled", std::nullopt, {});
}

std::string ZKStrings::Cashouts_to_PayPal_are_temporarily_disabled_Please_contact_customer_support() {
  return localizedString("Cashouts_to_PayPal_are_temporarily_disabled_Please_contact_customer_support", "Cashouts to PayPal are temporarily disabled. Please contact customer support.", std::nullopt, {});
}

std::string ZKStrings::Categories() {
  return localizedString("Categories", "Categories", std::nullopt, {});
}

std::string ZKStrings::Category() {
  return localizedString("Category", "Category", std::nullopt, {});
}

std::string ZKStrings::Change_username() {
  return localizedString("Change_username", "Change username", std::nullopt, {});
}

std::string ZKStrings::Charity_donations_are_temporarily_disabled_Please_contact_customer_support() {
  return localizedString("Charity_donations_are_temporarily_disabled_Please_contact_customer_support", "Charity donations are temporarily disabled. Please contact customer support.", std::nullopt, {});
}

std::string ZKStrings::Choose_from_camera_roll() {
  return localizedString("Choose_from_camera_roll", "Choose from camera roll", std::nullopt, {});
}

std::string ZKStrings::Choose_from_Photos() {
  return localizedString("Choose_from_Photos", "Choose from Photos", std::nullopt, {});
}

std::string ZKStrings::Choose_the_show_you_heard_about_and_enter_your_friend_s_referral_code_to_earn_a_reward() {
  return localizedString("Choose_the_show_you_heard_about_and_enter_your_friend_s_referral_code_to_earn_a_reward", "Choose the show you heard about and enter your friend’s referral code to earn a reward", std::nullopt, {});
}

std::string ZKStrings::Chosen_username_already_exists() {
  return localizedString("Chosen_username_already_exists", "Chosen username already exists", std::nullopt, {});
}

std::string ZKStrings::Close() {
  return localizedString("Close", "Close", std::nullopt, {});
}

std::string ZKStrings::Code() {
  return localizedString("Code", "Code", std::nullopt, {});
}

std::string ZKStrings::Code_sent_Retry_in_seconds(Text seconds) {
  return localizedString("Code_sent_Retry_in_seconds", "Code sent. Retry in %{seconds}", std::nullopt, {{"seconds", seconds}});
}

std::string ZKStrings::Coins() {
  return localizedString("Coins", "Coins", std::nullopt, {});
}

std::string ZKStrings::Coins(std::int64_t count) {
  return localizedString("Coins", "Coins", count, {});
}

std::string ZKStrings::coins() {
  return localizedString("coins", "coins", std::nullopt, {});
}

std::string ZKStrings::coinsPurchased_coins(Text coinsPurchased) {
  return localizedString("coinsPurchased_coins", "+%{coinsPurchased} coins", std::nullopt, {{"coinsPurchased", coinsPurchased}});
}

std::string ZKStrings::Cold() {
  return localizedString("Cold", "Cold", std::nullopt, {});
}

std::string ZKStrings::Collect() {
  return localizedString("Collect", "Collect", std::nullopt, {});
}

std::string ZKStrings::Color_Test() {
  return localizedString("Color_Test", "Color Test", std::nullopt, {});
}

std::string ZKStrings::Come_back_into_the_game_for_your_chance_to_win() {
  return localizedString("Come_back_into_the_game_for_your_chance_to_win", "Come back into the game for your chance to win.", std::nullopt, {});
}

std::string ZKStrings::Coming_Soon() {
  return localizedString("Coming_Soon", "Coming Soon", std::nullopt, {});
}

std::string ZKStrings::Coming_soon_To_get_in_early_play_near_someone_with_access_and_their_nearby_setting_enabled() {
  return localizedString("Coming_soon_To_get_in_early_play_near_someone_with_access_and_their_nearby_setting_enabled", "Coming soon. To get in early, play near someone with access and their nearby setting enabled.", std::nullopt, {});
}

std::string ZKStrings::Complete() {
  return localizedString("Complete", "Complete!", std::nullopt, {});
}

std::string ZKStrings::Confirm() {
  return localizedString("Confirm", "Confirm", std::nullopt, {});
}

std::string ZKStrings::Confirm_email() {
  return localizedString("Confirm_email", "Confirm email", std::nullopt, {});
}

std::string ZKStrings::Congratulations() {
  return localizedString("Congratulations", "Congratulations!", std::nullopt, {});
}

std::string ZKStrings::Congratulations_n_Tell_your_friends() {
  return localizedString("Congratulations_n_Tell_your_friends", "Congratulations!\nTell your friends!", std::nullopt, {});
}

std::string ZKStrings::Connect() {
  return localizedString("Connect", "Connect", std::nullopt, {});
}

std::string ZKStrings::Connect_Address_Book() {
  return localizedString("Connect_Address_Book", "Connect Address Book", std::nullopt, {});
}

std::string ZKStrings::Connect_Contacts() {
  return localizedString("Connect_Contacts", "Connect Contacts", std::nullopt, {});
}

std::string ZKStrings::Connect_Instagram() {
  return localizedString("Connect_Instagram", "Connect Instagram", std::nullopt, {});
}

std::string ZKStrings::Connect_with_your_friends_on_ZK_See_their_status_during_games_and_more_secret_friend_features_coming() {
  return localizedString("Connect_with_your_friends_on_ZK_See_their_status_during_games_and_more_secret_friend_features_coming", "Connect with your friends on ZK. See their status during games and more secret friend features coming soon!", std::nullopt, {});
}

std::string ZKStrings::Connect_your_account_to_discover_new_Instagram_users_and_get_new_followers_from_ZKX() {
  return localizedString("Connect_your_account_to_discover_new_Instagram_users_and_get_new_followers_from_ZKX", "Connect your account to discover new Instagram users and get new followers from ZKX", std::nullopt, {});
}

std::string ZKStrings::Connect_your_contacts_to_find_your_friends_on_ZK() {
  return localizedString("Connect_your_contacts_to_find_your_friends_on_ZK", "Connect your contacts to find your friends on ZK", std::nullopt, {});
}

std::string ZKStrings::contactCount_contacts_on_ZK(Text contactCount, std::int64_t count) {
  return localizedString("contactCount_contacts_on_ZK", "%{contactCount} contacts on ZK", count, {{"contactCount", contactCount}});
}

std::string ZKStrings::Continue() {
  return localizedString("Continue", "Continue", std::nullopt, {});
}

std::string ZKStrings::Continue_playing_with_an_extra_life_Earn_extra_lives_by_inviting_your_friends() {
  return localizedString("Continue_playing_with_an_extra_life_Earn_extra_lives_by_inviting_your_friends", "Continue playing with an extra life! Earn extra lives by inviting your friends.", std::nullopt, {});
}

std::string ZKStrings::Continue_watching() {
  return localizedString("Continue_watching", "Continue watching", std::nullopt, {});
}

std::string ZKStrings::Continue_with() {
  return localizedString("Continue_with", "Continue with", std::nullopt, {});
}

std::string ZKStrings::Correct() {
  return localizedString("Correct", "Correct", std::nullopt, {});
}

std::string ZKStrings::correct() {
  return localizedString("correct", "correct", std::nullopt, {});
}

std::string ZKStrings::Correct_Answer() {
  return localizedString("Correct_Answer", "Correct Answer", std::nullopt, {});
}

std::string ZKStrings::Correctly_answer_more_category_questions_to_unlock_this_badge(Text category) {
  return localizedString("Correctly_answer_more_category_questions_to_unlock_this_badge", "Correctly answer more %{category} questions to unlock this badge.", std::nullopt, {{"category", category}});
}

std::string ZKStrings::Could_not_find_any_nearby_letters() {
  return localizedString("Could_not_find_any_nearby_letters", "Could not find any nearby letters!", std::nullopt, {});
}

std::string ZKStrings::count_Playing(Text count) {
  return localizedString("count_Playing", "%{count} Playing", std::nullopt, {{"count", count}});
}

std::string ZKStrings::Country() {
  return localizedString("Country", "Country", std::nullopt, {});
}

std::string ZKStrings::Create_profile() {
  return localizedString("Create_profile", "Create profile", std::nullopt, {});
}

std::string ZKStrings::Crop_avatar() {
  return localizedString("Crop_avatar", "Crop avatar", std::nullopt, {});
}

std::string ZKStrings::Daily_nChallenge() {
  return localizedString("Daily_nChallenge", "Daily\nChallenge", std::nullopt, {});
}

std::string ZKStrings::Daily_Questions() {
  return localizedString("Daily_Questions", "Daily Questions", std::nullopt, {});
}

std::string ZKStrings::Day() {
  return localizedString("Day", "Day", std::nullopt, {});
}

std::string ZKStrings::Days() {
  return localizedString("Days", "Days", std::nullopt, {});
}

std::string ZKStrings::days_day_streak_complete(Text days) {
  return localizedString("days_day_streak_complete", "%{days} day streak complete!", std::nullopt, {{"days", days}});
}

std::string ZKStrings::days_day_streak_Here_s_an_Extra_Life_for_your_next_game(Text days) {
  return localizedString("days_day_streak_Here_s_an_Extra_Life_for_your_next_game", "*%{days}-day streak!* Here's an Extra Life for your next game.", std::nullopt, {{"days", days}});
}

std::string ZKStrings::Debug_Options() {
  return localizedString("Debug_Options", "Debug Options", std::nullopt, {});
}

std::string ZKStrings::Decide_Later() {
  return localizedString("Decide_Later", "Decide Later", std::nullopt, {});
}

std::string ZKStrings::Delete_Avatar() {
  return localizedString("Delete_Avatar", "Delete Avatar", std::nullopt, {});
}

std::string ZKStrings::Disconnect_account(Text account) {
  return localizedString("Disconnect_account", "Disconnect %{account}", std::nullopt, {{"account", account}});
}

std::string ZKStrings::Discover_People() {
  return localizedString("Discover_People", "Discover People", std::nullopt, {});
}

std::string ZKStrings::Discoverable_nearby() {
  return localizedString("Discoverable_nearby", "Discoverable nearby", std::nullopt, {});
}

std::string ZKStrings::Dislike() {
  return localizedString("Dislike", "Dislike", std::nullopt, {});
}

std::string ZKStrings::Do_you_want_to_unlink_your_account_account(Text account) {
  return localizedString("Do_you_want_to_unlink_your_account_account", "Do you want to unlink your %{account} account?", std::nullopt, {{"account", account}});
}

std::string ZKStrings::Don_t_miss_a_game() {
  return localizedString("Don_t_miss_a_game", "Don't miss a game!", std::nullopt, {});
}

std::string ZKStrings::Don_t_miss_the_next_ZK_show_We_send_push_notifications_to_alert_you_when_our_shows_are_live() {
  return localizedString("Don_t_miss_the_next_ZK_show_We_send_push_notifications_to_alert_you_when_our_shows_are_live", "Don't miss the next ZK show. We send push notifications to alert you when our shows are live.", std::nullopt, {});
}

std::string ZKStrings::Don_t_miss_the_next_ZK_Trivia_game_We_send_push_notifications_to_alert_you_when_the_game_is_live() {
  return localizedString("Don_t_miss_the_next_ZK_Trivia_game_We_send_push_notifications_to_alert_you_when_the_game_is_live", "Don't miss the next ZK Trivia game. We send push notifications to alert you when the game is live.", std::nullopt, {});
}

std::string ZKStrings::Donate() {
  return localizedString("Donate", "Donate", std::nullopt, {});
}

std::string ZKStrings::Donate_amount(Text amount) {
  return localizedString("Donate_amount", "Donate %{amount}", std::nullopt, {{"amount", amount}});
}

std::string ZKStrings::Donate_Winnings() {
  return localizedString("Donate_Winnings", "Donate Winnings", std::nullopt, {});
}

std::string ZKStrings::Donation() {
  return localizedString("Donation", "Donation", std::nullopt, {});
}

std::string ZKStrings::Donation_Request_Submitted() {
  return localizedString("Donation_Request_Submitted", "Donation Request Submitted", std::nullopt, {});
}

std::string ZKStrings::Done() {
  return localizedString("Done", "Done", std::nullopt, {});
}

std::string ZKStrings::Download_on() {
  return localizedString("Download_on", "Download on ", std::nullopt, {});
}

std::string ZKStrings::Drag_into_order() {
  return localizedString("Drag_into_order", "Drag into order", std::nullopt, {});
}

std::string ZKStrings::Earn_a_special_reward_per_show_by_entering_referral_codes_below() {
  return localizedString("Earn_a_special_reward_per_show_by_entering_referral_codes_below", "Earn a special reward per show by entering referral codes below.", std::nullopt, {});
}

std::string ZKStrings::Earn_Erasers_by_playing_with_cost_players(Text cost) {
  return localizedString("Earn_Erasers_by_playing_with_cost_players", "Earn *Erasers* by playing with %{cost} players", std::nullopt, {{"cost", cost}});
}

std::string ZKStrings::Earn_Power_Ups_when_you_refer_friends() {
  return localizedString("Earn_Power_Ups_when_you_refer_friends", "Earn Power Ups when you refer friends", std::nullopt, {});
}

std::string ZKStrings::Earned_date(Text date) {
  return localizedString("Earned_date", "Earned %{date}", std::nullopt, {{"date", date}});
}

std::string ZKStrings::Earned_this_game() {
  return localizedString("Earned_this_game", "Earned this game", std::nullopt, {});
}

std::string ZKStrings::earnedPoints_points(Text earnedPoints) {
  return localizedString("earnedPoints_points", "+%{earnedPoints} points", std::nullopt, {{"earnedPoints", earnedPoints}});
}

std::string ZKStrings::Educational() {
  return localizedString("Educational", "Educational", std::nullopt, {});
}

std::string ZKStrings::eight() {
  return localizedString("eight", "eight", std::nullopt, {});
}

std::string ZKStrings::Eliminated() {
  return localizedString("Eliminated", "Eliminated", std::nullopt, {});
}

std::string ZKStrings::Email() {
  return localizedString("Email", "Email", std::nullopt, {});
}

std::string ZKStrings::Email_address() {
  return localizedString("Email_address", "Email address", std::nullopt, {});
}

std::string ZKStrings::Email_Support() {
  return localizedString("Email_Support", "Email Support", std::nullopt, {});
}

std::string ZKStrings::Employees_are_not_allowed_to_cashout() {
  return localizedString("Employees_are_not_allowed_to_cashout", "Employees are not allowed to cashout", std::nullopt, {});
}

std::string ZKStrings::Enable() {
  return localizedString("Enable", "Enable", std::nullopt, {});
}

std::string ZKStrings::Enable_Notifications() {
  return localizedString("Enable_Notifications", "Enable Notifications", std::nullopt, {});
}

std::string ZKStrings::Enable_this_setting_to_be_discoverable_to_people_playing_ZK_near_you_It_s_fun() {
  return localizedString("Enable_this_setting_to_be_discoverable_to_people_playing_ZK_near_you_It_s_fun", "Enable this setting to be discoverable to people playing ZK near you. It's fun!", std::nullopt, {});
}

std::string ZKStrings::Enable_this_setting_to_earn_power_ups_by_finding_nearby_people_playing_ZK() {
  return localizedString("Enable_this_setting_to_earn_power_ups_by_finding_nearby_people_playing_ZK", "Enable this setting to earn power ups by finding nearby people playing ZK!", std::nullopt, {});
}

std::string ZKStrings::Enable_this_to_automatically_keep_your_contacts_on_ZK_up_to_date() {
  return localizedString("Enable_this_to_automatically_keep_your_contacts_on_ZK_up_to_date", "Enable this to automatically keep your contacts on ZK up to date.", std::nullopt, {});
}

std::string ZKStrings::Enter_a_friend_s_ZK_username_as_your_referral_code() {
  return localizedString("Enter_a_friend_s_ZK_username_as_your_referral_code", "Enter a friend's ZK username as your referral code.", std::nullopt, {});
}

std::string ZKStrings::Enter_a_Referral_Code() {
  return localizedString("Enter_a_Referral_Code", "Enter a Referral Code", std::nullopt, {});
}

std::string ZKStrings::Enter_for_prize(Text prize) {
  return localizedString("Enter_for_prize", "Enter for %{prize}", std::nullopt, {{"prize", prize}});
}

std::string ZKStrings::Enter_Referral_Code() {
  return localizedString("Enter_Referral_Code", "Enter Referral Code", std::nullopt, {});
}

std::string ZKStrings::Enter_Referral_Codes() {
  return localizedString("Enter_Referral_Codes", "Enter Referral Codes", std::nullopt, {});
}

std::string ZKStrings::Enter_the_verification_code_sent_to_phoneNumber(Text phoneNumber) {
  return localizedString("Enter_the_verification_code_sent_to_phoneNumber", "Enter the verification code sent to %{phoneNumber}", std::nullopt, {{"phoneNumber", phoneNumber}});
}

std::string ZKStrings::Enter_Verification_Code() {
  return localizedString("Enter_Verification_Code", "Enter Verification Code", std::nullopt, {});
}

std::string ZKStrings::Enter_VIP_Game() {
  return localizedString("Enter_VIP_Game", "Enter VIP Game", std::nullopt, {});
}

std::string ZKStrings::Enter_your_phone_number() {
  return localizedString("Enter_your_phone_number", "Enter your phone number", std::nullopt, {});
}

std::string ZKStrings::Entered() {
  return localizedString("Entered", "Entered", std::nullopt, {});
}

std::string ZKStrings::Entertainment() {
  return localizedString("Entertainment", "Entertainment", std::nullopt, {});
}

std::string ZKStrings::Entries_closed() {
  return localizedString("Entries_closed", "Entries closed", std::nullopt, {});
}

std::string ZKStrings::Eraser() {
  return localizedString("Eraser", "Eraser", std::nullopt, {});
}

std::string ZKStrings::Eraser_earned_Use_an_Eraser_to_eliminate_one_wrong_answer_during_a_question() {
  return localizedString("Eraser_earned_Use_an_Eraser_to_eliminate_one_wrong_answer_during_a_question", "*Eraser earned!* Use an Eraser to eliminate one wrong answer during a question.", std::nullopt, {});
}

std::string ZKStrings::Eraser_earned_Use_it_to_eliminate_a_wrong_answer_during_a_question() {
  return localizedString("Eraser_earned_Use_it_to_eliminate_a_wrong_answer_during_a_question", "*Eraser earned!* Use it to eliminate a wrong answer during a question.", std::nullopt, {});
}

std::string ZKStrings::Erasers() {
  return localizedString("Erasers", "Erasers", std::nullopt, {});
}

std::string ZKStrings::Erasers(std::int64_t count) {
  return localizedString("Erasers", "Erasers", count, {});
}

std::string ZKStrings::erasers() {
  return localizedString("erasers", "erasers", std::nullopt, {});
}

std::string ZKStrings::Erasers_eliminate_an_answer_Use_them_during_a_question() {
  return localizedString("Erasers_eliminate_an_answer_Use_them_during_a_question", "*Erasers* eliminate an answer. Use them during a question", std::nullopt, {});
}

std::string ZKStrings::Erasers_hide_a_wrong_answer_Tap_the_Eraser_during_a_question_to_use_one() {
  return localizedString("Erasers_hide_a_wrong_answer_Tap_the_Eraser_during_a_question_to_use_one", "Erasers hide a wrong answer. Tap the Eraser during a question to use one", std::nullopt, {});
}

std::string ZKStrings::Error_Loading_Media() {
  return localizedString("Error_Loading_Media", "Error Loading Media", std::nullopt, {});
}

std::string ZKStrings::Error_loading_schedule() {
  return localizedString("Error_loading_schedule", "Error loading schedule", std::nullopt, {});
}

std::string ZKStrings::EU_Privacy_Policy() {
  return localizedString("EU_Privacy_Policy", "EU Privacy Policy", std::nullopt, {});
}

std::string ZKStrings::Expires_in_time(Text time) {
  return localizedString("Expires_in_time", "Expires in %{time}", std::nullopt, {{"time", time}});
}

std::string ZKStrings::Extra_Life() {
  return localizedString("Extra_Life", "Extra Life", std::nullopt, {});
}

std::string ZKStrings::Extra_Life_earned() {
  return localizedString("Extra_Life_earned", "Extra Life earned!", std::nullopt, {});
}

std::string ZKStrings::Extra_Life_granted() {
  return localizedString("Extra_Life_granted", "Extra Life granted!", std::nullopt, {});
}

std::string ZKStrings::Extra_Lives() {
  return localizedString("Extra_Lives", "Extra Lives", std::nullopt, {});
}

std::string ZKStrings::Extra_lives() {
  return localizedString("Extra_lives", "Extra lives", std::nullopt, {});
}

std::string ZKStrings::Extra_Lives(std::int64_t count) {
  return localizedString("Extra_Lives", "Extra Lives", count, {});
}

std::string ZKStrings::extra_lives() {
  return localizedString("extra_lives", "extra lives", std::nullopt, {});
}

std::string ZKStrings::Facebook() {
  return localizedString("Facebook", "Facebook", std::nullopt, {});
}

std::string ZKStrings::Failed() {
  return localizedString("Failed", "Failed", std::nullopt, {});
}

std::string ZKStrings::Failed_to_accept_friend_request() {
  return localizedString("Failed_to_accept_friend_request", "Failed to accept friend request", std::nullopt, {});
}

std::string ZKStrings::Failed_to_reject_friend_request() {
  return localizedString("Failed_to_reject_friend_request", "Failed to reject friend request", std::nullopt, {});
}

std::string ZKStrings::Failed_to_send_friend_request() {
  return localizedString("Failed_to_send_friend_request", "Failed to send friend request", std::nullopt, {});
}

std::string ZKStrings::FAQs() {
  return localizedString("FAQs", "FAQs", std::nullopt, {});
}

std::string ZKStrings::Fetching_nearby_letters() {
  return localizedString("Fetching_nearby_letters", "Fetching nearby letters…", std::nullopt, {});
}

std::string ZKStrings::Finalists() {
  return localizedString("Finalists", "Finalists", std::nullopt, {});
}

std::string ZKStrings::Find_all_the() {
  return localizedString("Find_all_the", "Find all the", std::nullopt, {});
}

std::string ZKStrings::Finding_nearby_players_to_collect_an_Eraser_power_up() {
  return localizedString("Finding_nearby_players_to_collect_an_Eraser_power_up", "Finding nearby players to collect an *Eraser* power up", std::nullopt, {});
}

std::string ZKStrings::First_join_the_live_game() {
  return localizedString("First_join_the_live_game", "First, join the live game", std::nullopt, {});
}

std::string ZKStrings::five() {
  return localizedString("five", "five", std::nullopt, {});
}

std::string ZKStrings::Food_Drink() {
  return localizedString("Food_Drink", "Food & Drink", std::nullopt, {});
}

std::string ZKStrings::Forfeited() {
  return localizedString("Forfeited", "Forfeited", std::nullopt, {});
}

std::string ZKStrings::Forfeited_Balance() {
  return localizedString("Forfeited_Balance", "Forfeited Balance", std::nullopt, {});
}

std::string ZKStrings::Found_a_player_nearby() {
  return localizedString("Found_a_player_nearby", "Found a player nearby!", std::nullopt, {});
}

std::string ZKStrings::Found_an_ZK_Words_player_nearby_You_ve_unlocked_the_game() {
  return localizedString("Found_an_ZK_Words_player_nearby_You_ve_unlocked_the_game", "Found an ZK Words player nearby! You've unlocked the game.", std::nullopt, {});
}

std::string ZKStrings::Found_name1_and_name2(Text name1, Text name2) {
  return localizedString("Found_name1_and_name2", "Found *%{name1}* and *%{name2}*", std::nullopt, {{"name1", name1}, {"name2", name2}});
}

std::string ZKStrings::Found_name1_and_name2_nearby(Text name1, Text name2) {
  return localizedString("Found_name1_and_name2_nearby", "Found *%{name1}* and *%{name2}* nearby", std::nullopt, {{"name1", name1}, {"name2", name2}});
}

std::string ZKStrings::Found_name_nearby(Text name) {
  return localizedString("Found_name_nearby", "Found *%{name}* nearby", std::nullopt, {{"name", name}});
}

std::string ZKStrings::Found_username_nearby_looking_for_remaining_more_players(Text username, Text remaining, std::int64_t count) {
  return localizedString("Found_username_nearby_looking_for_remaining_more_players", "Found *%{username}* nearby, looking for %{remaining} more players", count, {{"username", username}, {"remaining", remaining}});
}

std::string ZKStrings::four() {
  return localizedString("four", "four", std::nullopt, {});
}

std::string ZKStrings::Free_Pass() {
  return localizedString("Free_Pass", "Free Pass", std::nullopt, {});
}

std::string ZKStrings::Free_Pass_through_Q_level(Text level) {
  return localizedString("Free_Pass_through_Q_level", "Free Pass through Q%{level}", std::nullopt, {{"level", level}});
}

std::string ZKStrings::Friend_Requests() {
  return localizedString("Friend_Requests", "Friend Requests", std::nullopt, {});
}

std::string ZKStrings::friendCount_friends(Text friendCount, std::int64_t count) {
  return localizedString("friendCount_friends", "%{friendCount} friends", count, {{"friendCount", friendCount}});
}

std::string ZKStrings::friendCount_friends_still_in(Text friendCount, std::int64_t count) {
  return localizedString("friendCount_friends_still_in", "%{friendCount} friends still in", count, {{"friendCount", friendCount}});
}

std::string ZKStrings::friendRequestCount_friend_requests(Text friendRequestCount, std::int64_t count) {
  return localizedString("friendRequestCount_friend_requests", "%{friendRequestCount} friend requests", count, {{"friendRequestCount", friendRequestCount}});
}

std::string ZKStrings::Friends() {
  return localizedString("Friends", "Friends", std::nullopt, {});
}

std::string ZKStrings::Full_Name() {
  return localizedString("Full_Name", "Full Name", std::nullopt, {});
}

std::string ZKStrings::Game_now_live() {
  return localizedString("Game_now_live", "Game now live", std::nullopt, {});
}

std::string ZKStrings::Game_over() {
  return localizedString("Game_over", "Game over", std::nullopt, {});
}

std::string ZKStrings::Games() {
  return localizedString("Games", "Games", std::nullopt, {});
}

std::string ZKStrings::Geography() {
  return localizedString("Geography", "Geography", std::nullopt, {});
}

std::string ZKStrings::Get_Coins() {
  return localizedString("Get_Coins", "Get Coins", std::nullopt, {});
}

std::string ZKStrings::Get_Erasers() {
  return localizedString("Get_Erasers", "Get Erasers", std::nullopt, {});
}

std::string ZKStrings::Get_Extra_Lives() {
  return localizedString("Get_Extra_Lives", "Get Extra Lives", std::nullopt, {});
}

std::string ZKStrings::Get_Help() {
  return localizedString("Get_Help", "Get Help", std::nullopt, {});
}

std::string ZKStrings::Get_help() {
  return localizedString("Get_help", "Get help", std::nullopt, {});
}

std::string ZKStrings::Get_More() {
  return localizedString("Get_More", "Get More", std::nullopt, {});
}

std::string ZKStrings::Get_more_coins_to_buy_Power_Ups() {
  return localizedString("Get_more_coins_to_buy_Power_Ups", "Get more coins to buy Power Ups!", std::nullopt, {});
}

std::string ZKStrings::Get_Notified() {
  return localizedString("Get_Notified", "Get Notified", std::nullopt, {});
}

std::string ZKStrings::Get_notified_when_n_shows_are_live() {
  return localizedString("Get_notified_when_n_shows_are_live", "Get notified when\n shows are live", std::nullopt, {});
}

std::string ZKStrings::Get_notified_when_nZK_is_live() {
  return localizedString("Get_notified_when_nZK_is_live", "Get notified when\nZK is live?", std::nullopt, {});
}

std::string ZKStrings::Get_notified_when_the_shows_are_live() {
  return localizedString("Get_notified_when_the_shows_are_live", "Get notified when the shows are live:", std::nullopt, {});
}

std::string ZKStrings::Get_points() {
  return localizedString("Get_points", "Get points", std::nullopt, {});
}

std::string ZKStrings::Get_Power_Ups_to_help_you_win() {
  return localizedString("Get_Power_Ups_to_help_you_win", "Get Power Ups to help you win!", std::nullopt, {});
}

std::string ZKStrings::Get_product(Text product) {
  return localizedString("Get_product", "Get %{product}", std::nullopt, {{"product", product}});
}

std::string ZKStrings::Get_productName(Text productName) {
  return localizedString("Get_productName", "Get %{productName}", std::nullopt, {{"productName", productName}});
}

std::string ZKStrings::Get_Started() {
  return localizedString("Get_Started", "Get Started", std::nullopt, {});
}

std::string ZKStrings::Get_Super_Spins() {
  return localizedString("Get_Super_Spins", "Get Super Spins", std::nullopt, {});
}

std::string ZKStrings::Get_them_all_right_and_you_win() {
  return localizedString("Get_them_all_right_and_you_win", "Get them all right and you win", std::nullopt, {});
}

std::string ZKStrings::Gift_Drop() {
  return localizedString("Gift_Drop", "Gift Drop", std::nullopt, {});
}

std::string ZKStrings::Go_to_settings() {
  return localizedString("Go_to_settings", "Go to settings", std::nullopt, {});
}

std::string ZKStrings::Good_luck() {
  return localizedString("Good_luck", "Good luck!", std::nullopt, {});
}

std::string ZKStrings::Goodbye() {
  return localizedString("Goodbye", "Goodbye!", std::nullopt, {});
}

std::string ZKStrings::Google() {
  return localizedString("Google", "Google", std::nullopt, {});
}

std::string ZKStrings::Grant_Extra_Life() {
  return localizedString("Grant_Extra_Life", "Grant Extra Life", std::nullopt, {});
}

std::string ZKStrings::Guest() {
  return localizedString("Guest", "Guest", std::nullopt, {});
}

std::string ZKStrings::Have_your_photo_seen_by_more_people_with_a_Boost() {
  return localizedString("Have_your_photo_seen_by_more_people_with_a_Boost", "Have your photo seen by more people with a Boost", std::nullopt, {});
}

std::string ZKStrings::Help_us_spread_the_word() {
  return localizedString("Help_us_spread_the_word", "Help us spread the word", std::nullopt, {});
}

std::string ZKStrings::Here_s_an_Extra_Life_for_your_next_game() {
  return localizedString("Here_s_an_Extra_Life_for_your_next_game", "Here's an Extra Life for your next game!", std::nullopt, {});
}

std::string ZKStrings::Hey() {
  return localizedString("Hey", "Hey", std::nullopt, {});
}

std::string ZKStrings::Hide_details() {
  return localizedString("Hide_details", "Hide details", std::nullopt, {});
}

std::string ZKStrings::High_Score() {
  return localizedString("High_Score", "High Score", std::nullopt, {});
}

std::string ZKStrings::History() {
  return localizedString("History", "History", std::nullopt, {});
}

std::string ZKStrings::Hit_us_up_on_Twitter_zktrivia() {
  return localizedString("Hit_us_up_on_Twitter_zktrivia", "Hit us up on Twitter @zktrivia", std::nullopt, {});
}

std::string ZKStrings::Hot() {
  return localizedString("Hot", "Hot", std::nullopt, {});
}

std::string ZKStrings::How_it_works() {
  return localizedString("How_it_works", "How it works", std::nullopt, {});
}

std::string ZKStrings::How_to_Play() {
  return localizedString("How_to_Play", "How to Play", std::nullopt, {});
}

std::string ZKStrings::How_to_play() {
  return localizedString("How_to_play", "How to play", std::nullopt, {});
}

std::string ZKStrings::ZK_is_at_capacity() {
  return localizedString("ZK_is_at_capacity", "ZK is at capacity", std::nullopt, {});
}

std::string ZKStrings::ZK_Shop() {
  return localizedString("ZK_Shop", "ZK Shop", std::nullopt, {});
}

std::string ZKStrings::ZK_Sports() {
  return localizedString("ZK_Sports", "ZK Sports", std::nullopt, {});
}

std::string ZKStrings::ZK_Trivia() {
  return localizedString("ZK_Trivia", "ZK Trivia", std::nullopt, {});
}

std::string ZKStrings::ZK_Words() {
  return localizedString("ZK_Words", "ZK Words", std::nullopt, {});
}

std::string ZKStrings::I_can_t_believe_I_got_this_question_wrong_on_ZK_Trivia() {
  return localizedString("I_can_t_believe_I_got_this_question_wrong_on_ZK_Trivia", "I can’t believe I got this question wrong on ZK Trivia!", std::nullopt, {});
}

std::string ZKStrings::I_can_t_believe_I_got_this_question_wrong_on_zktrivia() {
  return localizedString("I_can_t_believe_I_got_this_question_wrong_on_zktrivia", "I can’t believe I got this question wrong on @zktrivia!", std::nullopt, {});
}

std::string ZKStrings::I_just_got_round_questions_correct_on_ZK_Trivia_That_s_a_new_record_for_me_You_should_play_too_Use_m(Text round, Text username) {
  return localizedString("I_just_got_round_questions_correct_on_ZK_Trivia_That_s_a_new_record_for_me_You_should_play_too_Use_m", "I just got %{round} questions correct on ZK Trivia! That’s a new record for me! You should play too. Use my code \"%{username}\" to sign up: https://zktrivia.example", std::nullopt, {{"round", round}, {"username", username}});
}

std::string ZKStrings::I_just_got_round_questions_correct_on_zktrivia_That_s_a_new_record_for_me_You_should_play_too_Use_my(Text round, Text username) {
  return localizedString("I_just_got_round_questions_correct_on_zktrivia_That_s_a_new_record_for_me_You_should_play_too_Use_my", "I just got %{round} questions correct on @zktrivia! That’s a new record for me! You should play too. Use my code \"%{username}\" to sign up: https://zktrivia.example", std::nullopt, {{"round", round}, {"username", username}});
}

std::string ZKStrings::I_just_unlocked_the_badge_badge_on_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_code_and(Text badge, Text code) {
  return localizedString("I_just_unlocked_the_badge_badge_on_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_code_and", "I just unlocked the %{badge} badge on ZK Trivia! Sign up at https://zktrivia.example with my code \"%{code}\" and start your own collection.", std::nullopt, {{"badge", badge}, {"code", code}});
}

std::string ZKStrings::I_just_unlocked_the_badge_badge_on_zktrivia_Sign_up_at_https_zktrivia_example_with_my_code_code_and_(Text badge, Text code) {
  return localizedString("I_just_unlocked_the_badge_badge_on_zktrivia_Sign_up_at_https_zktrivia_example_with_my_code_code_and_", "I just unlocked the %{badge} badge on @zktrivia! Sign up at https://zktrivia.example with my code \"%{code}\" and start your own collection.", std::nullopt, {{"badge", badge}, {"code", code}});
}

std::string ZKStrings::I_just_won_prize_on_twitterHandle_You_should_play_too_Use_my_code_username(Text prize, Text twitterHandle, Text username) {
  return localizedString("I_just_won_prize_on_twitterHandle_You_should_play_too_Use_my_code_username", "I just won %{prize} on %{twitterHandle}! You should play too. Use my code \"%{username}\"", std::nullopt, {{"prize", prize}, {"twitterHandle", twitterHandle}, {"username", username}});
}

std::string ZKStrings::I_just_won_prize_playing_gameName_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_f(Text prize, Text gameName, Text username) {
  return localizedString("I_just_won_prize_playing_gameName_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_f", "I just won %{prize} playing %{gameName}! Sign up at https://zktrivia.example with my code \"%{username}\" and play for the next prize.", std::nullopt, {{"prize", prize}, {"gameName", gameName}, {"username", username}});
}

std::string ZKStrings::I_just_won_prize_playing_ZK_Trivia_Play_the_next_game_with_me_https_zktrivia_example(Text prize) {
  return localizedString("I_just_won_prize_playing_ZK_Trivia_Play_the_next_game_with_me_https_zktrivia_example", "I just won %{prize} playing ZK Trivia! Play the next game with me: https://zktrivia.example", std::nullopt, {{"prize", prize}});
}

std::string ZKStrings::I_just_won_prize_playing_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_(Text prize, Text username) {
  return localizedString("I_just_won_prize_playing_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_", "I just won %{prize} playing ZK Trivia! Sign up at https://zktrivia.example with my code \"%{username}\" and play for the next prize.", std::nullopt, {{"prize", prize}, {"username", username}});
}

std::string ZKStrings::I_just_won_prize_playing_zktrivia_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_f(Text prize, Text username) {
  return localizedString("I_just_won_prize_playing_zktrivia_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_f", "I just won %{prize} playing @zktrivia! Sign up at https://zktrivia.example with my code \"%{username}\" and play for the next prize.", std::nullopt, {{"prize", prize}, {"username", username}});
}

std::string ZKStrings::I_m_playing_a_game_called_appName_You_should_play_too(Text appName) {
  return localizedString("I_m_playing_a_game_called_appName_You_should_play_too", "I'm playing a game called %{appName}! You should play too.", std::nullopt, {{"appName", appName}});
}

std::string ZKStrings::I_won_prize_playing_n_zkNameVariant(Text prize, Text zkNameVariant) {
  return localizedString("I_won_prize_playing_n_zkNameVariant", "I won %{prize} playing\n%{zkNameVariant}", std::nullopt, {{"prize", prize}, {"zkNameVariant", zkNameVariant}});
}

std::string ZKStrings::If_everyone_gets_eliminated_the_n_prize_rolls_over_to_the_next_day() {
  return localizedString("If_everyone_gets_eliminated_the_n_prize_rolls_over_to_the_next_day", "If everyone gets eliminated, the\nprize rolls over to the next day.", std::nullopt, {});
}

std::string ZKStrings::If_more_than_one_person_makes_it_to_the_end_then_split_the_prize() {
  return localizedString("If_more_than_one_person_makes_it_to_the_end_then_split_the_prize", "If more than one person makes it to the end, then split the prize.", std::nullopt, {});
}

std::string ZKStrings::If_you_tap_an_incorrect_answer_n_or_you_run_out_of_time_you_ll_be_n_eliminated_from_winning_the_priz() {
  return localizedString("If_you_tap_an_incorrect_answer_n_or_you_run_out_of_time_you_ll_be_n_eliminated_from_winning_the_priz", "If you tap an incorrect answer\nor you run out of time, you'll be\neliminated from winning the prize.", std::nullopt, {});
}

std::string ZKStrings::In_order_to_cash_out_please_fill_out_all_fields_below() {
  return localizedString("In_order_to_cash_out_please_fill_out_all_fields_below", "In order to cash out, please fill out all fields below.", std::nullopt, {});
}

std::string ZKStrings::In_order_to_cash_out_please_fill_out_all_fields_below_even_if_email_address_and_PayPal_email_address() {
  return localizedString("In_order_to_cash_out_please_fill_out_all_fields_below_even_if_email_address_and_PayPal_email_address", "In order to cash out, please fill out all fields below, even if email address and PayPal email address are the same.", std::nullopt, {});
}

std::string ZKStrings::In_order_to_cash_out_please_fill_out_the_form_below_All_fields_are_required() {
  return localizedString("In_order_to_cash_out_please_fill_out_the_form_below_All_fields_are_required", "In order to cash out please fill out the form below. All fields are required.", std::nullopt, {});
}

std::string ZKStrings::In_order_to_cash_out_please_input_your_PayPal_email_address() {
  return localizedString("In_order_to_cash_out_please_input_your_PayPal_email_address", "In order to cash out, please input your PayPal email address.", std::nullopt, {});
}

std::string ZKStrings::In_order_to_donate_your_winnings_please_fill_out_all_fields_below() {
  return localizedString("In_order_to_donate_your_winnings_please_fill_out_all_fields_below", "In order to donate your winnings, please fill out all fields below.", std::nullopt, {});
}

std::string ZKStrings::In_Review() {
  return localizedString("In_Review", "In Review", std::nullopt, {});
}

std::string ZKStrings::In_the_meantime_warm_up_nand_win_coins() {
  return localizedString("In_the_meantime_warm_up_nand_win_coins", "In the meantime, warm up\nand win coins!", std::nullopt, {});
}

std::string ZKStrings::Incorrect() {
  return localizedString("Incorrect", "Incorrect", std::nullopt, {});
}

std::string ZKStrings::incorrect() {
  return localizedString("incorrect", "incorrect", std::nullopt, {});
}

std::string ZKStrings::Invalid_email() {
  return localizedString("Invalid_email", "Invalid email", std::nullopt, {});
}

std::string ZKStrings::Invalid_referral_code() {
  return localizedString("Invalid_referral_code", "Invalid referral code!", std::nullopt, {});
}

std::string ZKStrings::Invite() {
  return localizedString("Invite", "Invite", std::nullopt, {});
}

std::string ZKStrings::Invite_a_friend() {
  return localizedString("Invite_a_friend", "Invite a friend", std::nullopt, {});
}

std::string ZKStrings::Invite_contacts() {
  return localizedString("Invite_contacts", "Invite contacts", std::nullopt, {});
}

std::string ZKStrings::Invite_your_friends_to_play_ZK() {
  return localizedString("Invite_your_friends_to_play_ZK", "Invite your friends to play ZK!", std::nullopt, {});
}

std::string ZKStrings::Join() {
  return localizedString("Join", "Join", std::nullopt, {});
}

std::string ZKStrings::Join_me_on_ZK_Trivia_Use_my_code_username_to_sign_up_https_zktrivia_example(Text username) {
  return localizedString("Join_me_on_ZK_Trivia_Use_my_code_username_to_sign_up_https_zktrivia_example", "Join me on ZK Trivia! Use my code \"%{username}\" to sign up: https://zktrivia.example", std::nullopt, {{"username", username}});
}

std::string ZKStrings::Joining_game() {
  return localizedString("Joining_game", "Joining game...", std::nullopt, {});
}

std::string ZKStrings::Keep_playing() {
  return localizedString("Keep_playing", "Keep playing?", std::nullopt, {});
}

std::string ZKStrings::Keep_playing_for_amount(Text amount) {
  return localizedString("Keep_playing_for_amount", "Keep playing for *%{amount}*!", std::nullopt, {{"amount", amount}});
}

std::string ZKStrings::Keep_tapping() {
  return localizedString("Keep_tapping", "Keep tapping!", std::nullopt, {});
}

std::string ZKStrings::Kick() {
  return localizedString("Kick", "Kick", std::nullopt, {});
}

std::string ZKStrings::Kicking_username_failed(Text username) {
  return localizedString("Kicking_username_failed", "Kicking %{username} failed", std::nullopt, {{"username", username}});
}

std::string ZKStrings::Later() {
  return localizedString("Later", "Later", std::nullopt, {});
}

std::string ZKStrings::Leaderboard() {
  return localizedString("Leaderboard", "Leaderboard", std::nullopt, {});
}

std::string ZKStrings::Learn_more() {
  return localizedString("Learn_more", "Learn more", std::nullopt, {});
}

std::string ZKStrings::Leave() {
  return localizedString("Leave", "Leave", std::nullopt, {});
}

std::string ZKStrings::Legal() {
  return localizedString("Legal", "Legal", std::nullopt, {});
}

std::string ZKStrings::Letter_Points() {
  return localizedString("Letter_Points", "Letter Points", std::nullopt, {});
}

std::string ZKStrings::Level() {
  return localizedString("Level", "Level", std::nullopt, {});
}

std::string ZKStrings::level_Bonus_Strikes(Text level) {
  return localizedString("level_Bonus_Strikes", "%{level} Bonus Strikes", std::nullopt, {{"level", level}});
}

std::string ZKStrings::Level_level_rewards(Text level) {
  return localizedString("Level_level_rewards", "Level %{level} rewards", std::nullopt, {{"level", level}});
}

std::string ZKStrings::Level_levelNumber(Text levelNumber) {
  return localizedString("Level_levelNumber", "Level %{levelNumber}", std::nullopt, {{"levelNumber", levelNumber}});
}

std::string ZKStrings::Level_Unlock() {
  return localizedString("Level_Unlock", "Level Unlock", std::nullopt, {});
}

std::string ZKStrings::Level_Unlocks() {
  return localizedString("Level_Unlocks", "Level Unlocks", std::nullopt, {});
}

std::string ZKStrings::Levels() {
  return localizedString("Levels", "Levels", std::nullopt, {});
}

std::string ZKStrings::Lifetime_Winnings() {
  return localizedString("Lifetime_Winnings", "Lifetime Winnings", std::nullopt, {});
}

std::string ZKStrings::Lifetime_winnings() {
  return localizedString("Lifetime_winnings", "Lifetime winnings", std::nullopt, {});
}

std::string ZKStrings::Like() {
  return localizedString("Like", "Like", std::nullopt, {});
}

std::string ZKStrings::Link_a_social_account() {
  return localizedString("Link_a_social_account", "Link a social account", std::nullopt, {});
}

std::string ZKStrings::Linked_social_accounts() {
  return localizedString("Linked_social_accounts", "Linked social accounts", std::nullopt, {});
}

std::string ZKStrings::Literature() {
  return localizedString("Literature", "Literature", std::nullopt, {});
}

std::string ZKStrings::Live() {
  return localizedString("Live", "Live", std::nullopt, {});
}

std::string ZKStrings::Live_Game_Shows() {
  return localizedString("Live_Game_Shows", "Live Game Shows", std::nullopt, {});
}

std::string ZKStrings::Live_game_shows() {
  return localizedString("Live_game_shows", "Live game shows", std::nullopt, {});
}

std::string ZKStrings::Live_soon() {
  return localizedString("Live_soon", "Live soon", std::nullopt, {});
}

std::string ZKStrings::Live_sports_trivia_game_show_with_cash_prizes() {
  return localizedString("Live_sports_trivia_game_show_with_cash_prizes", "Live sports trivia game show with cash prizes.", std::nullopt, {});
}

std::string ZKStrings::Live_trivia_game_show() {
  return localizedString("Live_trivia_game_show", "Live trivia game show", std::nullopt, {});
}

std::string ZKStrings::Live_trivia_n_game_show() {
  return localizedString("Live_trivia_n_game_show", "Live trivia\ngame show", std::nullopt, {});
}

std::string ZKStrings::Loading_schedule() {
  return localizedString("Loading_schedule", "Loading schedule", std::nullopt, {});
}

std::string ZKStrings::Locked() {
  return localizedString("Locked", "Locked", std::nullopt, {});
}

std::string ZKStrings::Log_in_or_sign_up() {
  return localizedString("Log_in_or_sign_up", "Log in or sign up", std::nullopt, {});
}

std::string ZKStrings::Logout() {
  return localizedString("Logout", "Logout", std::nullopt, {});
}

std::string ZKStrings::Love_ZK() {
  return localizedString("Love_ZK", "Love ZK?", std::nullopt, {});
}

std::string ZKStrings::messageCount_new_messages(Text messageCount, std::int64_t count) {
  return localizedString("messageCount_new_messages", "%{messageCount} new messages", count, {{"messageCount", messageCount}});
}

std::string ZKStrings::Mini_games() {
  return localizedString("Mini_games", "Mini-games", std::nullopt, {});
}

std::string ZKStrings::minPoints_maxPoints_points(Text minPoints, Text maxPoints) {
  return localizedString("minPoints_maxPoints_points", "%{minPoints}-%{maxPoints} points", std::nullopt, {{"minPoints", minPoints}, {"maxPoints", maxPoints}});
}

std::string ZKStrings::Month() {
  return localizedString("Month", "Month", std::nullopt, {});
}

std::string ZKStrings::Months() {
  return localizedString("Months", "Months", std::nullopt, {});
}

std::string ZKStrings::Movies() {
  return localizedString("Movies", "Movies", std::nullopt, {});
}

std::string ZKStrings::Multipliers(std::int64_t count) {
  return localizedString("Multipliers", "Multipliers", count, {});
}

std::string ZKStrings::Multiply_your_game_points() {
  return localizedString("Multiply_your_game_points", "Multiply your game points", std::nullopt, {});
}

std::string ZKStrings::Music() {
  return localizedString("Music", "Music", std::nullopt, {});
}

std::string ZKStrings::My_new_record_on_socialNetwork(Text socialNetwork) {
  return localizedString("My_new_record_on_socialNetwork", "My new record on %{socialNetwork}", std::nullopt, {{"socialNetwork", socialNetwork}});
}

std::string ZKStrings::Nah() {
  return localizedString("Nah", "Nah", std::nullopt, {});
}

std::string ZKStrings::Nature() {
  return localizedString("Nature", "Nature", std::nullopt, {});
}

std::string ZKStrings::nearbyCount_people_nearby(Text nearbyCount, std::int64_t count) {
  return localizedString("nearbyCount_people_nearby", "%{nearbyCount} people nearby", count, {{"nearbyCount", nearbyCount}});
}

std::string ZKStrings::New_Feature_n_Find_Friends_on_ZK() {
  return localizedString("New_Feature_n_Find_Friends_on_ZK", "New Feature:\nFind Friends on ZK", std::nullopt, {});
}

std::string ZKStrings::New_high_score() {
  return localizedString("New_high_score", "New high score!", std::nullopt, {});
}

std::string ZKStrings::New_Show() {
  return localizedString("New_Show", "New Show", std::nullopt, {});
}

std::string ZKStrings::Next() {
  return localizedString("Next", "Next", std::nullopt, {});
}

std::string ZKStrings::Next_Game() {
  return localizedString("Next_Game", "Next Game", std::nullopt, {});
}

std::string ZKStrings::Next_Game_in_timer(Text timer) {
  return localizedString("Next_Game_in_timer", "Next Game in %{timer}", std::nullopt, {{"timer", timer}});
}

std::string ZKStrings::Next_Game_showTitle(Text showTitle) {
  return localizedString("Next_Game_showTitle", "Next Game: %{showTitle}", std::nullopt, {{"showTitle", showTitle}});
}

std::string ZKStrings::Next_prize_in_questionCount_questions(Text questionCount, std::int64_t count) {
  return localizedString("Next_prize_in_questionCount_questions", "Next prize in %{questionCount} questions", count, {{"questionCount", questionCount}});
}

std::string ZKStrings::Next_prize_n_in_questionCount_questions(Text questionCount, std::int64_t count) {
  return localizedString("Next_prize_n_in_questionCount_questions", "*Next prize*\nin %{questionCount} questions", count, {{"questionCount", questionCount}});
}

std::string ZKStrings::Next_Round_in_time(Text time) {
  return localizedString("Next_Round_in_time", "Next Round in %{time}", std::nullopt, {{"time", time}});
}

std::string ZKStrings::Next_time_continue_playing_with_an_Extra_Life_Get_Extra_Lives_by_inviting_friends() {
  return localizedString("Next_time_continue_playing_with_an_Extra_Life_Get_Extra_Lives_by_inviting_friends", "Next time, continue playing with an Extra Life! Get Extra Lives by inviting friends.", std::nullopt, {});
}

std::string ZKStrings::nine() {
  return localizedString("nine", "nine", std::nullopt, {});
}

std::string ZKStrings::No() {
  return localizedString("No", "No", std::nullopt, {});
}

std::string ZKStrings::No_account_found_with_that_number_nPlease_create_one_below() {
  return localizedString("No_account_found_with_that_number_nPlease_create_one_below", "No account found with that number.\nPlease create one below.", std::nullopt, {});
}

std::string ZKStrings::No_games_scheduled() {
  return localizedString("No_games_scheduled", "No games scheduled", std::nullopt, {});
}

std::string ZKStrings::No_internet_connection() {
  return localizedString("No_internet_connection", "No internet connection", std::nullopt, {});
}

std::string ZKStrings::No_progress_yet() {
  return localizedString("No_progress_yet", "No progress yet", std::nullopt, {});
}

std::string ZKStrings::No_winners() {
  return localizedString("No_winners", "No winners", std::nullopt, {});
}

std::string ZKStrings::No_winners_No_worries() {
  return localizedString("No_winners_No_worries", "No winners? No worries", std::nullopt, {});
}

std::string ZKStrings::Not_now() {
  return localizedString("Not_now", "Not now", std::nullopt, {});
}

std::string ZKStrings::Notification_let_you_know_when_games_are_live() {
  return localizedString("Notification_let_you_know_when_games_are_live", "Notification let you know when games are live.", std::nullopt, {});
}

std::string ZKStrings::Notifications() {
  return localizedString("Notifications", "Notifications", std::nullopt, {});
}

std::string ZKStrings::Now_playing_in_Rewards_Mode() {
  return localizedString("Now_playing_in_Rewards_Mode", "Now playing in Rewards Mode", std::nullopt, {});
}

std::string ZKStrings::number_correct(Text number) {
  return localizedString("number_correct", "%{number} correct", std::nullopt, {{"number", number}});
}

std::string ZKStrings::number_incorrect(Text number) {
  return localizedString("number_incorrect", "%{number} incorrect", std::nullopt, {{"number", number}});
}

std::string ZKStrings::Oh_no() {
  return localizedString("Oh_no", "Oh no!", std::nullopt, {});
}

std::string ZKStrings::OK() {
  return localizedString("OK", "OK", std::nullopt, {});
}

std::string ZKStrings::Okay_we_ll_call_you_with_the_verification_code() {
  return localizedString("Okay_we_ll_call_you_with_the_verification_code", "Okay, we'll call you with the verification code", std::nullopt, {});
}

std::string ZKStrings::Okay_we_ll_resend_the_verification_code_to_phoneNumber(Text phoneNumber) {
  return localizedString("Okay_we_ll_resend_the_verification_code_to_phoneNumber", "Okay, we'll resend the verification code to %{phoneNumber}", std::nullopt, {{"phoneNumber", phoneNumber}});
}

std::string ZKStrings::Once_you_have_won_you_can_cashout_n_directly_to_your_PayPal_account() {
  return localizedString("Once_you_have_won_you_can_cashout_n_directly_to_your_PayPal_account", "Once you have won, you can cashout\ndirectly to your PayPal account.", std::nullopt, {});
}

std::string ZKStrings::one() {
  return localizedString("one", "one", std::nullopt, {});
}

std::string ZKStrings::One_strike_and_you_re_out() {
  return localizedString("One_strike_and_you_re_out", "One strike and you're out", std::nullopt, {});
}

std::string ZKStrings::Oops_something_went_wrong_Please_try_again_later() {
  return localizedString("Oops_something_went_wrong_Please_try_again_later", "Oops, something went wrong. Please try again later.", std::nullopt, {});
}

std::string ZKStrings::Open_It() {
  return localizedString("Open_It", "Open It", std::nullopt, {});
}

std::string ZKStrings::Option_B() {
  return localizedString("Option_B", "Option B", std::nullopt, {});
}

std::string ZKStrings::Option_C() {
  return localizedString("Option_C", "Option C", std::nullopt, {});
}

std::string ZKStrings::or_() {
  return localizedString("or", "or", std::nullopt, {});
}

std::string ZKStrings::or_sign_in_via_via(Text via) {
  return localizedString("or_sign_in_via_via", "or sign in via %{via}", std::nullopt, {{"via", via}});
}

std::string ZKStrings::Order_It() {
  return localizedString("Order_It", "Order It", std::nullopt, {});
}

std::string ZKStrings::Out_of_time() {
  return localizedString("Out_of_time", "Out of time!", std::nullopt, {});
}

std::string ZKStrings::P_puzzleNumber_of_puzzleCount(Text puzzleNumber, Text puzzleCount) {
  return localizedString("P_puzzleNumber_of_puzzleCount", "P%{puzzleNumber} of %{puzzleCount}", std::nullopt, {{"puzzleNumber", puzzleNumber}, {"puzzleCount", puzzleCount}});
}

std::string ZKStrings::Payment_for_one_or_more_shows_that_this_account_has_won_is_temporarily_disabled_Please_try_again_lat() {
  return localizedString("Payment_for_one_or_more_shows_that_this_account_has_won_is_temporarily_disabled_Please_try_again_lat", "Payment for one or more shows that this account has won is temporarily disabled. Please try again later.", std::nullopt, {});
}

std::string ZKStrings::PayPal_Email() {
  return localizedString("PayPal_Email", "PayPal Email", std::nullopt, {});
}

std::string ZKStrings::Paypal_email_address() {
  return localizedString("Paypal_email_address", "Paypal email address", std::nullopt, {});
}

std::string ZKStrings::Pending_Balance() {
  return localizedString("Pending_Balance", "Pending Balance", std::nullopt, {});
}

std::string ZKStrings::People_nearby() {
  return localizedString("People_nearby", "People nearby", std::nullopt, {});
}

std::string ZKStrings::percent_complete(Text percent) {
  return localizedString("percent_complete", "%{percent} complete", std::nullopt, {{"percent", percent}});
}

std::string ZKStrings::phone_number() {
  return localizedString("phone_number", "phone number", std::nullopt, {});
}

std::string ZKStrings::Photos() {
  return localizedString("Photos", "Photos", std::nullopt, {});
}

std::string ZKStrings::Pick_username() {
  return localizedString("Pick_username", "Pick username", std::nullopt, {});
}

std::string ZKStrings::Pick_your_favorite() {
  return localizedString("Pick_your_favorite", "Pick your favorite", std::nullopt, {});
}

std::string ZKStrings::Play() {
  return localizedString("Play", "Play", std::nullopt, {});
}

std::string ZKStrings::Play_a_game_tonight_to_win_some_cash() {
  return localizedString("Play_a_game_tonight_to_win_some_cash", "Play a game tonight to win some cash!", std::nullopt, {});
}

std::string ZKStrings::Play_again_now_for() {
  return localizedString("Play_again_now_for", "Play again now for", std::nullopt, {});
}

std::string ZKStrings::Play_days_more_days_in_a_row(Text days, std::int64_t count) {
  return localizedString("Play_days_more_days_in_a_row", "Play %{days} more days in a row", count, {{"days", days}});
}

std::string ZKStrings::Play_days_more_days_in_a_row_to_earn_an_Extra_Life(Text days, std::int64_t count) {
  return localizedString("Play_days_more_days_in_a_row_to_earn_an_Extra_Life", "Play %{days} more days in a row to earn an Extra Life!", count, {{"days", days}});
}

std::string ZKStrings::Play_for_points() {
  return localizedString("Play_for_points", "Play for points", std::nullopt, {});
}

std::string ZKStrings::Play_game_now_with(Text game) {
  return localizedString("Play_game_now_with", "Play %{game} now with", std::nullopt, {{"game", game}});
}

std::string ZKStrings::Play_gameCount_games(Text gameCount, std::int64_t count) {
  return localizedString("Play_gameCount_games", "Play %{gameCount} games", count, {{"gameCount", gameCount}});
}

std::string ZKStrings::Play_gameName_with_me_Use_my_code_username_to_sign_up_https_zktrivia_example(Text gameName, Text username) {
  return localizedString("Play_gameName_with_me_Use_my_code_username_to_sign_up_https_zktrivia_example", "Play %{gameName} with me! Use my code \"%{username}\" to sign up: https://zktrivia.example", std::nullopt, {{"gameName", gameName}, {"username", username}});
}

std::string ZKStrings::Play_ZK_Trivia_ZK_Sports_and_ZK_Words() {
  return localizedString("Play_ZK_Trivia_ZK_Sports_and_ZK_Words", "Play ZK Trivia, ZK Sports, and ZK Words", std::nullopt, {});
}

std::string ZKStrings::Play_ZK_Trivia_Sports() {
  return localizedString("Play_ZK_Trivia_Sports", "Play ZK Trivia & Sports", std::nullopt, {});
}

std::string ZKStrings::Play_live_game_shows_and_win_cash_prizes_with_me_on_gameName_Use_my_code_username_to_sign_up_downloa(Text gameName, Text username, Text downloadUrl) {
  return localizedString("Play_live_game_shows_and_win_cash_prizes_with_me_on_gameName_Use_my_code_username_to_sign_up_downloa", "Play live game shows and win cash prizes with me on %{gameName}. Use my code '%{username}' to sign up! %{downloadUrl}", std::nullopt, {{"gameName", gameName}, {"username", username}, {"downloadUrl", downloadUrl}});
}

std::string ZKStrings::Play_live_game_shows_with_me_on_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_username_an(Text username) {
  return localizedString("Play_live_game_shows_with_me_on_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_username_an", "Play live game shows with me on ZK Trivia! Sign up at https://zktrivia.example with my code \"%{username}\" and win cash prizes.", std::nullopt, {{"username", username}});
}

std::string ZKStrings::Play_Now() {
  return localizedString("Play_Now", "Play Now", std::nullopt, {});
}

std::string ZKStrings::Play_warm_up_game() {
  return localizedString("Play_warm_up_game", "Play warm up game", std::nullopt, {});
}

std::string ZKStrings::Play_with_cost_nearby_players_and_you_ll_each_earn_an_Eraser(Text cost) {
  return localizedString("Play_with_cost_nearby_players_and_you_ll_each_earn_an_Eraser", "Play with %{cost} nearby players and you'll each earn an Eraser", std::nullopt, {{"cost", cost}});
}

std::string ZKStrings::players_in_VIP_Prize(Text players) {
  return localizedString("players_in_VIP_Prize", "%{players} in VIP Prize", std::nullopt, {{"players", players}});
}

std::string ZKStrings::players_remain(Text players) {
  return localizedString("players_remain", "%{players} remain", std::nullopt, {{"players", players}});
}

std::string ZKStrings::playersCount_players(Text playersCount, std::int64_t count) {
  return localizedString("playersCount_players", "%{playersCount} players", count, {{"playersCount", playersCount}});
}

std::string ZKStrings::Playing_for_points() {
  return localizedString("Playing_for_points", "Playing for points", std::nullopt, {});
}

std::string ZKStrings::Please_do_not_comment_repeatedly() {
  return localizedString("Please_do_not_comment_repeatedly", "Please do not comment repeatedly.", std::nullopt, {});
}

std::string ZKStrings::Please_enter_a_valid_email_address() {
  return localizedString("Please_enter_a_valid_email_address", "Please enter a valid email address", std::nullopt, {});
}

std::string ZKStrings::Please_enter_a_valid_name() {
  return localizedString("Please_enter_a_valid_name", "Please enter a valid name", std::nullopt, {});
}

std::string ZKStrings::Please_enter_a_valid_phone_number() {
  return localizedString("Please_enter_a_valid_phone_number", "Please enter a valid phone number", std::nullopt, {});
}

std::string ZKStrings::Please_enter_a_valid_username_in_the_referral_code_box() {
  return localizedString("Please_enter_a_valid_username_in_the_referral_code_box", "Please enter a valid username in the referral code box.", std::nullopt, {});
}

std::string ZKStrings::Please_enter_a_valid_verification_code() {
  return localizedString("Please_enter_a_valid_verification_code", "Please enter a valid verification code", std::nullopt, {});
}

std::string ZKStrings::Please_enter_the_verification_code_sent_to_phoneNumber(Text phoneNumber) {
  return localizedString("Please_enter_the_verification_code_sent_to_phoneNumber", "Please enter the verification code sent to %{phoneNumber}", std::nullopt, {{"phoneNumber", phoneNumber}});
}

std::string ZKStrings::Please_tell_us_a_bit_about_the_bug() {
  return localizedString("Please_tell_us_a_bit_about_the_bug", "Please tell us a bit about the bug:", std::nullopt, {});
}

std::string ZKStrings::Please_try_again_later() {
  return localizedString("Please_try_again_later", "Please try again later", std::nullopt, {});
}

std::string ZKStrings::Please_try_again_soon() {
  return localizedString("Please_try_again_soon", "Please try again soon", std::nullopt, {});
}

std::string ZKStrings::Please_try_the_next_game() {
  return localizedString("Please_try_the_next_game", "Please try the next game", std::nullopt, {});
}

std::string ZKStrings::Please_try_the_next_game_gameInfo(Text gameInfo) {
  return localizedString("Please_try_the_next_game_gameInfo", "Please try the next game: %{gameInfo}", std::nullopt, {{"gameInfo", gameInfo}});
}

std::string ZKStrings::Please_verify_that_the_email_used_above_is_a_valid_PayPal_email_account_Transfers_to_your_account_ma() {
  return localizedString("Please_verify_that_the_email_used_above_is_a_valid_PayPal_email_account_Transfers_to_your_account_ma", "Please verify that the email used above is a valid PayPal email account. Transfers to your account may take up to 15 days.", std::nullopt, {});
}

std::string ZKStrings::Point() {
  return localizedString("Point", "Point", std::nullopt, {});
}

std::string ZKStrings::Point_Multiplier() {
  return localizedString("Point_Multiplier", "Point Multiplier", std::nullopt, {});
}

std::string ZKStrings::Point_Multipliers(std::int64_t count) {
  return localizedString("Point_Multipliers", "Point Multipliers", count, {});
}

std::string ZKStrings::pointCount_pts_away_from_Level_level(Text pointCount, Text level, std::int64_t count) {
  return localizedString("pointCount_pts_away_from_Level_level", "%{pointCount} pts away from Level %{level}", count, {{"pointCount", pointCount}, {"level", level}});
}

std::string ZKStrings::points() {
  return localizedString("points", "points", std::nullopt, {});
}

std::string ZKStrings::Points() {
  return localizedString("Points", "Points", std::nullopt, {});
}

std::string ZKStrings::Points_on_this_game() {
  return localizedString("Points_on_this_game", "Points on this game", std::nullopt, {});
}

std::string ZKStrings::points_points(Text points) {
  return localizedString("points_points", "%{points} points", std::nullopt, {{"points", points}});
}

std::string ZKStrings::pointsMultiplier_x_Points(Text pointsMultiplier) {
  return localizedString("pointsMultiplier_x_Points", "%{pointsMultiplier}x Points", std::nullopt, {{"pointsMultiplier", pointsMultiplier}});
}

std::string ZKStrings::Power_Ups() {
  return localizedString("Power_Ups", "Power Ups", std::nullopt, {});
}

std::string ZKStrings::Practice() {
  return localizedString("Practice", "Practice", std::nullopt, {});
}

std::string ZKStrings::Privacy() {
  return localizedString("Privacy", "Privacy", std::nullopt, {});
}

std::string ZKStrings::Privacy_Policy() {
  return localizedString("Privacy_Policy", "Privacy Policy", std::nullopt, {});
}

std::string ZKStrings::Prize() {
  return localizedString("Prize", "Prize", std::nullopt, {});
}

std::string ZKStrings::prizeAmount_prize(Text prizeAmount) {
  return localizedString("prizeAmount_prize", "%{prizeAmount} prize", std::nullopt, {{"prizeAmount", prizeAmount}});
}

std::string ZKStrings::Profile() {
  return localizedString("Profile", "Profile", std::nullopt, {});
}

std::string ZKStrings::Pull_down_to_leave_the_game() {
  return localizedString("Pull_down_to_leave_the_game", "Pull down to leave the game", std::nullopt, {});
}

std::string ZKStrings::Puzzle_puzzleNumber(Text puzzleNumber) {
  return localizedString("Puzzle_puzzleNumber", "Puzzle %{puzzleNumber}", std::nullopt, {{"puzzleNumber", puzzleNumber}});
}

std::string ZKStrings::Q1_is_about_to_start() {
  return localizedString("Q1_is_about_to_start", "Q1 is about to start!", std::nullopt, {});
}

std::string ZKStrings::Q_questionNumber_of_questionCount(Text questionNumber, Text questionCount) {
  return localizedString("Q_questionNumber_of_questionCount", "Q%{questionNumber} of %{questionCount}", std::nullopt, {{"questionNumber", questionNumber}, {"questionCount", questionCount}});
}

std::string ZKStrings::Question() {
  return localizedString("Question", "Question", std::nullopt, {});
}

std::string ZKStrings::questionNumber_of_questionCount(Text questionNumber, Text questionCount) {
  return localizedString("questionNumber_of_questionCount", "%{questionNumber} of %{questionCount}", std::nullopt, {{"questionNumber", questionNumber}, {"questionCount", questionCount}});
}

std::string ZKStrings::questions_n_players_remain(Text questions, Text players) {
  return localizedString("questions_n_players_remain", "%{questions} &\n%{players} remain", std::nullopt, {{"questions", questions}, {"players", players}});
}

std::string ZKStrings::questionsCount_questions(Text questionsCount, std::int64_t count) {
  return localizedString("questionsCount_questions", "%{questionsCount} questions", count, {{"questionsCount", questionsCount}});
}

std::string ZKStrings::R_roundNumber_of_roundCount(Text roundNumber, Text roundCount) {
  return localizedString("R_roundNumber_of_roundCount", "R%{roundNumber} of %{roundCount}", std::nullopt, {{"roundNumber", roundNumber}, {"roundCount", roundCount}});
}

std::string ZKStrings::Rank() {
  return localizedString("Rank", "Rank", std::nullopt, {});
}

std::string ZKStrings::Rate_us() {
  return localizedString("Rate_us", "Rate us", std::nullopt, {});
}

std::string ZKStrings::Recent_Wins() {
  return localizedString("Recent_Wins", "Recent Wins", std::nullopt, {});
}

std::string ZKStrings::recommendedCount_recommended_friends(Text recommendedCount, std::int64_t count) {
  return localizedString("recommendedCount_recommended_friends", "%{recommendedCount} recommended friends", count, {{"recommendedCount", recommendedCount}});
}

std::string ZKStrings::Reconnecting() {
  return localizedString("Reconnecting", "Reconnecting…", std::nullopt, {});
}

std::string ZKStrings::Refer_a_friend() {
  return localizedString("Refer_a_friend", "Refer a friend", std::nullopt, {});
}

std::string ZKStrings::Referral_Code() {
  return localizedString("Referral_Code", "Referral Code", std::nullopt, {});
}

std::string ZKStrings::Referral_code() {
  return localizedString("Referral_code", "Referral code", std::nullopt, {});
}

std::string ZKStrings::Referral_code_confirmed() {
  return localizedString("Referral_code_confirmed", "Referral code confirmed", std::nullopt, {});
}

std::string ZKStrings::Referral_code_optional() {
  return localizedString("Referral_code_optional", "Referral code (optional)", std::nullopt, {});
}

std::string ZKStrings::Referral_Codes() {
  return localizedString("Referral_Codes", "Referral Codes", std::nullopt, {});
}

std::string ZKStrings::referralCount_referrals_left(Text referralCount, std::int64_t count) {
  return localizedString("referralCount_referrals_left", "%{referralCount} referrals left", count, {{"referralCount", referralCount}});
}

std::string ZKStrings::Refresh_contacts() {
  return localizedString("Refresh_contacts", "Refresh contacts", std::nullopt, {});
}

std::string ZKStrings::Related_Badges() {
  return localizedString("Related_Badges", "Related Badges", std::nullopt, {});
}

std::string ZKStrings::Remind_me() {
  return localizedString("Remind_me", "Remind me", std::nullopt, {});
}

std::string ZKStrings::Remove_existing_photo() {
  return localizedString("Remove_existing_photo", "Remove existing photo", std::nullopt, {});
}

std::string ZKStrings::Remove_friend() {
  return localizedString("Remove_friend", "Remove friend", std::nullopt, {});
}

std::string ZKStrings::Remove_request() {
  return localizedString("Remove_request", "Remove request", std::nullopt, {});
}

std::string ZKStrings::Report() {
  return localizedString("Report", "Report", std::nullopt, {});
}

std::string ZKStrings::Report_issue() {
  return localizedString("Report_issue", "Report issue", std::nullopt, {});
}

std::string ZKStrings::Request_cannot_be_completed() {
  return localizedString("Request_cannot_be_completed", "Request cannot be completed", std::nullopt, {});
}

std::string ZKStrings::Request_no_longer_exists() {
  return localizedString("Request_no_longer_exists", "Request no longer exists.", std::nullopt, {});
}

std::string ZKStrings::Requested() {
  return localizedString("Requested", "Requested", std::nullopt, {});
}

std::string ZKStrings::Resend_code() {
  return localizedString("Resend_code", "Resend code", std::nullopt, {});
}

std::string ZKStrings::Resend_code_in_timeLeft(Text timeLeft) {
  return localizedString("Resend_code_in_timeLeft", "Resend code in %{timeLeft}", std::nullopt, {{"timeLeft", timeLeft}});
}

std::string ZKStrings::Rest_of_World_Privacy_Policy() {
  return localizedString("Rest_of_World_Privacy_Policy", "Rest of World Privacy Policy", std::nullopt, {});
}

std::string ZKStrings::Results() {
  return localizedString("Results", "Results", std::nullopt, {});
}

std::string ZKStrings::Retake() {
  return localizedString("Retake", "Retake", std::nullopt, {});
}

std::string ZKStrings::Retry() {
  return localizedString("Retry", "Retry", std::nullopt, {});
}

std::string ZKStrings::Reverse_camera() {
  return localizedString("Reverse_camera", "Reverse camera", std::nullopt, {});
}

std::string ZKStrings::Review_Us() {
  return localizedString("Review_Us", "Review Us", std::nullopt, {});
}

std::string ZKStrings::Revived() {
  return localizedString("Revived", "Revived", std::nullopt, {});
}

std::string ZKStrings::Rewards() {
  return localizedString("Rewards", "Rewards", std::nullopt, {});
}

std::string ZKStrings::Rewards_Mode() {
  return localizedString("Rewards_Mode", "Rewards Mode", std::nullopt, {});
}

std::string ZKStrings::Round_1_is_about_to_start() {
  return localizedString("Round_1_is_about_to_start", "Round 1 is about to start!", std::nullopt, {});
}

std::string ZKStrings::Round_roundNumber(Text roundNumber) {
  return localizedString("Round_roundNumber", "Round %{roundNumber}", std::nullopt, {{"roundNumber", roundNumber}});
}

std::string ZKStrings::Round_roundNumber_Results(Text roundNumber) {
  return localizedString("Round_roundNumber_Results", "Round %{roundNumber} Results", std::nullopt, {{"roundNumber", roundNumber}});
}

std::string ZKStrings::Round_Winners() {
  return localizedString("Round_Winners", "Round Winners", std::nullopt, {});
}

std::string ZKStrings::Rules() {
  return localizedString("Rules", "Rules", std::nullopt, {});
}

std::string ZKStrings::Save_your_Super_Spin() {
  return localizedString("Save_your_Super_Spin", "Save your Super Spin", std::nullopt, {});
}

std::string ZKStrings::Say_something() {
  return localizedString("Say_something", "Say something…", std::nullopt, {});
}

std::string ZKStrings::Schedule() {
  return localizedString("Schedule", "Schedule", std::nullopt, {});
}

std::string ZKStrings::Science() {
  return localizedString("Science", "Science", std::nullopt, {});
}

std::string ZKStrings::Search_for_a_friend_by_username_to_make_your_first_connection() {
  return localizedString("Search_for_a_friend_by_username_to_make_your_first_connection", "Search for a friend by username to make your first connection", std::nullopt, {});
}

std::string ZKStrings::Search_ZK_users() {
  return localizedString("Search_ZK_users", "Search ZK users", std::nullopt, {});
}

std::string ZKStrings::Search_results_for_searchTerm(Text searchTerm) {
  return localizedString("Search_results_for_searchTerm", "Search results for \"%{searchTerm}\"", std::nullopt, {{"searchTerm", searchTerm}});
}

std::string ZKStrings::Searching_for_cost_nearby_players_to_collect_an_Eraser_power_up(Text cost, std::int64_t count) {
  return localizedString("Searching_for_cost_nearby_players_to_collect_an_Eraser_power_up", "Searching for %{cost} nearby players to collect an *Eraser* power up", count, {{"cost", cost}});
}

std::string ZKStrings::Season_Ended() {
  return localizedString("Season_Ended", "Season Ended!", std::nullopt, {});
}

std::string ZKStrings::Secure_your_ZK_account_by_linking_one_of_the_below_accounts() {
  return localizedString("Secure_your_ZK_account_by_linking_one_of_the_below_accounts", "Secure your ZK account by linking one of the below accounts:", std::nullopt, {});
}

std::string ZKStrings::See_all_Badges() {
  return localizedString("See_all_Badges", "See all Badges", std::nullopt, {});
}

std::string ZKStrings::Select_an_avatar() {
  return localizedString("Select_an_avatar", "Select an avatar", std::nullopt, {});
}

std::string ZKStrings::Send_feedback() {
  return localizedString("Send_feedback", "Send feedback", std::nullopt, {});
}

std::string ZKStrings::Send_notification() {
  return localizedString("Send_notification", "Send notification", std::nullopt, {});
}

std::string ZKStrings::Sent() {
  return localizedString("Sent", "Sent", std::nullopt, {});
}

std::string ZKStrings::Set_Reminder() {
  return localizedString("Set_Reminder", "Set Reminder", std::nullopt, {});
}

std::string ZKStrings::Settings() {
  return localizedString("Settings", "Settings", std::nullopt, {});
}

std::string ZKStrings::seven() {
  return localizedString("seven", "seven", std::nullopt, {});
}

std::string ZKStrings::Share() {
  return localizedString("Share", "Share", std::nullopt, {});
}

std::string ZKStrings::Share_answers() {
  return localizedString("Share_answers", "Share answers", std::nullopt, {});
}

std::string ZKStrings::Share_code() {
  return localizedString("Share_code", "Share code", std::nullopt, {});
}

std::string ZKStrings::Share_code_username(Text username) {
  return localizedString("Share_code_username", "Share code: %{username}", std::nullopt, {{"username", username}});
}

std::string ZKStrings::Share_to_Facebook() {
  return localizedString("Share_to_Facebook", "Share to Facebook", std::nullopt, {});
}

std::string ZKStrings::Share_to_Twitter() {
  return localizedString("Share_to_Twitter", "Share to Twitter", std::nullopt, {});
}

std::string ZKStrings::Share_with_friends() {
  return localizedString("Share_with_friends", "Share with friends", std::nullopt, {});
}

std::string ZKStrings::Share_wrong_answer() {
  return localizedString("Share_wrong_answer", "Share wrong answer", std::nullopt, {});
}

std::string ZKStrings::shareCount_shares_left(Text shareCount, std::int64_t count) {
  return localizedString("shareCount_shares_left", "%{shareCount} shares left", count, {{"shareCount", shareCount}});
}

std::string ZKStrings::Show_details() {
  return localizedString("Show_details", "Show details", std::nullopt, {});
}

std::string ZKStrings::Sign_in() {
  return localizedString("Sign_in", "Sign in", std::nullopt, {});
}

std::string ZKStrings::Sign_in_to_play() {
  return localizedString("Sign_in_to_play", "Sign in to play", std::nullopt, {});
}

std::string ZKStrings::Silent_Kick() {
  return localizedString("Silent_Kick", "Silent Kick", std::nullopt, {});
}

std::string ZKStrings::six() {
  return localizedString("six", "six", std::nullopt, {});
}

std::string ZKStrings::Solved() {
  return localizedString("Solved", "Solved", std::nullopt, {});
}

std::string ZKStrings::Solved_Points() {
  return localizedString("Solved_Points", "Solved Points", std::nullopt, {});
}

std::string ZKStrings::Solving() {
  return localizedString("Solving", "Solving", std::nullopt, {});
}

std::string ZKStrings::Something_went_wrong() {
  return localizedString("Something_went_wrong", "Something went wrong", std::nullopt, {});
}

std::string ZKStrings::Something_went_wrong_nPlease_try_again() {
  return localizedString("Something_went_wrong_nPlease_try_again", "Something went wrong.\nPlease try again.", std::nullopt, {});
}

std::string ZKStrings::Sorry_erasers_are_not_allowed_on_this_question() {
  return localizedString("Sorry_erasers_are_not_allowed_on_this_question", "Sorry, erasers are not allowed on this question", std::nullopt, {});
}

std::string ZKStrings::Sorry_something_went_wrong() {
  return localizedString("Sorry_something_went_wrong", "Sorry, something went wrong.", std::nullopt, {});
}

std::string ZKStrings::Sorry_that_didn_t_work() {
  return localizedString("Sorry_that_didn_t_work", "Sorry, that didn't work.", std::nullopt, {});
}

std::string ZKStrings::Sorry_the_box_is_empty() {
  return localizedString("Sorry_the_box_is_empty", "Sorry, the box is empty.", std::nullopt, {});
}

std::string ZKStrings::Sorry_we_couldn_t_sign_you_in_right_now_Try_again_in_a_few() {
  return localizedString("Sorry_we_couldn_t_sign_you_in_right_now_Try_again_in_a_few", "Sorry, we couldn't sign you in right now. Try again in a few?", std::nullopt, {});
}

std::string ZKStrings::Sorry_you_don_t_have_enough_coins_You_ll_be_able_to_buy_more_soon() {
  return localizedString("Sorry_you_don_t_have_enough_coins_You_ll_be_able_to_buy_more_soon", "Sorry, you don’t have enough coins. You’ll be able to buy more soon.", std::nullopt, {});
}

std::string ZKStrings::Sorry_you_need_a_minimum_balance_of_minBalance_to_cashout_Win_some_more_games(Text minBalance) {
  return localizedString("Sorry_you_need_a_minimum_balance_of_minBalance_to_cashout_Win_some_more_games", "Sorry, you need a minimum balance of %{minBalance} to cashout. Win some more games!", std::nullopt, {{"minBalance", minBalance}});
}

std::string ZKStrings::Spin_normal_wheel() {
  return localizedString("Spin_normal_wheel", "Spin normal wheel", std::nullopt, {});
}

std::string ZKStrings::Spin_the_Super_Wheel() {
  return localizedString("Spin_the_Super_Wheel", "Spin the Super Wheel!", std::nullopt, {});
}

std::string ZKStrings::Spin_the_wheel() {
  return localizedString("Spin_the_wheel", "Spin the wheel!", std::nullopt, {});
}

std::string ZKStrings::Spin_the_wheel_for_a_free_letter() {
  return localizedString("Spin_the_wheel_for_a_free_letter", "Spin the wheel for a free letter", std::nullopt, {});
}

std::string ZKStrings::Sports() {
  return localizedString("Sports", "Sports", std::nullopt, {});
}

std::string ZKStrings::Start() {
  return localizedString("Start", "Start", std::nullopt, {});
}

std::string ZKStrings::Start_the_Next_Game() {
  return localizedString("Start_the_Next_Game", "Start the Next Game", std::nullopt, {});
}

std::string ZKStrings::Start_the_Next_Round() {
  return localizedString("Start_the_Next_Round", "Start the Next Round", std::nullopt, {});
}

std::string ZKStrings::Starting_shortly() {
  return localizedString("Starting_shortly", "Starting shortly", std::nullopt, {});
}

std::string ZKStrings::Starting_soon() {
  return localizedString("Starting_soon", "Starting soon", std::nullopt, {});
}

std::string ZKStrings::Stay_in_the_game_with_an_Extra_Life() {
  return localizedString("Stay_in_the_game_with_an_Extra_Life", "Stay in the game with an Extra Life", std::nullopt, {});
}

std::string ZKStrings::Still_have_questions() {
  return localizedString("Still_have_questions", "Still have questions?", std::nullopt, {});
}

std::string ZKStrings::Strike_Out() {
  return localizedString("Strike_Out", "Strike Out", std::nullopt, {});
}

std::string ZKStrings::strikeCount_strikes_left(Text strikeCount, std::int64_t count) {
  return localizedString("strikeCount_strikes_left", "%{strikeCount} strikes left", count, {{"strikeCount", strikeCount}});
}

std::string ZKStrings::strikeCount_strikes_left_this_round(Text strikeCount, std::int64_t count) {
  return localizedString("strikeCount_strikes_left_this_round", "%{strikeCount} strikes left this round!", count, {{"strikeCount", strikeCount}});
}

std::string ZKStrings::Submit() {
  return localizedString("Submit", "Submit", std::nullopt, {});
}

std::string ZKStrings::Submit_another() {
  return localizedString("Submit_another", "Submit another", std::nullopt, {});
}

std::string ZKStrings::Submit_trivia() {
  return localizedString("Submit_trivia", "Submit trivia", std::nullopt, {});
}

std::string ZKStrings::Submitted() {
  return localizedString("Submitted", "Submitted", std::nullopt, {});
}

std::string ZKStrings::Subscribe() {
  return localizedString("Subscribe", "Subscribe", std::nullopt, {});
}

std::string ZKStrings::Subscribe_to_games_that_you_are_interested_in_so_you_don_t_miss_out_when_we_go_live() {
  return localizedString("Subscribe_to_games_that_you_are_interested_in_so_you_don_t_miss_out_when_we_go_live", "Subscribe to games that you are interested in so you don’t miss out when we go live!", std::nullopt, {});
}

std::string ZKStrings::Subscribed() {
  return localizedString("Subscribed", "Subscribed", std::nullopt, {});
}

std::string ZKStrings::Success_You_bought_extraLifeCount_Extra_Lives_to_help_you_win(Text extraLifeCount, std::int64_t count) {
  return localizedString("Success_You_bought_extraLifeCount_Extra_Lives_to_help_you_win", "Success! You bought %{extraLifeCount} Extra Lives to help you win.", count, {{"extraLifeCount", extraLifeCount}});
}

std::string ZKStrings::Success_You_have_count_name(Text count, Text name) {
  return localizedString("Success_You_have_count_name", "Success! You have %{count} %{name}.", std::nullopt, {{"count", count}, {"name", name}});
}

std::string ZKStrings::Suggested_friends() {
  return localizedString("Suggested_friends", "Suggested friends", std::nullopt, {});
}

std::string ZKStrings::suggestedCount_suggested_friends(Text suggestedCount, std::int64_t count) {
  return localizedString("suggestedCount_suggested_friends", "%{suggestedCount} suggested friends", count, {{"suggestedCount", suggestedCount}});
}

std::string ZKStrings::Super_Spins() {
  return localizedString("Super_Spins", "Super Spins", std::nullopt, {});
}

std::string ZKStrings::Super_Spins(std::int64_t count) {
  return localizedString("Super_Spins", "Super Spins", count, {});
}

std::string ZKStrings::Super_Wheel() {
  return localizedString("Super_Wheel", "Super Wheel", std::nullopt, {});
}

std::string ZKStrings::Swipe_left_to_reveal_comments() {
  return localizedString("Swipe_left_to_reveal_comments", "Swipe left to reveal comments", std::nullopt, {});
}

std::string ZKStrings::Swipe_right_to_play_mini_games() {
  return localizedString("Swipe_right_to_play_mini_games", "Swipe right to play mini games", std::nullopt, {});
}

std::string ZKStrings::Take_New_Photo() {
  return localizedString("Take_New_Photo", "Take New Photo", std::nullopt, {});
}

std::string ZKStrings::Take_Photo() {
  return localizedString("Take_Photo", "Take Photo", std::nullopt, {});
}

std::string ZKStrings::Tap_here_to_buy_an_Extra_Life_to_help_you_win() {
  return localizedString("Tap_here_to_buy_an_Extra_Life_to_help_you_win", "Tap here to buy an *Extra Life* to help you win!", std::nullopt, {});
}

std::string ZKStrings::Tap_here_to_use_an_Eraser_during_a_question() {
  return localizedString("Tap_here_to_use_an_Eraser_during_a_question", "Tap here to use an *Eraser* during a question", std::nullopt, {});
}

std::string ZKStrings::Tap_the_answer_you_think_is_n_correct_in_under_10_seconds() {
  return localizedString("Tap_the_answer_you_think_is_n_correct_in_under_10_seconds", "Tap the answer you think is\ncorrect in under 10 seconds.", std::nullopt, {});
}

std::string ZKStrings::Tap_to_enable_Nearby_to_collect_an_Eraser_power_up() {
  return localizedString("Tap_to_enable_Nearby_to_collect_an_Eraser_power_up", "Tap to enable *Nearby* to collect an Eraser power up", std::nullopt, {});
}

std::string ZKStrings::Tap_to_open() {
  return localizedString("Tap_to_open", "Tap to open", std::nullopt, {});
}

std::string ZKStrings::Tap_to_read() {
  return localizedString("Tap_to_read", "Tap to read", std::nullopt, {});
}

std::string ZKStrings::Tech() {
  return localizedString("Tech", "Tech", std::nullopt, {});
}

std::string ZKStrings::Tell_us_about_your_n_experience() {
  return localizedString("Tell_us_about_your_n_experience", "Tell us about your \n experience", std::nullopt, {});
}

std::string ZKStrings::Terms() {
  return localizedString("Terms", "Terms", std::nullopt, {});
}

std::string ZKStrings::Terms_of_Service() {
  return localizedString("Terms_of_Service", "Terms of Service", std::nullopt, {});
}

std::string ZKStrings::Terms_of_Use() {
  return localizedString("Terms_of_Use", "Terms of Use", std::nullopt, {});
}

std::string ZKStrings::Thank_you_username_your_request_to_donate_amount_to_charityName_has_been_submitted(Text username, Text amount, Text charityName) {
  return localizedString("Thank_you_username_your_request_to_donate_amount_to_charityName_has_been_submitted", "Thank you %{username}, your request to donate %{amount} to %{charityName} has been submitted.", std::nullopt, {{"username", username}, {"amount", amount}, {"charityName", charityName}});
}

std::string ZKStrings::Thanks_for_being_patient_n_Your_game_will_resume_shortly() {
  return localizedString("Thanks_for_being_patient_n_Your_game_will_resume_shortly", "Thanks for being patient! \n Your game will resume shortly.", std::nullopt, {});
}

std::string ZKStrings::That_is_not_a_valid_email_address() {
  return localizedString("That_is_not_a_valid_email_address", "That is not a valid email address.", std::nullopt, {});
}

std::string ZKStrings::That_s_your_best_so_far() {
  return localizedString("That_s_your_best_so_far", "That's your best so far.", std::nullopt, {});
}

std::string ZKStrings::That_worked() {
  return localizedString("That_worked", "That worked!", std::nullopt, {});
}

std::string ZKStrings::The_email_you_provided_is_invalid() {
  return localizedString("The_email_you_provided_is_invalid", "The email you provided is invalid", std::nullopt, {});
}

std::string ZKStrings::The_next_question_has_already_started() {
  return localizedString("The_next_question_has_already_started", "The next question has already started", std::nullopt, {});
}

std::string ZKStrings::The_show_will_nstart_soon() {
  return localizedString("The_show_will_nstart_soon", "The show will\nstart soon", std::nullopt, {});
}

std::string ZKStrings::The_VIP_Game_is_full() {
  return localizedString("The_VIP_Game_is_full", "The VIP Game is full", std::nullopt, {});
}

std::string ZKStrings::The_VIP_Prize_is_cancelled() {
  return localizedString("The_VIP_Prize_is_cancelled", "The VIP Prize is cancelled", std::nullopt, {});
}

std::string ZKStrings::There_was_a_problem_Please_try_again_soon() {
  return localizedString("There_was_a_problem_Please_try_again_soon", "There was a problem. Please try again soon.", std::nullopt, {});
}

std::string ZKStrings::There_was_an_issue_uploading_your_address_book_Please_try_again_soon() {
  return localizedString("There_was_an_issue_uploading_your_address_book_Please_try_again_soon", "There was an issue uploading your address book. Please try again soon.", std::nullopt, {});
}

std::string ZKStrings::Think_of_a_subject_that_interests_you_then_think_of_one_fact_or_specific_thing_you_like_Now_Google_i() {
  return localizedString("Think_of_a_subject_that_interests_you_then_think_of_one_fact_or_specific_thing_you_like_Now_Google_i", "Think of a subject that interests you, then think of one fact or specific thing you like. Now Google it and dig into the results until you have a fascinating nugget. Finally, work it into an intriguing question, with proper grammar and spelling.", std::nullopt, {});
}

std::string ZKStrings::This_account_is_not_linked_to_this_phone_number_Continue_to_create_a_new_account() {
  return localizedString("This_account_is_not_linked_to_this_phone_number_Continue_to_create_a_new_account", "This account is not linked to this phone number. Continue to create a new account?", std::nullopt, {});
}

std::string ZKStrings::This_account_is_not_linked_to_this_phone_number_Continue_to_sign_in() {
  return localizedString("This_account_is_not_linked_to_this_phone_number_Continue_to_sign_in", "This account is not linked to this phone number. Continue to sign in?", std::nullopt, {});
}

std::string ZKStrings::This_account_is_under_review_for_a_violation_of_the_Terms_of_Use_and_or_Rules_Payment_is_disabled_un() {
  return localizedString("This_account_is_under_review_for_a_violation_of_the_Terms_of_Use_and_or_Rules_Payment_is_disabled_un", "This account is under review for a violation of the Terms of Use and/or Rules. Payment is disabled until review is complete.", std::nullopt, {});
}

std::string ZKStrings::This_broadcast_has_ended() {
  return localizedString("This_broadcast_has_ended", "This broadcast has ended", std::nullopt, {});
}

std::string ZKStrings::This_email_is_already_associated_with_another_ZK_Trivia_account_Using_the_same_email_address_on_diff() {
  return localizedString("This_email_is_already_associated_with_another_ZK_Trivia_account_Using_the_same_email_address_on_diff", "This email is already associated with another ZK Trivia account. Using the same email address on different accounts is against the Terms of Use.", std::nullopt, {});
}

std::string ZKStrings::This_feature_is_not_available_in_your_area() {
  return localizedString("This_feature_is_not_available_in_your_area", "*This feature is not available in your area.*", std::nullopt, {});
}

std::string ZKStrings::This_party_is_at_capacity_Try_again_in_a_few() {
  return localizedString("This_party_is_at_capacity_Try_again_in_a_few", "This party is at capacity. Try again in a few?", std::nullopt, {});
}

std::string ZKStrings::This_Season_has_ended_Check_back_soon_for_details_on_the_next_season() {
  return localizedString("This_Season_has_ended_Check_back_soon_for_details_on_the_next_season", "This Season has ended. Check back soon for details on the next season.", std::nullopt, {});
}

std::string ZKStrings::This_version_of_ZK_Trivia_is_no_longer_supported_To_continue_please_update_the_app_in_the_App_Store() {
  return localizedString("This_version_of_ZK_Trivia_is_no_longer_supported_To_continue_please_update_the_app_in_the_App_Store", "This version of ZK Trivia is no longer supported. To continue, please update the app in the App Store.", std::nullopt, {});
}

std::string ZKStrings::This_version_of_ZK_Trivia_is_outdated_Don_t_miss_out_on_the_latest_features_Please_update_before_con() {
  return localizedString("This_version_of_ZK_Trivia_is_outdated_Don_t_miss_out_on_the_latest_features_Please_update_before_con", "This version of ZK Trivia is outdated. Don't miss out on the latest features. Please update before continuing.", std::nullopt, {});
}

std::string ZKStrings::This_week() {
  return localizedString("This_week", "This week", std::nullopt, {});
}

std::string ZKStrings::three() {
  return localizedString("three", "three", std::nullopt, {});
}

std::string ZKStrings::Time() {
  return localizedString("Time", "Time", std::nullopt, {});
}

std::string ZKStrings::Time_Bonus() {
  return localizedString("Time_Bonus", "Time Bonus", std::nullopt, {});
}

std::string ZKStrings::Time_s_up() {
  return localizedString("Time_s_up", "Time's up!", std::nullopt, {});
}

std::string ZKStrings::Tip() {
  return localizedString("Tip", "Tip", std::nullopt, {});
}

std::string ZKStrings::Tips() {
  return localizedString("Tips", "Tips", std::nullopt, {});
}

std::string ZKStrings::To_be_reminded_when_ZK_goes_live_please_enable_notifications_in_iOS_settings() {
  return localizedString("To_be_reminded_when_ZK_goes_live_please_enable_notifications_in_iOS_settings", "To be reminded when ZK goes live please enable notifications in iOS settings.", std::nullopt, {});
}

std::string ZKStrings::To_continue_you_must_secure_your_ZK_account_by_linking_one_of_the_below_accounts() {
  return localizedString("To_continue_you_must_secure_your_ZK_account_by_linking_one_of_the_below_accounts", "To continue you must secure your ZK account by linking one of the below accounts", std::nullopt, {});
}

std::string ZKStrings::Today() {
  return localizedString("Today", "Today", std::nullopt, {});
}

std::string ZKStrings::Today_s_Prize() {
  return localizedString("Today_s_Prize", "Today’s Prize", std::nullopt, {});
}

std::string ZKStrings::Tomorrow() {
  return localizedString("Tomorrow", "Tomorrow", std::nullopt, {});
}

std::string ZKStrings::Tonight_s_Jackpot() {
  return localizedString("Tonight_s_Jackpot", "Tonight’s Jackpot", std::nullopt, {});
}

std::string ZKStrings::Too_many_requests() {
  return localizedString("Too_many_requests", "Too many requests", std::nullopt, {});
}

std::string ZKStrings::Try_Again() {
  return localizedString("Try_Again", "Try Again", std::nullopt, {});
}

std::string ZKStrings::Try_another_photo() {
  return localizedString("Try_another_photo", "Try another photo", std::nullopt, {});
}

std::string ZKStrings::Turn_on_Bluetooth_to_collect_an_Eraser_power_up() {
  return localizedString("Turn_on_Bluetooth_to_collect_an_Eraser_power_up", "Turn on *Bluetooth* to collect an Eraser power up", std::nullopt, {});
}

std::string ZKStrings::Turn_On_Camera_in_Settings() {
  return localizedString("Turn_On_Camera_in_Settings", "Turn On Camera in Settings", std::nullopt, {});
}

std::string ZKStrings::Turn_on_notifications() {
  return localizedString("Turn_on_notifications", "Turn on notifications", std::nullopt, {});
}

std::string ZKStrings::TV() {
  return localizedString("TV", "TV", std::nullopt, {});
}

std::string ZKStrings::two() {
  return localizedString("two", "two", std::nullopt, {});
}

std::string ZKStrings::Type_your_question_here() {
  return localizedString("Type_your_question_here", "Type your question here…", std::nullopt, {});
}

std::string ZKStrings::Unable_to_Cashout() {
  return localizedString("Unable_to_Cashout", "Unable to Cashout", std::nullopt, {});
}

std::string ZKStrings::Unable_to_load_image() {
  return localizedString("Unable_to_load_image", "Unable to load image", std::nullopt, {});
}

std::string ZKStrings::Unable_to_load_your_balance_Please_try_again_soon() {
  return localizedString("Unable_to_load_your_balance_Please_try_again_soon", "Unable to load your balance. Please try again soon.", std::nullopt, {});
}

std::string ZKStrings::Unable_to_load_your_preferences() {
  return localizedString("Unable_to_load_your_preferences", "Unable to load your preferences", std::nullopt, {});
}

std::string ZKStrings::Under_Review() {
  return localizedString("Under_Review", "Under Review", std::nullopt, {});
}

std::string ZKStrings::Unknown_period() {
  return localizedString("Unknown_period", "Unknown period", std::nullopt, {});
}

std::string ZKStrings::Unlock() {
  return localizedString("Unlock", "Unlock", std::nullopt, {});
}

std::string ZKStrings::Unlock_badges_by_getting_nquestions_right_in_ndifferent_topics() {
  return localizedString("Unlock_badges_by_getting_nquestions_right_in_ndifferent_topics", "Unlock badges by getting\nquestions right in\ndifferent topics.", std::nullopt, {});
}

std::string ZKStrings::Unlock_Next_Game() {
  return localizedString("Unlock_Next_Game", "Unlock Next Game", std::nullopt, {});
}

std::string ZKStrings::Unlocks(std::int64_t count) {
  return localizedString("Unlocks", "Unlocks", count, {});
}

std::string ZKStrings::unlocks_Unlocks_left(Text unlocks) {
  return localizedString("unlocks_Unlocks_left", "%{unlocks} Unlocks left", std::nullopt, {{"unlocks", unlocks}});
}

std::string ZKStrings::Unsubscribe() {
  return localizedString("Unsubscribe", "Unsubscribe", std::nullopt, {});
}

std::string ZKStrings::Update_Available() {
  return localizedString("Update_Available", "Update Available", std::nullopt, {});
}

std::string ZKStrings::Update_in_App_Store() {
  return localizedString("Update_in_App_Store", "Update in App Store", std::nullopt, {});
}

std::string ZKStrings::Update_in_Play_Store() {
  return localizedString("Update_in_Play_Store", "Update in Play Store", std::nullopt, {});
}

std::string ZKStrings::Update_Location_Settings_to_compete_for_the_VIP_Prize() {
  return localizedString("Update_Location_Settings_to_compete_for_the_VIP_Prize", "Update Location Settings to compete for the VIP Prize.", std::nullopt, {});
}

std::string ZKStrings::Update_required() {
  return localizedString("Update_required", "Update required.", std::nullopt, {});
}

std::string ZKStrings::Update_Settings() {
  return localizedString("Update_Settings", "Update Settings", std::nullopt, {});
}

std::string ZKStrings::Upgrade_to_Super_Spin() {
  return localizedString("Upgrade_to_Super_Spin", "Upgrade to Super Spin", std::nullopt, {});
}

std::string ZKStrings::Upgrade_to_Super_Wheel() {
  return localizedString("Upgrade_to_Super_Wheel", "Upgrade to Super Wheel", std::nullopt, {});
}

std::string ZKStrings::Uploading() {
  return localizedString("Uploading", "Uploading", std::nullopt, {});
}

std::string ZKStrings::Use_a_Game_Unlock() {
  return localizedString("Use_a_Game_Unlock", "Use a Game Unlock", std::nullopt, {});
}

std::string ZKStrings::Use_a_Super_Spin() {
  return localizedString("Use_a_Super_Spin", "Use a Super Spin", std::nullopt, {});
}

std::string ZKStrings::Use_a_Super_Spin_to_get_more_letters_and_special_Power_Ups_in_ZK_Words() {
  return localizedString("Use_a_Super_Spin_to_get_more_letters_and_special_Power_Ups_in_ZK_Words", "Use a Super Spin to get more letters and special Power Ups in ZK Words.", std::nullopt, {});
}

std::string ZKStrings::Use_an_Eraser_to_eliminate_one_wrong_answer_during_a_question() {
  return localizedString("Use_an_Eraser_to_eliminate_one_wrong_answer_during_a_question", "Use an Eraser to eliminate one wrong answer during a question.", std::nullopt, {});
}

std::string ZKStrings::Use_my_code() {
  return localizedString("Use_my_code", "Use my code: ", std::nullopt, {});
}

std::string ZKStrings::Use_my_code_code_to_sign_up_url(Text code, Text url) {
  return localizedString("Use_my_code_code_to_sign_up_url", "Use my code \"%{code}\" to sign up %{url}", std::nullopt, {{"code", code}, {"url", url}});
}

std::string ZKStrings::user_was_kicked_out(Text user) {
  return localizedString("user_was_kicked_out", "%{user} was kicked out.", std::nullopt, {{"user", user}});
}

std::string ZKStrings::userCount_others(Text userCount, std::int64_t count) {
  return localizedString("userCount_others", "%{userCount} others", count, {{"userCount", userCount}});
}

std::string ZKStrings::userCount_others_still_in(Text userCount, std::int64_t count) {
  return localizedString("userCount_others_still_in", "%{userCount} others still in", count, {{"userCount", userCount}});
}

std::string ZKStrings::userCount_people(Text userCount, std::int64_t count) {
  return localizedString("userCount_people", "%{userCount} people", count, {{"userCount", userCount}});
}

std::string ZKStrings::userCount_VIPs(Text userCount, std::int64_t count) {
  return localizedString("userCount_VIPs", "%{userCount} VIPs", count, {{"userCount", userCount}});
}

std::string ZKStrings::userCount_VIPs_still_in(Text userCount, std::int64_t count) {
  return localizedString("userCount_VIPs_still_in", "%{userCount} VIPs still in", count, {{"userCount", userCount}});
}

std::string ZKStrings::Username() {
  return localizedString("Username", "Username", std::nullopt, {});
}

std::string ZKStrings::Username_already_taken() {
  return localizedString("Username_already_taken", "Username already taken!", std::nullopt, {});
}

std::string ZKStrings::username_and_username2_were_eliminated(Text username, Text username2) {
  return localizedString("username_and_username2_were_eliminated", "%{username} and %{username2} were eliminated.", std::nullopt, {{"username", username}, {"username2", username2}});
}

std::string ZKStrings::Username_available() {
  return localizedString("Username_available", "Username available!", std::nullopt, {});
}

std::string ZKStrings::username_joined_the_game(Text username) {
  return localizedString("username_joined_the_game", "%{username} joined the game.", std::nullopt, {{"username", username}});
}

std::string ZKStrings::Username_unavailable() {
  return localizedString("Username_unavailable", "Username unavailable!", std::nullopt, {});
}

std::string ZKStrings::username_used_an_Extra_Life(Text username) {
  return localizedString("username_used_an_Extra_Life", "%{username} used an Extra Life.", std::nullopt, {{"username", username}});
}

std::string ZKStrings::username_username2_and_friendCount_other_friends_were_eliminated(Text username, Text username2, Text friendCount, std::int64_t count) {
  return localizedString("username_username2_and_friendCount_other_friends_were_eliminated", "%{username}, %{username2}, and %{friendCount} other friends were eliminated.", count, {{"username", username}, {"username2", username2}, {"friendCount", friendCount}});
}

std::string ZKStrings::username_was_eliminated(Text username) {
  return localizedString("username_was_eliminated", "%{username} was eliminated.", std::nullopt, {{"username", username}});
}

std::string ZKStrings::username_was_kicked_successfully(Text username) {
  return localizedString("username_was_kicked_successfully", "%{username} was kicked successfully", std::nullopt, {{"username", username}});
}

std::string ZKStrings::username_was_silently_kicked(Text username) {
  return localizedString("username_was_silently_kicked", "%{username} was silently kicked", std::nullopt, {{"username", username}});
}

std::string ZKStrings::username_won_the_game(Text username) {
  return localizedString("username_won_the_game", "%{username} won the game!", std::nullopt, {{"username", username}});
}

std::string ZKStrings::Usernames_must_be_3_15_characters_long_and_can_contain_only_letters_numbers_or_Inappropriate_languag() {
  return localizedString("Usernames_must_be_3_15_characters_long_and_can_contain_only_letters_numbers_or_Inappropriate_languag", "Usernames must be 3-15 characters long and can contain only letters, numbers, - , or _ . Inappropriate language in usernames is a violation of the Terms of Use. Your username will also be your referral code.", std::nullopt, {});
}

std::string ZKStrings::Using_Extra_Life_in_seconds(Text seconds) {
  return localizedString("Using_Extra_Life_in_seconds", "Using Extra Life in %{seconds}", std::nullopt, {{"seconds", seconds}});
}

std::string ZKStrings::Valid_referral_code() {
  return localizedString("Valid_referral_code", "Valid referral code!", std::nullopt, {});
}

std::string ZKStrings::Verify_code() {
  return localizedString("Verify_code", "Verify code", std::nullopt, {});
}

std::string ZKStrings::View_all() {
  return localizedString("View_all", "View all", std::nullopt, {});
}

std::string ZKStrings::View_more() {
  return localizedString("View_more", "View more", std::nullopt, {});
}

std::string ZKStrings::VIP_Prize() {
  return localizedString("VIP_Prize", "VIP Prize", std::nullopt, {});
}

std::string ZKStrings::VIP_Prize_Rules() {
  return localizedString("VIP_Prize_Rules", "VIP Prize Rules", std::nullopt, {});
}

std::string ZKStrings::votes_votes(Text votes) {
  return localizedString("votes_votes", "%{votes} votes", std::nullopt, {{"votes", votes}});
}

std::string ZKStrings::Warm_up_win_coins() {
  return localizedString("Warm_up_win_coins", "Warm up & win coins", std::nullopt, {});
}

std::string ZKStrings::Watch() {
  return localizedString("Watch", "Watch", std::nullopt, {});
}

std::string ZKStrings::Watch_as_a_guest() {
  return localizedString("Watch_as_a_guest", "Watch as a guest", std::nullopt, {});
}

std::string ZKStrings::Watching_Only() {
  return localizedString("Watching_Only", "Watching Only", std::nullopt, {});
}

std::string ZKStrings::Watching_only() {
  return localizedString("Watching_only", "Watching only", std::nullopt, {});
}

std::string ZKStrings::We_are_phasing_out_phone_number_logins_Please_login_with_your_linked_account_below() {
  return localizedString("We_are_phasing_out_phone_number_logins_Please_login_with_your_linked_account_below", "We are phasing out phone number logins. Please login with your linked account below.", std::nullopt, {});
}

std::string ZKStrings::We_are_reviewing_your_information_and_will_contact_you_if_additional_information_is_necessary() {
  return localizedString("We_are_reviewing_your_information_and_will_contact_you_if_additional_information_is_necessary", "We are reviewing your information and will contact you if additional information is necessary.", std::nullopt, {});
}

std::string ZKStrings::We_are_still_processing_your_Extra_Lives_Please_check_back_later(std::int64_t count) {
  return localizedString("We_are_still_processing_your_Extra_Lives_Please_check_back_later", "We are still processing your Extra Lives. Please check back later.", count, {});
}

std::string ZKStrings::We_are_still_processing_your_payment_Please_check_back_later() {
  return localizedString("We_are_still_processing_your_payment_Please_check_back_later", "We are still processing your payment. Please check back later.", std::nullopt, {});
}

std::string ZKStrings::We_have_updated_our_Privacy_Policy() {
  return localizedString("We_have_updated_our_Privacy_Policy", "We have updated our Privacy Policy", std::nullopt, {});
}

std::string ZKStrings::We_ll_send_a_push_notification_Don_t_be_late_or_you_ll_watch_only() {
  return localizedString("We_ll_send_a_push_notification_Don_t_be_late_or_you_ll_watch_only", "We'll send a push notification. Don't be late or you'll watch only.", std::nullopt, {});
}

std::string ZKStrings::We_re_having_trouble_connecting_Try_again_in_a_few() {
  return localizedString("We_re_having_trouble_connecting_Try_again_in_a_few", "We're having trouble connecting. Try again in a few?", std::nullopt, {});
}

std::string ZKStrings::We_re_sorry() {
  return localizedString("We_re_sorry", "We’re sorry!", std::nullopt, {});
}

std::string ZKStrings::We_review_all_submissions_but_don_t_make_any_promises_to_include_them_in_games_We_ll_let_you_know_if() {
  return localizedString("We_review_all_submissions_but_don_t_make_any_promises_to_include_them_in_games_We_ll_let_you_know_if", "We review all submissions but don't make any promises to include them in games. We'll let you know if we use yours.", std::nullopt, {});
}

std::string ZKStrings::We_started_the_game_without_you_You_can_watch_and_chat_only_Join_earlier_next_time_to_play_for_the_p() {
  return localizedString("We_started_the_game_without_you_You_can_watch_and_chat_only_Join_earlier_next_time_to_play_for_the_p", "We started the game without you. You can watch and chat only. Join earlier next time to play for the prize.", std::nullopt, {});
}

std::string ZKStrings::We_use_Location_to_show_you_nearby_players_and_allow_you_to_add_them_as_friends_on_ZK() {
  return localizedString("We_use_Location_to_show_you_nearby_players_and_allow_you_to_add_them_as_friends_on_ZK", "We use Location to show you nearby players and allow you to add them as friends on ZK", std::nullopt, {});
}

std::string ZKStrings::We_ve_updated_our_Privacy_Policy() {
  return localizedString("We_ve_updated_our_Privacy_Policy", "We've updated our Privacy Policy.", std::nullopt, {});
}

std::string ZKStrings::We_were_unable_to_delete_your_avatar_Please_try_again_later() {
  return localizedString("We_were_unable_to_delete_your_avatar_Please_try_again_later", "We were unable to delete your avatar. Please try again later.", std::nullopt, {});
}

std::string ZKStrings::We_were_unable_to_process_your_purchase_in_time_Your_Extra_Life_will_be_available_in_a_future_game() {
  return localizedString("We_were_unable_to_process_your_purchase_in_time_Your_Extra_Life_will_be_available_in_a_future_game", "We were unable to process your purchase in time. Your Extra Life will be available in a future game", std::nullopt, {});
}

std::string ZKStrings::We_were_unable_to_update_your_avatar_Please_try_again_later() {
  return localizedString("We_were_unable_to_update_your_avatar_Please_try_again_later", "We were unable to update your avatar. Please try again later.", std::nullopt, {});
}

std::string ZKStrings::We_were_unable_to_update_your_referral_code_Please_try_again_later() {
  return localizedString("We_were_unable_to_update_your_referral_code_Please_try_again_later", "We were unable to update your referral code. Please try again later.", std::nullopt, {});
}

std::string ZKStrings::We_were_unable_to_update_your_username_Please_try_again_later() {
  return localizedString("We_were_unable_to_update_your_username_Please_try_again_later", "We were unable to update your username. Please try again later.", std::nullopt, {});
}

std::string ZKStrings::Week() {
  return localizedString("Week", "Week", std::nullopt, {});
}

std::string ZKStrings::Weekly_rank() {
  return localizedString("Weekly_rank", "Weekly rank", std::nullopt, {});
}

std::string ZKStrings::Weeks() {
  return localizedString("Weeks", "Weeks", std::nullopt, {});
}

std::string ZKStrings::Welcome_back() {
  return localizedString("Welcome_back", "Welcome back.", std::nullopt, {});
}

std::string ZKStrings::Welcome_back_You_ve_been_eliminated_but_can_still_watch() {
  return localizedString("Welcome_back_You_ve_been_eliminated_but_can_still_watch", "*Welcome back.* You've been eliminated but can still watch.", std::nullopt, {});
}

std::string ZKStrings::Win_amount_now(Text amount) {
  return localizedString("Win_amount_now", "Win *%{amount}* now", std::nullopt, {{"amount", amount}});
}

std::string ZKStrings::Winner() {
  return localizedString("Winner", "Winner", std::nullopt, {});
}

std::string ZKStrings::Winner_Take_All() {
  return localizedString("Winner_Take_All", "Winner Take All", std::nullopt, {});
}

std::string ZKStrings::winnerCount_Winners(Text winnerCount, std::int64_t count) {
  return localizedString("winnerCount_Winners", "%{winnerCount} Winners!", count, {{"winnerCount", winnerCount}});
}

std::string ZKStrings::Winners() {
  return localizedString("Winners", "Winners", std::nullopt, {});
}

std::string ZKStrings::Wins() {
  return localizedString("Wins", "Wins", std::nullopt, {});
}

std::string ZKStrings::Withdrawn() {
  return localizedString("Withdrawn", "Withdrawn", std::nullopt, {});
}

std::string ZKStrings::Word_Search() {
  return localizedString("Word_Search", "Word Search", std::nullopt, {});
}

std::string ZKStrings::words_words_found(Text words) {
  return localizedString("words_words_found", "%{words} words found", std::nullopt, {{"words", words}});
}

std::string ZKStrings::Wrong_answer_Continue_playing_with_an_Extra_Life() {
  return localizedString("Wrong_answer_Continue_playing_with_an_Extra_Life", "Wrong answer? Continue playing with an Extra Life.", std::nullopt, {});
}

std::string ZKStrings::Wrong_answer_Continue_playing_with_an_Extra_Life_Extra_Lives_are_applied_automatically_and_once_per_() {
  return localizedString("Wrong_answer_Continue_playing_with_an_Extra_Life_Extra_Lives_are_applied_automatically_and_once_per_", "Wrong answer? Continue playing with an Extra Life. Extra Lives are applied automatically and once per game.", std::nullopt, {});
}

std::string ZKStrings::Wrong_answer_Keep_playing_with_an_Extra_Life_Get_one_every_time_a_new_ZK_user_signs_up_with_your_ref() {
  return localizedString("Wrong_answer_Keep_playing_with_an_Extra_Life_Get_one_every_time_a_new_ZK_user_signs_up_with_your_ref", "Wrong answer? Keep playing with an Extra Life. Get one every time a new ZK user signs up with your referral code and plays their first game. They can be used once per game, except on the last question.", std::nullopt, {});
}

std::string ZKStrings::Yay_You_played_days_days_in_a_row(Text days, std::int64_t count) {
  return localizedString("Yay_You_played_days_days_in_a_row", "Yay! You played %{days} days in a row!", count, {{"days", days}});
}

std::string ZKStrings::Year() {
  return localizedString("Year", "Year", std::nullopt, {});
}

std::string ZKStrings::Years() {
  return localizedString("Years", "Years", std::nullopt, {});
}

std::string ZKStrings::Yep() {
  return localizedString("Yep", "Yep!", std::nullopt, {});
}

std::string ZKStrings::Yes() {
  return localizedString("Yes", "Yes", std::nullopt, {});
}

std::string ZKStrings::You_and_your_friend_will_earn_an_Extra_Life() {
  return localizedString("You_and_your_friend_will_earn_an_Extra_Life", "You and your friend will earn an Extra Life", std::nullopt, {});
}

std::string ZKStrings::You_are_already_friends() {
  return localizedString("You_are_already_friends", "You are already friends.", std::nullopt, {});
}

std::string ZKStrings::You_are_unauthorized_to_cashout() {
  return localizedString("You_are_unauthorized_to_cashout", "You are unauthorized to cashout", std::nullopt, {});
}

std::string ZKStrings::You_can_t_win_the_cash_prize_but_get_pointsToGo_more_points_to_earn_an_Extra_Life(Text pointsToGo, std::int64_t count) {
  return localizedString("You_can_t_win_the_cash_prize_but_get_pointsToGo_more_points_to_earn_an_Extra_Life", "You can't win the cash prize, but get %{pointsToGo} more points to earn an Extra Life!", count, {{"pointsToGo", pointsToGo}});
}

std::string ZKStrings::You_can_use_your_purchased_ticket_for_the_next_game() {
  return localizedString("You_can_use_your_purchased_ticket_for_the_next_game", "You can use your purchased ticket for the next game.", std::nullopt, {});
}

std::string ZKStrings::You_didn_t_enter_a_number_yet() {
  return localizedString("You_didn_t_enter_a_number_yet", "You didn’t enter a number yet", std::nullopt, {});
}

std::string ZKStrings::You_do_not_meet_the_minimum_balance_to_cashout_Win_some_more_games() {
  return localizedString("You_do_not_meet_the_minimum_balance_to_cashout_Win_some_more_games", "You do not meet the minimum balance to cashout. Win some more games!", std::nullopt, {});
}

std::string ZKStrings::You_Earned() {
  return localizedString("You_Earned", "You Earned", std::nullopt, {});
}

std::string ZKStrings::You_earned_an_Eraser() {
  return localizedString("You_earned_an_Eraser", "You earned an Eraser!", std::nullopt, {});
}

std::string ZKStrings::You_earned_an_Eraser_by_playing_with_player1(Text player1) {
  return localizedString("You_earned_an_Eraser_by_playing_with_player1", "You earned an Eraser by playing with %{player1}!", std::nullopt, {{"player1", player1}});
}

std::string ZKStrings::You_earned_an_Eraser_by_playing_with_player1_and_player2(Text player1, Text player2) {
  return localizedString("You_earned_an_Eraser_by_playing_with_player1_and_player2", "You earned an Eraser by playing with %{player1} and %{player2}!", std::nullopt, {{"player1", player1}, {"player2", player2}});
}

std::string ZKStrings::You_earned_an_Eraser_by_playing_with_player1_player2_and_player3(Text player1, Text player2, Text player3) {
  return localizedString("You_earned_an_Eraser_by_playing_with_player1_player2_and_player3", "You earned an Eraser by playing with %{player1}, %{player2}, and %{player3}!", std::nullopt, {{"player1", player1}, {"player2", player2}, {"player3", player3}});
}

std::string ZKStrings::You_earned_an_Extra_Life() {
  return localizedString("You_earned_an_Extra_Life", "You earned an Extra Life!", std::nullopt, {});
}

std::string ZKStrings::You_found_an_Extra_Life() {
  return localizedString("You_found_an_Extra_Life", "You found an Extra Life!", std::nullopt, {});
}

std::string ZKStrings::You_got_a_box() {
  return localizedString("You_got_a_box", "You got a box!", std::nullopt, {});
}

std::string ZKStrings::You_got_a_product(Text product) {
  return localizedString("You_got_a_product", "You got a %{product}!", std::nullopt, {{"product", product}});
}

std::string ZKStrings::You_got_an_Extra_Life() {
  return localizedString("You_got_an_Extra_Life", "You got an Extra Life!", std::nullopt, {});
}

std::string ZKStrings::You_got_an_Extra_Life_from_ZK_️() {
  return localizedString("You_got_an_Extra_Life_from_ZK_️", "You got an Extra Life from ZK! ❤️", std::nullopt, {});
}

std::string ZKStrings::You_got_coinCount_coins(Text coinCount, std::int64_t count) {
  return localizedString("You_got_coinCount_coins", "You got %{coinCount} coins!", count, {{"coinCount", coinCount}});
}

std::string ZKStrings::You_got_dollarCount_dollars(Text dollarCount, std::int64_t count) {
  return localizedString("You_got_dollarCount_dollars", "You got %{dollarCount} dollars!", count, {{"dollarCount", dollarCount}});
}

std::string ZKStrings::You_got_lifeCount_Extra_Lives(Text lifeCount, std::int64_t count) {
  return localizedString("You_got_lifeCount_Extra_Lives", "You got %{lifeCount} Extra Lives!", count, {{"lifeCount", lifeCount}});
}

std::string ZKStrings::You_got_lifeCount_Extra_Lives_from_sender(Text lifeCount, Text sender, std::int64_t count) {
  return localizedString("You_got_lifeCount_Extra_Lives_from_sender", "You got %{lifeCount} Extra Lives from %{sender}!", count, {{"lifeCount", lifeCount}, {"sender", sender}});
}

std::string ZKStrings::You_got_number_products(Text number, Text products) {
  return localizedString("You_got_number_products", "You got %{number} %{products}!", std::nullopt, {{"number", number}, {"products", products}});
}

std::string ZKStrings::You_got_points_more_points(Text points) {
  return localizedString("You_got_points_more_points", "You got %{points} more points!", std::nullopt, {{"points", points}});
}

std::string ZKStrings::You_got_round_of_totalAnswers_correct(Text round, Text totalAnswers) {
  return localizedString("You_got_round_of_totalAnswers_correct", "You got %{round} of %{totalAnswers} correct!", std::nullopt, {{"round", round}, {"totalAnswers", totalAnswers}});
}

std::string ZKStrings::You_got_the_letter_letter(Text letter) {
  return localizedString("You_got_the_letter_letter", "You got the letter %{letter}!", std::nullopt, {{"letter", letter}});
}

std::string ZKStrings::You_got_the_letter_letter_and_extraLifeCount_extra_lives(Text letter, Text extraLifeCount, std::int64_t count) {
  return localizedString("You_got_the_letter_letter_and_extraLifeCount_extra_lives", "You got the letter %{letter} and %{extraLifeCount} extra lives!", count, {{"letter", letter}, {"extraLifeCount", extraLifeCount}});
}

std::string ZKStrings::You_got_the_letters_letters(Text letters, std::int64_t count) {
  return localizedString("You_got_the_letters_letters", "You got the letters %{letters}!", count, {{"letters", letters}});
}

std::string ZKStrings::You_got_the_n_product(Text product) {
  return localizedString("You_got_the_n_product", "You got the\n%{product}!", std::nullopt, {{"product", product}});
}

std::string ZKStrings::You_got_to_Level_level(Text level) {
  return localizedString("You_got_to_Level_level", "You got to Level %{level}", std::nullopt, {{"level", level}});
}

std::string ZKStrings::You_have_0_Extra_Lives_nBuy_some_to_help_you_win(std::int64_t count) {
  return localizedString("You_have_0_Extra_Lives_nBuy_some_to_help_you_win", "*You have 0 Extra Lives*\nBuy some to help you win!", count, {});
}

std::string ZKStrings::You_have_already_applied_a_referral_code_You_may_only_do_this_once() {
  return localizedString("You_have_already_applied_a_referral_code_You_may_only_do_this_once", "You have already applied a referral code. You may only do this once.", std::nullopt, {});
}

std::string ZKStrings::You_have_an_Extra_Life() {
  return localizedString("You_have_an_Extra_Life", "You have an Extra Life!", std::nullopt, {});
}

std::string ZKStrings::You_have_been_removed_from_the_game_for_a_violation_of_ZK_s_Terms_of_Service_and_Contest_Rules() {
  return localizedString("You_have_been_removed_from_the_game_for_a_violation_of_ZK_s_Terms_of_Service_and_Contest_Rules", "You have been removed from the game for a violation of ZK’s Terms of Service and Contest Rules.", std::nullopt, {});
}

std::string ZKStrings::You_have_extraLifeCount_Extra_Lives(Text extraLifeCount, std::int64_t count) {
  return localizedString("You_have_extraLifeCount_Extra_Lives", "You have %{extraLifeCount} Extra Lives!", count, {{"extraLifeCount", extraLifeCount}});
}

std::string ZKStrings::You_have_reached_the_maximum_number_of_Friends_We_are_working_to_increase_this_limit_soon() {
  return localizedString("You_have_reached_the_maximum_number_of_Friends_We_are_working_to_increase_this_limit_soon", "You have reached the maximum number of Friends. We are working to increase this limit soon.", std::nullopt, {});
}

std::string ZKStrings::You_leveled_up_to_Level_level(Text level) {
  return localizedString("You_leveled_up_to_Level_level", "You leveled up to Level %{level}", std::nullopt, {{"level", level}});
}

std::string ZKStrings::You_ll_receive_an_email_with_further_instructions() {
  return localizedString("You_ll_receive_an_email_with_further_instructions", "You'll receive an email with further instructions.", std::nullopt, {});
}

std::string ZKStrings::You_must_be_signed_in_to_access_this_feature() {
  return localizedString("You_must_be_signed_in_to_access_this_feature", "You must be signed in to access this feature", std::nullopt, {});
}

std::string ZKStrings::You_must_keep_at_least_one_social_account_linked_to_play_ZK() {
  return localizedString("You_must_keep_at_least_one_social_account_linked_to_play_ZK", "You must keep at least one social account linked to play ZK.", std::nullopt, {});
}

std::string ZKStrings::You_must_wait_a_short_period_between_phone_verification_requests() {
  return localizedString("You_must_wait_a_short_period_between_phone_verification_requests", "You must wait a short period between phone verification requests", std::nullopt, {});
}

std::string ZKStrings::You_must_wait_a_short_period_between_verification_code_requests() {
  return localizedString("You_must_wait_a_short_period_between_verification_code_requests", "You must wait a short period between verification code requests", std::nullopt, {});
}

std::string ZKStrings::You_need_more_Coins_to_buy_that_Power_Up() {
  return localizedString("You_need_more_Coins_to_buy_that_Power_Up", "You need more Coins to buy that Power Up", std::nullopt, {});
}

std::string ZKStrings::You_ran_out_of_time() {
  return localizedString("You_ran_out_of_time", "You ran out of time!", std::nullopt, {});
}

std::string ZKStrings::You_re_back_in_the_game_No_one_was_correct() {
  return localizedString("You_re_back_in_the_game_No_one_was_correct", "*You’re back in the game!* No one was correct.", std::nullopt, {});
}

std::string ZKStrings::You_re_eliminated() {
  return localizedString("You_re_eliminated", "You're eliminated.", std::nullopt, {});
}

std::string ZKStrings::You_re_Incorrect() {
  return localizedString("You_re_Incorrect", "You're Incorrect!", std::nullopt, {});
}

std::string ZKStrings::You_re_late() {
  return localizedString("You_re_late", "You're late.", std::nullopt, {});
}

std::string ZKStrings::You_re_late_We_started_the_game_but_you_can_still_watch() {
  return localizedString("You_re_late_We_started_the_game_but_you_can_still_watch", "*You're late.* We started the game but you can still watch.", std::nullopt, {});
}

std::string ZKStrings::You_re_out_of_the_cash_game_but_you_can_keep_playing_for_other_rewards() {
  return localizedString("You_re_out_of_the_cash_game_but_you_can_keep_playing_for_other_rewards", "You're out of the cash game, but you can keep playing for other rewards.", std::nullopt, {});
}

std::string ZKStrings::You_re_too_late() {
  return localizedString("You_re_too_late", "You're too late", std::nullopt, {});
}

std::string ZKStrings::You_re_too_late_to_win_the_cash_prize_but_can_still_play_for_points_to_earn_an_Extra_Life() {
  return localizedString("You_re_too_late_to_win_the_cash_prize_but_can_still_play_for_points_to_earn_an_Extra_Life", "You're too late to win the cash prize, but can still play for points to earn an Extra Life!", std::nullopt, {});
}

std::string ZKStrings::You_re_using_an_Eraser() {
  return localizedString("You_re_using_an_Eraser", "You're using an *Eraser*", std::nullopt, {});
}

std::string ZKStrings::You_reached_Q_reached_and_got_correctCount_of_totalCount_Qs_correct(Text reached, Text correctCount, Text totalCount) {
  return localizedString("You_reached_Q_reached_and_got_correctCount_of_totalCount_Qs_correct", "You reached Q%{reached} and got %{correctCount} of %{totalCount} Qs correct.", std::nullopt, {{"reached", reached}, {"correctCount", correctCount}, {"totalCount", totalCount}});
}

std::string ZKStrings::You_successfully_linked_your_provider_account(Text provider) {
  return localizedString("You_successfully_linked_your_provider_account", "You successfully linked your %{provider} account.", std::nullopt, {{"provider", provider}});
}

std::string ZKStrings::You_unlocked_badgeCount_Badges(Text badgeCount, std::int64_t count) {
  return localizedString("You_unlocked_badgeCount_Badges", "You unlocked %{badgeCount} Badges", count, {{"badgeCount", badgeCount}});
}

std::string ZKStrings::You_ve_been_eliminated_from_the_game_You_can_watch_and_chat_only() {
  return localizedString("You_ve_been_eliminated_from_the_game_You_can_watch_and_chat_only", "You've been eliminated from the game. You can watch and chat only.", std::nullopt, {});
}

std::string ZKStrings::You_ve_been_kicked() {
  return localizedString("You_ve_been_kicked", "You've been kicked", std::nullopt, {});
}

std::string ZKStrings::You_ve_entered_to_win_the_VIP_Prize() {
  return localizedString("You_ve_entered_to_win_the_VIP_Prize", "*You've entered to win the VIP Prize!*", std::nullopt, {});
}

std::string ZKStrings::You_ve_got_a_bunch_of_letters() {
  return localizedString("You_ve_got_a_bunch_of_letters", "You've got a bunch of letters!", std::nullopt, {});
}

std::string ZKStrings::You_ve_got_the_letter_firstLetter(Text firstLetter) {
  return localizedString("You_ve_got_the_letter_firstLetter", "You've got the letter %{firstLetter}!", std::nullopt, {{"firstLetter", firstLetter}});
}

std::string ZKStrings::You_ve_got_the_letters_firstLetter_and_secondLetter(Text firstLetter, Text secondLetter) {
  return localizedString("You_ve_got_the_letters_firstLetter_and_secondLetter", "You've got the letters %{firstLetter} and %{secondLetter}!", std::nullopt, {{"firstLetter", firstLetter}, {"secondLetter", secondLetter}});
}

std::string ZKStrings::You_ve_got_the_letters_firstLetter_secondLetter_and_thirdLetter(Text firstLetter, Text secondLetter, Text thirdLetter) {
  return localizedString("You_ve_got_the_letters_firstLetter_secondLetter_and_thirdLetter", "You've got the letters %{firstLetter}, %{secondLetter}, and %{thirdLetter}!", std::nullopt, {{"firstLetter", firstLetter}, {"secondLetter", secondLetter}, {"thirdLetter", thirdLetter}});
}

std::string ZKStrings::You_ve_got_the_letters_firstLetter_secondLetter_thirdLetter_and_fourthLetter(Text firstLetter, Text secondLetter, Text thirdLetter, Text fourthLetter) {
  return localizedString("You_ve_got_the_letters_firstLetter_secondLetter_thirdLetter_and_fourthLetter", "You've got the letters %{firstLetter}, %{secondLetter}, %{thirdLetter}, and %{fourthLetter}!", std::nullopt, {{"firstLetter", firstLetter}, {"secondLetter", secondLetter}, {"thirdLetter", thirdLetter}, {"fourthLetter", fourthLetter}});
}

std::string ZKStrings::You_ve_got_the_letters_firstLetter_secondLetter_thirdLetter_fourthLetter_and_fifthLetter(Text firstLetter, Text secondLetter, Text thirdLetter, Text fourthLetter, Text fifthLetter) {
  return localizedString("You_ve_got_the_letters_firstLetter_secondLetter_thirdLetter_fourthLetter_and_fifthLetter", "You've got the letters %{firstLetter}, %{secondLetter}, %{thirdLetter}, %{fourthLetter}, and %{fifthLetter}!", std::nullopt, {{"firstLetter", firstLetter}, {"secondLetter", secondLetter}, {"thirdLetter", thirdLetter}, {"fourthLetter", fourthLetter}, {"fifthLetter", fifthLetter}});
}

std::string ZKStrings::You_ve_violated_the_terms_of_service_so_you_will_not_be_able_to_cash_out_If_you_think_this_may_be_a_() {
  return localizedString("You_ve_violated_the_terms_of_service_so_you_will_not_be_able_to_cash_out_If_you_think_this_may_be_a_", "You’ve violated the terms of service so you will not be able to cash out. If you think this may be a mistake, please contact support. Learn more", std::nullopt, {});
}

std::string ZKStrings::You_will_receive_an_email_with_further_instructions_shortly() {
  return localizedString("You_will_receive_an_email_with_further_instructions_shortly", "You will receive an email with further instructions shortly.", std::nullopt, {});
}

std::string ZKStrings::You_won() {
  return localizedString("You_won", "You won!", std::nullopt, {});
}

std::string ZKStrings::You_won_level_points(Text level) {
  return localizedString("You_won_level_points", "You won %{level} points!", std::nullopt, {{"level", level}});
}

std::string ZKStrings::You_won_the_nVIP_Prize() {
  return localizedString("You_won_the_nVIP_Prize", "You won the\nVIP Prize!", std::nullopt, {});
}

std::string ZKStrings::Your_account_already_exists() {
  return localizedString("Your_account_already_exists", "Your account already exists", std::nullopt, {});
}

std::string ZKStrings::Your_answer_could_not_be_accepted_due_to_connectivity_issues() {
  return localizedString("Your_answer_could_not_be_accepted_due_to_connectivity_issues", "Your answer could not be accepted due to connectivity issues.", std::nullopt, {});
}

std::string ZKStrings::Your_available_balance_may_be_lower_because_a_show_you_won_is_currently_in_review_Learn_more() {
  return localizedString("Your_available_balance_may_be_lower_because_a_show_you_won_is_currently_in_review_Learn_more", "Your available balance may be lower because a show you won is currently in review. Learn more", std::nullopt, {});
}

std::string ZKStrings::Your_available_balance_may_be_lower_because_a_show_you_won_is_currently_in_review_learnMore(Text learnMore) {
  return localizedString("Your_available_balance_may_be_lower_because_a_show_you_won_is_currently_in_review_learnMore", "Your available balance may be lower because a show you won is currently in review. %{learnMore}", std::nullopt, {{"learnMore", learnMore}});
}

std::string ZKStrings::Your_Balance() {
  return localizedString("Your_Balance", "Your Balance", std::nullopt, {});
}

std::string ZKStrings::Your_code_has_expired_We_will_try_to_send_you_a_new_one() {
  return localizedString("Your_code_has_expired_We_will_try_to_send_you_a_new_one", "Your code has expired. We will try to send you a new one.", std::nullopt, {});
}

std::string ZKStrings::Your_code_was_invalid() {
  return localizedString("Your_code_was_invalid", "Your code was invalid", std::nullopt, {});
}

std::string ZKStrings::Your_country_code() {
  return localizedString("Your_country_code", "Your country code", std::nullopt, {});
}

std::string ZKStrings::Your_detailed_feedback_helps_us_make_ZK_Trivia_better() {
  return localizedString("Your_detailed_feedback_helps_us_make_ZK_Trivia_better", "Your detailed feedback helps us make ZK Trivia better.", std::nullopt, {});
}

std::string ZKStrings::Your_Extra_Lives_are_on_the_way(std::int64_t count) {
  return localizedString("Your_Extra_Lives_are_on_the_way", "Your Extra Lives are on the way", count, {});
}

std::string ZKStrings::Your_forms_have_been_received() {
  return localizedString("Your_forms_have_been_received", "Your forms have been received", std::nullopt, {});
}

std::string ZKStrings::Your_friend_has_reached_the_maximum_number_of_Friend_Requests_We_are_working_to_increase_this_limit_() {
  return localizedString("Your_friend_has_reached_the_maximum_number_of_Friend_Requests_We_are_working_to_increase_this_limit_", "Your friend has reached the maximum number of Friend Requests. We are working to increase this limit soon.", std::nullopt, {});
}

std::string ZKStrings::Your_friend_has_reached_the_maximum_number_of_Friends_We_are_working_to_increase_this_limit_soon() {
  return localizedString("Your_friend_has_reached_the_maximum_number_of_Friends_We_are_working_to_increase_this_limit_soon", "Your friend has reached the maximum number of Friends. We are working to increase this limit soon.", std::nullopt, {});
}

std::string ZKStrings::Your_In_App_Purchase_is_on_the_way() {
  return localizedString("Your_In_App_Purchase_is_on_the_way", "Your In App Purchase is on the way!", std::nullopt, {});
}

std::string ZKStrings::Your_location_is_required_to_participate() {
  return localizedString("Your_location_is_required_to_participate", "Your location is required to participate.", std::nullopt, {});
}

std::string ZKStrings::Your_money_will_be_there_in_just_a_bit() {
  return localizedString("Your_money_will_be_there_in_just_a_bit", "Your money will be there in just a bit.", std::nullopt, {});
}

std::string ZKStrings::Your_phone() {
  return localizedString("Your_phone", "Your phone", std::nullopt, {});
}

std::string ZKStrings::Your_phone_number() {
  return localizedString("Your_phone_number", "Your phone number", std::nullopt, {});
}

std::string ZKStrings::Your_phone_number_is_invalid() {
  return localizedString("Your_phone_number_is_invalid", "Your phone number is invalid", std::nullopt, {});
}

std::string ZKStrings::Your_profile() {
  return localizedString("Your_profile", "Your profile", std::nullopt, {});
}

std::string ZKStrings::Your_purchase_was_not_processed_in_time_Your_Extra_Life_can_be_used_in_a_future_game_and_an_addition() {
  return localizedString("Your_purchase_was_not_processed_in_time_Your_Extra_Life_can_be_used_in_a_future_game_and_an_addition", "Your purchase was not processed in time. Your Extra Life can be used in a future game, and an additional free Extra Life has been added to your account.", std::nullopt, {});
}

std::string ZKStrings::Your_purchase_was_successful() {
  return localizedString("Your_purchase_was_successful", "Your purchase was successful!", std::nullopt, {});
}

std::string ZKStrings::Your_question_has_been_submitted() {
  return localizedString("Your_question_has_been_submitted", "Your question has been submitted.", std::nullopt, {});
}

std::string ZKStrings::Your_rating_percent(Text percent) {
  return localizedString("Your_rating_percent", "Your rating: %{percent}%", std::nullopt, {{"percent", percent}});
}

std::string ZKStrings::Your_referral_can_t_be_processed_due_to_a_possible_violation_of_the_Terms_of_Use_Please_contact_help() {
  return localizedString("Your_referral_can_t_be_processed_due_to_a_possible_violation_of_the_Terms_of_Use_Please_contact_help", "Your referral can't be processed due to a possible violation of the Terms of Use. Please contact help at support@zktrivia.example if you have any questions.", std::nullopt, {});
}

std::string ZKStrings::Your_referral_code() {
  return localizedString("Your_referral_code", "Your referral code", std::nullopt, {});
}

std::string ZKStrings::Your_referral_code_can_t_be_the_same_as_your_username() {
  return localizedString("Your_referral_code_can_t_be_the_same_as_your_username", "Your referral code can't be the same as your username", std::nullopt, {});
}

std::string ZKStrings::Your_request_to_cash_out_amount_has_been_submitted(Text amount) {
  return localizedString("Your_request_to_cash_out_amount_has_been_submitted", "Your request to cash out %{amount} has been submitted", std::nullopt, {{"amount", amount}});
}

std::string ZKStrings::Your_Results() {
  return localizedString("Your_Results", "Your Results", std::nullopt, {});
}

std::string ZKStrings::Your_username_can_t_be_empty() {
  return localizedString("Your_username_can_t_be_empty", "Your username can't be empty.", std::nullopt, {});
}

std::string ZKStrings::Your_username_can_t_contain_symbols() {
  return localizedString("Your_username_can_t_contain_symbols", "Your username can't contain symbols.", std::nullopt, {});
}

std::string ZKStrings::Your_username_must_be_at_least_3_characters() {
  return localizedString("Your_username_must_be_at_least_3_characters", "Your username must be at least 3 characters", std::nullopt, {});
}

std::string ZKStrings::Your_verification_code() {
  return localizedString("Your_verification_code", "Your verification code", std::nullopt, {});
}

}  // namespace zk
