// Generated from catalogue/entries.json by `zkstrings generate`. Do not edit: change the catalogue instead.
// clang-format off

#include <ZKStrings/catalogue/ZKStrings.h>

#include <ZKStrings/engine/EntryText.h>

namespace zk {

std::string ZKStrings::_1st() {
  return entryText("_1st", "1st");
}

std::string ZKStrings::_2nd() {
  return entryText("_2nd", "2nd");
}

std::string ZKStrings::_3rd() {
  return entryText("_3rd", "3rd");
}

std::string ZKStrings::A_cashout_request_has_already_been_submitted() {
  return entryText("A_cashout_request_has_already_been_submitted", "A cashout request has already been submitted.");
}

std::string ZKStrings::A_phone_number_is_required() {
  return entryText("A_phone_number_is_required", "A phone number is required");
}

std::string ZKStrings::A_valid_country_is_required() {
  return entryText("A_valid_country_is_required", "A valid country is required");
}

std::string ZKStrings::A_valid_PayPal_email_address_is_required() {
  return entryText("A_valid_PayPal_email_address_is_required", "A valid PayPal email address is required");
}

std::string ZKStrings::About() {
  return entryText("About", "About");
}

std::string ZKStrings::Accept() {
  return entryText("Accept", "Accept");
}

std::string ZKStrings::Accept_friend() {
  return entryText("Accept_friend", "Accept friend");
}

std::string ZKStrings::Account() {
  return entryText("Account", "Account");
}

std::string ZKStrings::active_limit_players(Text active, Text limit) {
  return entryText("active_limit_players", "%{active}/%{limit} players", {{"active", active}, {"limit", limit}});
}

std::string ZKStrings::Add() {
  return entryText("Add", "Add");
}

std::string ZKStrings::Add_friend() {
  return entryText("Add_friend", "Add friend");
}

std::string ZKStrings::Add_Friends_on_ZK() {
  return entryText("Add_Friends_on_ZK", "Add Friends on ZK");
}

std::string ZKStrings::Add_people_you_know() {
  return entryText("Add_people_you_know", "Add people you know");
}

std::string ZKStrings::Agree_and_Continue() {
  return entryText("Agree_and_Continue", "Agree and Continue");
}

std::string ZKStrings::Airing_Soon() {
  return entryText("Airing_Soon", "Airing Soon");
}

std::string ZKStrings::All_shows_have_been_reviewed_You_re_all_set_for_cashing_out_Learn_more() {
  return entryText("All_shows_have_been_reviewed_You_re_all_set_for_cashing_out_Learn_more", "All shows have been reviewed! You’re all set for cashing out. Learn more");
}

std::string ZKStrings::All_time() {
  return entryText("All_time", "All time");
}

std::string ZKStrings::Allow_ZK_access_to_your_camera_so_you_can_take_photos_during_the_game() {
  return entryText("Allow_ZK_access_to_your_camera_so_you_can_take_photos_during_the_game", "Allow ZK access to your camera so you can take photos during the game.");
}

std::string ZKStrings::Already_submitted() {
  return entryText("Already_submitted", "Already submitted");
}

std::string ZKStrings::An_error_occurred_while_accepting_request() {
  return entryText("An_error_occurred_while_accepting_request", "An error occurred while accepting request.");
}

std::string ZKStrings::An_error_occurred_while_blocking_user() {
  return entryText("An_error_occurred_while_blocking_user", "An error occurred while blocking user.");
}

std::string ZKStrings::An_error_occurred_while_cancelling_request() {
  return entryText("An_error_occurred_while_cancelling_request", "An error occurred while cancelling request.");
}

std::string ZKStrings::An_error_occurred_while_retrieving_user() {
  return entryText("An_error_occurred_while_retrieving_user", "An error occurred while retrieving user.");
}

std::string ZKStrings::An_error_occurred_while_retrieving_your_profile() {
  return entryText("An_error_occurred_while_retrieving_your_profile", "An error occurred while retrieving your profile.");
}

std::string ZKStrings::An_error_occurred_while_sending_friend_request_to_user() {
  return entryText("An_error_occurred_while_sending_friend_request_to_user", "An error occurred while sending friend request to user.");
}

std::string ZKStrings::An_error_occurred_while_unfriending_user() {
  return entryText("An_error_occurred_while_unfriending_user", "An error occurred while unfriending user.");
}

std::string ZKStrings::An_update_to_the_latest_version_of_the_app_is_required() {
  return entryText("An_update_to_the_latest_version_of_the_app_is_required", "An update to the latest version of the app is required");
}

std::string ZKStrings::and_b_Rules_b() {
  return entryText("and_b_Rules_b", "and <b>Rules</b>");
}

std::string ZKStrings::Answer_questions_think_fast() {
  return entryText("Answer_questions_think_fast", "Answer questions, think fast");
}

std::string ZKStrings::Answer_trivia_questions_to_win_rewards() {
  return entryText("Answer_trivia_questions_to_win_rewards", "Answer trivia questions to win rewards!");
}

std::string ZKStrings::Apple() {
  return entryText("Apple", "Apple");
}

std::string ZKStrings::Apply_referral_code() {
  return entryText("Apply_referral_code", "Apply referral code");
}

std::string ZKStrings::Approved() {
  return entryText("Approved", "Approved");
}

std::string ZKStrings::Are_you_sure_you_want_to_block_username(Text username) {
  return entryText("Are_you_sure_you_want_to_block_username", "Are you sure you want to block %{username}?", {{"username", username}});
}

std::string ZKStrings::Are_you_sure_you_want_to_cashout_to_PayPal_account_email(Text email) {
  return entryText("Are_you_sure_you_want_to_cashout_to_PayPal_account_email", "Are you sure you want to cashout to PayPal account %{email}?", {{"email", email}});
}

std::string ZKStrings::Are_you_sure_you_want_to_kick_username(Text username) {
  return entryText("Are_you_sure_you_want_to_kick_username", "Are you sure you want to kick %{username}?", {{"username", username}});
}

std::string ZKStrings::Are_you_sure_you_want_to_leave_the_game() {
  return entryText("Are_you_sure_you_want_to_leave_the_game", "Are you sure you want to leave the game?");
}

std::string ZKStrings::Are_you_sure_you_want_to_logout() {
  return entryText("Are_you_sure_you_want_to_logout", "Are you sure you want to logout?");
}

std::string ZKStrings::Art_Design() {
  return entryText("Art_Design", "Art & Design");
}

std::string ZKStrings::Available() {
  return entryText("Available", "Available");
}

std::string ZKStrings::Available_Balance() {
  return entryText("Available_Balance", "Available Balance");
}

std::string ZKStrings::b_Back_in_the_game_b_You_used_an_Extra_Life() {
  return entryText("b_Back_in_the_game_b_You_used_an_Extra_Life", "<b>Back in the game!</b> You used an Extra Life.");
}

std::string ZKStrings::b_Error_loading_schedule_b() {
  return entryText("b_Error_loading_schedule_b", "<b>Error loading schedule</b>");
}

std::string ZKStrings::b_Game_now_live_b() {
  return entryText("b_Game_now_live_b", "<b>Game now live</b>");
}

std::string ZKStrings::b_No_games_scheduled_b() {
  return entryText("b_No_games_scheduled_b", "<b>No games scheduled</b>");
}

std::string ZKStrings::b_Privacy_Policy_b() {
  return entryText("b_Privacy_Policy_b", "<b>Privacy Policy</b>,");
}

std::string ZKStrings::b_Terms_of_Service_b() {
  return entryText("b_Terms_of_Service_b", "<b>Terms of Service</b>,");
}

std::string ZKStrings::b_Terms_of_Use_b() {
  return entryText("b_Terms_of_Use_b", "<b>Terms of Use</b>,");
}

std::string ZKStrings::Back_in_the_game() {
  return entryText("Back_in_the_game", "Back in the game!");
}

std::string ZKStrings::Back_in_the_game_You_used_an_Extra_Life() {
  return entryText("Back_in_the_game_You_used_an_Extra_Life", "Back in the game! You used an Extra Life.");
}

std::string ZKStrings::Badge_unlocked() {
  return entryText("Badge_unlocked", "Badge unlocked!");
}

std::string ZKStrings::badgeCount_Badges(Text badgeCount, std::int64_t count) {
  return entryText("badgeCount_Badges", "%{badgeCount} Badges", count, {{"badgeCount", badgeCount}});
}

std::string ZKStrings::badgeCount_Badges_unlocked(Text badgeCount) {
  return entryText("badgeCount_Badges_unlocked", "%{badgeCount} Badges unlocked!", {{"badgeCount", badgeCount}});
}

std::string ZKStrings::badgeName_Level_level(Text badgeName, Text level) {
  return entryText("badgeName_Level_level", "%{badgeName} Level %{level}", {{"badgeName", badgeName}, {"level", level}});
}

std::string ZKStrings::Badges() {
  return entryText("Badges", "Badges");
}

std::string ZKStrings::Badges_in_this_set() {
  return entryText("Badges_in_this_set", "Badges in this set");
}

std::string ZKStrings::Balance() {
  return entryText("Balance", "Balance");
}

std::string ZKStrings::Balance_In_Review() {
  return entryText("Balance_In_Review", "Balance In Review");
}

std::string ZKStrings::Be_prepared_Buy_Extra_Lives_before_the_game_begins() {
  return entryText("Be_prepared_Buy_Extra_Lives_before_the_game_begins", "Be prepared! Buy Extra Lives before the game begins.");
}

std::string ZKStrings::Be_prepared_Buy_Extra_Lives_for_this_game_to_help_you_win() {
  return entryText("Be_prepared_Buy_Extra_Lives_for_this_game_to_help_you_win", "Be prepared! Buy Extra Lives for this game to help you win.");
}

std::string ZKStrings::Be_prepared_Buy_more_Extra_Lives_to_help_you_win() {
  return entryText("Be_prepared_Buy_more_Extra_Lives_to_help_you_win", "Be prepared! Buy more Extra Lives to help you win.");
}

std::string ZKStrings::Beta() {
  return entryText("Beta", "Beta");
}

std::string ZKStrings::Block() {
  return entryText("Block", "Block");
}

std::string ZKStrings::Block_user() {
  return entryText("Block_user", "Block user");
}

std::string ZKStrings::Bonus() {
  return entryText("Bonus", "Bonus:");
}

std::string ZKStrings::bonusStrikeCount_Bonus_Strikes(Text bonusStrikeCount, std::int64_t count) {
  return entryText("bonusStrikeCount_Bonus_Strikes", "%{bonusStrikeCount} Bonus Strikes", count, {{"bonusStrikeCount", bonusStrikeCount}});
}

std::string ZKStrings::Boost() {
  return entryText("Boost", "Boost");
}

std::string ZKStrings::Boosted() {
  return entryText("Boosted", "Boosted");
}

std::string ZKStrings::Bundle() {
  return entryText("Bundle", "Bundle");
}

std::string ZKStrings::Business() {
  return entryText("Business", "Business");
}

std::string ZKStrings::Buy() {
  return entryText("Buy", "Buy");
}

std::string ZKStrings::Buy_More_Coins() {
  return entryText("Buy_More_Coins", "Buy More Coins");
}

std::string ZKStrings::By_continuing_you_agree_to_the_terms_and_pp(Text terms, Text pp) {
  return entryText("By_continuing_you_agree_to_the_terms_and_pp", "By continuing, you agree to the %{terms} and %{pp}.", {{"terms", terms}, {"pp", pp}});
}

std::string ZKStrings::By_entering_you_agree_to_the_competition(Text competition) {
  return entryText("By_entering_you_agree_to_the_competition", "By entering you agree to the %{competition}", {{"competition", competition}});
}

std::string ZKStrings::By_signing_up_you_agree_to_the() {
  return entryText("By_signing_up_you_agree_to_the", "By signing up you agree to the");
}

std::string ZKStrings::By_signing_up_you_agree_to_the_n_terms_privacy_and_rules(Text terms, Text privacy, Text rules) {
  return entryText("By_signing_up_you_agree_to_the_n_terms_privacy_and_rules", "By signing up you agree to the\n %{terms}, %{privacy}, and %{rules}", {{"terms", terms}, {"privacy", privacy}, {"rules", rules}});
}

std::string ZKStrings::By_signing_up_you_agree_to_the_terms_privacy_and_rules(Text terms, Text privacy, Text rules) {
  return entryText("By_signing_up_you_agree_to_the_terms_privacy_and_rules", "By signing up you agree to the %{terms}, %{privacy}, and %{rules}", {{"terms", terms}, {"privacy", privacy}, {"rules", rules}});
}

std::string ZKStrings::By_tapping_Agree_and_continue_you_agree_to_the_terms_privacy_and_rules(Text terms, Text privacy, Text rules) {
  return entryText("By_tapping_Agree_and_continue_you_agree_to_the_terms_privacy_and_rules", "By tapping Agree and continue you agree to the %{terms}, %{privacy}, and %{rules}", {{"terms", terms}, {"privacy", privacy}, {"rules", rules}});
}

std::string ZKStrings::By_tapping_Get_Started_an_SMS_may_be_sent_Message_data_rates_may_apply() {
  return entryText("By_tapping_Get_Started_an_SMS_may_be_sent_Message_data_rates_may_apply", "By tapping Get Started, an SMS may be sent. Message & data rates may apply.");
}

std::string ZKStrings::By_tapping_Next_an_SMS_may_be_sent_Message_data_rates_may_apply() {
  return entryText("By_tapping_Next_an_SMS_may_be_sent_Message_data_rates_may_apply", "By tapping Next, an SMS may be sent. Message & data rates may apply.");
}

std::string ZKStrings::Calculating_rewards() {
  return entryText("Calculating_rewards", "Calculating rewards");
}

std::string ZKStrings::Call_me() {
  return entryText("Call_me", "Call me");
}

std::string ZKStrings::Camera_Access_Disabled() {
  return entryText("Camera_Access_Disabled", "Camera Access Disabled");
}

std::string ZKStrings::Can_retry_in_seconds(Text seconds) {
  return entryText("Can_retry_in_seconds", "Can retry in %{seconds}", {{"seconds", seconds}});
}

std::string ZKStrings::Can_t_Cashout() {
  return entryText("Can_t_Cashout", "Can't Cashout");
}

std::string ZKStrings::Cancel() {
  return entryText("Cancel", "Cancel");
}

std::string ZKStrings::Cashout() {
  return entryText("Cashout", "Cashout");
}

std::string ZKStrings::Cashout_amount(Text amount) {
  return entryText("Cashout_amount", "Cashout %{amount}", {{"amount", amount}});
}

std::string ZKStrings::Cashout_Complete() {
  return entryText("Cashout_Complete", "Cashout Complete");
}

std::string ZKStrings::Cashout_Currently_Disabled() {
  return entryText("Cashout_Currently_Disabled", "Cashout Currently Disabled");
}

std::string ZKStrings::Cashout_for_one_or_more_shows_that_you_have_won_is_temporarily_disabled_Please_try_again_later() {
  return entryText("Cashout_for_one_or_more_shows_that_you_have_won_is_temporarily_disabled_Please_try_again_later", "Cashout for one or more shows that you have won is temporarily disabled. Please try again later.");
}

std::string ZKStrings::Cashout_with_PayPal() {
  return entryText("Cashout_with_PayPal", "Cashout with PayPal");
}

std::string ZKStrings::Cashouts_are_currently_disabled_Please_try_again_later() {
  return entryText("Cashouts_are_currently_disabled_Please_try_again_later", "Cashouts are currently disabled. Please try again later.");
}

std::string ZKStrings::Cashouts_are_disabled() {
  return entryText("Cashouts_are_disabled", "Cashouts are disabled");
}

std::string ZKStrings::Cashouts_to_PayPal_are_temporarily_disabled_Please_contact_customer_support() {
  return entryText("Cashouts_to_PayPal_are_temporarily_disabled_Please_contact_customer_support", "Cashouts to PayPal are temporarily disabled. Please contact customer support.");
}

std::string ZKStrings::Categories() {
  return entryText("Categories", "Categories");
}

std::string ZKStrings::Category() {
  return entryText("Category", "Category");
}

std::string ZKStrings::Change_username() {
  return entryText("Change_username", "Change username");
}

std::string ZKStrings::Charity_donations_are_temporarily_disabled_Please_contact_customer_support() {
  return entryText("Charity_donations_are_temporarily_disabled_Please_contact_customer_support", "Charity donations are temporarily disabled. Please contact customer support.");
}

std::string ZKStrings::Choose_from_camera_roll() {
  return entryText("Choose_from_camera_roll", "Choose from camera roll");
}

std::string ZKStrings::Choose_from_Photos() {
  return entryText("Choose_from_Photos", "Choose from Photos");
}

std::string ZKStrings::Choose_the_show_you_heard_about_and_enter_your_friend_s_referral_code_to_earn_a_reward() {
  return entryText("Choose_the_show_you_heard_about_and_enter_your_friend_s_referral_code_to_earn_a_reward", "Choose the show you heard about and enter your friend’s referral code to earn a reward");
}

std::string ZKStrings::Chosen_username_already_exists() {
  return entryText("Chosen_username_already_exists", "Chosen username already exists");
}

std::string ZKStrings::Close() {
  return entryText("Close", "Close");
}

std::string ZKStrings::Code() {
  return entryText("Code", "Code");
}

std::string ZKStrings::Code_sent_Retry_in_seconds(Text seconds) {
  return entryText("Code_sent_Retry_in_seconds", "Code sent. Retry in %{seconds}", {{"seconds", seconds}});
}

std::string ZKStrings::Coins() {
  return entryText("Coins", "Coins");
}

std::string ZKStrings::Coins(std::int64_t count) {
  return entryText("Coins", "Coins", count);
}

std::string ZKStrings::coins() {
  return entryText("coins", "coins");
}

std::string ZKStrings::coinsPurchased_coins(Text coinsPurchased) {
  return entryText("coinsPurchased_coins", "+%{coinsPurchased} coins", {{"coinsPurchased", coinsPurchased}});
}

std::string ZKStrings::Cold() {
  return entryText("Cold", "Cold");
}

std::string ZKStrings::Collect() {
  return entryText("Collect", "Collect");
}

std::string ZKStrings::Color_Test() {
  return entryText("Color_Test", "Color Test");
}

std::string ZKStrings::Come_back_into_the_game_for_your_chance_to_win() {
  return entryText("Come_back_into_the_game_for_your_chance_to_win", "Come back into the game for your chance to win.");
}

std::string ZKStrings::Coming_Soon() {
  return entryText("Coming_Soon", "Coming Soon");
}

std::string ZKStrings::Coming_soon_To_get_in_early_play_near_someone_with_access_and_their_nearby_setting_enabled() {
  return entryText("Coming_soon_To_get_in_early_play_near_someone_with_access_and_their_nearby_setting_enabled", "Coming soon. To get in early, play near someone with access and their nearby setting enabled.");
}

std::string ZKStrings::Complete() {
  return entryText("Complete", "Complete!");
}

std::string ZKStrings::Confirm() {
  return entryText("Confirm", "Confirm");
}

std::string ZKStrings::Confirm_email() {
  return entryText("Confirm_email", "Confirm email");
}

std::string ZKStrings::Congratulations() {
  return entryText("Congratulations", "Congratulations!");
}

std::string ZKStrings::Congratulations_n_Tell_your_friends() {
  return entryText("Congratulations_n_Tell_your_friends", "Congratulations!\nTell your friends!");
}

std::string ZKStrings::Connect() {
  return entryText("Connect", "Connect");
}

std::string ZKStrings::Connect_Address_Book() {
  return entryText("Connect_Address_Book", "Connect Address Book");
}

std::string ZKStrings::Connect_Contacts() {
  return entryText("Connect_Contacts", "Connect Contacts");
}

std::string ZKStrings::Connect_Instagram() {
  return entryText("Connect_Instagram", "Connect Instagram");
}

std::string ZKStrings::Connect_with_your_friends_on_ZK_See_their_status_during_games_and_more_secret_friend_features_coming() {
  return entryText("Connect_with_your_friends_on_ZK_See_their_status_during_games_and_more_secret_friend_features_coming", "Connect with your friends on ZK. See their status during games and more secret friend features coming soon!");
}

std::string ZKStrings::Connect_your_account_to_discover_new_Instagram_users_and_get_new_followers_from_ZKX() {
  return entryText("Connect_your_account_to_discover_new_Instagram_users_and_get_new_followers_from_ZKX", "Connect your account to discover new Instagram users and get new followers from ZKX");
}

std::string ZKStrings::Connect_your_contacts_to_find_your_friends_on_ZK() {
  return entryText("Connect_your_contacts_to_find_your_friends_on_ZK", "Connect your contacts to find your friends on ZK");
}

std::string ZKStrings::contactCount_contacts_on_ZK(Text contactCount, std::int64_t count) {
  return entryText("contactCount_contacts_on_ZK", "%{contactCount} contacts on ZK", count, {{"contactCount", contactCount}});
}

std::string ZKStrings::Continue() {
  return entryText("Continue", "Continue");
}

std::string ZKStrings::Continue_playing_with_an_extra_life_Earn_extra_lives_by_inviting_your_friends() {
  return entryText("Continue_playing_with_an_extra_life_Earn_extra_lives_by_inviting_your_friends", "Continue playing with an extra life! Earn extra lives by inviting your friends.");
}

std::string ZKStrings::Continue_watching() {
  return entryText("Continue_watching", "Continue watching");
}

std::string ZKStrings::Continue_with() {
  return entryText("Continue_with", "Continue with");
}

std::string ZKStrings::Correct() {
  return entryText("Correct", "Correct");
}

std::string ZKStrings::correct() {
  return entryText("correct", "correct");
}

std::string ZKStrings::Correct_Answer() {
  return entryText("Correct_Answer", "Correct Answer");
}

std::string ZKStrings::Correctly_answer_more_category_questions_to_unlock_this_badge(Text category) {
  return entryText("Correctly_answer_more_category_questions_to_unlock_this_badge", "Correctly answer more %{category} questions to unlock this badge.", {{"category", category}});
}

std::string ZKStrings::Could_not_find_any_nearby_letters() {
  return entryText("Could_not_find_any_nearby_letters", "Could not find any nearby letters!");
}

std::string ZKStrings::count_Playing(Text count) {
  return entryText("count_Playing", "%{count} Playing", {{"count", count}});
}

std::string ZKStrings::Country() {
  return entryText("Country", "Country");
}

std::string ZKStrings::Create_profile() {
  return entryText("Create_profile", "Create profile");
}

std::string ZKStrings::Crop_avatar() {
  return entryText("Crop_avatar", "Crop avatar");
}

std::string ZKStrings::Daily_nChallenge() {
  return entryText("Daily_nChallenge", "Daily\nChallenge");
}

std::string ZKStrings::Daily_Questions() {
  return entryText("Daily_Questions", "Daily Questions");
}

std::string ZKStrings::Day() {
  return entryText("Day", "Day");
}

std::string ZKStrings::Days() {
  return entryText("Days", "Days");
}

std::string ZKStrings::days_day_streak_complete(Text days) {
  return entryText("days_day_streak_complete", "%{days} day streak complete!", {{"days", days}});
}

std::string ZKStrings::days_day_streak_Here_s_an_Extra_Life_for_your_next_game(Text days) {
  return entryText("days_day_streak_Here_s_an_Extra_Life_for_your_next_game", "*%{days}-day streak!* Here's an Extra Life for your next game.", {{"days", days}});
}

std::string ZKStrings::Debug_Options() {
  return entryText("Debug_Options", "Debug Options");
}

std::string ZKStrings::Decide_Later() {
  return entryText("Decide_Later", "Decide Later");
}

std::string ZKStrings::Delete_Avatar() {
  return entryText("Delete_Avatar", "Delete Avatar");
}

std::string ZKStrings::Disconnect_account(Text account) {
  return entryText("Disconnect_account", "Disconnect %{account}", {{"account", account}});
}

std::string ZKStrings::Discover_People() {
  return entryText("Discover_People", "Discover People");
}

std::string ZKStrings::Discoverable_nearby() {
  return entryText("Discoverable_nearby", "Discoverable nearby");
}

std::string ZKStrings::Dislike() {
  return entryText("Dislike", "Dislike");
}

std::string ZKStrings::Do_you_want_to_unlink_your_account_account(Text account) {
  return entryText("Do_you_want_to_unlink_your_account_account", "Do you want to unlink your %{account} account?", {{"account", account}});
}

std::string ZKStrings::Don_t_miss_a_game() {
  return entryText("Don_t_miss_a_game", "Don't miss a game!");
}

std::string ZKStrings::Don_t_miss_the_next_ZK_show_We_send_push_notifications_to_alert_you_when_our_shows_are_live() {
  return entryText("Don_t_miss_the_next_ZK_show_We_send_push_notifications_to_alert_you_when_our_shows_are_live", "Don't miss the next ZK show. We send push notifications to alert you when our shows are live.");
}

std::string ZKStrings::Don_t_miss_the_next_ZK_Trivia_game_We_send_push_notifications_to_alert_you_when_the_game_is_live() {
  return entryText("Don_t_miss_the_next_ZK_Trivia_game_We_send_push_notifications_to_alert_you_when_the_game_is_live", "Don't miss the next ZK Trivia game. We send push notifications to alert you when the game is live.");
}

std::string ZKStrings::Donate() {
  return entryText("Donate", "Donate");
}

std::string ZKStrings::Donate_amount(Text amount) {
  return entryText("Donate_amount", "Donate %{amount}", {{"amount", amount}});
}

std::string ZKStrings::Donate_Winnings() {
  return entryText("Donate_Winnings", "Donate Winnings");
}

std::string ZKStrings::Donation() {
  return entryText("Donation", "Donation");
}

std::string ZKStrings::Donation_Request_Submitted() {
  return entryText("Donation_Request_Submitted", "Donation Request Submitted");
}

std::string ZKStrings::Done() {
  return entryText("Done", "Done");
}

std::string ZKStrings::Download_on() {
  return entryText("Download_on", "Download on ");
}

std::string ZKStrings::Drag_into_order() {
  return entryText("Drag_into_order", "Drag into order");
}

std::string ZKStrings::Earn_a_special_reward_per_show_by_entering_referral_codes_below() {
  return entryText("Earn_a_special_reward_per_show_by_entering_referral_codes_below", "Earn a special reward per show by entering referral codes below.");
}

std::string ZKStrings::Earn_Erasers_by_playing_with_cost_players(Text cost) {
  return entryText("Earn_Erasers_by_playing_with_cost_players", "Earn *Erasers* by playing with %{cost} players", {{"cost", cost}});
}

std::string ZKStrings::Earn_Power_Ups_when_you_refer_friends() {
  return entryText("Earn_Power_Ups_when_you_refer_friends", "Earn Power Ups when you refer friends");
}

std::string ZKStrings::Earned_date(Text date) {
  return entryText("Earned_date", "Earned %{date}", {{"date", date}});
}

std::string ZKStrings::Earned_this_game() {
  return entryText("Earned_this_game", "Earned this game");
}

std::string ZKStrings::earnedPoints_points(Text earnedPoints) {
  return entryText("earnedPoints_points", "+%{earnedPoints} points", {{"earnedPoints", earnedPoints}});
}

std::string ZKStrings::Educational() {
  return entryText("Educational", "Educational");
}

std::string ZKStrings::eight() {
  return entryText("eight", "eight");
}

std::string ZKStrings::Eliminated() {
  return entryText("Eliminated", "Eliminated");
}

std::string ZKStrings::Email() {
  return entryText("Email", "Email");
}

std::string ZKStrings::Email_address() {
  return entryText("Email_address", "Email address");
}

std::string ZKStrings::Email_Support() {
  return entryText("Email_Support", "Email Support");
}

std::string ZKStrings::Employees_are_not_allowed_to_cashout() {
  return entryText("Employees_are_not_allowed_to_cashout", "Employees are not allowed to cashout");
}

std::string ZKStrings::Enable() {
  return entryText("Enable", "Enable");
}

std::string ZKStrings::Enable_Notifications() {
  return entryText("Enable_Notifications", "Enable Notifications");
}

std::string ZKStrings::Enable_this_setting_to_be_discoverable_to_people_playing_ZK_near_you_It_s_fun() {
  return entryText("Enable_this_setting_to_be_discoverable_to_people_playing_ZK_near_you_It_s_fun", "Enable this setting to be discoverable to people playing ZK near you. It's fun!");
}

std::string ZKStrings::Enable_this_setting_to_earn_power_ups_by_finding_nearby_people_playing_ZK() {
  return entryText("Enable_this_setting_to_earn_power_ups_by_finding_nearby_people_playing_ZK", "Enable this setting to earn power ups by finding nearby people playing ZK!");
}

std::string ZKStrings::Enable_this_to_automatically_keep_your_contacts_on_ZK_up_to_date() {
  return entryText("Enable_this_to_automatically_keep_your_contacts_on_ZK_up_to_date", "Enable this to automatically keep your contacts on ZK up to date.");
}

std::string ZKStrings::Enter_a_friend_s_ZK_username_as_your_referral_code() {
  return entryText("Enter_a_friend_s_ZK_username_as_your_referral_code", "Enter a friend's ZK username as your referral code.");
}

std::string ZKStrings::Enter_a_Referral_Code() {
  return entryText("Enter_a_Referral_Code", "Enter a Referral Code");
}

std::string ZKStrings::Enter_for_prize(Text prize) {
  return entryText("Enter_for_prize", "Enter for %{prize}", {{"prize", prize}});
}

std::string ZKStrings::Enter_Referral_Code() {
  return entryText("Enter_Referral_Code", "Enter Referral Code");
}

std::string ZKStrings::Enter_Referral_Codes() {
  return entryText("Enter_Referral_Codes", "Enter Referral Codes");
}

std::string ZKStrings::Enter_the_verification_code_sent_to_phoneNumber(Text phoneNumber) {
  return entryText("Enter_the_verification_code_sent_to_phoneNumber", "Enter the verification code sent to %{phoneNumber}", {{"phoneNumber", phoneNumber}});
}

std::string ZKStrings::Enter_Verification_Code() {
  return entryText("Enter_Verification_Code", "Enter Verification Code");
}

std::string ZKStrings::Enter_VIP_Game() {
  return entryText("Enter_VIP_Game", "Enter VIP Game");
}

std::string ZKStrings::Enter_your_phone_number() {
  return entryText("Enter_your_phone_number", "Enter your phone number");
}

std::string ZKStrings::Entered() {
  return entryText("Entered", "Entered");
}

std::string ZKStrings::Entertainment() {
  return entryText("Entertainment", "Entertainment");
}

std::string ZKStrings::Entries_closed() {
  return entryText("Entries_closed", "Entries closed");
}

std::string ZKStrings::Eraser() {
  return entryText("Eraser", "Eraser");
}

std::string ZKStrings::Eraser_earned_Use_an_Eraser_to_eliminate_one_wrong_answer_during_a_question() {
  return entryText("Eraser_earned_Use_an_Eraser_to_eliminate_one_wrong_answer_during_a_question", "*Eraser earned!* Use an Eraser to eliminate one wrong answer during a question.");
}

std::string ZKStrings::Eraser_earned_Use_it_to_eliminate_a_wrong_answer_during_a_question() {
  return entryText("Eraser_earned_Use_it_to_eliminate_a_wrong_answer_during_a_question", "*Eraser earned!* Use it to eliminate a wrong answer during a question.");
}

std::string ZKStrings::Erasers() {
  return entryText("Erasers", "Erasers");
}

std::string ZKStrings::Erasers(std::int64_t count) {
  return entryText("Erasers", "Erasers", count);
}

std::string ZKStrings::erasers() {
  return entryText("erasers", "erasers");
}

std::string ZKStrings::Erasers_eliminate_an_answer_Use_them_during_a_question() {
  return entryText("Erasers_eliminate_an_answer_Use_them_during_a_question", "*Erasers* eliminate an answer. Use them during a question");
}

std::string ZKStrings::Erasers_hide_a_wrong_answer_Tap_the_Eraser_during_a_question_to_use_one() {
  return entryText("Erasers_hide_a_wrong_answer_Tap_the_Eraser_during_a_question_to_use_one", "Erasers hide a wrong answer. Tap the Eraser during a question to use one");
}

std::string ZKStrings::Error_Loading_Media() {
  return entryText("Error_Loading_Media", "Error Loading Media");
}

std::string ZKStrings::Error_loading_schedule() {
  return entryText("Error_loading_schedule", "Error loading schedule");
}

std::string ZKStrings::EU_Privacy_Policy() {
  return entryText("EU_Privacy_Policy", "EU Privacy Policy");
}

std::string ZKStrings::Expires_in_time(Text time) {
  return entryText("Expires_in_time", "Expires in %{time}", {{"time", time}});
}

std::string ZKStrings::Extra_Life() {
  return entryText("Extra_Life", "Extra Life");
}

std::string ZKStrings::Extra_Life_earned() {
  return entryText("Extra_Life_earned", "Extra Life earned!");
}

std::string ZKStrings::Extra_Life_granted() {
  return entryText("Extra_Life_granted", "Extra Life granted!");
}

std::string ZKStrings::Extra_Lives() {
  return entryText("Extra_Lives", "Extra Lives");
}

std::string ZKStrings::Extra_lives() {
  return entryText("Extra_lives", "Extra lives");
}

std::string ZKStrings::Extra_Lives(std::int64_t count) {
  return entryText("Extra_Lives", "Extra Lives", count);
}

std::string ZKStrings::extra_lives() {
  return entryText("extra_lives", "extra lives");
}

std::string ZKStrings::Facebook() {
  return entryText("Facebook", "Facebook");
}

std::string ZKStrings::Failed() {
  return entryText("Failed", "Failed");
}

std::string ZKStrings::Failed_to_accept_friend_request() {
  return entryText("Failed_to_accept_friend_request", "Failed to accept friend request");
}

std::string ZKStrings::Failed_to_reject_friend_request() {
  return entryText("Failed_to_reject_friend_request", "Failed to reject friend request");
}

std::string ZKStrings::Failed_to_send_friend_request() {
  return entryText("Failed_to_send_friend_request", "Failed to send friend request");
}

std::string ZKStrings::FAQs() {
  return entryText("FAQs", "FAQs");
}

std::string ZKStrings::Fetching_nearby_letters() {
  return entryText("Fetching_nearby_letters", "Fetching nearby letters…");
}

std::string ZKStrings::Finalists() {
  return entryText("Finalists", "Finalists");
}

std::string ZKStrings::Find_all_the() {
  return entryText("Find_all_the", "Find all the");
}

std::string ZKStrings::Finding_nearby_players_to_collect_an_Eraser_power_up() {
  return entryText("Finding_nearby_players_to_collect_an_Eraser_power_up", "Finding nearby players to collect an *Eraser* power up");
}

std::string ZKStrings::First_join_the_live_game() {
  return entryText("First_join_the_live_game", "First, join the live game");
}

std::string ZKStrings::five() {
  return entryText("five", "five");
}

std::string ZKStrings::Food_Drink() {
  return entryText("Food_Drink", "Food & Drink");
}

std::string ZKStrings::Forfeited() {
  return entryText("Forfeited", "Forfeited");
}

std::string ZKStrings::Forfeited_Balance() {
  return entryText("Forfeited_Balance", "Forfeited Balance");
}

std::string ZKStrings::Found_a_player_nearby() {
  return entryText("Found_a_player_nearby", "Found a player nearby!");
}

std::string ZKStrings::Found_an_ZK_Words_player_nearby_You_ve_unlocked_the_game() {
  return entryText("Found_an_ZK_Words_player_nearby_You_ve_unlocked_the_game", "Found an ZK Words player nearby! You've unlocked the game.");
}

std::string ZKStrings::Found_name1_and_name2(Text name1, Text name2) {
  return entryText("Found_name1_and_name2", "Found *%{name1}* and *%{name2}*", {{"name1", name1}, {"name2", name2}});
}

std::string ZKStrings::Found_name1_and_name2_nearby(Text name1, Text name2) {
  return entryText("Found_name1_and_name2_nearby", "Found *%{name1}* and *%{name2}* nearby", {{"name1", name1}, {"name2", name2}});
}

std::string ZKStrings::Found_name_nearby(Text name) {
  return entryText("Found_name_nearby", "Found *%{name}* nearby", {{"name", name}});
}

std::string ZKStrings::Found_username_nearby_looking_for_remaining_more_players(Text username, Text remaining, std::int64_t count) {
  return entryText("Found_username_nearby_looking_for_remaining_more_players", "Found *%{username}* nearby, looking for %{remaining} more players", count, {{"username", username}, {"remaining", remaining}});
}

std::string ZKStrings::four() {
  return entryText("four", "four");
}

std::string ZKStrings::Free_Pass() {
  return entryText("Free_Pass", "Free Pass");
}

std::string ZKStrings::Free_Pass_through_Q_level(Text level) {
  return entryText("Free_Pass_through_Q_level", "Free Pass through Q%{level}", {{"level", level}});
}

std::string ZKStrings::Friend_Requests() {
  return entryText("Friend_Requests", "Friend Requests");
}

std::string ZKStrings::friendCount_friends(Text friendCount, std::int64_t count) {
  return entryText("friendCount_friends", "%{friendCount} friends", count, {{"friendCount", friendCount}});
}

std::string ZKStrings::friendCount_friends_still_in(Text friendCount, std::int64_t count) {
  return entryText("friendCount_friends_still_in", "%{friendCount} friends still in", count, {{"friendCount", friendCount}});
}

std::string ZKStrings::friendRequestCount_friend_requests(Text friendRequestCount, std::int64_t count) {
  return entryText("friendRequestCount_friend_requests", "%{friendRequestCount} friend requests", count, {{"friendRequestCount", friendRequestCount}});
}

std::string ZKStrings::Friends() {
  return entryText("Friends", "Friends");
}

std::string ZKStrings::Full_Name() {
  return entryText("Full_Name", "Full Name");
}

std::string ZKStrings::Game_now_live() {
  return entryText("Game_now_live", "Game now live");
}

std::string ZKStrings::Game_over() {
  return entryText("Game_over", "Game over");
}

std::string ZKStrings::Games() {
  return entryText("Games", "Games");
}

std::string ZKStrings::Geography() {
  return entryText("Geography", "Geography");
}

std::string ZKStrings::Get_Coins() {
  return entryText("Get_Coins", "Get Coins");
}

std::string ZKStrings::Get_Erasers() {
  return entryText("Get_Erasers", "Get Erasers");
}

std::string ZKStrings::Get_Extra_Lives() {
  return entryText("Get_Extra_Lives", "Get Extra Lives");
}

std::string ZKStrings::Get_Help() {
  return entryText("Get_Help", "Get Help");
}

std::string ZKStrings::Get_help() {
  return entryText("Get_help", "Get help");
}

std::string ZKStrings::Get_More() {
  return entryText("Get_More", "Get More");
}

std::string ZKStrings::Get_more_coins_to_buy_Power_Ups() {
  return entryText("Get_more_coins_to_buy_Power_Ups", "Get more coins to buy Power Ups!");
}

std::string ZKStrings::Get_Notified() {
  return entryText("Get_Notified", "Get Notified");
}

std::string ZKStrings::Get_notified_when_n_shows_are_live() {
  return entryText("Get_notified_when_n_shows_are_live", "Get notified when\n shows are live");
}

std::string ZKStrings::Get_notified_when_nZK_is_live() {
  return entryText("Get_notified_when_nZK_is_live", "Get notified when\nZK is live?");
}

std::string ZKStrings::Get_notified_when_the_shows_are_live() {
  return entryText("Get_notified_when_the_shows_are_live", "Get notified when the shows are live:");
}

std::string ZKStrings::Get_points() {
  return entryText("Get_points", "Get points");
}

std::string ZKStrings::Get_Power_Ups_to_help_you_win() {
  return entryText("Get_Power_Ups_to_help_you_win", "Get Power Ups to help you win!");
}

std::string ZKStrings::Get_product(Text product) {
  return entryText("Get_product", "Get %{product}", {{"product", product}});
}

std::string ZKStrings::Get_productName(Text productName) {
  return entryText("Get_productName", "Get %{productName}", {{"productName", productName}});
}

std::string ZKStrings::Get_Started() {
  return entryText("Get_Started", "Get Started");
}

std::string ZKStrings::Get_Super_Spins() {
  return entryText("Get_Super_Spins", "Get Super Spins");
}

std::string ZKStrings::Get_them_all_right_and_you_win() {
  return entryText("Get_them_all_right_and_you_win", "Get them all right and you win");
}

std::string ZKStrings::Gift_Drop() {
  return entryText("Gift_Drop", "Gift Drop");
}

std::string ZKStrings::Go_to_settings() {
  return entryText("Go_to_settings", "Go to settings");
}

std::string ZKStrings::Good_luck() {
  return entryText("Good_luck", "Good luck!");
}

std::string ZKStrings::Goodbye() {
  return entryText("Goodbye", "Goodbye!");
}

std::string ZKStrings::Google() {
  return entryText("Google", "Google");
}

std::string ZKStrings::Grant_Extra_Life() {
  return entryText("Grant_Extra_Life", "Grant Extra Life");
}

std::string ZKStrings::Guest() {
  return entryText("Guest", "Guest");
}

std::string ZKStrings::Have_your_photo_seen_by_more_people_with_a_Boost() {
  return entryText("Have_your_photo_seen_by_more_people_with_a_Boost", "Have your photo seen by more people with a Boost");
}

std::string ZKStrings::Help_us_spread_the_word() {
  return entryText("Help_us_spread_the_word", "Help us spread the word");
}

std::string ZKStrings::Here_s_an_Extra_Life_for_your_next_game() {
  return entryText("Here_s_an_Extra_Life_for_your_next_game", "Here's an Extra Life for your next game!");
}

std::string ZKStrings::Hey() {
  return entryText("Hey", "Hey");
}

std::string ZKStrings::Hide_details() {
  return entryText("Hide_details", "Hide details");
}

std::string ZKStrings::High_Score() {
  return entryText("High_Score", "High Score");
}

std::string ZKStrings::History() {
  return entryText("History", "History");
}

std::string ZKStrings::Hit_us_up_on_Twitter_zktrivia() {
  return entryText("Hit_us_up_on_Twitter_zktrivia", "Hit us up on Twitter @zktrivia");
}

std::string ZKStrings::Hot() {
  return entryText("Hot", "Hot");
}

std::string ZKStrings::How_it_works() {
  return entryText("How_it_works", "How it works");
}

std::string ZKStrings::How_to_Play() {
  return entryText("How_to_Play", "How to Play");
}

std::string ZKStrings::How_to_play() {
  return entryText("How_to_play", "How to play");
}

std::string ZKStrings::ZK_is_at_capacity() {
  return entryText("ZK_is_at_capacity", "ZK is at capacity");
}

std::string ZKStrings::ZK_Shop() {
  return entryText("ZK_Shop", "ZK Shop");
}

std::string ZKStrings::ZK_Sports() {
  return entryText("ZK_Sports", "ZK Sports");
}

std::string ZKStrings::ZK_Trivia() {
  return entryText("ZK_Trivia", "ZK Trivia");
}

std::string ZKStrings::ZK_Words() {
  return entryText("ZK_Words", "ZK Words");
}

std::string ZKStrings::I_can_t_believe_I_got_this_question_wrong_on_ZK_Trivia() {
  return entryText("I_can_t_believe_I_got_this_question_wrong_on_ZK_Trivia", "I can’t believe I got this question wrong on ZK Trivia!");
}

std::string ZKStrings::I_can_t_believe_I_got_this_question_wrong_on_zktrivia() {
  return entryText("I_can_t_believe_I_got_this_question_wrong_on_zktrivia", "I can’t believe I got this question wrong on @zktrivia!");
}

std::string ZKStrings::I_just_got_round_questions_correct_on_ZK_Trivia_That_s_a_new_record_for_me_You_should_play_too_Use_m(Text round, Text username) {
  return entryText("I_just_got_round_questions_correct_on_ZK_Trivia_That_s_a_new_record_for_me_You_should_play_too_Use_m", "I just got %{round} questions correct on ZK Trivia! That’s a new record for me! You should play too. Use my code \"%{username}\" to sign up: https://zktrivia.example", {{"round", round}, {"username", username}});
}

std::string ZKStrings::I_just_got_round_questions_correct_on_zktrivia_That_s_a_new_record_for_me_You_should_play_too_Use_my(Text round, Text username) {
  return entryText("I_just_got_round_questions_correct_on_zktrivia_That_s_a_new_record_for_me_You_should_play_too_Use_my", "I just got %{round} questions correct on @zktrivia! That’s a new record for me! You should play too. Use my code \"%{username}\" to sign up: https://zktrivia.example", {{"round", round}, {"username", username}});
}

std::string ZKStrings::I_just_unlocked_the_badge_badge_on_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_code_and(Text badge, Text code) {
  return entryText("I_just_unlocked_the_badge_badge_on_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_code_and", "I just unlocked the %{badge} badge on ZK Trivia! Sign up at https://zktrivia.example with my code \"%{code}\" and start your own collection.", {{"badge", badge}, {"code", code}});
}

std::string ZKStrings::I_just_unlocked_the_badge_badge_on_zktrivia_Sign_up_at_https_zktrivia_example_with_my_code_code_and_(Text badge, Text code) {
  return entryText("I_just_unlocked_the_badge_badge_on_zktrivia_Sign_up_at_https_zktrivia_example_with_my_code_code_and_", "I just unlocked the %{badge} badge on @zktrivia! Sign up at https://zktrivia.example with my code \"%{code}\" and start your own collection.", {{"badge", badge}, {"code", code}});
}

std::string ZKStrings::I_just_won_prize_on_twitterHandle_You_should_play_too_Use_my_code_username(Text prize, Text twitterHandle, Text username) {
  return entryText("I_just_won_prize_on_twitterHandle_You_should_play_too_Use_my_code_username", "I just won %{prize} on %{twitterHandle}! You should play too. Use my code \"%{username}\"", {{"prize", prize}, {"twitterHandle", twitterHandle}, {"username", username}});
}

std::string ZKStrings::I_just_won_prize_playing_gameName_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_f(Text prize, Text gameName, Text username) {
  return entryText("I_just_won_prize_playing_gameName_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_f", "I just won %{prize} playing %{gameName}! Sign up at https://zktrivia.example with my code \"%{username}\" and play for the next prize.", {{"prize", prize}, {"gameName", gameName}, {"username", username}});
}

std::string ZKStrings::I_just_won_prize_playing_ZK_Trivia_Play_the_next_game_with_me_https_zktrivia_example(Text prize) {
  return entryText("I_just_won_prize_playing_ZK_Trivia_Play_the_next_game_with_me_https_zktrivia_example", "I just won %{prize} playing ZK Trivia! Play the next game with me: https://zktrivia.example", {{"prize", prize}});
}

std::string ZKStrings::I_just_won_prize_playing_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_(Text prize, Text username) {
  return entryText("I_just_won_prize_playing_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_", "I just won %{prize} playing ZK Trivia! Sign up at https://zktrivia.example with my code \"%{username}\" and play for the next prize.", {{"prize", prize}, {"username", username}});
}

std::string ZKStrings::I_just_won_prize_playing_zktrivia_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_f(Text prize, Text username) {
  return entryText("I_just_won_prize_playing_zktrivia_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_f", "I just won %{prize} playing @zktrivia! Sign up at https://zktrivia.example with my code \"%{username}\" and play for the next prize.", {{"prize", prize}, {"username", username}});
}

std::string ZKStrings::I_m_playing_a_game_called_appName_You_should_play_too(Text appName) {
  return entryText("I_m_playing_a_game_called_appName_You_should_play_too", "I'm playing a game called %{appName}! You should play too.", {{"appName", appName}});
}

std::string ZKStrings::I_won_prize_playing_n_zkNameVariant(Text prize, Text zkNameVariant) {
  return entryText("I_won_prize_playing_n_zkNameVariant", "I won %{prize} playing\n%{zkNameVariant}", {{"prize", prize}, {"zkNameVariant", zkNameVariant}});
}

std::string ZKStrings::If_everyone_gets_eliminated_the_n_prize_rolls_over_to_the_next_day() {
  return entryText("If_everyone_gets_eliminated_the_n_prize_rolls_over_to_the_next_day", "If everyone gets eliminated, the\nprize rolls over to the next day.");
}

std::string ZKStrings::If_more_than_one_person_makes_it_to_the_end_then_split_the_prize() {
  return entryText("If_more_than_one_person_makes_it_to_the_end_then_split_the_prize", "If more than one person makes it to the end, then split the prize.");
}

std::string ZKStrings::If_you_tap_an_incorrect_answer_n_or_you_run_out_of_time_you_ll_be_n_eliminated_from_winning_the_priz() {
  return entryText("If_you_tap_an_incorrect_answer_n_or_you_run_out_of_time_you_ll_be_n_eliminated_from_winning_the_priz", "If you tap an incorrect answer\nor you run out of time, you'll be\neliminated from winning the prize.");
}

std::string ZKStrings::In_order_to_cash_out_please_fill_out_all_fields_below() {
  return entryText("In_order_to_cash_out_please_fill_out_all_fields_below", "In order to cash out, please fill out all fields below.");
}

std::string ZKStrings::In_order_to_cash_out_please_fill_out_all_fields_below_even_if_email_address_and_PayPal_email_address() {
  return entryText("In_order_to_cash_out_please_fill_out_all_fields_below_even_if_email_address_and_PayPal_email_address", "In order to cash out, please fill out all fields below, even if email address and PayPal email address are the same.");
}

std::string ZKStrings::In_order_to_cash_out_please_fill_out_the_form_below_All_fields_are_required() {
  return entryText("In_order_to_cash_out_please_fill_out_the_form_below_All_fields_are_required", "In order to cash out please fill out the form below. All fields are required.");
}

std::string ZKStrings::In_order_to_cash_out_please_input_your_PayPal_email_address() {
  return entryText("In_order_to_cash_out_please_input_your_PayPal_email_address", "In order to cash out, please input your PayPal email address.");
}

std::string ZKStrings::In_order_to_donate_your_winnings_please_fill_out_all_fields_below() {
  return entryText("In_order_to_donate_your_winnings_please_fill_out_all_fields_below", "In order to donate your winnings, please fill out all fields below.");
}

std::string ZKStrings::In_Review() {
  return entryText("In_Review", "In Review");
}

std::string ZKStrings::In_the_meantime_warm_up_nand_win_coins() {
  return entryText("In_the_meantime_warm_up_nand_win_coins", "In the meantime, warm up\nand win coins!");
}

std::string ZKStrings::Incorrect() {
  return entryText("Incorrect", "Incorrect");
}

std::string ZKStrings::incorrect() {
  return entryText("incorrect", "incorrect");
}

std::string ZKStrings::Invalid_email() {
  return entryText("Invalid_email", "Invalid email");
}

std::string ZKStrings::Invalid_referral_code() {
  return entryText("Invalid_referral_code", "Invalid referral code!");
}

std::string ZKStrings::Invite() {
  return entryText("Invite", "Invite");
}

std::string ZKStrings::Invite_a_friend() {
  return entryText("Invite_a_friend", "Invite a friend");
}

std::string ZKStrings::Invite_contacts() {
  return entryText("Invite_contacts", "Invite contacts");
}

std::string ZKStrings::Invite_your_friends_to_play_ZK() {
  return entryText("Invite_your_friends_to_play_ZK", "Invite your friends to play ZK!");
}

std::string ZKStrings::Join() {
  return entryText("Join", "Join");
}

std::string ZKStrings::Join_me_on_ZK_Trivia_Use_my_code_username_to_sign_up_https_zktrivia_example(Text username) {
  return entryText("Join_me_on_ZK_Trivia_Use_my_code_username_to_sign_up_https_zktrivia_example", "Join me on ZK Trivia! Use my code \"%{username}\" to sign up: https://zktrivia.example", {{"username", username}});
}

std::string ZKStrings::Joining_game() {
  return entryText("Joining_game", "Joining game...");
}

std::string ZKStrings::Keep_playing() {
  return entryText("Keep_playing", "Keep playing?");
}

std::string ZKStrings::Keep_playing_for_amount(Text amount) {
  return entryText("Keep_playing_for_amount", "Keep playing for *%{amount}*!", {{"amount", amount}});
}

std::string ZKStrings::Keep_tapping() {
  return entryText("Keep_tapping", "Keep tapping!");
}

std::string ZKStrings::Kick() {
  return entryText("Kick", "Kick");
}

std::string ZKStrings::Kicking_username_failed(Text username) {
  return entryText("Kicking_username_failed", "Kicking %{username} failed", {{"username", username}});
}

std::string ZKStrings::Later() {
  return entryText("Later", "Later");
}

std::string ZKStrings::Leaderboard() {
  return entryText("Leaderboard", "Leaderboard");
}

std::string ZKStrings::Learn_more() {
  return entryText("Learn_more", "Learn more");
}

std::string ZKStrings::Leave() {
  return entryText("Leave", "Leave");
}

std::string ZKStrings::Legal() {
  return entryText("Legal", "Legal");
}

std::string ZKStrings::Letter_Points() {
  return entryText("Letter_Points", "Letter Points");
}

std::string ZKStrings::Level() {
  return entryText("Level", "Level");
}

std::string ZKStrings::level_Bonus_Strikes(Text level) {
  return entryText("level_Bonus_Strikes", "%{level} Bonus Strikes", {{"level", level}});
}

std::string ZKStrings::Level_level_rewards(Text level) {
  return entryText("Level_level_rewards", "Level %{level} rewards", {{"level", level}});
}

std::string ZKStrings::Level_levelNumber(Text levelNumber) {
  return entryText("Level_levelNumber", "Level %{levelNumber}", {{"levelNumber", levelNumber}});
}

std::string ZKStrings::Level_Unlock() {
  return entryText("Level_Unlock", "Level Unlock");
}

std::string ZKStrings::Level_Unlocks() {
  return entryText("Level_Unlocks", "Level Unlocks");
}

std::string ZKStrings::Levels() {
  return entryText("Levels", "Levels");
}

std::string ZKStrings::Lifetime_Winnings() {
  return entryText("Lifetime_Winnings", "Lifetime Winnings");
}

std::string ZKStrings::Lifetime_winnings() {
  return entryText("Lifetime_winnings", "Lifetime winnings");
}

std::string ZKStrings::Like() {
  return entryText("Like", "Like");
}

std::string ZKStrings::Link_a_social_account() {
  return entryText("Link_a_social_account", "Link a social account");
}

std::string ZKStrings::Linked_social_accounts() {
  return entryText("Linked_social_accounts", "Linked social accounts");
}

std::string ZKStrings::Literature() {
  return entryText("Literature", "Literature");
}

std::string ZKStrings::Live() {
  return entryText("Live", "Live");
}

std::string ZKStrings::Live_Game_Shows() {
  return entryText("Live_Game_Shows", "Live Game Shows");
}

std::string ZKStrings::Live_game_shows() {
  return entryText("Live_game_shows", "Live game shows");
}

std::string ZKStrings::Live_soon() {
  return entryText("Live_soon", "Live soon");
}

std::string ZKStrings::Live_sports_trivia_game_show_with_cash_prizes() {
  return entryText("Live_sports_trivia_game_show_with_cash_prizes", "Live sports trivia game show with cash prizes.");
}

std::string ZKStrings::Live_trivia_game_show() {
  return entryText("Live_trivia_game_show", "Live trivia game show");
}

std::string ZKStrings::Live_trivia_n_game_show() {
  return entryText("Live_trivia_n_game_show", "Live trivia\ngame show");
}

std::string ZKStrings::Loading_schedule() {
  return entryText("Loading_schedule", "Loading schedule");
}

std::string ZKStrings::Locked() {
  return entryText("Locked", "Locked");
}

std::string ZKStrings::Log_in_or_sign_up() {
  return entryText("Log_in_or_sign_up", "Log in or sign up");
}

std::string ZKStrings::Logout() {
  return entryText("Logout", "Logout");
}

std::string ZKStrings::Love_ZK() {
  return entryText("Love_ZK", "Love ZK?");
}

std::string ZKStrings::messageCount_new_messages(Text messageCount, std::int64_t count) {
  return entryText("messageCount_new_messages", "%{messageCount} new messages", count, {{"messageCount", messageCount}});
}

std::string ZKStrings::Mini_games() {
  return entryText("Mini_games", "Mini-games");
}

std::string ZKStrings::minPoints_maxPoints_points(Text minPoints, Text maxPoints) {
  return entryText("minPoints_maxPoints_points", "%{minPoints}-%{maxPoints} points", {{"minPoints", minPoints}, {"maxPoints", maxPoints}});
}

std::string ZKStrings::Month() {
  return entryText("Month", "Month");
}

std::string ZKStrings::Months() {
  return entryText("Months", "Months");
}

std::string ZKStrings::Movies() {
  return entryText("Movies", "Movies");
}

std::string ZKStrings::Multipliers(std::int64_t count) {
  return entryText("Multipliers", "Multipliers", count);
}

std::string ZKStrings::Multiply_your_game_points() {
  return entryText("Multiply_your_game_points", "Multiply your game points");
}

std::string ZKStrings::Music() {
  return entryText("Music", "Music");
}

std::string ZKStrings::My_new_record_on_socialNetwork(Text socialNetwork) {
  return entryText("My_new_record_on_socialNetwork", "My new record on %{socialNetwork}", {{"socialNetwork", socialNetwork}});
}

std::string ZKStrings::Nah() {
  return entryText("Nah", "Nah");
}

std::string ZKStrings::Nature() {
  return entryText("Nature", "Nature");
}

std::string ZKStrings::nearbyCount_people_nearby(Text nearbyCount, std::int64_t count) {
  return entryText("nearbyCount_people_nearby", "%{nearbyCount} people nearby", count, {{"nearbyCount", nearbyCount}});
}

std::string ZKStrings::New_Feature_n_Find_Friends_on_ZK() {
  return entryText("New_Feature_n_Find_Friends_on_ZK", "New Feature:\nFind Friends on ZK");
}

std::string ZKStrings::New_high_score() {
  return entryText("New_high_score", "New high score!");
}

std::string ZKStrings::New_Show() {
  return entryText("New_Show", "New Show");
}

std::string ZKStrings::Next() {
  return entryText("Next", "Next");
}

std::string ZKStrings::Next_Game() {
  return entryText("Next_Game", "Next Game");
}

std::string ZKStrings::Next_Game_in_timer(Text timer) {
  return entryText("Next_Game_in_timer", "Next Game in %{timer}", {{"timer", timer}});
}

std::string ZKStrings::Next_Game_showTitle(Text showTitle) {
  return entryText("Next_Game_showTitle", "Next Game: %{showTitle}", {{"showTitle", showTitle}});
}

std::string ZKStrings::Next_prize_in_questionCount_questions(Text questionCount, std::int64_t count) {
  return entryText("Next_prize_in_questionCount_questions", "Next prize in %{questionCount} questions", count, {{"questionCount", questionCount}});
}

std::string ZKStrings::Next_prize_n_in_questionCount_questions(Text questionCount, std::int64_t count) {
  return entryText("Next_prize_n_in_questionCount_questions", "*Next prize*\nin %{questionCount} questions", count, {{"questionCount", questionCount}});
}

std::string ZKStrings::Next_Round_in_time(Text time) {
  return entryText("Next_Round_in_time", "Next Round in %{time}", {{"time", time}});
}

std::string ZKStrings::Next_time_continue_playing_with_an_Extra_Life_Get_Extra_Lives_by_inviting_friends() {
  return entryText("Next_time_continue_playing_with_an_Extra_Life_Get_Extra_Lives_by_inviting_friends", "Next time, continue playing with an Extra Life! Get Extra Lives by inviting friends.");
}

std::string ZKStrings::nine() {
  return entryText("nine", "nine");
}

std::string ZKStrings::No() {
  return entryText("No", "No");
}

std::string ZKStrings::No_account_found_with_that_number_nPlease_create_one_below() {
  return entryText("No_account_found_with_that_number_nPlease_create_one_below", "No account found with that number.\nPlease create one below.");
}

std::string ZKStrings::No_games_scheduled() {
  return entryText("No_games_scheduled", "No games scheduled");
}

std::string ZKStrings::No_internet_connection() {
  return entryText("No_internet_connection", "No internet connection");
}

std::string ZKStrings::No_progress_yet() {
  return entryText("No_progress_yet", "No progress yet");
}

std::string ZKStrings::No_winners() {
  return entryText("No_winners", "No winners");
}

std::string ZKStrings::No_winners_No_worries() {
  return entryText("No_winners_No_worries", "No winners? No worries");
}

std::string ZKStrings::Not_now() {
  return entryText("Not_now", "Not now");
}

std::string ZKStrings::Notification_let_you_know_when_games_are_live() {
  return entryText("Notification_let_you_know_when_games_are_live", "Notification let you know when games are live.");
}

std::string ZKStrings::Notifications() {
  return entryText("Notifications", "Notifications");
}

std::string ZKStrings::Now_playing_in_Rewards_Mode() {
  return entryText("Now_playing_in_Rewards_Mode", "Now playing in Rewards Mode");
}

std::string ZKStrings::number_correct(Text number) {
  return entryText("number_correct", "%{number} correct", {{"number", number}});
}

std::string ZKStrings::number_incorrect(Text number) {
  return entryText("number_incorrect", "%{number} incorrect", {{"number", number}});
}

std::string ZKStrings::Oh_no() {
  return entryText("Oh_no", "Oh no!");
}

std::string ZKStrings::OK() {
  return entryText("OK", "OK");
}

std::string ZKStrings::Okay_we_ll_call_you_with_the_verification_code() {
  return entryText("Okay_we_ll_call_you_with_the_verification_code", "Okay, we'll call you with the verification code");
}

std::string ZKStrings::Okay_we_ll_resend_the_verification_code_to_phoneNumber(Text phoneNumber) {
  return entryText("Okay_we_ll_resend_the_verification_code_to_phoneNumber", "Okay, we'll resend the verification code to %{phoneNumber}", {{"phoneNumber", phoneNumber}});
}

std::string ZKStrings::Once_you_have_won_you_can_cashout_n_directly_to_your_PayPal_account() {
  return entryText("Once_you_have_won_you_can_cashout_n_directly_to_your_PayPal_account", "Once you have won, you can cashout\ndirectly to your PayPal account.");
}

std::string ZKStrings::one() {
  return entryText("one", "one");
}

std::string ZKStrings::One_strike_and_you_re_out() {
  return entryText("One_strike_and_you_re_out", "One strike and you're out");
}

std::string ZKStrings::Oops_something_went_wrong_Please_try_again_later() {
  return entryText("Oops_something_went_wrong_Please_try_again_later", "Oops, something went wrong. Please try again later.");
}

std::string ZKStrings::Open_It() {
  return entryText("Open_It", "Open It");
}

std::string ZKStrings::Option_B() {
  return entryText("Option_B", "Option B");
}

std::string ZKStrings::Option_C() {
  return entryText("Option_C", "Option C");
}

std::string ZKStrings::or_() {
  return entryText("or", "or");
}

std::string ZKStrings::or_sign_in_via_via(Text via) {
  return entryText("or_sign_in_via_via", "or sign in via %{via}", {{"via", via}});
}

std::string ZKStrings::Order_It() {
  return entryText("Order_It", "Order It");
}

std::string ZKStrings::Out_of_time() {
  return entryText("Out_of_time", "Out of time!");
}

std::string ZKStrings::P_puzzleNumber_of_puzzleCount(Text puzzleNumber, Text puzzleCount) {
  return entryText("P_puzzleNumber_of_puzzleCount", "P%{puzzleNumber} of %{puzzleCount}", {{"puzzleNumber", puzzleNumber}, {"puzzleCount", puzzleCount}});
}

std::string ZKStrings::Payment_for_one_or_more_shows_that_this_account_has_won_is_temporarily_disabled_Please_try_again_lat() {
  return entryText("Payment_for_one_or_more_shows_that_this_account_has_won_is_temporarily_disabled_Please_try_again_lat", "Payment for one or more shows that this account has won is temporarily disabled. Please try again later.");
}

std::string ZKStrings::PayPal_Email() {
  return entryText("PayPal_Email", "PayPal Email");
}

std::string ZKStrings::Paypal_email_address() {
  return entryText("Paypal_email_address", "Paypal email address");
}

std::string ZKStrings::Pending_Balance() {
  return entryText("Pending_Balance", "Pending Balance");
}

std::string ZKStrings::People_nearby() {
  return entryText("People_nearby", "People nearby");
}

std::string ZKStrings::percent_complete(Text percent) {
  return entryText("percent_complete", "%{percent} complete", {{"percent", percent}});
}

std::string ZKStrings::phone_number() {
  return entryText("phone_number", "phone number");
}

std::string ZKStrings::Photos() {
  return entryText("Photos", "Photos");
}

std::string ZKStrings::Pick_username() {
  return entryText("Pick_username", "Pick username");
}

std::string ZKStrings::Pick_your_favorite() {
  return entryText("Pick_your_favorite", "Pick your favorite");
}

std::string ZKStrings::Play() {
  return entryText("Play", "Play");
}

std::string ZKStrings::Play_a_game_tonight_to_win_some_cash() {
  return entryText("Play_a_game_tonight_to_win_some_cash", "Play a game tonight to win some cash!");
}

std::string ZKStrings::Play_again_now_for() {
  return entryText("Play_again_now_for", "Play again now for");
}

std::string ZKStrings::Play_days_more_days_in_a_row(Text days, std::int64_t count) {
  return entryText("Play_days_more_days_in_a_row", "Play %{days} more days in a row", count, {{"days", days}});
}

std::string ZKStrings::Play_days_more_days_in_a_row_to_earn_an_Extra_Life(Text days, std::int64_t count) {
  return entryText("Play_days_more_days_in_a_row_to_earn_an_Extra_Life", "Play %{days} more days in a row to earn an Extra Life!", count, {{"days", days}});
}

std::string ZKStrings::Play_for_points() {
  return entryText("Play_for_points", "Play for points");
}

std::string ZKStrings::Play_game_now_with(Text game) {
  return entryText("Play_game_now_with", "Play %{game} now with", {{"game", game}});
}

std::string ZKStrings::Play_gameCount_games(Text gameCount, std::int64_t count) {
  return entryText("Play_gameCount_games", "Play %{gameCount} games", count, {{"gameCount", gameCount}});
}

std::string ZKStrings::Play_gameName_with_me_Use_my_code_username_to_sign_up_https_zktrivia_example(Text gameName, Text username) {
  return entryText("Play_gameName_with_me_Use_my_code_username_to_sign_up_https_zktrivia_example", "Play %{gameName} with me! Use my code \"%{username}\" to sign up: https://zktrivia.example", {{"gameName", gameName}, {"username", username}});
}

std::string ZKStrings::Play_ZK_Trivia_ZK_Sports_and_ZK_Words() {
  return entryText("Play_ZK_Trivia_ZK_Sports_and_ZK_Words", "Play ZK Trivia, ZK Sports, and ZK Words");
}

std::string ZKStrings::Play_ZK_Trivia_Sports() {
  return entryText("Play_ZK_Trivia_Sports", "Play ZK Trivia & Sports");
}

std::string ZKStrings::Play_live_game_shows_and_win_cash_prizes_with_me_on_gameName_Use_my_code_username_to_sign_up_downloa(Text gameName, Text username, Text downloadUrl) {
  return entryText("Play_live_game_shows_and_win_cash_prizes_with_me_on_gameName_Use_my_code_username_to_sign_up_downloa", "Play live game shows and win cash prizes with me on %{gameName}. Use my code '%{username}' to sign up! %{downloadUrl}", {{"gameName", gameName}, {"username", username}, {"downloadUrl", downloadUrl}});
}

std::string ZKStrings::Play_live_game_shows_with_me_on_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_username_an(Text username) {
  return entryText("Play_live_game_shows_with_me_on_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_username_an", "Play live game shows with me on ZK Trivia! Sign up at https://zktrivia.example with my code \"%{username}\" and win cash prizes.", {{"username", username}});
}

std::string ZKStrings::Play_Now() {
  return entryText("Play_Now", "Play Now");
}

std::string ZKStrings::Play_warm_up_game() {
  return entryText("Play_warm_up_game", "Play warm up game");
}

std::string ZKStrings::Play_with_cost_nearby_players_and_you_ll_each_earn_an_Eraser(Text cost) {
  return entryText("Play_with_cost_nearby_players_and_you_ll_each_earn_an_Eraser", "Play with %{cost} nearby players and you'll each earn an Eraser", {{"cost", cost}});
}

std::string ZKStrings::players_in_VIP_Prize(Text players) {
  return entryText("players_in_VIP_Prize", "%{players} in VIP Prize", {{"players", players}});
}

std::string ZKStrings::players_remain(Text players) {
  return entryText("players_remain", "%{players} remain", {{"players", players}});
}

std::string ZKStrings::playersCount_players(Text playersCount, std::int64_t count) {
  return entryText("playersCount_players", "%{playersCount} players", count, {{"playersCount", playersCount}});
}

std::string ZKStrings::Playing_for_points() {
  return entryText("Playing_for_points", "Playing for points");
}

std::string ZKStrings::Please_do_not_comment_repeatedly() {
  return entryText("Please_do_not_comment_repeatedly", "Please do not comment repeatedly.");
}

std::string ZKStrings::Please_enter_a_valid_email_address() {
  return entryText("Please_enter_a_valid_email_address", "Please enter a valid email address");
}

std::string ZKStrings::Please_enter_a_valid_name() {
  return entryText("Please_enter_a_valid_name", "Please enter a valid name");
}

std::string ZKStrings::Please_enter_a_valid_phone_number() {
  return entryText("Please_enter_a_valid_phone_number", "Please enter a valid phone number");
}

std::string ZKStrings::Please_enter_a_valid_username_in_the_referral_code_box() {
  return entryText("Please_enter_a_valid_username_in_the_referral_code_box", "Please enter a valid username in the referral code box.");
}

std::string ZKStrings::Please_enter_a_valid_verification_code() {
  return entryText("Please_enter_a_valid_verification_code", "Please enter a valid verification code");
}

std::string ZKStrings::Please_enter_the_verification_code_sent_to_phoneNumber(Text phoneNumber) {
  return entryText("Please_enter_the_verification_code_sent_to_phoneNumber", "Please enter the verification code sent to %{phoneNumber}", {{"phoneNumber", phoneNumber}});
}

std::string ZKStrings::Please_tell_us_a_bit_about_the_bug() {
  return entryText("Please_tell_us_a_bit_about_the_bug", "Please tell us a bit about the bug:");
}

std::string ZKStrings::Please_try_again_later() {
  return entryText("Please_try_again_later", "Please try again later");
}

std::string ZKStrings::Please_try_again_soon() {
  return entryText("Please_try_again_soon", "Please try again soon");
}

std::string ZKStrings::Please_try_the_next_game() {
  return entryText("Please_try_the_next_game", "Please try the next game");
}

std::string ZKStrings::Please_try_the_next_game_gameInfo(Text gameInfo) {
  return entryText("Please_try_the_next_game_gameInfo", "Please try the next game: %{gameInfo}", {{"gameInfo", gameInfo}});
}

std::string ZKStrings::Please_verify_that_the_email_used_above_is_a_valid_PayPal_email_account_Transfers_to_your_account_ma() {
  return entryText("Please_verify_that_the_email_used_above_is_a_valid_PayPal_email_account_Transfers_to_your_account_ma", "Please verify that the email used above is a valid PayPal email account. Transfers to your account may take up to 15 days.");
}

std::string ZKStrings::Point() {
  return entryText("Point", "Point");
}

std::string ZKStrings::Point_Multiplier() {
  return entryText("Point_Multiplier", "Point Multiplier");
}

std::string ZKStrings::Point_Multipliers(std::int64_t count) {
  return entryText("Point_Multipliers", "Point Multipliers", count);
}

std::string ZKStrings::pointCount_pts_away_from_Level_level(Text pointCount, Text level, std::int64_t count) {
  return entryText("pointCount_pts_away_from_Level_level", "%{pointCount} pts away from Level %{level}", count, {{"pointCount", pointCount}, {"level", level}});
}

std::string ZKStrings::points() {
  return entryText("points", "points");
}

std::string ZKStrings::Points() {
  return entryText("Points", "Points");
}

std::string ZKStrings::Points_on_this_game() {
  return entryText("Points_on_this_game", "Points on this game");
}

std::string ZKStrings::points_points(Text points) {
  return entryText("points_points", "%{points} points", {{"points", points}});
}

std::string ZKStrings::pointsMultiplier_x_Points(Text pointsMultiplier) {
  return entryText("pointsMultiplier_x_Points", "%{pointsMultiplier}x Points", {{"pointsMultiplier", pointsMultiplier}});
}

std::string ZKStrings::Power_Ups() {
  return entryText("Power_Ups", "Power Ups");
}

std::string ZKStrings::Practice() {
  return entryText("Practice", "Practice");
}

std::string ZKStrings::Privacy() {
  return entryText("Privacy", "Privacy");
}

std::string ZKStrings::Privacy_Policy() {
  return entryText("Privacy_Policy", "Privacy Policy");
}

std::string ZKStrings::Prize() {
  return entryText("Prize", "Prize");
}

std::string ZKStrings::prizeAmount_prize(Text prizeAmount) {
  return entryText("prizeAmount_prize", "%{prizeAmount} prize", {{"prizeAmount", prizeAmount}});
}

std::string ZKStrings::Profile() {
  return entryText("Profile", "Profile");
}

std::string ZKStrings::Pull_down_to_leave_the_game() {
  return entryText("Pull_down_to_leave_the_game", "Pull down to leave the game");
}

std::string ZKStrings::Puzzle_puzzleNumber(Text puzzleNumber) {
  return entryText("Puzzle_puzzleNumber", "Puzzle %{puzzleNumber}", {{"puzzleNumber", puzzleNumber}});
}

std::string ZKStrings::Q1_is_about_to_start() {
  return entryText("Q1_is_about_to_start", "Q1 is about to start!");
}

std::string ZKStrings::Q_questionNumber_of_questionCount(Text questionNumber, Text questionCount) {
  return entryText("Q_questionNumber_of_questionCount", "Q%{questionNumber} of %{questionCount}", {{"questionNumber", questionNumber}, {"questionCount", questionCount}});
}

std::string ZKStrings::Question() {
  return entryText("Question", "Question");
}

std::string ZKStrings::questionNumber_of_questionCount(Text questionNumber, Text questionCount) {
  return entryText("questionNumber_of_questionCount", "%{questionNumber} of %{questionCount}", {{"questionNumber", questionNumber}, {"questionCount", questionCount}});
}

std::string ZKStrings::questions_n_players_remain(Text questions, Text players) {
  return entryText("questions_n_players_remain", "%{questions} &\n%{players} remain", {{"questions", questions}, {"players", players}});
}

std::string ZKStrings::questionsCount_questions(Text questionsCount, std::int64_t count) {
  return entryText("questionsCount_questions", "%{questionsCount} questions", count, {{"questionsCount", questionsCount}});
}

std::string ZKStrings::R_roundNumber_of_roundCount(Text roundNumber, Text roundCount) {
  return entryText("R_roundNumber_of_roundCount", "R%{roundNumber} of %{roundCount}", {{"roundNumber", roundNumber}, {"roundCount", roundCount}});
}

std::string ZKStrings::Rank() {
  return entryText("Rank", "Rank");
}

std::string ZKStrings::Rate_us() {
  return entryText("Rate_us", "Rate us");
}

std::string ZKStrings::Recent_Wins() {
  return entryText("Recent_Wins", "Recent Wins");
}

std::string ZKStrings::recommendedCount_recommended_friends(Text recommendedCount, std::int64_t count) {
  return entryText("recommendedCount_recommended_friends", "%{recommendedCount} recommended friends", count, {{"recommendedCount", recommendedCount}});
}

std::string ZKStrings::Reconnecting() {
  return entryText("Reconnecting", "Reconnecting…");
}

std::string ZKStrings::Refer_a_friend() {
  return entryText("Refer_a_friend", "Refer a friend");
}

std::string ZKStrings::Referral_Code() {
  return entryText("Referral_Code", "Referral Code");
}

std::string ZKStrings::Referral_code() {
  return entryText("Referral_code", "Referral code");
}

std::string ZKStrings::Referral_code_confirmed() {
  return entryText("Referral_code_confirmed", "Referral code confirmed");
}

std::string ZKStrings::Referral_code_optional() {
  return entryText("Referral_code_optional", "Referral code (optional)");
}

std::string ZKStrings::Referral_Codes() {
  return entryText("Referral_Codes", "Referral Codes");
}

std::string ZKStrings::referralCount_referrals_left(Text referralCount, std::int64_t count) {
  return entryText("referralCount_referrals_left", "%{referralCount} referrals left", count, {{"referralCount", referralCount}});
}

std::string ZKStrings::Refresh_contacts() {
  return entryText("Refresh_contacts", "Refresh contacts");
}

std::string ZKStrings::Related_Badges() {
  return entryText("Related_Badges", "Related Badges");
}

std::string ZKStrings::Remind_me() {
  return entryText("Remind_me", "Remind me");
}

std::string ZKStrings::Remove_existing_photo() {
  return entryText("Remove_existing_photo", "Remove existing photo");
}

std::string ZKStrings::Remove_friend() {
  return entryText("Remove_friend", "Remove friend");
}

std::string ZKStrings::Remove_request() {
  return entryText("Remove_request", "Remove request");
}

std::string ZKStrings::Report() {
  return entryText("Report", "Report");
}

std::string ZKStrings::Report_issue() {
  return entryText("Report_issue", "Report issue");
}

std::string ZKStrings::Request_cannot_be_completed() {
  return entryText("Request_cannot_be_completed", "Request cannot be completed");
}

std::string ZKStrings::Request_no_longer_exists() {
  return entryText("Request_no_longer_exists", "Request no longer exists.");
}

std::string ZKStrings::Requested() {
  return entryText("Requested", "Requested");
}

std::string ZKStrings::Resend_code() {
  return entryText("Resend_code", "Resend code");
}

std::string ZKStrings::Resend_code_in_timeLeft(Text timeLeft) {
  return entryText("Resend_code_in_timeLeft", "Resend code in %{timeLeft}", {{"timeLeft", timeLeft}});
}

std::string ZKStrings::Rest_of_World_Privacy_Policy() {
  return entryText("Rest_of_World_Privacy_Policy", "Rest of World Privacy Policy");
}

std::string ZKStrings::Results() {
  return entryText("Results", "Results");
}

std::string ZKStrings::Retake() {
  return entryText("Retake", "Retake");
}

std::string ZKStrings::Retry() {
  return entryText("Retry", "Retry");
}

std::string ZKStrings::Reverse_camera() {
  return entryText("Reverse_camera", "Reverse camera");
}

std::string ZKStrings::Review_Us() {
  return entryText("Review_Us", "Review Us");
}

std::string ZKStrings::Revived() {
  return entryText("Revived", "Revived");
}

std::string ZKStrings::Rewards() {
  return entryText("Rewards", "Rewards");
}

std::string ZKStrings::Rewards_Mode() {
  return entryText("Rewards_Mode", "Rewards Mode");
}

std::string ZKStrings::Round_1_is_about_to_start() {
  return entryText("Round_1_is_about_to_start", "Round 1 is about to start!");
}

std::string ZKStrings::Round_roundNumber(Text roundNumber) {
  return entryText("Round_roundNumber", "Round %{roundNumber}", {{"roundNumber", roundNumber}});
}

std::string ZKStrings::Round_roundNumber_Results(Text roundNumber) {
  return entryText("Round_roundNumber_Results", "Round %{roundNumber} Results", {{"roundNumber", roundNumber}});
}

std::string ZKStrings::Round_Winners() {
  return entryText("Round_Winners", "Round Winners");
}

std::string ZKStrings::Rules() {
  return entryText("Rules", "Rules");
}

std::string ZKStrings::Save_your_Super_Spin() {
  return entryText("Save_your_Super_Spin", "Save your Super Spin");
}

std::string ZKStrings::Say_something() {
  return entryText("Say_something", "Say something…");
}

std::string ZKStrings::Schedule() {
  return entryText("Schedule", "Schedule");
}

std::string ZKStrings::Science() {
  return entryText("Science", "Science");
}

std::string ZKStrings::Search_for_a_friend_by_username_to_make_your_first_connection() {
  return entryText("Search_for_a_friend_by_username_to_make_your_first_connection", "Search for a friend by username to make your first connection");
}

std::string ZKStrings::Search_ZK_users() {
  return entryText("Search_ZK_users", "Search ZK users");
}

std::string ZKStrings::Search_results_for_searchTerm(Text searchTerm) {
  return entryText("Search_results_for_searchTerm", "Search results for \"%{searchTerm}\"", {{"searchTerm", searchTerm}});
}

std::string ZKStrings::Searching_for_cost_nearby_players_to_collect_an_Eraser_power_up(Text cost, std::int64_t count) {
  return entryText("Searching_for_cost_nearby_players_to_collect_an_Eraser_power_up", "Searching for %{cost} nearby players to collect an *Eraser* power up", count, {{"cost", cost}});
}

std::string ZKStrings::Season_Ended() {
  return entryText("Season_Ended", "Season Ended!");
}

std::string ZKStrings::Secure_your_ZK_account_by_linking_one_of_the_below_accounts() {
  return entryText("Secure_your_ZK_account_by_linking_one_of_the_below_accounts", "Secure your ZK account by linking one of the below accounts:");
}

std::string ZKStrings::See_all_Badges() {
  return entryText("See_all_Badges", "See all Badges");
}

std::string ZKStrings::Select_an_avatar() {
  return entryText("Select_an_avatar", "Select an avatar");
}

std::string ZKStrings::Send_feedback() {
  return entryText("Send_feedback", "Send feedback");
}

std::string ZKStrings::Send_notification() {
  return entryText("Send_notification", "Send notification");
}

std::string ZKStrings::Sent() {
  return entryText("Sent", "Sent");
}

std::string ZKStrings::Set_Reminder() {
  return entryText("Set_Reminder", "Set Reminder");
}

std::string ZKStrings::Settings() {
  return entryText("Settings", "Settings");
}

std::string ZKStrings::seven() {
  return entryText("seven", "seven");
}

std::string ZKStrings::Share() {
  return entryText("Share", "Share");
}

std::string ZKStrings::Share_answers() {
  return entryText("Share_answers", "Share answers");
}

std::string ZKStrings::Share_code() {
  return entryText("Share_code", "Share code");
}

std::string ZKStrings::Share_code_username(Text username) {
  return entryText("Share_code_username", "Share code: %{username}", {{"username", username}});
}

std::string ZKStrings::Share_to_Facebook() {
  return entryText("Share_to_Facebook", "Share to Facebook");
}

std::string ZKStrings::Share_to_Twitter() {
  return entryText("Share_to_Twitter", "Share to Twitter");
}

std::string ZKStrings::Share_with_friends() {
  return entryText("Share_with_friends", "Share with friends");
}

std::string ZKStrings::Share_wrong_answer() {
  return entryText("Share_wrong_answer", "Share wrong answer");
}

std::string ZKStrings::shareCount_shares_left(Text shareCount, std::int64_t count) {
  return entryText("shareCount_shares_left", "%{shareCount} shares left", count, {{"shareCount", shareCount}});
}

std::string ZKStrings::Show_details() {
  return entryText("Show_details", "Show details");
}

std::string ZKStrings::Sign_in() {
  return entryText("Sign_in", "Sign in");
}

std::string ZKStrings::Sign_in_to_play() {
  return entryText("Sign_in_to_play", "Sign in to play");
}

std::string ZKStrings::Silent_Kick() {
  return entryText("Silent_Kick", "Silent Kick");
}

std::string ZKStrings::six() {
  return entryText("six", "six");
}

std::string ZKStrings::Solved() {
  return entryText("Solved", "Solved");
}

std::string ZKStrings::Solved_Points() {
  return entryText("Solved_Points", "Solved Points");
}

std::string ZKStrings::Solving() {
  return entryText("Solving", "Solving");
}

std::string ZKStrings::Something_went_wrong() {
  return entryText("Something_went_wrong", "Something went wrong");
}

std::string ZKStrings::Something_went_wrong_nPlease_try_again() {
  return entryText("Something_went_wrong_nPlease_try_again", "Something went wrong.\nPlease try again.");
}

std::string ZKStrings::Sorry_erasers_are_not_allowed_on_this_question() {
  return entryText("Sorry_erasers_are_not_allowed_on_this_question", "Sorry, erasers are not allowed on this question");
}

std::string ZKStrings::Sorry_something_went_wrong() {
  return entryText("Sorry_something_went_wrong", "Sorry, something went wrong.");
}

std::string ZKStrings::Sorry_that_didn_t_work() {
  return entryText("Sorry_that_didn_t_work", "Sorry, that didn't work.");
}

std::string ZKStrings::Sorry_the_box_is_empty() {
  return entryText("Sorry_the_box_is_empty", "Sorry, the box is empty.");
}

std::string ZKStrings::Sorry_we_couldn_t_sign_you_in_right_now_Try_again_in_a_few() {
  return entryText("Sorry_we_couldn_t_sign_you_in_right_now_Try_again_in_a_few", "Sorry, we couldn't sign you in right now. Try again in a few?");
}

std::string ZKStrings::Sorry_you_don_t_have_enough_coins_You_ll_be_able_to_buy_more_soon() {
  return entryText("Sorry_you_don_t_have_enough_coins_You_ll_be_able_to_buy_more_soon", "Sorry, you don’t have enough coins. You’ll be able to buy more soon.");
}

std::string ZKStrings::Sorry_you_need_a_minimum_balance_of_minBalance_to_cashout_Win_some_more_games(Text minBalance) {
  return entryText("Sorry_you_need_a_minimum_balance_of_minBalance_to_cashout_Win_some_more_games", "Sorry, you need a minimum balance of %{minBalance} to cashout. Win some more games!", {{"minBalance", minBalance}});
}

std::string ZKStrings::Spin_normal_wheel() {
  return entryText("Spin_normal_wheel", "Spin normal wheel");
}

std::string ZKStrings::Spin_the_Super_Wheel() {
  return entryText("Spin_the_Super_Wheel", "Spin the Super Wheel!");
}

std::string ZKStrings::Spin_the_wheel() {
  return entryText("Spin_the_wheel", "Spin the wheel!");
}

std::string ZKStrings::Spin_the_wheel_for_a_free_letter() {
  return entryText("Spin_the_wheel_for_a_free_letter", "Spin the wheel for a free letter");
}

std::string ZKStrings::Sports() {
  return entryText("Sports", "Sports");
}

std::string ZKStrings::Start() {
  return entryText("Start", "Start");
}

std::string ZKStrings::Start_the_Next_Game() {
  return entryText("Start_the_Next_Game", "Start the Next Game");
}

std::string ZKStrings::Start_the_Next_Round() {
  return entryText("Start_the_Next_Round", "Start the Next Round");
}

std::string ZKStrings::Starting_shortly() {
  return entryText("Starting_shortly", "Starting shortly");
}

std::string ZKStrings::Starting_soon() {
  return entryText("Starting_soon", "Starting soon");
}

std::string ZKStrings::Stay_in_the_game_with_an_Extra_Life() {
  return entryText("Stay_in_the_game_with_an_Extra_Life", "Stay in the game with an Extra Life");
}

std::string ZKStrings::Still_have_questions() {
  return entryText("Still_have_questions", "Still have questions?");
}

std::string ZKStrings::Strike_Out() {
  return entryText("Strike_Out", "Strike Out");
}

std::string ZKStrings::strikeCount_strikes_left(Text strikeCount, std::int64_t count) {
  return entryText("strikeCount_strikes_left", "%{strikeCount} strikes left", count, {{"strikeCount", strikeCount}});
}

std::string ZKStrings::strikeCount_strikes_left_this_round(Text strikeCount, std::int64_t count) {
  return entryText("strikeCount_strikes_left_this_round", "%{strikeCount} strikes left this round!", count, {{"strikeCount", strikeCount}});
}

std::string ZKStrings::Submit() {
  return entryText("Submit", "Submit");
}

std::string ZKStrings::Submit_another() {
  return entryText("Submit_another", "Submit another");
}

std::string ZKStrings::Submit_trivia() {
  return entryText("Submit_trivia", "Submit trivia");
}

std::string ZKStrings::Submitted() {
  return entryText("Submitted", "Submitted");
}

std::string ZKStrings::Subscribe() {
  return entryText("Subscribe", "Subscribe");
}

std::string ZKStrings::Subscribe_to_games_that_you_are_interested_in_so_you_don_t_miss_out_when_we_go_live() {
  return entryText("Subscribe_to_games_that_you_are_interested_in_so_you_don_t_miss_out_when_we_go_live", "Subscribe to games that you are interested in so you don’t miss out when we go live!");
}

std::string ZKStrings::Subscribed() {
  return entryText("Subscribed", "Subscribed");
}

std::string ZKStrings::Success_You_bought_extraLifeCount_Extra_Lives_to_help_you_win(Text extraLifeCount, std::int64_t count) {
  return entryText("Success_You_bought_extraLifeCount_Extra_Lives_to_help_you_win", "Success! You bought %{extraLifeCount} Extra Lives to help you win.", count, {{"extraLifeCount", extraLifeCount}});
}

std::string ZKStrings::Success_You_have_count_name(Text count, Text name) {
  return entryText("Success_You_have_count_name", "Success! You have %{count} %{name}.", {{"count", count}, {"name", name}});
}

std::string ZKStrings::Suggested_friends() {
  return entryText("Suggested_friends", "Suggested friends");
}

std::string ZKStrings::suggestedCount_suggested_friends(Text suggestedCount, std::int64_t count) {
  return entryText("suggestedCount_suggested_friends", "%{suggestedCount} suggested friends", count, {{"suggestedCount", suggestedCount}});
}

std::string ZKStrings::Super_Spins() {
  return entryText("Super_Spins", "Super Spins");
}

std::string ZKStrings::Super_Spins(std::int64_t count) {
  return entryText("Super_Spins", "Super Spins", count);
}

std::string ZKStrings::Super_Wheel() {
  return entryText("Super_Wheel", "Super Wheel");
}

std::string ZKStrings::Swipe_left_to_reveal_comments() {
  return entryText("Swipe_left_to_reveal_comments", "Swipe left to reveal comments");
}

std::string ZKStrings::Swipe_right_to_play_mini_games() {
  return entryText("Swipe_right_to_play_mini_games", "Swipe right to play mini games");
}

std::string ZKStrings::Take_New_Photo() {
  return entryText("Take_New_Photo", "Take New Photo");
}

std::string ZKStrings::Take_Photo() {
  return entryText("Take_Photo", "Take Photo");
}

std::string ZKStrings::Tap_here_to_buy_an_Extra_Life_to_help_you_win() {
  return entryText("Tap_here_to_buy_an_Extra_Life_to_help_you_win", "Tap here to buy an *Extra Life* to help you win!");
}

std::string ZKStrings::Tap_here_to_use_an_Eraser_during_a_question() {
  return entryText("Tap_here_to_use_an_Eraser_during_a_question", "Tap here to use an *Eraser* during a question");
}

std::string ZKStrings::Tap_the_answer_you_think_is_n_correct_in_under_10_seconds() {
  return entryText("Tap_the_answer_you_think_is_n_correct_in_under_10_seconds", "Tap the answer you think is\ncorrect in under 10 seconds.");
}

std::string ZKStrings::Tap_to_enable_Nearby_to_collect_an_Eraser_power_up() {
  return entryText("Tap_to_enable_Nearby_to_collect_an_Eraser_power_up", "Tap to enable *Nearby* to collect an Eraser power up");
}

std::string ZKStrings::Tap_to_open() {
  return entryText("Tap_to_open", "Tap to open");
}

std::string ZKStrings::Tap_to_read() {
  return entryText("Tap_to_read", "Tap to read");
}

std::string ZKStrings::Tech() {
  return entryText("Tech", "Tech");
}

std::string ZKStrings::Tell_us_about_your_n_experience() {
  return entryText("Tell_us_about_your_n_experience", "Tell us about your \n experience");
}

std::string ZKStrings::Terms() {
  return entryText("Terms", "Terms");
}

std::string ZKStrings::Terms_of_Service() {
  return entryText("Terms_of_Service", "Terms of Service");
}

std::string ZKStrings::Terms_of_Use() {
  return entryText("Terms_of_Use", "Terms of Use");
}

std::string ZKStrings::Thank_you_username_your_request_to_donate_amount_to_charityName_has_been_submitted(Text username, Text amount, Text charityName) {
  return entryText("Thank_you_username_your_request_to_donate_amount_to_charityName_has_been_submitted", "Thank you %{username}, your request to donate %{amount} to %{charityName} has been submitted.", {{"username", username}, {"amount", amount}, {"charityName", charityName}});
}

std::string ZKStrings::Thanks_for_being_patient_n_Your_game_will_resume_shortly() {
  return entryText("Thanks_for_being_patient_n_Your_game_will_resume_shortly", "Thanks for being patient! \n Your game will resume shortly.");
}

std::string ZKStrings::That_is_not_a_valid_email_address() {
  return entryText("That_is_not_a_valid_email_address", "That is not a valid email address.");
}

std::string ZKStrings::That_s_your_best_so_far() {
  return entryText("That_s_your_best_so_far", "That's your best so far.");
}

std::string ZKStrings::That_worked() {
  return entryText("That_worked", "That worked!");
}

std::string ZKStrings::The_email_you_provided_is_invalid() {
  return entryText("The_email_you_provided_is_invalid", "The email you provided is invalid");
}

std::string ZKStrings::The_next_question_has_already_started() {
  return entryText("The_next_question_has_already_started", "The next question has already started");
}

std::string ZKStrings::The_show_will_nstart_soon() {
  return entryText("The_show_will_nstart_soon", "The show will\nstart soon");
}

std::string ZKStrings::The_VIP_Game_is_full() {
  return entryText("The_VIP_Game_is_full", "The VIP Game is full");
}

std::string ZKStrings::The_VIP_Prize_is_cancelled() {
  return entryText("The_VIP_Prize_is_cancelled", "The VIP Prize is cancelled");
}

std::string ZKStrings::There_was_a_problem_Please_try_again_soon() {
  return entryText("There_was_a_problem_Please_try_again_soon", "There was a problem. Please try again soon.");
}

std::string ZKStrings::There_was_an_issue_uploading_your_address_book_Please_try_again_soon() {
  return entryText("There_was_an_issue_uploading_your_address_book_Please_try_again_soon", "There was an issue uploading your address book. Please try again soon.");
}

std::string ZKStrings::Think_of_a_subject_that_interests_you_then_think_of_one_fact_or_specific_thing_you_like_Now_Google_i() {
  return entryText("Think_of_a_subject_that_interests_you_then_think_of_one_fact_or_specific_thing_you_like_Now_Google_i", "Think of a subject that interests you, then think of one fact or specific thing you like. Now Google it and dig into the results until you have a fascinating nugget. Finally, work it into an intriguing question, with proper grammar and spelling.");
}

std::string ZKStrings::This_account_is_not_linked_to_this_phone_number_Continue_to_create_a_new_account() {
  return entryText("This_account_is_not_linked_to_this_phone_number_Continue_to_create_a_new_account", "This account is not linked to this phone number. Continue to create a new account?");
}

std::string ZKStrings::This_account_is_not_linked_to_this_phone_number_Continue_to_sign_in() {
  return entryText("This_account_is_not_linked_to_this_phone_number_Continue_to_sign_in", "This account is not linked to this phone number. Continue to sign in?");
}

std::string ZKStrings::This_account_is_under_review_for_a_violation_of_the_Terms_of_Use_and_or_Rules_Payment_is_disabled_un() {
  return entryText("This_account_is_under_review_for_a_violation_of_the_Terms_of_Use_and_or_Rules_Payment_is_disabled_un", "This account is under review for a violation of the Terms of Use and/or Rules. Payment is disabled until review is complete.");
}

std::string ZKStrings::This_broadcast_has_ended() {
  return entryText("This_broadcast_has_ended", "This broadcast has ended");
}

std::string ZKStrings::This_email_is_already_associated_with_another_ZK_Trivia_account_Using_the_same_email_address_on_diff() {
  return entryText("This_email_is_already_associated_with_another_ZK_Trivia_account_Using_the_same_email_address_on_diff", "This email is already associated with another ZK Trivia account. Using the same email address on different accounts is against the Terms of Use.");
}

std::string ZKStrings::This_feature_is_not_available_in_your_area() {
  return entryText("This_feature_is_not_available_in_your_area", "*This feature is not available in your area.*");
}

std::string ZKStrings::This_party_is_at_capacity_Try_again_in_a_few() {
  return entryText("This_party_is_at_capacity_Try_again_in_a_few", "This party is at capacity. Try again in a few?");
}

std::string ZKStrings::This_Season_has_ended_Check_back_soon_for_details_on_the_next_season() {
  return entryText("This_Season_has_ended_Check_back_soon_for_details_on_the_next_season", "This Season has ended. Check back soon for details on the next season.");
}

std::string ZKStrings::This_version_of_ZK_Trivia_is_no_longer_supported_To_continue_please_update_the_app_in_the_App_Store() {
  return entryText("This_version_of_ZK_Trivia_is_no_longer_supported_To_continue_please_update_the_app_in_the_App_Store", "This version of ZK Trivia is no longer supported. To continue, please update the app in the App Store.");
}

std::string ZKStrings::This_version_of_ZK_Trivia_is_outdated_Don_t_miss_out_on_the_latest_features_Please_update_before_con() {
  return entryText("This_version_of_ZK_Trivia_is_outdated_Don_t_miss_out_on_the_latest_features_Please_update_before_con", "This version of ZK Trivia is outdated. Don't miss out on the latest features. Please update before continuing.");
}

std::string ZKStrings::This_week() {
  return entryText("This_week", "This week");
}

std::string ZKStrings::three() {
  return entryText("three", "three");
}

std::string ZKStrings::Time() {
  return entryText("Time", "Time");
}

std::string ZKStrings::Time_Bonus() {
  return entryText("Time_Bonus", "Time Bonus");
}

std::string ZKStrings::Time_s_up() {
  return entryText("Time_s_up", "Time's up!");
}

std::string ZKStrings::Tip() {
  return entryText("Tip", "Tip");
}

std::string ZKStrings::Tips() {
  return entryText("Tips", "Tips");
}

std::string ZKStrings::To_be_reminded_when_ZK_goes_live_please_enable_notifications_in_iOS_settings() {
  return entryText("To_be_reminded_when_ZK_goes_live_please_enable_notifications_in_iOS_settings", "To be reminded when ZK goes live please enable notifications in iOS settings.");
}

std::string ZKStrings::To_continue_you_must_secure_your_ZK_account_by_linking_one_of_the_below_accounts() {
  return entryText("To_continue_you_must_secure_your_ZK_account_by_linking_one_of_the_below_accounts", "To continue you must secure your ZK account by linking one of the below accounts");
}

std::string ZKStrings::Today() {
  return entryText("Today", "Today");
}

std::string ZKStrings::Today_s_Prize() {
  return entryText("Today_s_Prize", "Today’s Prize");
}

std::string ZKStrings::Tomorrow() {
  return entryText("Tomorrow", "Tomorrow");
}

std::string ZKStrings::Tonight_s_Jackpot() {
  return entryText("Tonight_s_Jackpot", "Tonight’s Jackpot");
}

std::string ZKStrings::Too_many_requests() {
  return entryText("Too_many_requests", "Too many requests");
}

std::string ZKStrings::Try_Again() {
  return entryText("Try_Again", "Try Again");
}

std::string ZKStrings::Try_another_photo() {
  return entryText("Try_another_photo", "Try another photo");
}

std::string ZKStrings::Turn_on_Bluetooth_to_collect_an_Eraser_power_up() {
  return entryText("Turn_on_Bluetooth_to_collect_an_Eraser_power_up", "Turn on *Bluetooth* to collect an Eraser power up");
}

std::string ZKStrings::Turn_On_Camera_in_Settings() {
  return entryText("Turn_On_Camera_in_Settings", "Turn On Camera in Settings");
}

std::string ZKStrings::Turn_on_notifications() {
  return entryText("Turn_on_notifications", "Turn on notifications");
}

std::string ZKStrings::TV() {
  return entryText("TV", "TV");
}

std::string ZKStrings::two() {
  return entryText("two", "two");
}

std::string ZKStrings::Type_your_question_here() {
  return entryText("Type_your_question_here", "Type your question here…");
}

std::string ZKStrings::Unable_to_Cashout() {
  return entryText("Unable_to_Cashout", "Unable to Cashout");
}

std::string ZKStrings::Unable_to_load_image() {
  return entryText("Unable_to_load_image", "Unable to load image");
}

std::string ZKStrings::Unable_to_load_your_balance_Please_try_again_soon() {
  return entryText("Unable_to_load_your_balance_Please_try_again_soon", "Unable to load your balance. Please try again soon.");
}

std::string ZKStrings::Unable_to_load_your_preferences() {
  return entryText("Unable_to_load_your_preferences", "Unable to load your preferences");
}

std::string ZKStrings::Under_Review() {
  return entryText("Under_Review", "Under Review");
}

std::string ZKStrings::Unknown_period() {
  return entryText("Unknown_period", "Unknown period");
}

std::string ZKStrings::Unlock() {
  return entryText("Unlock", "Unlock");
}

std::string ZKStrings::Unlock_badges_by_getting_nquestions_right_in_ndifferent_topics() {
  return entryText("Unlock_badges_by_getting_nquestions_right_in_ndifferent_topics", "Unlock badges by getting\nquestions right in\ndifferent topics.");
}

std::string ZKStrings::Unlock_Next_Game() {
  return entryText("Unlock_Next_Game", "Unlock Next Game");
}

std::string ZKStrings::Unlocks(std::int64_t count) {
  return entryText("Unlocks", "Unlocks", count);
}

std::string ZKStrings::unlocks_Unlocks_left(Text unlocks) {
  return entryText("unlocks_Unlocks_left", "%{unlocks} Unlocks left", {{"unlocks", unlocks}});
}

std::string ZKStrings::Unsubscribe() {
  return entryText("Unsubscribe", "Unsubscribe");
}

std::string ZKStrings::Update_Available() {
  return entryText("Update_Available", "Update Available");
}

std::string ZKStrings::Update_in_App_Store() {
  return entryText("Update_in_App_Store", "Update in App Store");
}

std::string ZKStrings::Update_in_Play_Store() {
  return entryText("Update_in_Play_Store", "Update in Play Store");
}

std::string ZKStrings::Update_Location_Settings_to_compete_for_the_VIP_Prize() {
  return entryText("Update_Location_Settings_to_compete_for_the_VIP_Prize", "Update Location Settings to compete for the VIP Prize.");
}

std::string ZKStrings::Update_required() {
  return entryText("Update_required", "Update required.");
}

std::string ZKStrings::Update_Settings() {
  return entryText("Update_Settings", "Update Settings");
}

std::string ZKStrings::Upgrade_to_Super_Spin() {
  return entryText("Upgrade_to_Super_Spin", "Upgrade to Super Spin");
}

std::string ZKStrings::Upgrade_to_Super_Wheel() {
  return entryText("Upgrade_to_Super_Wheel", "Upgrade to Super Wheel");
}

std::string ZKStrings::Uploading() {
  return entryText("Uploading", "Uploading");
}

std::string ZKStrings::Use_a_Game_Unlock() {
  return entryText("Use_a_Game_Unlock", "Use a Game Unlock");
}

std::string ZKStrings::Use_a_Super_Spin() {
  return entryText("Use_a_Super_Spin", "Use a Super Spin");
}

std::string ZKStrings::Use_a_Super_Spin_to_get_more_letters_and_special_Power_Ups_in_ZK_Words() {
  return entryText("Use_a_Super_Spin_to_get_more_letters_and_special_Power_Ups_in_ZK_Words", "Use a Super Spin to get more letters and special Power Ups in ZK Words.");
}

std::string ZKStrings::Use_an_Eraser_to_eliminate_one_wrong_answer_during_a_question() {
  return entryText("Use_an_Eraser_to_eliminate_one_wrong_answer_during_a_question", "Use an Eraser to eliminate one wrong answer during a question.");
}

std::string ZKStrings::Use_my_code() {
  return entryText("Use_my_code", "Use my code: ");
}

std::string ZKStrings::Use_my_code_code_to_sign_up_url(Text code, Text url) {
  return entryText("Use_my_code_code_to_sign_up_url", "Use my code \"%{code}\" to sign up %{url}", {{"code", code}, {"url", url}});
}

std::string ZKStrings::user_was_kicked_out(Text user) {
  return entryText("user_was_kicked_out", "%{user} was kicked out.", {{"user", user}});
}

std::string ZKStrings::userCount_others(Text userCount, std::int64_t count) {
  return entryText("userCount_others", "%{userCount} others", count, {{"userCount", userCount}});
}

std::string ZKStrings::userCount_others_still_in(Text userCount, std::int64_t count) {
  return entryText("userCount_others_still_in", "%{userCount} others still in", count, {{"userCount", userCount}});
}

std::string ZKStrings::userCount_people(Text userCount, std::int64_t count) {
  return entryText("userCount_people", "%{userCount} people", count, {{"userCount", userCount}});
}

std::string ZKStrings::userCount_VIPs(Text userCount, std::int64_t count) {
  return entryText("userCount_VIPs", "%{userCount} VIPs", count, {{"userCount", userCount}});
}

std::string ZKStrings::userCount_VIPs_still_in(Text userCount, std::int64_t count) {
  return entryText("userCount_VIPs_still_in", "%{userCount} VIPs still in", count, {{"userCount", userCount}});
}

std::string ZKStrings::Username() {
  return entryText("Username", "Username");
}

std::string ZKStrings::Username_already_taken() {
  return entryText("Username_already_taken", "Username already taken!");
}

std::string ZKStrings::username_and_username2_were_eliminated(Text username, Text username2) {
  return entryText("username_and_username2_were_eliminated", "%{username} and %{username2} were eliminated.", {{"username", username}, {"username2", username2}});
}

std::string ZKStrings::Username_available() {
  return entryText("Username_available", "Username available!");
}

std::string ZKStrings::username_joined_the_game(Text username) {
  return entryText("username_joined_the_game", "%{username} joined the game.", {{"username", username}});
}

std::string ZKStrings::Username_unavailable() {
  return entryText("Username_unavailable", "Username unavailable!");
}

std::string ZKStrings::username_used_an_Extra_Life(Text username) {
  return entryText("username_used_an_Extra_Life", "%{username} used an Extra Life.", {{"username", username}});
}

std::string ZKStrings::username_username2_and_friendCount_other_friends_were_eliminated(Text username, Text username2, Text friendCount, std::int64_t count) {
  return entryText("username_username2_and_friendCount_other_friends_were_eliminated", "%{username}, %{username2}, and %{friendCount} other friends were eliminated.", count, {{"username", username}, {"username2", username2}, {"friendCount", friendCount}});
}

std::string ZKStrings::username_was_eliminated(Text username) {
  return entryText("username_was_eliminated", "%{username} was eliminated.", {{"username", username}});
}

std::string ZKStrings::username_was_kicked_successfully(Text username) {
  return entryText("username_was_kicked_successfully", "%{username} was kicked successfully", {{"username", username}});
}

std::string ZKStrings::username_was_silently_kicked(Text username) {
  return entryText("username_was_silently_kicked", "%{username} was silently kicked", {{"username", username}});
}

std::string ZKStrings::username_won_the_game(Text username) {
  return entryText("username_won_the_game", "%{username} won the game!", {{"username", username}});
}

std::string ZKStrings::Usernames_must_be_3_15_characters_long_and_can_contain_only_letters_numbers_or_Inappropriate_languag() {
  return entryText("Usernames_must_be_3_15_characters_long_and_can_contain_only_letters_numbers_or_Inappropriate_languag", "Usernames must be 3-15 characters long and can contain only letters, numbers, - , or _ . Inappropriate language in usernames is a violation of the Terms of Use. Your username will also be your referral code.");
}

std::string ZKStrings::Using_Extra_Life_in_seconds(Text seconds) {
  return entryText("Using_Extra_Life_in_seconds", "Using Extra Life in %{seconds}", {{"seconds", seconds}});
}

std::string ZKStrings::Valid_referral_code() {
  return entryText("Valid_referral_code", "Valid referral code!");
}

std::string ZKStrings::Verify_code() {
  return entryText("Verify_code", "Verify code");
}

std::string ZKStrings::View_all() {
  return entryText("View_all", "View all");
}

std::string ZKStrings::View_more() {
  return entryText("View_more", "View more");
}

std::string ZKStrings::VIP_Prize() {
  return entryText("VIP_Prize", "VIP Prize");
}

std::string ZKStrings::VIP_Prize_Rules() {
  return entryText("VIP_Prize_Rules", "VIP Prize Rules");
}

std::string ZKStrings::votes_votes(Text votes) {
  return entryText("votes_votes", "%{votes} votes", {{"votes", votes}});
}

std::string ZKStrings::Warm_up_win_coins() {
  return entryText("Warm_up_win_coins", "Warm up & win coins");
}

std::string ZKStrings::Watch() {
  return entryText("Watch", "Watch");
}

std::string ZKStrings::Watch_as_a_guest() {
  return entryText("Watch_as_a_guest", "Watch as a guest");
}

std::string ZKStrings::Watching_Only() {
  return entryText("Watching_Only", "Watching Only");
}

std::string ZKStrings::Watching_only() {
  return entryText("Watching_only", "Watching only");
}

std::string ZKStrings::We_are_phasing_out_phone_number_logins_Please_login_with_your_linked_account_below() {
  return entryText("We_are_phasing_out_phone_number_logins_Please_login_with_your_linked_account_below", "We are phasing out phone number logins. Please login with your linked account below.");
}

std::string ZKStrings::We_are_reviewing_your_information_and_will_contact_you_if_additional_information_is_necessary() {
  return entryText("We_are_reviewing_your_information_and_will_contact_you_if_additional_information_is_necessary", "We are reviewing your information and will contact you if additional information is necessary.");
}

std::string ZKStrings::We_are_still_processing_your_Extra_Lives_Please_check_back_later(std::int64_t count) {
  return entryText("We_are_still_processing_your_Extra_Lives_Please_check_back_later", "We are still processing your Extra Lives. Please check back later.", count);
}

std::string ZKStrings::We_are_still_processing_your_payment_Please_check_back_later() {
  return entryText("We_are_still_processing_your_payment_Please_check_back_later", "We are still processing your payment. Please check back later.");
}

std::string ZKStrings::We_have_updated_our_Privacy_Policy() {
  return entryText("We_have_updated_our_Privacy_Policy", "We have updated our Privacy Policy");
}

std::string ZKStrings::We_ll_send_a_push_notification_Don_t_be_late_or_you_ll_watch_only() {
  return entryText("We_ll_send_a_push_notification_Don_t_be_late_or_you_ll_watch_only", "We'll send a push notification. Don't be late or you'll watch only.");
}

std::string ZKStrings::We_re_having_trouble_connecting_Try_again_in_a_few() {
  return entryText("We_re_having_trouble_connecting_Try_again_in_a_few", "We're having trouble connecting. Try again in a few?");
}

std::string ZKStrings::We_re_sorry() {
  return entryText("We_re_sorry", "We’re sorry!");
}

std::string ZKStrings::We_review_all_submissions_but_don_t_make_any_promises_to_include_them_in_games_We_ll_let_you_know_if() {
  return entryText("We_review_all_submissions_but_don_t_make_any_promises_to_include_them_in_games_We_ll_let_you_know_if", "We review all submissions but don't make any promises to include them in games. We'll let you know if we use yours.");
}

std::string ZKStrings::We_started_the_game_without_you_You_can_watch_and_chat_only_Join_earlier_next_time_to_play_for_the_p() {
  return entryText("We_started_the_game_without_you_You_can_watch_and_chat_only_Join_earlier_next_time_to_play_for_the_p", "We started the game without you. You can watch and chat only. Join earlier next time to play for the prize.");
}

std::string ZKStrings::We_use_Location_to_show_you_nearby_players_and_allow_you_to_add_them_as_friends_on_ZK() {
  return entryText("We_use_Location_to_show_you_nearby_players_and_allow_you_to_add_them_as_friends_on_ZK", "We use Location to show you nearby players and allow you to add them as friends on ZK");
}

std::string ZKStrings::We_ve_updated_our_Privacy_Policy() {
  return entryText("We_ve_updated_our_Privacy_Policy", "We've updated our Privacy Policy.");
}

std::string ZKStrings::We_were_unable_to_delete_your_avatar_Please_try_again_later() {
  return entryText("We_were_unable_to_delete_your_avatar_Please_try_again_later", "We were unable to delete your avatar. Please try again later.");
}

std::string ZKStrings::We_were_unable_to_process_your_purchase_in_time_Your_Extra_Life_will_be_available_in_a_future_game() {
  return entryText("We_were_unable_to_process_your_purchase_in_time_Your_Extra_Life_will_be_available_in_a_future_game", "We were unable to process your purchase in time. Your Extra Life will be available in a future game");
}

std::string ZKStrings::We_were_unable_to_update_your_avatar_Please_try_again_later() {
  return entryText("We_were_unable_to_update_your_avatar_Please_try_again_later", "We were unable to update your avatar. Please try again later.");
}

std::string ZKStrings::We_were_unable_to_update_your_referral_code_Please_try_again_later() {
  return entryText("We_were_unable_to_update_your_referral_code_Please_try_again_later", "We were unable to update your referral code. Please try again later.");
}

std::string ZKStrings::We_were_unable_to_update_your_username_Please_try_again_later() {
  return entryText("We_were_unable_to_update_your_username_Please_try_again_later", "We were unable to update your username. Please try again later.");
}

std::string ZKStrings::Week() {
  return entryText("Week", "Week");
}

std::string ZKStrings::Weekly_rank() {
  return entryText("Weekly_rank", "Weekly rank");
}

std::string ZKStrings::Weeks() {
  return entryText("Weeks", "Weeks");
}

std::string ZKStrings::Welcome_back() {
  return entryText("Welcome_back", "Welcome back.");
}

std::string ZKStrings::Welcome_back_You_ve_been_eliminated_but_can_still_watch() {
  return entryText("Welcome_back_You_ve_been_eliminated_but_can_still_watch", "*Welcome back.* You've been eliminated but can still watch.");
}

std::string ZKStrings::Win_amount_now(Text amount) {
  return entryText("Win_amount_now", "Win *%{amount}* now", {{"amount", amount}});
}

std::string ZKStrings::Winner() {
  return entryText("Winner", "Winner");
}

std::string ZKStrings::Winner_Take_All() {
  return entryText("Winner_Take_All", "Winner Take All");
}

std::string ZKStrings::winnerCount_Winners(Text winnerCount, std::int64_t count) {
  return entryText("winnerCount_Winners", "%{winnerCount} Winners!", count, {{"winnerCount", winnerCount}});
}

std::string ZKStrings::Winners() {
  return entryText("Winners", "Winners");
}

std::string ZKStrings::Wins() {
  return entryText("Wins", "Wins");
}

std::string ZKStrings::Withdrawn() {
  return entryText("Withdrawn", "Withdrawn");
}

std::string ZKStrings::Word_Search() {
  return entryText("Word_Search", "Word Search");
}

std::string ZKStrings::words_words_found(Text words) {
  return entryText("words_words_found", "%{words} words found", {{"words", words}});
}

std::string ZKStrings::Wrong_answer_Continue_playing_with_an_Extra_Life() {
  return entryText("Wrong_answer_Continue_playing_with_an_Extra_Life", "Wrong answer? Continue playing with an Extra Life.");
}

std::string ZKStrings::Wrong_answer_Continue_playing_with_an_Extra_Life_Extra_Lives_are_applied_automatically_and_once_per_() {
  return entryText("Wrong_answer_Continue_playing_with_an_Extra_Life_Extra_Lives_are_applied_automatically_and_once_per_", "Wrong answer? Continue playing with an Extra Life. Extra Lives are applied automatically and once per game.");
}

std::string ZKStrings::Wrong_answer_Keep_playing_with_an_Extra_Life_Get_one_every_time_a_new_ZK_user_signs_up_with_your_ref() {
  return entryText("Wrong_answer_Keep_playing_with_an_Extra_Life_Get_one_every_time_a_new_ZK_user_signs_up_with_your_ref", "Wrong answer? Keep playing with an Extra Life. Get one every time a new ZK user signs up with your referral code and plays their first game. They can be used once per game, except on the last question.");
}

std::string ZKStrings::Yay_You_played_days_days_in_a_row(Text days, std::int64_t count) {
  return entryText("Yay_You_played_days_days_in_a_row", "Yay! You played %{days} days in a row!", count, {{"days", days}});
}

std::string ZKStrings::Year() {
  return entryText("Year", "Year");
}

std::string ZKStrings::Years() {
  return entryText("Years", "Years");
}

std::string ZKStrings::Yep() {
  return entryText("Yep", "Yep!");
}

std::string ZKStrings::Yes() {
  return entryText("Yes", "Yes");
}

std::string ZKStrings::You_and_your_friend_will_earn_an_Extra_Life() {
  return entryText("You_and_your_friend_will_earn_an_Extra_Life", "You and your friend will earn an Extra Life");
}

std::string ZKStrings::You_are_already_friends() {
  return entryText("You_are_already_friends", "You are already friends.");
}

std::string ZKStrings::You_are_unauthorized_to_cashout() {
  return entryText("You_are_unauthorized_to_cashout", "You are unauthorized to cashout");
}

std::string ZKStrings::You_can_t_win_the_cash_prize_but_get_pointsToGo_more_points_to_earn_an_Extra_Life(Text pointsToGo, std::int64_t count) {
  return entryText("You_can_t_win_the_cash_prize_but_get_pointsToGo_more_points_to_earn_an_Extra_Life", "You can't win the cash prize, but get %{pointsToGo} more points to earn an Extra Life!", count, {{"pointsToGo", pointsToGo}});
}

std::string ZKStrings::You_can_use_your_purchased_ticket_for_the_next_game() {
  return entryText("You_can_use_your_purchased_ticket_for_the_next_game", "You can use your purchased ticket for the next game.");
}

std::string ZKStrings::You_didn_t_enter_a_number_yet() {
  return entryText("You_didn_t_enter_a_number_yet", "You didn’t enter a number yet");
}

std::string ZKStrings::You_do_not_meet_the_minimum_balance_to_cashout_Win_some_more_games() {
  return entryText("You_do_not_meet_the_minimum_balance_to_cashout_Win_some_more_games", "You do not meet the minimum balance to cashout. Win some more games!");
}

std::string ZKStrings::You_Earned() {
  return entryText("You_Earned", "You Earned");
}

std::string ZKStrings::You_earned_an_Eraser() {
  return entryText("You_earned_an_Eraser", "You earned an Eraser!");
}

std::string ZKStrings::You_earned_an_Eraser_by_playing_with_player1(Text player1) {
  return entryText("You_earned_an_Eraser_by_playing_with_player1", "You earned an Eraser by playing with %{player1}!", {{"player1", player1}});
}

std::string ZKStrings::You_earned_an_Eraser_by_playing_with_player1_and_player2(Text player1, Text player2) {
  return entryText("You_earned_an_Eraser_by_playing_with_player1_and_player2", "You earned an Eraser by playing with %{player1} and %{player2}!", {{"player1", player1}, {"player2", player2}});
}

std::string ZKStrings::You_earned_an_Eraser_by_playing_with_player1_player2_and_player3(Text player1, Text player2, Text player3) {
  return entryText("You_earned_an_Eraser_by_playing_with_player1_player2_and_player3", "You earned an Eraser by playing with %{player1}, %{player2}, and %{player3}!", {{"player1", player1}, {"player2", player2}, {"player3", player3}});
}

std::string ZKStrings::You_earned_an_Extra_Life() {
  return entryText("You_earned_an_Extra_Life", "You earned an Extra Life!");
}

std::string ZKStrings::You_found_an_Extra_Life() {
  return entryText("You_found_an_Extra_Life", "You found an Extra Life!");
}

std::string ZKStrings::You_got_a_box() {
  return entryText("You_got_a_box", "You got a box!");
}

std::string ZKStrings::You_got_a_product(Text product) {
  return entryText("You_got_a_product", "You got a %{product}!", {{"product", product}});
}

std::string ZKStrings::You_got_an_Extra_Life() {
  return entryText("You_got_an_Extra_Life", "You got an Extra Life!");
}

std::string ZKStrings::You_got_an_Extra_Life_from_ZK_️() {
  return entryText("You_got_an_Extra_Life_from_ZK_️", "You got an Extra Life from ZK! ❤️");
}

std::string ZKStrings::You_got_coinCount_coins(Text coinCount, std::int64_t count) {
  return entryText("You_got_coinCount_coins", "You got %{coinCount} coins!", count, {{"coinCount", coinCount}});
}

std::string ZKStrings::You_got_dollarCount_dollars(Text dollarCount, std::int64_t count) {
  return entryText("You_got_dollarCount_dollars", "You got %{dollarCount} dollars!", count, {{"dollarCount", dollarCount}});
}

std::string ZKStrings::You_got_lifeCount_Extra_Lives(Text lifeCount, std::int64_t count) {
  return entryText("You_got_lifeCount_Extra_Lives", "You got %{lifeCount} Extra Lives!", count, {{"lifeCount", lifeCount}});
}

std::string ZKStrings::You_got_lifeCount_Extra_Lives_from_sender(Text lifeCount, Text sender, std::int64_t count) {
  return entryText("You_got_lifeCount_Extra_Lives_from_sender", "You got %{lifeCount} Extra Lives from %{sender}!", count, {{"lifeCount", lifeCount}, {"sender", sender}});
}

std::string ZKStrings::You_got_number_products(Text number, Text products) {
  return entryText("You_got_number_products", "You got %{number} %{products}!", {{"number", number}, {"products", products}});
}

std::string ZKStrings::You_got_points_more_points(Text points) {
  return entryText("You_got_points_more_points", "You got %{points} more points!", {{"points", points}});
}

std::string ZKStrings::You_got_round_of_totalAnswers_correct(Text round, Text totalAnswers) {
  return entryText("You_got_round_of_totalAnswers_correct", "You got %{round} of %{totalAnswers} correct!", {{"round", round}, {"totalAnswers", totalAnswers}});
}

std::string ZKStrings::You_got_the_letter_letter(Text letter) {
  return entryText("You_got_the_letter_letter", "You got the letter %{letter}!", {{"letter", letter}});
}

std::string ZKStrings::You_got_the_letter_letter_and_extraLifeCount_extra_lives(Text letter, Text extraLifeCount, std::int64_t count) {
  return entryText("You_got_the_letter_letter_and_extraLifeCount_extra_lives", "You got the letter %{letter} and %{extraLifeCount} extra lives!", count, {{"letter", letter}, {"extraLifeCount", extraLifeCount}});
}

std::string ZKStrings::You_got_the_letters_letters(Text letters, std::int64_t count) {
  return entryText("You_got_the_letters_letters", "You got the letters %{letters}!", count, {{"letters", letters}});
}

std::string ZKStrings::You_got_the_n_product(Text product) {
  return entryText("You_got_the_n_product", "You got the\n%{product}!", {{"product", product}});
}

std::string ZKStrings::You_got_to_Level_level(Text level) {
  return entryText("You_got_to_Level_level", "You got to Level %{level}", {{"level", level}});
}

std::string ZKStrings::You_have_0_Extra_Lives_nBuy_some_to_help_you_win(std::int64_t count) {
  return entryText("You_have_0_Extra_Lives_nBuy_some_to_help_you_win", "*You have 0 Extra Lives*\nBuy some to help you win!", count);
}

std::string ZKStrings::You_have_already_applied_a_referral_code_You_may_only_do_this_once() {
  return entryText("You_have_already_applied_a_referral_code_You_may_only_do_this_once", "You have already applied a referral code. You may only do this once.");
}

std::string ZKStrings::You_have_an_Extra_Life() {
  return entryText("You_have_an_Extra_Life", "You have an Extra Life!");
}

std::string ZKStrings::You_have_been_removed_from_the_game_for_a_violation_of_ZK_s_Terms_of_Service_and_Contest_Rules() {
  return entryText("You_have_been_removed_from_the_game_for_a_violation_of_ZK_s_Terms_of_Service_and_Contest_Rules", "You have been removed from the game for a violation of ZK’s Terms of Service and Contest Rules.");
}

std::string ZKStrings::You_have_extraLifeCount_Extra_Lives(Text extraLifeCount, std::int64_t count) {
  return entryText("You_have_extraLifeCount_Extra_Lives", "You have %{extraLifeCount} Extra Lives!", count, {{"extraLifeCount", extraLifeCount}});
}

std::string ZKStrings::You_have_reached_the_maximum_number_of_Friends_We_are_working_to_increase_this_limit_soon() {
  return entryText("You_have_reached_the_maximum_number_of_Friends_We_are_working_to_increase_this_limit_soon", "You have reached the maximum number of Friends. We are working to increase this limit soon.");
}

std::string ZKStrings::You_leveled_up_to_Level_level(Text level) {
  return entryText("You_leveled_up_to_Level_level", "You leveled up to Level %{level}", {{"level", level}});
}

std::string ZKStrings::You_ll_receive_an_email_with_further_instructions() {
  return entryText("You_ll_receive_an_email_with_further_instructions", "You'll receive an email with further instructions.");
}

std::string ZKStrings::You_must_be_signed_in_to_access_this_feature() {
  return entryText("You_must_be_signed_in_to_access_this_feature", "You must be signed in to access this feature");
}

std::string ZKStrings::You_must_keep_at_least_one_social_account_linked_to_play_ZK() {
  return entryText("You_must_keep_at_least_one_social_account_linked_to_play_ZK", "You must keep at least one social account linked to play ZK.");
}

std::string ZKStrings::You_must_wait_a_short_period_between_phone_verification_requests() {
  return entryText("You_must_wait_a_short_period_between_phone_verification_requests", "You must wait a short period between phone verification requests");
}

std::string ZKStrings::You_must_wait_a_short_period_between_verification_code_requests() {
  return entryText("You_must_wait_a_short_period_between_verification_code_requests", "You must wait a short period between verification code requests");
}

std::string ZKStrings::You_need_more_Coins_to_buy_that_Power_Up() {
  return entryText("You_need_more_Coins_to_buy_that_Power_Up", "You need more Coins to buy that Power Up");
}

std::string ZKStrings::You_ran_out_of_time() {
  return entryText("You_ran_out_of_time", "You ran out of time!");
}

std::string ZKStrings::You_re_back_in_the_game_No_one_was_correct() {
  return entryText("You_re_back_in_the_game_No_one_was_correct", "*You’re back in the game!* No one was correct.");
}

std::string ZKStrings::You_re_eliminated() {
  return entryText("You_re_eliminated", "You're eliminated.");
}

std::string ZKStrings::You_re_Incorrect() {
  return entryText("You_re_Incorrect", "You're Incorrect!");
}

std::string ZKStrings::You_re_late() {
  return entryText("You_re_late", "You're late.");
}

std::string ZKStrings::You_re_late_We_started_the_game_but_you_can_still_watch() {
  return entryText("You_re_late_We_started_the_game_but_you_can_still_watch", "*You're late.* We started the game but you can still watch.");
}

std::string ZKStrings::You_re_out_of_the_cash_game_but_you_can_keep_playing_for_other_rewards() {
  return entryText("You_re_out_of_the_cash_game_but_you_can_keep_playing_for_other_rewards", "You're out of the cash game, but you can keep playing for other rewards.");
}

std::string ZKStrings::You_re_too_late() {
  return entryText("You_re_too_late", "You're too late");
}

std::string ZKStrings::You_re_too_late_to_win_the_cash_prize_but_can_still_play_for_points_to_earn_an_Extra_Life() {
  return entryText("You_re_too_late_to_win_the_cash_prize_but_can_still_play_for_points_to_earn_an_Extra_Life", "You're too late to win the cash prize, but can still play for points to earn an Extra Life!");
}

std::string ZKStrings::You_re_using_an_Eraser() {
  return entryText("You_re_using_an_Eraser", "You're using an *Eraser*");
}

std::string ZKStrings::You_reached_Q_reached_and_got_correctCount_of_totalCount_Qs_correct(Text reached, Text correctCount, Text totalCount) {
  return entryText("You_reached_Q_reached_and_got_correctCount_of_totalCount_Qs_correct", "You reached Q%{reached} and got %{correctCount} of %{totalCount} Qs correct.", {{"reached", reached}, {"correctCount", correctCount}, {"totalCount", totalCount}});
}

std::string ZKStrings::You_successfully_linked_your_provider_account(Text provider) {
  return entryText("You_successfully_linked_your_provider_account", "You successfully linked your %{provider} account.", {{"provider", provider}});
}

std::string ZKStrings::You_unlocked_badgeCount_Badges(Text badgeCount, std::int64_t count) {
  return entryText("You_unlocked_badgeCount_Badges", "You unlocked %{badgeCount} Badges", count, {{"badgeCount", badgeCount}});
}

std::string ZKStrings::You_ve_been_eliminated_from_the_game_You_can_watch_and_chat_only() {
  return entryText("You_ve_been_eliminated_from_the_game_You_can_watch_and_chat_only", "You've been eliminated from the game. You can watch and chat only.");
}

std::string ZKStrings::You_ve_been_kicked() {
  return entryText("You_ve_been_kicked", "You've been kicked");
}

std::string ZKStrings::You_ve_entered_to_win_the_VIP_Prize() {
  return entryText("You_ve_entered_to_win_the_VIP_Prize", "*You've entered to win the VIP Prize!*");
}

std::string ZKStrings::You_ve_got_a_bunch_of_letters() {
  return entryText("You_ve_got_a_bunch_of_letters", "You've got a bunch of letters!");
}

std::string ZKStrings::You_ve_got_the_letter_firstLetter(Text firstLetter) {
  return entryText("You_ve_got_the_letter_firstLetter", "You've got the letter %{firstLetter}!", {{"firstLetter", firstLetter}});
}

std::string ZKStrings::You_ve_got_the_letters_firstLetter_and_secondLetter(Text firstLetter, Text secondLetter) {
  return entryText("You_ve_got_the_letters_firstLetter_and_secondLetter", "You've got the letters %{firstLetter} and %{secondLetter}!", {{"firstLetter", firstLetter}, {"secondLetter", secondLetter}});
}

std::string ZKStrings::You_ve_got_the_letters_firstLetter_secondLetter_and_thirdLetter(Text firstLetter, Text secondLetter, Text thirdLetter) {
  return entryText("You_ve_got_the_letters_firstLetter_secondLetter_and_thirdLetter", "You've got the letters %{firstLetter}, %{secondLetter}, and %{thirdLetter}!", {{"firstLetter", firstLetter}, {"secondLetter", secondLetter}, {"thirdLetter", thirdLetter}});
}

std::string ZKStrings::You_ve_got_the_letters_firstLetter_secondLetter_thirdLetter_and_fourthLetter(Text firstLetter, Text secondLetter, Text thirdLetter, Text fourthLetter) {
  return entryText("You_ve_got_the_letters_firstLetter_secondLetter_thirdLetter_and_fourthLetter", "You've got the letters %{firstLetter}, %{secondLetter}, %{thirdLetter}, and %{fourthLetter}!", {{"firstLetter", firstLetter}, {"secondLetter", secondLetter}, {"thirdLetter", thirdLetter}, {"fourthLetter", fourthLetter}});
}

std::string ZKStrings::You_ve_got_the_letters_firstLetter_secondLetter_thirdLetter_fourthLetter_and_fifthLetter(Text firstLetter, Text secondLetter, Text thirdLetter, Text fourthLetter, Text fifthLetter) {
  return entryText("You_ve_got_the_letters_firstLetter_secondLetter_thirdLetter_fourthLetter_and_fifthLetter", "You've got the letters %{firstLetter}, %{secondLetter}, %{thirdLetter}, %{fourthLetter}, and %{fifthLetter}!", {{"firstLetter", firstLetter}, {"secondLetter", secondLetter}, {"thirdLetter", thirdLetter}, {"fourthLetter", fourthLetter}, {"fifthLetter", fifthLetter}});
}

std::string ZKStrings::You_ve_violated_the_terms_of_service_so_you_will_not_be_able_to_cash_out_If_you_think_this_may_be_a_() {
  return entryText("You_ve_violated_the_terms_of_service_so_you_will_not_be_able_to_cash_out_If_you_think_this_may_be_a_", "You’ve violated the terms of service so you will not be able to cash out. If you think this may be a mistake, please contact support. Learn more");
}

std::string ZKStrings::You_will_receive_an_email_with_further_instructions_shortly() {
  return entryText("You_will_receive_an_email_with_further_instructions_shortly", "You will receive an email with further instructions shortly.");
}

std::string ZKStrings::You_won() {
  return entryText("You_won", "You won!");
}

std::string ZKStrings::You_won_level_points(Text level) {
  return entryText("You_won_level_points", "You won %{level} points!", {{"level", level}});
}

std::string ZKStrings::You_won_the_nVIP_Prize() {
  return entryText("You_won_the_nVIP_Prize", "You won the\nVIP Prize!");
}

std::string ZKStrings::Your_account_already_exists() {
  return entryText("Your_account_already_exists", "Your account already exists");
}

std::string ZKStrings::Your_answer_could_not_be_accepted_due_to_connectivity_issues() {
  return entryText("Your_answer_could_not_be_accepted_due_to_connectivity_issues", "Your answer could not be accepted due to connectivity issues.");
}

std::string ZKStrings::Your_available_balance_may_be_lower_because_a_show_you_won_is_currently_in_review_Learn_more() {
  return entryText("Your_available_balance_may_be_lower_because_a_show_you_won_is_currently_in_review_Learn_more", "Your available balance may be lower because a show you won is currently in review. Learn more");
}

std::string ZKStrings::Your_available_balance_may_be_lower_because_a_show_you_won_is_currently_in_review_learnMore(Text learnMore) {
  return entryText("Your_available_balance_may_be_lower_because_a_show_you_won_is_currently_in_review_learnMore", "Your available balance may be lower because a show you won is currently in review. %{learnMore}", {{"learnMore", learnMore}});
}

std::string ZKStrings::Your_Balance() {
  return entryText("Your_Balance", "Your Balance");
}

std::string ZKStrings::Your_code_has_expired_We_will_try_to_send_you_a_new_one() {
  return entryText("Your_code_has_expired_We_will_try_to_send_you_a_new_one", "Your code has expired. We will try to send you a new one.");
}

std::string ZKStrings::Your_code_was_invalid() {
  return entryText("Your_code_was_invalid", "Your code was invalid");
}

std::string ZKStrings::Your_country_code() {
  return entryText("Your_country_code", "Your country code");
}

std::string ZKStrings::Your_detailed_feedback_helps_us_make_ZK_Trivia_better() {
  return entryText("Your_detailed_feedback_helps_us_make_ZK_Trivia_better", "Your detailed feedback helps us make ZK Trivia better.");
}

std::string ZKStrings::Your_Extra_Lives_are_on_the_way(std::int64_t count) {
  return entryText("Your_Extra_Lives_are_on_the_way", "Your Extra Lives are on the way", count);
}

std::string ZKStrings::Your_forms_have_been_received() {
  return entryText("Your_forms_have_been_received", "Your forms have been received");
}

std::string ZKStrings::Your_friend_has_reached_the_maximum_number_of_Friend_Requests_We_are_working_to_increase_this_limit_() {
  return entryText("Your_friend_has_reached_the_maximum_number_of_Friend_Requests_We_are_working_to_increase_this_limit_", "Your friend has reached the maximum number of Friend Requests. We are working to increase this limit soon.");
}

std::string ZKStrings::Your_friend_has_reached_the_maximum_number_of_Friends_We_are_working_to_increase_this_limit_soon() {
  return entryText("Your_friend_has_reached_the_maximum_number_of_Friends_We_are_working_to_increase_this_limit_soon", "Your friend has reached the maximum number of Friends. We are working to increase this limit soon.");
}

std::string ZKStrings::Your_In_App_Purchase_is_on_the_way() {
  return entryText("Your_In_App_Purchase_is_on_the_way", "Your In App Purchase is on the way!");
}

std::string ZKStrings::Your_location_is_required_to_participate() {
  return entryText("Your_location_is_required_to_participate", "Your location is required to participate.");
}

std::string ZKStrings::Your_money_will_be_there_in_just_a_bit() {
  return entryText("Your_money_will_be_there_in_just_a_bit", "Your money will be there in just a bit.");
}

std::string ZKStrings::Your_phone() {
  return entryText("Your_phone", "Your phone");
}

std::string ZKStrings::Your_phone_number() {
  return entryText("Your_phone_number", "Your phone number");
}

std::string ZKStrings::Your_phone_number_is_invalid() {
  return entryText("Your_phone_number_is_invalid", "Your phone number is invalid");
}

std::string ZKStrings::Your_profile() {
  return entryText("Your_profile", "Your profile");
}

std::string ZKStrings::Your_purchase_was_not_processed_in_time_Your_Extra_Life_can_be_used_in_a_future_game_and_an_addition() {
  return entryText("Your_purchase_was_not_processed_in_time_Your_Extra_Life_can_be_used_in_a_future_game_and_an_addition", "Your purchase was not processed in time. Your Extra Life can be used in a future game, and an additional free Extra Life has been added to your account.");
}

std::string ZKStrings::Your_purchase_was_successful() {
  return entryText("Your_purchase_was_successful", "Your purchase was successful!");
}

std::string ZKStrings::Your_question_has_been_submitted() {
  return entryText("Your_question_has_been_submitted", "Your question has been submitted.");
}

std::string ZKStrings::Your_rating_percent(Text percent) {
  return entryText("Your_rating_percent", "Your rating: %{percent}%", {{"percent", percent}});
}

std::string ZKStrings::Your_referral_can_t_be_processed_due_to_a_possible_violation_of_the_Terms_of_Use_Please_contact_help() {
  return entryText("Your_referral_can_t_be_processed_due_to_a_possible_violation_of_the_Terms_of_Use_Please_contact_help", "Your referral can't be processed due to a possible violation of the Terms of Use. Please contact help at support@zktrivia.example if you have any questions.");
}

std::string ZKStrings::Your_referral_code() {
  return entryText("Your_referral_code", "Your referral code");
}

std::string ZKStrings::Your_referral_code_can_t_be_the_same_as_your_username() {
  return entryText("Your_referral_code_can_t_be_the_same_as_your_username", "Your referral code can't be the same as your username");
}

std::string ZKStrings::Your_request_to_cash_out_amount_has_been_submitted(Text amount) {
  return entryText("Your_request_to_cash_out_amount_has_been_submitted", "Your request to cash out %{amount} has been submitted", {{"amount", amount}});
}

std::string ZKStrings::Your_Results() {
  return entryText("Your_Results", "Your Results");
}

std::string ZKStrings::Your_username_can_t_be_empty() {
  return entryText("Your_username_can_t_be_empty", "Your username can't be empty.");
}

std::string ZKStrings::Your_username_can_t_contain_symbols() {
  return entryText("Your_username_can_t_contain_symbols", "Your username can't contain symbols.");
}

std::string ZKStrings::Your_username_must_be_at_least_3_characters() {
  return entryText("Your_username_must_be_at_least_3_characters", "Your username must be at least 3 characters");
}

std::string ZKStrings::Your_verification_code() {
  return entryText("Your_verification_code", "Your verification code");
}

}  // namespace zk
