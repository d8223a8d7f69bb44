#pragma once

// Generated from catalogue/entries.json by `zkstrings generate`. Do not edit: change the catalogue instead.
// clang-format off

#include <cstdint>
#include <string>

#include <ZKStrings/engine/Text.h>
#include <ZKStrings/platform/Export.h>

namespace zk {

/// The catalogue. Each text of the app has one accessor, named after its key, which returns the text in the user's
/// language. Text arguments (a literal, a `std::string`, a `std::string_view`) fill in the placeholders of the same
/// name. `count`, the last argument of counted entries, selects the plural form and is not filled in anywhere. The
/// comment of each accessor shows the English text.
///
///     std::string title = zk::ZKStrings::badgeCount_Badges("4", 4);
///
/// Thread-safe.
/// Requires: `zk::Current::language` has been assigned.
struct ZK_EXPORT ZKStrings {
  ZKStrings() = delete;

  /// "1st"
  /// Where this appears is not recorded; treat it as a place in a ranking (1st, 2nd, 3rd).
  [[nodiscard]] static std::string _1st();

  /// "2nd"
  /// Where this appears is not recorded; treat it as a place in a ranking (1st, 2nd, 3rd).
  [[nodiscard]] static std::string _2nd();

  /// "3rd"
  /// Where this appears is not recorded; treat it as a place in a ranking (1st, 2nd, 3rd).
  [[nodiscard]] static std::string _3rd();

  /// "A cashout request has already been submitted."
  [[nodiscard]] static std::string A_cashout_request_has_already_been_submitted();

  /// "A phone number is required"
  [[nodiscard]] static std::string A_phone_number_is_required();

  /// "A valid country is required"
  [[nodiscard]] static std::string A_valid_country_is_required();

  /// "A valid PayPal email address is required"
  [[nodiscard]] static std::string A_valid_PayPal_email_address_is_required();

  /// "About"
  /// Where this appears is not recorded; treat it as a title: information about the app.
  [[nodiscard]] static std::string About();

  /// "Accept"
  /// Where this appears is not recorded; treat it as a button: a verb.
  [[nodiscard]] static std::string Accept();

  /// "Accept friend"
  /// Treat it as a button; "friend" is a player, and the button accepts a friend request.
  [[nodiscard]] static std::string Accept_friend();

  /// "Account"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Account();

  /// "%{active}/%{limit} players"
  /// %{active} is the number of players and %{limit} the highest number possible, such as 3/10. The noun follows the second number.
  [[nodiscard]] static std::string active_limit_players(Text active, Text limit);

  /// "Add"
  /// Where this appears is not recorded; treat it as a button: a verb.
  [[nodiscard]] static std::string Add();

  /// "Add friend"
  /// Treat it as a button; "friend" is a player, and the button sends a friend request.
  [[nodiscard]] static std::string Add_friend();

  /// "Add Friends on ZK"
  [[nodiscard]] static std::string Add_Friends_on_ZK();

  /// "Add people you know"
  [[nodiscard]] static std::string Add_people_you_know();

  /// "Agree and Continue"
  [[nodiscard]] static std::string Agree_and_Continue();

  /// "Airing Soon"
  /// A show will soon be on air.
  [[nodiscard]] static std::string Airing_Soon();

  /// "All shows have been reviewed! You’re all set for cashing out. Learn more"
  /// "Learn more" at the end is probably a link; use the same words as in the text "Learn more".
  [[nodiscard]] static std::string All_shows_have_been_reviewed_You_re_all_set_for_cashing_out_Learn_more();

  /// "All time"
  /// Where this appears is not recorded; treat it as a period for a leaderboard.
  [[nodiscard]] static std::string All_time();

  /// "Allow ZK access to your camera so you can take photos during the game."
  [[nodiscard]] static std::string Allow_ZK_access_to_your_camera_so_you_can_take_photos_during_the_game();

  /// "Already submitted"
  [[nodiscard]] static std::string Already_submitted();

  /// "An error occurred while accepting request."
  [[nodiscard]] static std::string An_error_occurred_while_accepting_request();

  /// "An error occurred while blocking user."
  [[nodiscard]] static std::string An_error_occurred_while_blocking_user();

  /// "An error occurred while cancelling request."
  [[nodiscard]] static std::string An_error_occurred_while_cancelling_request();

  /// "An error occurred while retrieving user."
  [[nodiscard]] static std::string An_error_occurred_while_retrieving_user();

  /// "An error occurred while retrieving your profile."
  [[nodiscard]] static std::string An_error_occurred_while_retrieving_your_profile();

  /// "An error occurred while sending friend request to user."
  [[nodiscard]] static std::string An_error_occurred_while_sending_friend_request_to_user();

  /// "An error occurred while unfriending user."
  [[nodiscard]] static std::string An_error_occurred_while_unfriending_user();

  /// "An update to the latest version of the app is required"
  [[nodiscard]] static std::string An_update_to_the_latest_version_of_the_app_is_required();

  /// "and <b>Rules</b>"
  /// Part of a sentence that starts "By signing up you agree to the" and ends "and Rules". Use the article and case that this part of the sentence needs.
  [[nodiscard]] static std::string and_b_Rules_b();

  /// "Answer questions, think fast"
  [[nodiscard]] static std::string Answer_questions_think_fast();

  /// "Answer trivia questions to win rewards!"
  [[nodiscard]] static std::string Answer_trivia_questions_to_win_rewards();

  /// "Apple"
  /// The name of a company. It stays as it is.
  [[nodiscard]] static std::string Apple();

  /// "Apply referral code"
  [[nodiscard]] static std::string Apply_referral_code();

  /// "Approved"
  /// Where this appears is not recorded; what it describes is not known, so use a form that fits things of any gender and number, for example an impersonal one.
  [[nodiscard]] static std::string Approved();

  /// "Are you sure you want to block %{username}?"
  [[nodiscard]] static std::string Are_you_sure_you_want_to_block_username(Text username);

  /// "Are you sure you want to cashout to PayPal account %{email}?"
  [[nodiscard]] static std::string Are_you_sure_you_want_to_cashout_to_PayPal_account_email(Text email);

  /// "Are you sure you want to kick %{username}?"
  [[nodiscard]] static std::string Are_you_sure_you_want_to_kick_username(Text username);

  /// "Are you sure you want to leave the game?"
  [[nodiscard]] static std::string Are_you_sure_you_want_to_leave_the_game();

  /// "Are you sure you want to logout?"
  [[nodiscard]] static std::string Are_you_sure_you_want_to_logout();

  /// "Art & Design"
  /// Where this appears is not recorded; treat it as the name of a subject that questions are about.
  [[nodiscard]] static std::string Art_Design();

  /// "Available"
  /// Where this appears is not recorded; what it describes is not known, so use a form that fits things of any gender and number, for example an impersonal one.
  [[nodiscard]] static std::string Available();

  /// "Available Balance"
  [[nodiscard]] static std::string Available_Balance();

  /// "<b>Back in the game!</b> You used an Extra Life."
  [[nodiscard]] static std::string b_Back_in_the_game_b_You_used_an_Extra_Life();

  /// "<b>Error loading schedule</b>"
  [[nodiscard]] static std::string b_Error_loading_schedule_b();

  /// "<b>Game now live</b>"
  [[nodiscard]] static std::string b_Game_now_live_b();

  /// "<b>No games scheduled</b>"
  [[nodiscard]] static std::string b_No_games_scheduled_b();

  /// "<b>Privacy Policy</b>,"
  /// Part of a sentence that starts "By signing up you agree to the" and ends "and Rules". Use the article and case that this part of the sentence needs.
  [[nodiscard]] static std::string b_Privacy_Policy_b();

  /// "<b>Terms of Service</b>,"
  /// Part of a sentence that starts "By signing up you agree to the" and ends "and Rules". Use the article and case that this part of the sentence needs.
  [[nodiscard]] static std::string b_Terms_of_Service_b();

  /// "<b>Terms of Use</b>,"
  /// Part of a sentence that starts "By signing up you agree to the" and ends "and Rules". Use the article and case that this part of the sentence needs.
  [[nodiscard]] static std::string b_Terms_of_Use_b();

  /// "Back in the game!"
  [[nodiscard]] static std::string Back_in_the_game();

  /// "Back in the game! You used an Extra Life."
  [[nodiscard]] static std::string Back_in_the_game_You_used_an_Extra_Life();

  /// "Badge unlocked!"
  [[nodiscard]] static std::string Badge_unlocked();

  /// "%{badgeCount} Badges"
  /// How many Badges there are. Whose they are is not recorded.
  /// - 0: "No Badges yet"
  /// - 1: "%{badgeCount} Badge"
  /// - 2: "%{badgeCount} Badges"
  /// - 3 to 5: "%{badgeCount} Badges"
  /// - 6 or more: "%{badgeCount} Badges"
  [[nodiscard]] static std::string badgeCount_Badges(Text badgeCount, std::int64_t count);

  /// "%{badgeCount} Badges unlocked!"
  /// %{badgeCount} is a number, and there are no plural forms. The text must be right for 1 and for 5.
  [[nodiscard]] static std::string badgeCount_Badges_unlocked(Text badgeCount);

  /// "%{badgeName} Level %{level}"
  /// %{badgeName} is the name of a Badge, %{level} the number of its level.
  [[nodiscard]] static std::string badgeName_Level_level(Text badgeName, Text level);

  /// "Badges"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Badges();

  /// "Badges in this set"
  [[nodiscard]] static std::string Badges_in_this_set();

  /// "Balance"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Balance();

  /// "Balance In Review"
  /// Money that ZK is checking before it can be paid out.
  [[nodiscard]] static std::string Balance_In_Review();

  /// "Be prepared! Buy Extra Lives before the game begins."
  [[nodiscard]] static std::string Be_prepared_Buy_Extra_Lives_before_the_game_begins();

  /// "Be prepared! Buy Extra Lives for this game to help you win."
  [[nodiscard]] static std::string Be_prepared_Buy_Extra_Lives_for_this_game_to_help_you_win();

  /// "Be prepared! Buy more Extra Lives to help you win."
  [[nodiscard]] static std::string Be_prepared_Buy_more_Extra_Lives_to_help_you_win();

  /// "Beta"
  /// Where this appears is not recorded; treat it as a mark on a feature that is not final yet.
  [[nodiscard]] static std::string Beta();

  /// "Block"
  /// Where this appears is not recorded; treat it as a button: a verb. It blocks a user.
  [[nodiscard]] static std::string Block();

  /// "Block user"
  [[nodiscard]] static std::string Block_user();

  /// "Bonus:"
  /// Where this appears is not recorded; the colon shows that something follows, such as a number of points or the name of an item. Use a form that fits both.
  [[nodiscard]] static std::string Bonus();

  /// "%{bonusStrikeCount} Bonus Strikes"
  /// A bonus strike is probably one more mistake that the player may make.
  /// - 0: "%{bonusStrikeCount} Bonus Strikes"
  /// - 1: "%{bonusStrikeCount} Bonus Strike"
  /// - 2: "%{bonusStrikeCount} Bonus Strikes"
  /// - 3 to 5: "%{bonusStrikeCount} Bonus Strikes"
  /// - 6 or more: "%{bonusStrikeCount} Bonus Strikes"
  [[nodiscard]] static std::string bonusStrikeCount_Bonus_Strikes(Text bonusStrikeCount, std::int64_t count);

  /// "Boost"
  /// Where this appears is not recorded; treat it as a button and the name of what it buys: a Boost lets more people see a photo.
  [[nodiscard]] static std::string Boost();

  /// "Boosted"
  /// Where this appears is not recorded; it says that a Boost is active. Use a form that fits a photo as well as a profile.
  [[nodiscard]] static std::string Boosted();

  /// "Bundle"
  /// Where this appears is not recorded; treat it as a noun: several things sold together.
  [[nodiscard]] static std::string Bundle();

  /// "Business"
  /// Where this appears is not recorded; treat it as the name of a subject that questions are about.
  [[nodiscard]] static std::string Business();

  /// "Buy"
  /// Where this appears is not recorded; treat it as a button: a verb.
  [[nodiscard]] static std::string Buy();

  /// "Buy More Coins"
  [[nodiscard]] static std::string Buy_More_Coins();

  /// "By continuing, you agree to the %{terms} and %{pp}."
  /// Each placeholder is the title of a document in its plain form. Word the sentence so that the titles need no ending.
  [[nodiscard]] static std::string By_continuing_you_agree_to_the_terms_and_pp(Text terms, Text pp);

  /// "By entering you agree to the %{competition}"
  /// %{competition} is probably the title of the rules of a competition. It ends the text, so a colon before it avoids endings.
  [[nodiscard]] static std::string By_entering_you_agree_to_the_competition(Text competition);

  /// "By signing up you agree to the"
  /// The start of one sentence. "<b>Terms of Use</b>," or "<b>Terms of Service</b>,", then "<b>Privacy Policy</b>," and "and <b>Rules</b>" probably follow. Read them joined.
  [[nodiscard]] static std::string By_signing_up_you_agree_to_the();

  /// "By signing up you agree to the\n %{terms}, %{privacy}, and %{rules}"
  /// Each placeholder is the title of a document in its plain form. Word the sentence so that the titles need no ending.
  [[nodiscard]] static std::string By_signing_up_you_agree_to_the_n_terms_privacy_and_rules(Text terms, Text privacy, Text rules);

  /// "By signing up you agree to the %{terms}, %{privacy}, and %{rules}"
  /// Each placeholder is the title of a document in its plain form. Word the sentence so that the titles need no ending.
  [[nodiscard]] static std::string By_signing_up_you_agree_to_the_terms_privacy_and_rules(Text terms, Text privacy, Text rules);

  /// "By tapping Agree and continue you agree to the %{terms}, %{privacy}, and %{rules}"
  /// Each placeholder is the title of a document in its plain form. Word the sentence so that the titles need no ending.
  [[nodiscard]] static std::string By_tapping_Agree_and_continue_you_agree_to_the_terms_privacy_and_rules(Text terms, Text privacy, Text rules);

  /// "By tapping Get Started, an SMS may be sent. Message & data rates may apply."
  /// "Get Started" is the name of a button; it must match the text of that button.
  [[nodiscard]] static std::string By_tapping_Get_Started_an_SMS_may_be_sent_Message_data_rates_may_apply();

  /// "By tapping Next, an SMS may be sent. Message & data rates may apply."
  /// "Next" is the name of a button; it must match the text of that button.
  [[nodiscard]] static std::string By_tapping_Next_an_SMS_may_be_sent_Message_data_rates_may_apply();

  /// "Calculating rewards"
  [[nodiscard]] static std::string Calculating_rewards();

  /// "Call me"
  [[nodiscard]] static std::string Call_me();

  /// "Camera Access Disabled"
  [[nodiscard]] static std::string Camera_Access_Disabled();

  /// "Can retry in %{seconds}"
  /// %{seconds} is a time; the text has no unit, so the value probably has one. Add none.
  [[nodiscard]] static std::string Can_retry_in_seconds(Text seconds);

  /// "Can't Cashout"
  [[nodiscard]] static std::string Can_t_Cashout();

  /// "Cancel"
  /// Where this appears is not recorded; treat it as a button: a verb. It ends an action without doing it.
  [[nodiscard]] static std::string Cancel();

  /// "Cashout"
  /// Where this appears is not recorded; it may be a noun or a verb: the payment of winnings to the player. Use a word that fits both if your language has one.
  [[nodiscard]] static std::string Cashout();

  /// "Cashout %{amount}"
  /// %{amount} is an amount of money with its currency. Treat it as a button.
  [[nodiscard]] static std::string Cashout_amount(Text amount);

  /// "Cashout Complete"
  [[nodiscard]] static std::string Cashout_Complete();

  /// "Cashout Currently Disabled"
  [[nodiscard]] static std::string Cashout_Currently_Disabled();

  /// "Cashout for one or more shows that you have won is temporarily disabled. Please try again later."
  /// A show is a game show. To win a show is to win a prize in it; the show itself is not the prize.
  [[nodiscard]] static std::string Cashout_for_one_or_more_shows_that_you_have_won_is_temporarily_disabled_Please_try_again_later();

  /// "Cashout with PayPal"
  [[nodiscard]] static std::string Cashout_with_PayPal();

  /// "Cashouts are currently disabled. Please try again later."
  [[nodiscard]] static std::string Cashouts_are_currently_disabled_Please_try_again_later();

  /// "Cashouts are disabled"
  [[nodiscard]] static std::string Cashouts_are_disabled();

  /// "Cashouts to PayPal are temporarily disabled. Please contact customer support."
  [[nodiscard]] static std::string Cashouts_to_PayPal_are_temporarily_disabled_Please_contact_customer_support();

  /// "Categories"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Categories();

  /// "Category"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Category();

  /// "Change username"
  [[nodiscard]] static std::string Change_username();

  /// "Charity donations are temporarily disabled. Please contact customer support."
  [[nodiscard]] static std::string Charity_donations_are_temporarily_disabled_Please_contact_customer_support();

  /// "Choose from camera roll"
  [[nodiscard]] static std::string Choose_from_camera_roll();

  /// "Choose from Photos"
  [[nodiscard]] static std::string Choose_from_Photos();

  /// "Choose the show you heard about and enter your friend’s referral code to earn a reward"
  [[nodiscard]] static std::string Choose_the_show_you_heard_about_and_enter_your_friend_s_referral_code_to_earn_a_reward();

  /// "Chosen username already exists"
  [[nodiscard]] static std::string Chosen_username_already_exists();

  /// "Close"
  /// Where this appears is not recorded; treat it as a button: a verb. It closes something; it does not mean "near".
  [[nodiscard]] static std::string Close();

  /// "Code"
  /// Where this appears is not recorded; it may be a code sent by SMS, a referral code or a coupon. Use a word that fits all of them.
  [[nodiscard]] static std::string Code();

  /// "Code sent. Retry in %{seconds}"
  /// %{seconds} is a time; the text has no unit, so the value probably has one. Add none.
  [[nodiscard]] static std::string Code_sent_Retry_in_seconds(Text seconds);

  /// "Coins"
  /// Where this appears is not recorded; treat it as a title or label without a number.
  [[nodiscard]] static std::string Coins();

  /// "Coins"
  /// The app knows a count, but the text does not show it. The number probably appears next to it, so use the noun form that goes with that number, or one label for all.
  /// - 0: "Coins"
  /// - 1: "Coin"
  /// - 2: "Coins"
  /// - 3 to 5: "Coins"
  /// - 6 or more: "Coins"
  [[nodiscard]] static std::string Coins(std::int64_t count);

  /// "coins"
  /// Where this appears is not recorded; the lower case suggests that it follows a number. It has no plural forms; use one form that fits most numbers, or an abbreviation.
  [[nodiscard]] static std::string coins();

  /// "+%{coinsPurchased} coins"
  /// %{coinsPurchased} is a number, and there are no plural forms. The text must be right for 1 and for 5.
  [[nodiscard]] static std::string coinsPurchased_coins(Text coinsPurchased);

  /// "Cold"
  /// Where this appears is not recorded; treat it as a hint in a hiding game: Hot means near the hidden thing, Cold means far from it. It is not about the weather.
  [[nodiscard]] static std::string Cold();

  /// "Collect"
  /// Where this appears is not recorded; treat it as a button: a verb. It takes what the player has won or was given, whatever that is. It does not mean to gather.
  [[nodiscard]] static std::string Collect();

  /// "Color Test"
  /// Where this appears is not recorded; treat it as a noun: a test of colors.
  [[nodiscard]] static std::string Color_Test();

  /// "Come back into the game for your chance to win."
  [[nodiscard]] static std::string Come_back_into_the_game_for_your_chance_to_win();

  /// "Coming Soon"
  [[nodiscard]] static std::string Coming_Soon();

  /// "Coming soon. To get in early, play near someone with access and their nearby setting enabled."
  [[nodiscard]] static std::string Coming_soon_To_get_in_early_play_near_someone_with_access_and_their_nearby_setting_enabled();

  /// "Complete!"
  /// Where this appears is not recorded; what it describes is not known, so use a form that fits things of any gender and number, for example an impersonal one.
  [[nodiscard]] static std::string Complete();

  /// "Confirm"
  /// Where this appears is not recorded; treat it as a button: a verb.
  [[nodiscard]] static std::string Confirm();

  /// "Confirm email"
  [[nodiscard]] static std::string Confirm_email();

  /// "Congratulations!"
  /// Where this appears is not recorded; it speaks to the player.
  [[nodiscard]] static std::string Congratulations();

  /// "Congratulations!\nTell your friends!"
  [[nodiscard]] static std::string Congratulations_n_Tell_your_friends();

  /// "Connect"
  /// Where this appears is not recorded; treat it as a button: a verb.
  [[nodiscard]] static std::string Connect();

  /// "Connect Address Book"
  /// It lets the app read the contacts stored in the phone.
  [[nodiscard]] static std::string Connect_Address_Book();

  /// "Connect Contacts"
  /// It lets the app read the contacts stored in the phone.
  [[nodiscard]] static std::string Connect_Contacts();

  /// "Connect Instagram"
  [[nodiscard]] static std::string Connect_Instagram();

  /// "Connect with your friends on ZK. See their status during games and more secret friend features coming soon!"
  [[nodiscard]] static std::string Connect_with_your_friends_on_ZK_See_their_status_during_games_and_more_secret_friend_features_coming();

  /// "Connect your account to discover new Instagram users and get new followers from ZKX"
  [[nodiscard]] static std::string Connect_your_account_to_discover_new_Instagram_users_and_get_new_followers_from_ZKX();

  /// "Connect your contacts to find your friends on ZK"
  [[nodiscard]] static std::string Connect_your_contacts_to_find_your_friends_on_ZK();

  /// "%{contactCount} contacts on ZK"
  /// How many people of the player's address book use ZK.
  /// - 0: "No contacts on ZK yet"
  /// - 1: "%{contactCount} contact on ZK"
  /// - 2: "%{contactCount} contacts on ZK"
  /// - 3 to 5: "%{contactCount} contacts on ZK"
  /// - 6 or more: "%{contactCount} contacts on ZK"
  [[nodiscard]] static std::string contactCount_contacts_on_ZK(Text contactCount, std::int64_t count);

  /// "Continue"
  /// Where this appears is not recorded; treat it as a button: a verb. It goes on with what the player was doing.
  [[nodiscard]] static std::string Continue();

  /// "Continue playing with an extra life! Earn extra lives by inviting your friends."
  [[nodiscard]] static std::string Continue_playing_with_an_extra_life_Earn_extra_lives_by_inviting_your_friends();

  /// "Continue watching"
  [[nodiscard]] static std::string Continue_watching();

  /// "Continue with"
  /// The text is not complete: probably the name of a service such as Apple, or its logo, follows. Avoid endings that fit only one name.
  [[nodiscard]] static std::string Continue_with();

  /// "Correct"
  /// Where this appears is not recorded; it may judge an answer or be the title of a list of answers. The texts in lower case are separate.
  [[nodiscard]] static std::string Correct();

  /// "correct"
  /// Where this appears is not recorded; the lower case suggests that it follows a number of answers ("3 correct"). It has no plural forms; use one form that fits most numbers.
  [[nodiscard]] static std::string correct();

  /// "Correct Answer"
  [[nodiscard]] static std::string Correct_Answer();

  /// "Correctly answer more %{category} questions to unlock this badge."
  /// %{category} is the name of a subject, such as Science, in its plain form.
  [[nodiscard]] static std::string Correctly_answer_more_category_questions_to_unlock_this_badge(Text category);

  /// "Could not find any nearby letters!"
  [[nodiscard]] static std::string Could_not_find_any_nearby_letters();

  /// "%{count} Playing"
  /// %{count} is a number of players, as text, and there are no plural forms. "Playing" is a state; the text must be right for 1 and for 5.
  [[nodiscard]] static std::string count_Playing(Text count);

  /// "Country"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Country();

  /// "Create profile"
  [[nodiscard]] static std::string Create_profile();

  /// "Crop avatar"
  /// An avatar is the player's profile picture.
  [[nodiscard]] static std::string Crop_avatar();

  /// "Daily\nChallenge"
  /// A task that changes each day. The title has two lines.
  [[nodiscard]] static std::string Daily_nChallenge();

  /// "Daily Questions"
  [[nodiscard]] static std::string Daily_Questions();

  /// "Day"
  /// Where this appears is not recorded; it may stand alone or follow a number that the app shows. There are no plural forms: use the singular for 1 and the plural for all other numbers.
  [[nodiscard]] static std::string Day();

  /// "Days"
  /// Where this appears is not recorded; it may stand alone or follow a number that the app shows. There are no plural forms: use the singular for 1 and the plural for all other numbers.
  [[nodiscard]] static std::string Days();

  /// "%{days} day streak complete!"
  /// %{days} is a number, and there are no plural forms. The text must be right for 1 and for 5.
  [[nodiscard]] static std::string days_day_streak_complete(Text days);

  /// "*%{days}-day streak!* Here's an Extra Life for your next game."
  /// %{days} is a number, and there are no plural forms. The text must be right for 1 and for 5.
  [[nodiscard]] static std::string days_day_streak_Here_s_an_Extra_Life_for_your_next_game(Text days);

  /// "Debug Options"
  [[nodiscard]] static std::string Debug_Options();

  /// "Decide Later"
  [[nodiscard]] static std::string Decide_Later();

  /// "Delete Avatar"
  /// An avatar is the player's profile picture.
  [[nodiscard]] static std::string Delete_Avatar();

  /// "Disconnect %{account}"
  /// The placeholder is the name of a service, such as Facebook, with which the player can sign in.
  [[nodiscard]] static std::string Disconnect_account(Text account);

  /// "Discover People"
  [[nodiscard]] static std::string Discover_People();

  /// "Discoverable nearby"
  [[nodiscard]] static std::string Discoverable_nearby();

  /// "Dislike"
  /// Where this appears is not recorded; treat it as a button that says what the player thinks of something. Use the pair of words that social networks use.
  [[nodiscard]] static std::string Dislike();

  /// "Do you want to unlink your %{account} account?"
  /// The placeholder is the name of a service, such as Facebook, with which the player can sign in.
  [[nodiscard]] static std::string Do_you_want_to_unlink_your_account_account(Text account);

  /// "Don't miss a game!"
  [[nodiscard]] static std::string Don_t_miss_a_game();

  /// "Don't miss the next ZK show. We send push notifications to alert you when our shows are live."
  [[nodiscard]] static std::string Don_t_miss_the_next_ZK_show_We_send_push_notifications_to_alert_you_when_our_shows_are_live();

  /// "Don't miss the next ZK Trivia game. We send push notifications to alert you when the game is live."
  [[nodiscard]] static std::string Don_t_miss_the_next_ZK_Trivia_game_We_send_push_notifications_to_alert_you_when_the_game_is_live();

  /// "Donate"
  /// Where this appears is not recorded; treat it as a button: a verb.
  [[nodiscard]] static std::string Donate();

  /// "Donate %{amount}"
  /// %{amount} is an amount of money with its currency. Treat it as a button.
  [[nodiscard]] static std::string Donate_amount(Text amount);

  /// "Donate Winnings"
  [[nodiscard]] static std::string Donate_Winnings();

  /// "Donation"
  /// Where this appears is not recorded; treat it as a noun: the money given to a charity.
  [[nodiscard]] static std::string Donation();

  /// "Donation Request Submitted"
  /// The player asks ZK to give the winnings to a charity. The player does not ask for a donation.
  [[nodiscard]] static std::string Donation_Request_Submitted();

  /// "Done"
  /// Where this appears is not recorded; treat it as a button: a verb. The player has finished something.
  [[nodiscard]] static std::string Done();

  /// "Download on "
  /// Keep the space at the end: the name of a store probably follows.
  [[nodiscard]] static std::string Download_on();

  /// "Drag into order"
  /// An instruction: put things in the right order by dragging them.
  [[nodiscard]] static std::string Drag_into_order();

  /// "Earn a special reward per show by entering referral codes below."
  [[nodiscard]] static std::string Earn_a_special_reward_per_show_by_entering_referral_codes_below();

  /// "Earn *Erasers* by playing with %{cost} players"
  /// %{cost} is a number, and there are no plural forms. The text must be right for 1 and for 5.
  [[nodiscard]] static std::string Earn_Erasers_by_playing_with_cost_players(Text cost);

  /// "Earn Power Ups when you refer friends"
  [[nodiscard]] static std::string Earn_Power_Ups_when_you_refer_friends();

  /// "Earned %{date}"
  /// What was earned is not recorded; points, a Badge and an Eraser are possible. Use a word that fits a thing one gets. %{date} is a date; its form is not recorded.
  [[nodiscard]] static std::string Earned_date(Text date);

  /// "Earned this game"
  /// What was earned is not recorded; use a word that fits points as well as things one gets. "This game" means during this game.
  [[nodiscard]] static std::string Earned_this_game();

  /// "+%{earnedPoints} points"
  /// %{earnedPoints} is a number, and there are no plural forms. The text must be right for 1 and for 5.
  [[nodiscard]] static std::string earnedPoints_points(Text earnedPoints);

  /// "Educational"
  /// Where this appears is not recorded; treat it as the name of a subject that questions are about.
  [[nodiscard]] static std::string Educational();

  /// "eight"
  /// Where this appears is not recorded; translate the plain word used in counting, not a form that agrees with a noun.
  [[nodiscard]] static std::string eight();

  /// "Eliminated"
  /// Where this appears is not recorded; it says that a player is out of the game. Use a form for players of any gender.
  [[nodiscard]] static std::string Eliminated();

  /// "Email"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Email();

  /// "Email address"
  [[nodiscard]] static std::string Email_address();

  /// "Email Support"
  /// "Email" is a verb: write an email to the support team.
  [[nodiscard]] static std::string Email_Support();

  /// "Employees are not allowed to cashout"
  [[nodiscard]] static std::string Employees_are_not_allowed_to_cashout();

  /// "Enable"
  /// Where this appears is not recorded; treat it as a button: a verb.
  [[nodiscard]] static std::string Enable();

  /// "Enable Notifications"
  [[nodiscard]] static std::string Enable_Notifications();

  /// "Enable this setting to be discoverable to people playing ZK near you. It's fun!"
  [[nodiscard]] static std::string Enable_this_setting_to_be_discoverable_to_people_playing_ZK_near_you_It_s_fun();

  /// "Enable this setting to earn power ups by finding nearby people playing ZK!"
  [[nodiscard]] static std::string Enable_this_setting_to_earn_power_ups_by_finding_nearby_people_playing_ZK();

  /// "Enable this to automatically keep your contacts on ZK up to date."
  [[nodiscard]] static std::string Enable_this_to_automatically_keep_your_contacts_on_ZK_up_to_date();

  /// "Enter a friend's ZK username as your referral code."
  [[nodiscard]] static std::string Enter_a_friend_s_ZK_username_as_your_referral_code();

  /// "Enter a Referral Code"
  [[nodiscard]] static std::string Enter_a_Referral_Code();

  /// "Enter for %{prize}"
  /// %{prize} is probably an amount of money with its currency. To enter is to take part in order to win it.
  [[nodiscard]] static std::string Enter_for_prize(Text prize);

  /// "Enter Referral Code"
  [[nodiscard]] static std::string Enter_Referral_Code();

  /// "Enter Referral Codes"
  [[nodiscard]] static std::string Enter_Referral_Codes();

  /// "Enter the verification code sent to %{phoneNumber}"
  [[nodiscard]] static std::string Enter_the_verification_code_sent_to_phoneNumber(Text phoneNumber);

  /// "Enter Verification Code"
  [[nodiscard]] static std::string Enter_Verification_Code();

  /// "Enter VIP Game"
  [[nodiscard]] static std::string Enter_VIP_Game();

  /// "Enter your phone number"
  [[nodiscard]] static std::string Enter_your_phone_number();

  /// "Entered"
  /// Where this appears is not recorded; treat it as a state: the player takes part in a game or a prize draw. It does not mean that something was typed in.
  [[nodiscard]] static std::string Entered();

  /// "Entertainment"
  /// Where this appears is not recorded; treat it as the name of a subject that questions are about.
  [[nodiscard]] static std::string Entertainment();

  /// "Entries closed"
  /// No one can enter the game or competition any more.
  [[nodiscard]] static std::string Entries_closed();

  /// "Eraser"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Eraser();

  /// "*Eraser earned!* Use an Eraser to eliminate one wrong answer during a question."
  [[nodiscard]] static std::string Eraser_earned_Use_an_Eraser_to_eliminate_one_wrong_answer_during_a_question();

  /// "*Eraser earned!* Use it to eliminate a wrong answer during a question."
  [[nodiscard]] static std::string Eraser_earned_Use_it_to_eliminate_a_wrong_answer_during_a_question();

  /// "Erasers"
  /// Where this appears is not recorded; treat it as a title or label without a number.
  [[nodiscard]] static std::string Erasers();

  /// "Erasers"
  /// The app knows a count, but the text does not show it. The number probably appears next to it, so use the noun form that goes with that number, or one label for all.
  /// - 0: "Erasers"
  /// - 1: "Eraser"
  /// - 2: "Erasers"
  /// - 3 to 5: "Erasers"
  /// - 6 or more: "Erasers"
  [[nodiscard]] static std::string Erasers(std::int64_t count);

  /// "erasers"
  /// Where this appears is not recorded; the lower case suggests that it follows a number. It has no plural forms; use one form that fits most numbers, or an abbreviation.
  [[nodiscard]] static std::string erasers();

  /// "*Erasers* eliminate an answer. Use them during a question"
  [[nodiscard]] static std::string Erasers_eliminate_an_answer_Use_them_during_a_question();

  /// "Erasers hide a wrong answer. Tap the Eraser during a question to use one"
  [[nodiscard]] static std::string Erasers_hide_a_wrong_answer_Tap_the_Eraser_during_a_question_to_use_one();

  /// "Error Loading Media"
  [[nodiscard]] static std::string Error_Loading_Media();

  /// "Error loading schedule"
  [[nodiscard]] static std::string Error_loading_schedule();

  /// "EU Privacy Policy"
  /// Where this appears is not recorded; treat it as the title of a document, used alone in its plain form.
  [[nodiscard]] static std::string EU_Privacy_Policy();

  /// "Expires in %{time}"
  /// %{time} is a duration as the app shows it, with its unit. Add none. What expires is not recorded.
  [[nodiscard]] static std::string Expires_in_time(Text time);

  /// "Extra Life"
  [[nodiscard]] static std::string Extra_Life();

  /// "Extra Life earned!"
  [[nodiscard]] static std::string Extra_Life_earned();

  /// "Extra Life granted!"
  /// To grant is to give. Who gives it, and to whom, is not recorded.
  [[nodiscard]] static std::string Extra_Life_granted();

  /// "Extra Lives"
  /// Where this appears is not recorded; treat it as a title or label without a number.
  [[nodiscard]] static std::string Extra_Lives();

  /// "Extra lives"
  /// Where this appears is not recorded; treat it as a title or label without a number.
  [[nodiscard]] static std::string Extra_lives();

  /// "Extra Lives"
  /// The app knows a count, but the text does not show it. The number probably appears next to it, so use the noun form that goes with that number, or one label for all.
  /// - 0: "Extra Lives"
  /// - 1: "Extra Life"
  /// - 2: "Extra Lives"
  /// - 3 to 5: "Extra Lives"
  /// - 6 or more: "Extra Lives"
  [[nodiscard]] static std::string Extra_Lives(std::int64_t count);

  /// "extra lives"
  /// Where this appears is not recorded; the lower case suggests that it follows a number. It has no plural forms; use one form that fits most numbers, or an abbreviation.
  [[nodiscard]] static std::string extra_lives();

  /// "Facebook"
  /// The name of a company. It stays as it is.
  [[nodiscard]] static std::string Facebook();

  /// "Failed"
  /// Where this appears is not recorded; what it describes is not known, so use a form that fits things of any gender and number, for example an impersonal one.
  [[nodiscard]] static std::string Failed();

  /// "Failed to accept friend request"
  [[nodiscard]] static std::string Failed_to_accept_friend_request();

  /// "Failed to reject friend request"
  [[nodiscard]] static std::string Failed_to_reject_friend_request();

  /// "Failed to send friend request"
  [[nodiscard]] static std::string Failed_to_send_friend_request();

  /// "FAQs"
  /// Where this appears is not recorded; treat it as a title: frequently asked questions.
  [[nodiscard]] static std::string FAQs();

  /// "Fetching nearby letters…"
  [[nodiscard]] static std::string Fetching_nearby_letters();

  /// "Finalists"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Finalists();

  /// "Find all the"
  /// The text is not complete: probably the name of a group of words to find follows. Avoid articles and endings that fit only one gender.
  [[nodiscard]] static std::string Find_all_the();

  /// "Finding nearby players to collect an *Eraser* power up"
  [[nodiscard]] static std::string Finding_nearby_players_to_collect_an_Eraser_power_up();

  /// "First, join the live game"
  [[nodiscard]] static std::string First_join_the_live_game();

  /// "five"
  /// Where this appears is not recorded; translate the plain word used in counting, not a form that agrees with a noun.
  [[nodiscard]] static std::string five();

  /// "Food & Drink"
  /// Where this appears is not recorded; treat it as the name of a subject that questions are about.
  [[nodiscard]] static std::string Food_Drink();

  /// "Forfeited"
  /// Where this appears is not recorded; treat it as a state of money: winnings that the player has lost. "Forfeited Balance" is related.
  [[nodiscard]] static std::string Forfeited();

  /// "Forfeited Balance"
  [[nodiscard]] static std::string Forfeited_Balance();

  /// "Found a player nearby!"
  [[nodiscard]] static std::string Found_a_player_nearby();

  /// "Found an ZK Words player nearby! You've unlocked the game."
  [[nodiscard]] static std::string Found_an_ZK_Words_player_nearby_You_ve_unlocked_the_game();

  /// "Found *%{name1}* and *%{name2}*"
  /// The names belong to people whom the Nearby feature has found; their genders are unknown.
  [[nodiscard]] static std::string Found_name1_and_name2(Text name1, Text name2);

  /// "Found *%{name1}* and *%{name2}* nearby"
  /// The names belong to people whom the Nearby feature has found; their genders are unknown.
  [[nodiscard]] static std::string Found_name1_and_name2_nearby(Text name1, Text name2);

  /// "Found *%{name}* nearby"
  /// %{name} is a person whom the Nearby feature has found; the gender is unknown.
  [[nodiscard]] static std::string Found_name_nearby(Text name);

  /// "Found *%{username}* nearby, looking for %{remaining} more players"
  /// The count is %{remaining}, the number of players still needed. At 0 nobody else is needed.
  /// - 0: "Found *%{username}* nearby, no more players needed"
  /// - 1: "Found *%{username}* nearby, looking for %{remaining} more player"
  /// - 2: "Found *%{username}* nearby, looking for %{remaining} more players"
  /// - 3 to 5: "Found *%{username}* nearby, looking for %{remaining} more players"
  /// - 6 or more: "Found *%{username}* nearby, looking for %{remaining} more players"
  [[nodiscard]] static std::string Found_username_nearby_looking_for_remaining_more_players(Text username, Text remaining, std::int64_t count);

  /// "four"
  /// Where this appears is not recorded; translate the plain word used in counting, not a form that agrees with a noun.
  [[nodiscard]] static std::string four();

  /// "Free Pass"
  /// An item that lets the player skip questions up to a certain one.
  [[nodiscard]] static std::string Free_Pass();

  /// "Free Pass through Q%{level}"
  /// "Q" means question and %{level} is its number: the Free Pass skips all questions up to and including it.
  [[nodiscard]] static std::string Free_Pass_through_Q_level(Text level);

  /// "Friend Requests"
  [[nodiscard]] static std::string Friend_Requests();

  /// "%{friendCount} friends"
  /// How many friends there are. Whose they are is not recorded.
  /// - 0: "No friends yet"
  /// - 1: "%{friendCount} friend"
  /// - 2: "%{friendCount} friends"
  /// - 3 to 5: "%{friendCount} friends"
  /// - 6 or more: "%{friendCount} friends"
  [[nodiscard]] static std::string friendCount_friends(Text friendCount, std::int64_t count);

  /// "%{friendCount} friends still in"
  /// "Still in" means not eliminated: at 0 it means that none are left, not that none have come yet.
  /// - 0: "No friends still in"
  /// - 1: "%{friendCount} friend still in"
  /// - 2: "%{friendCount} friends still in"
  /// - 3 to 5: "%{friendCount} friends still in"
  /// - 6 or more: "%{friendCount} friends still in"
  [[nodiscard]] static std::string friendCount_friends_still_in(Text friendCount, std::int64_t count);

  /// "%{friendRequestCount} friend requests"
  /// How many friend requests there are. Whether they were received or sent is not recorded.
  /// - 0: "No friend requests"
  /// - 1: "%{friendRequestCount} friend request"
  /// - 2: "%{friendRequestCount} friend requests"
  /// - 3 to 5: "%{friendRequestCount} friend requests"
  /// - 6 or more: "%{friendRequestCount} friend requests"
  [[nodiscard]] static std::string friendRequestCount_friend_requests(Text friendRequestCount, std::int64_t count);

  /// "Friends"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Friends();

  /// "Full Name"
  [[nodiscard]] static std::string Full_Name();

  /// "Game now live"
  [[nodiscard]] static std::string Game_now_live();

  /// "Game over"
  [[nodiscard]] static std::string Game_over();

  /// "Games"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Games();

  /// "Geography"
  /// Where this appears is not recorded; treat it as the name of a subject that questions are about.
  [[nodiscard]] static std::string Geography();

  /// "Get Coins"
  [[nodiscard]] static std::string Get_Coins();

  /// "Get Erasers"
  [[nodiscard]] static std::string Get_Erasers();

  /// "Get Extra Lives"
  [[nodiscard]] static std::string Get_Extra_Lives();

  /// "Get Help"
  [[nodiscard]] static std::string Get_Help();

  /// "Get help"
  [[nodiscard]] static std::string Get_help();

  /// "Get More"
  [[nodiscard]] static std::string Get_More();

  /// "Get more coins to buy Power Ups!"
  [[nodiscard]] static std::string Get_more_coins_to_buy_Power_Ups();

  /// "Get Notified"
  [[nodiscard]] static std::string Get_Notified();

  /// "Get notified when\n shows are live"
  [[nodiscard]] static std::string Get_notified_when_n_shows_are_live();

  /// "Get notified when\nZK is live?"
  [[nodiscard]] static std::string Get_notified_when_nZK_is_live();

  /// "Get notified when the shows are live:"
  /// The colon shows that something follows, probably a list of shows.
  [[nodiscard]] static std::string Get_notified_when_the_shows_are_live();

  /// "Get points"
  [[nodiscard]] static std::string Get_points();

  /// "Get Power Ups to help you win!"
  [[nodiscard]] static std::string Get_Power_Ups_to_help_you_win();

  /// "Get %{product}"
  /// The placeholder is the name of a thing or an offer. Its gender is unknown, so avoid articles and endings.
  [[nodiscard]] static std::string Get_product(Text product);

  /// "Get %{productName}"
  /// The placeholder is the name of a thing or an offer. Its gender is unknown, so avoid articles and endings.
  [[nodiscard]] static std::string Get_productName(Text productName);

  /// "Get Started"
  [[nodiscard]] static std::string Get_Started();

  /// "Get Super Spins"
  [[nodiscard]] static std::string Get_Super_Spins();

  /// "Get them all right and you win"
  [[nodiscard]] static std::string Get_them_all_right_and_you_win();

  /// "Gift Drop"
  /// Where this appears is not recorded; treat it as the name of an event in which gifts are handed out.
  [[nodiscard]] static std::string Gift_Drop();

  /// "Go to settings"
  /// The settings of the phone, probably.
  [[nodiscard]] static std::string Go_to_settings();

  /// "Good luck!"
  [[nodiscard]] static std::string Good_luck();

  /// "Goodbye!"
  /// Where this appears is not recorded; it speaks to the player.
  [[nodiscard]] static std::string Goodbye();

  /// "Google"
  /// The name of a company. It stays as it is.
  [[nodiscard]] static std::string Google();

  /// "Grant Extra Life"
  /// To grant is to give. Who gives it, and to whom, is not recorded.
  [[nodiscard]] static std::string Grant_Extra_Life();

  /// "Guest"
  /// Where this appears is not recorded; treat it as a label: someone who watches without an account. Use a form for people of any gender.
  [[nodiscard]] static std::string Guest();

  /// "Have your photo seen by more people with a Boost"
  /// A Boost lets more people see a photo.
  [[nodiscard]] static std::string Have_your_photo_seen_by_more_people_with_a_Boost();

  /// "Help us spread the word"
  [[nodiscard]] static std::string Help_us_spread_the_word();

  /// "Here's an Extra Life for your next game!"
  [[nodiscard]] static std::string Here_s_an_Extra_Life_for_your_next_game();

  /// "Hey"
  /// Where this appears is not recorded; it speaks to the player.
  [[nodiscard]] static std::string Hey();

  /// "Hide details"
  [[nodiscard]] static std::string Hide_details();

  /// "High Score"
  /// A score is a number of points; a high score is the highest one so far.
  [[nodiscard]] static std::string High_Score();

  /// "History"
  /// Where this appears is not recorded; treat it as a subject of questions, like Geography and Science, not as a list of past games.
  [[nodiscard]] static std::string History();

  /// "Hit us up on Twitter @zktrivia"
  /// An informal invitation to write to ZK.
  [[nodiscard]] static std::string Hit_us_up_on_Twitter_zktrivia();

  /// "Hot"
  /// Where this appears is not recorded; treat it as a hint in a hiding game: Hot means near the hidden thing, Cold means far from it. It is not about the weather.
  [[nodiscard]] static std::string Hot();

  /// "How it works"
  [[nodiscard]] static std::string How_it_works();

  /// "How to Play"
  [[nodiscard]] static std::string How_to_Play();

  /// "How to play"
  [[nodiscard]] static std::string How_to_play();

  /// "ZK is at capacity"
  /// Too many players use ZK at this moment.
  [[nodiscard]] static std::string ZK_is_at_capacity();

  /// "ZK Shop"
  [[nodiscard]] static std::string ZK_Shop();

  /// "ZK Sports"
  /// The name of a product. It stays as it is.
  [[nodiscard]] static std::string ZK_Sports();

  /// "ZK Trivia"
  /// The name of a product. It stays as it is.
  [[nodiscard]] static std::string ZK_Trivia();

  /// "ZK Words"
  /// The name of a product. It stays as it is.
  [[nodiscard]] static std::string ZK_Words();

  /// "I can’t believe I got this question wrong on ZK Trivia!"
  [[nodiscard]] static std::string I_can_t_believe_I_got_this_question_wrong_on_ZK_Trivia();

  /// "I can’t believe I got this question wrong on @zktrivia!"
  [[nodiscard]] static std::string I_can_t_believe_I_got_this_question_wrong_on_zktrivia();

  /// "I just got %{round} questions correct on ZK Trivia! That’s a new record for me! You should play too. Use my code \"%{username}\" to sign up: https://zktrivia.example"
  /// A message that the player shares. %{round} is the number of questions answered right; the text must be right for 1 and for 5. %{username} is the referral code.
  [[nodiscard]] static std::string I_just_got_round_questions_correct_on_ZK_Trivia_That_s_a_new_record_for_me_You_should_play_too_Use_m(Text round, Text username);

  /// "I just got %{round} questions correct on @zktrivia! That’s a new record for me! You should play too. Use my code \"%{username}\" to sign up: https://zktrivia.example"
  /// A message that the player shares. %{round} is the number of questions answered right; the text must be right for 1 and for 5. %{username} is the referral code.
  [[nodiscard]] static std::string I_just_got_round_questions_correct_on_zktrivia_That_s_a_new_record_for_me_You_should_play_too_Use_my(Text round, Text username);

  /// "I just unlocked the %{badge} badge on ZK Trivia! Sign up at https://zktrivia.example with my code \"%{code}\" and start your own collection."
  /// A message that the player shares. %{badge} is the name of a Badge, %{code} the referral code.
  [[nodiscard]] static std::string I_just_unlocked_the_badge_badge_on_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_code_and(Text badge, Text code);

  /// "I just unlocked the %{badge} badge on @zktrivia! Sign up at https://zktrivia.example with my code \"%{code}\" and start your own collection."
  /// A message that the player shares. %{badge} is the name of a Badge, %{code} the referral code.
  [[nodiscard]] static std::string I_just_unlocked_the_badge_badge_on_zktrivia_Sign_up_at_https_zktrivia_example_with_my_code_code_and_(Text badge, Text code);

  /// "I just won %{prize} on %{twitterHandle}! You should play too. Use my code \"%{username}\""
  /// A message that the player shares. %{twitterHandle} is a handle, %{username} the referral code.
  [[nodiscard]] static std::string I_just_won_prize_on_twitterHandle_You_should_play_too_Use_my_code_username(Text prize, Text twitterHandle, Text username);

  /// "I just won %{prize} playing %{gameName}! Sign up at https://zktrivia.example with my code \"%{username}\" and play for the next prize."
  /// A message that the player shares. %{prize} is a prize, such as an amount of money with its currency; the player's name is also the referral code.
  [[nodiscard]] static std::string I_just_won_prize_playing_gameName_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_f(Text prize, Text gameName, Text username);

  /// "I just won %{prize} playing ZK Trivia! Play the next game with me: https://zktrivia.example"
  /// A message that the player shares. %{prize} is a prize, such as an amount of money with its currency; the player's name is also the referral code.
  [[nodiscard]] static std::string I_just_won_prize_playing_ZK_Trivia_Play_the_next_game_with_me_https_zktrivia_example(Text prize);

  /// "I just won %{prize} playing ZK Trivia! Sign up at https://zktrivia.example with my code \"%{username}\" and play for the next prize."
  /// A message that the player shares. %{prize} is a prize, such as an amount of money with its currency; the player's name is also the referral code.
  [[nodiscard]] static std::string I_just_won_prize_playing_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_(Text prize, Text username);

  /// "I just won %{prize} playing @zktrivia! Sign up at https://zktrivia.example with my code \"%{username}\" and play for the next prize."
  /// A message that the player shares. %{prize} is a prize, such as an amount of money with its currency; the player's name is also the referral code.
  [[nodiscard]] static std::string I_just_won_prize_playing_zktrivia_Sign_up_at_https_zktrivia_example_with_my_code_username_and_play_f(Text prize, Text username);

  /// "I'm playing a game called %{appName}! You should play too."
  /// A message that the player shares. %{appName} is a name.
  [[nodiscard]] static std::string I_m_playing_a_game_called_appName_You_should_play_too(Text appName);

  /// "I won %{prize} playing\n%{zkNameVariant}"
  /// The player says this to friends. %{prize} is probably an amount of money with its currency, and %{zkNameVariant} the name of a product.
  [[nodiscard]] static std::string I_won_prize_playing_n_zkNameVariant(Text prize, Text zkNameVariant);

  /// "If everyone gets eliminated, the\nprize rolls over to the next day."
  [[nodiscard]] static std::string If_everyone_gets_eliminated_the_n_prize_rolls_over_to_the_next_day();

  /// "If more than one person makes it to the end, then split the prize."
  [[nodiscard]] static std::string If_more_than_one_person_makes_it_to_the_end_then_split_the_prize();

  /// "If you tap an incorrect answer\nor you run out of time, you'll be\neliminated from winning the prize."
  [[nodiscard]] static std::string If_you_tap_an_incorrect_answer_n_or_you_run_out_of_time_you_ll_be_n_eliminated_from_winning_the_priz();

  /// "In order to cash out, please fill out all fields below."
  [[nodiscard]] static std::string In_order_to_cash_out_please_fill_out_all_fields_below();

  /// "In order to cash out, please fill out all fields below, even if email address and PayPal email address are the same."
  [[nodiscard]] static std::string In_order_to_cash_out_please_fill_out_all_fields_below_even_if_email_address_and_PayPal_email_address();

  /// "In order to cash out please fill out the form below. All fields are required."
  [[nodiscard]] static std::string In_order_to_cash_out_please_fill_out_the_form_below_All_fields_are_required();

  /// "In order to cash out, please input your PayPal email address."
  [[nodiscard]] static std::string In_order_to_cash_out_please_input_your_PayPal_email_address();

  /// "In order to donate your winnings, please fill out all fields below."
  [[nodiscard]] static std::string In_order_to_donate_your_winnings_please_fill_out_all_fields_below();

  /// "In Review"
  /// A state: ZK checks something, such as a balance. What it checks is not recorded. It is not about reviews in a store.
  [[nodiscard]] static std::string In_Review();

  /// "In the meantime, warm up\nand win coins!"
  [[nodiscard]] static std::string In_the_meantime_warm_up_nand_win_coins();

  /// "Incorrect"
  /// Where this appears is not recorded; it may judge an answer or be the title of a list of answers. The texts in lower case are separate.
  [[nodiscard]] static std::string Incorrect();

  /// "incorrect"
  /// Where this appears is not recorded; the lower case suggests that it follows a number of answers ("3 correct"). It has no plural forms; use one form that fits most numbers.
  [[nodiscard]] static std::string incorrect();

  /// "Invalid email"
  [[nodiscard]] static std::string Invalid_email();

  /// "Invalid referral code!"
  [[nodiscard]] static std::string Invalid_referral_code();

  /// "Invite"
  /// Where this appears is not recorded; treat it as a button: a verb.
  [[nodiscard]] static std::string Invite();

  /// "Invite a friend"
  [[nodiscard]] static std::string Invite_a_friend();

  /// "Invite contacts"
  [[nodiscard]] static std::string Invite_contacts();

  /// "Invite your friends to play ZK!"
  [[nodiscard]] static std::string Invite_your_friends_to_play_ZK();

  /// "Join"
  /// Where this appears is not recorded; treat it as a button: a verb. The player may join a game or a party; use a word that fits both.
  [[nodiscard]] static std::string Join();

  /// "Join me on ZK Trivia! Use my code \"%{username}\" to sign up: https://zktrivia.example"
  /// A message that the player shares to invite friends. The player's name is also the referral code.
  [[nodiscard]] static std::string Join_me_on_ZK_Trivia_Use_my_code_username_to_sign_up_https_zktrivia_example(Text username);

  /// "Joining game..."
  [[nodiscard]] static std::string Joining_game();

  /// "Keep playing?"
  [[nodiscard]] static std::string Keep_playing();

  /// "Keep playing for *%{amount}*!"
  /// %{amount} is an amount of money with its currency. Whether the player can win it or must pay it is not recorded; use a word that fits both if your language has one.
  [[nodiscard]] static std::string Keep_playing_for_amount(Text amount);

  /// "Keep tapping!"
  [[nodiscard]] static std::string Keep_tapping();

  /// "Kick"
  /// Where this appears is not recorded; treat it as a button: a verb. It removes a player from a game or a party.
  [[nodiscard]] static std::string Kick();

  /// "Kicking %{username} failed"
  [[nodiscard]] static std::string Kicking_username_failed(Text username);

  /// "Later"
  /// Where this appears is not recorded; it postpones something that the app suggests.
  [[nodiscard]] static std::string Later();

  /// "Leaderboard"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Leaderboard();

  /// "Learn more"
  /// A link or a button. The same words end some longer texts.
  [[nodiscard]] static std::string Learn_more();

  /// "Leave"
  /// Where this appears is not recorded; treat it as a button: a verb. The player may leave a game or a party; use a word that fits both.
  [[nodiscard]] static std::string Leave();

  /// "Legal"
  /// Where this appears is not recorded; treat it as a title: legal information, such as terms and rules.
  [[nodiscard]] static std::string Legal();

  /// "Letter Points"
  /// Where this appears is not recorded; treat it as a label: points for letters in the word game.
  [[nodiscard]] static std::string Letter_Points();

  /// "Level"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Level();

  /// "%{level} Bonus Strikes"
  /// %{level} is probably the number of strikes, despite its name. There are no plural forms; the text must be right for 1 and for 5.
  [[nodiscard]] static std::string level_Bonus_Strikes(Text level);

  /// "Level %{level} rewards"
  /// The level is a number, such as Level 3. The number identifies the level; it is not a count.
  [[nodiscard]] static std::string Level_level_rewards(Text level);

  /// "Level %{levelNumber}"
  /// The level is a number, such as Level 3. The number identifies the level; it is not a count.
  [[nodiscard]] static std::string Level_levelNumber(Text levelNumber);

  /// "Level Unlock"
  /// An item that the player uses up to open a level.
  [[nodiscard]] static std::string Level_Unlock();

  /// "Level Unlocks"
  /// An item that the player uses up to open a level.
  [[nodiscard]] static std::string Level_Unlocks();

  /// "Levels"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Levels();

  /// "Lifetime Winnings"
  [[nodiscard]] static std::string Lifetime_Winnings();

  /// "Lifetime winnings"
  [[nodiscard]] static std::string Lifetime_winnings();

  /// "Like"
  /// Where this appears is not recorded; treat it as a button that says what the player thinks of something. Use the pair of words that social networks use.
  [[nodiscard]] static std::string Like();

  /// "Link a social account"
  [[nodiscard]] static std::string Link_a_social_account();

  /// "Linked social accounts"
  [[nodiscard]] static std::string Linked_social_accounts();

  /// "Literature"
  /// Where this appears is not recorded; treat it as the name of a subject that questions are about.
  [[nodiscard]] static std::string Literature();

  /// "Live"
  /// Where this appears is not recorded; treat it as a state: the show is on air now. It is not the verb "to live".
  [[nodiscard]] static std::string Live();

  /// "Live Game Shows"
  [[nodiscard]] static std::string Live_Game_Shows();

  /// "Live game shows"
  [[nodiscard]] static std::string Live_game_shows();

  /// "Live soon"
  /// A show will soon be on air.
  [[nodiscard]] static std::string Live_soon();

  /// "Live sports trivia game show with cash prizes."
  [[nodiscard]] static std::string Live_sports_trivia_game_show_with_cash_prizes();

  /// "Live trivia game show"
  [[nodiscard]] static std::string Live_trivia_game_show();

  /// "Live trivia\ngame show"
  [[nodiscard]] static std::string Live_trivia_n_game_show();

  /// "Loading schedule"
  [[nodiscard]] static std::string Loading_schedule();

  /// "Locked"
  /// Where this appears is not recorded; a game, a level or a Badge may be locked. Use a form that fits all of them.
  [[nodiscard]] static std::string Locked();

  /// "Log in or sign up"
  [[nodiscard]] static std::string Log_in_or_sign_up();

  /// "Logout"
  /// Where this appears is not recorded; treat it as a button: a verb. It signs the player out; the button that signs in is "Sign in".
  [[nodiscard]] static std::string Logout();

  /// "Love ZK?"
  /// A question to the player: do you like the app? "Yep!" and "Nah" probably answer it.
  [[nodiscard]] static std::string Love_ZK();

  /// "%{messageCount} new messages"
  /// How many messages the player has not read yet.
  /// - 0: "No new messages"
  /// - 1: "%{messageCount} new message"
  /// - 2: "%{messageCount} new messages"
  /// - 3 to 5: "%{messageCount} new messages"
  /// - 6 or more: "%{messageCount} new messages"
  [[nodiscard]] static std::string messageCount_new_messages(Text messageCount, std::int64_t count);

  /// "Mini-games"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Mini_games();

  /// "%{minPoints}-%{maxPoints} points"
  /// A range of points, such as 10-20 points. "points" follows the higher number.
  [[nodiscard]] static std::string minPoints_maxPoints_points(Text minPoints, Text maxPoints);

  /// "Month"
  /// Where this appears is not recorded; it may stand alone or follow a number that the app shows. There are no plural forms: use the singular for 1 and the plural for all other numbers.
  [[nodiscard]] static std::string Month();

  /// "Months"
  /// Where this appears is not recorded; it may stand alone or follow a number that the app shows. There are no plural forms: use the singular for 1 and the plural for all other numbers.
  [[nodiscard]] static std::string Months();

  /// "Movies"
  /// Where this appears is not recorded; treat it as the name of a subject that questions are about.
  [[nodiscard]] static std::string Movies();

  /// "Multipliers"
  /// The app knows a count, but the text does not show it. The number probably appears next to it, so use the noun form that goes with that number, or one label for all. What is multiplied is not recorded; "Point Multipliers" is a separate text.
  /// - 0: "Multipliers"
  /// - 1: "Multiplier"
  /// - 2: "Multipliers"
  /// - 3 to 5: "Multipliers"
  /// - 6 or more: "Multipliers"
  [[nodiscard]] static std::string Multipliers(std::int64_t count);

  /// "Multiply your game points"
  [[nodiscard]] static std::string Multiply_your_game_points();

  /// "Music"
  /// Where this appears is not recorded; treat it as the name of a subject that questions are about.
  [[nodiscard]] static std::string Music();

  /// "My new record on %{socialNetwork}"
  /// The player says this to friends. %{socialNetwork} is the name of a social network, or of the account of ZK on it.
  [[nodiscard]] static std::string My_new_record_on_socialNetwork(Text socialNetwork);

  /// "Nah"
  /// An informal answer, probably to "Love ZK?". Yep is the yes, Nah is the no.
  [[nodiscard]] static std::string Nah();

  /// "Nature"
  /// Where this appears is not recorded; treat it as the name of a subject that questions are about.
  [[nodiscard]] static std::string Nature();

  /// "%{nearbyCount} people nearby"
  /// How many people the Nearby feature has found around the player.
  /// - 0: "No one nearby"
  /// - 1: "%{nearbyCount} person nearby"
  /// - 2: "%{nearbyCount} people nearby"
  /// - 3 to 5: "%{nearbyCount} people nearby"
  /// - 6 or more: "%{nearbyCount} people nearby"
  [[nodiscard]] static std::string nearbyCount_people_nearby(Text nearbyCount, std::int64_t count);

  /// "New Feature:\nFind Friends on ZK"
  [[nodiscard]] static std::string New_Feature_n_Find_Friends_on_ZK();

  /// "New high score!"
  /// A score is a number of points; a high score is the highest one so far.
  [[nodiscard]] static std::string New_high_score();

  /// "New Show"
  [[nodiscard]] static std::string New_Show();

  /// "Next"
  /// Where this appears is not recorded; treat it as a button: a verb. It goes to the next step.
  [[nodiscard]] static std::string Next();

  /// "Next Game"
  [[nodiscard]] static std::string Next_Game();

  /// "Next Game in %{timer}"
  /// %{timer} is a running time, such as 1:30. Add no unit.
  [[nodiscard]] static std::string Next_Game_in_timer(Text timer);

  /// "Next Game: %{showTitle}"
  /// %{showTitle} is the name of the next show.
  [[nodiscard]] static std::string Next_Game_showTitle(Text showTitle);

  /// "Next prize in %{questionCount} questions"
  /// The count is the number of questions until the next prize. At 0 the prize is next.
  /// - 0: "Next prize now"
  /// - 1: "Next prize in %{questionCount} question"
  /// - 2: "Next prize in %{questionCount} questions"
  /// - 3 to 5: "Next prize in %{questionCount} questions"
  /// - 6 or more: "Next prize in %{questionCount} questions"
  [[nodiscard]] static std::string Next_prize_in_questionCount_questions(Text questionCount, std::int64_t count);

  /// "*Next prize*\nin %{questionCount} questions"
  /// The count is the number of questions until the next prize. At 0 the prize is next.
  /// - 0: "*Next prize*\nnow"
  /// - 1: "*Next prize*\nin %{questionCount} question"
  /// - 2: "*Next prize*\nin %{questionCount} questions"
  /// - 3 to 5: "*Next prize*\nin %{questionCount} questions"
  /// - 6 or more: "*Next prize*\nin %{questionCount} questions"
  [[nodiscard]] static std::string Next_prize_n_in_questionCount_questions(Text questionCount, std::int64_t count);

  /// "Next Round in %{time}"
  /// %{time} is a duration as the app shows it, with its unit. Add none.
  [[nodiscard]] static std::string Next_Round_in_time(Text time);

  /// "Next time, continue playing with an Extra Life! Get Extra Lives by inviting friends."
  [[nodiscard]] static std::string Next_time_continue_playing_with_an_Extra_Life_Get_Extra_Lives_by_inviting_friends();

  /// "nine"
  /// Where this appears is not recorded; translate the plain word used in counting, not a form that agrees with a noun.
  [[nodiscard]] static std::string nine();

  /// "No"
  /// Where this appears is not recorded; it answers a question or closes a message.
  [[nodiscard]] static std::string No();

  /// "No account found with that number.\nPlease create one below."
  [[nodiscard]] static std::string No_account_found_with_that_number_nPlease_create_one_below();

  /// "No games scheduled"
  [[nodiscard]] static std::string No_games_scheduled();

  /// "No internet connection"
  [[nodiscard]] static std::string No_internet_connection();

  /// "No progress yet"
  /// What kind of progress is not recorded; it may be progress towards a Badge.
  [[nodiscard]] static std::string No_progress_yet();

  /// "No winners"
  [[nodiscard]] static std::string No_winners();

  /// "No winners? No worries"
  /// Two short sentences. Another text explains what happens if nobody wins.
  [[nodiscard]] static std::string No_winners_No_worries();

  /// "Not now"
  [[nodiscard]] static std::string Not_now();

  /// "Notification let you know when games are live."
  [[nodiscard]] static std::string Notification_let_you_know_when_games_are_live();

  /// "Notifications"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Notifications();

  /// "Now playing in Rewards Mode"
  /// The game goes on for rewards other than the cash prize.
  [[nodiscard]] static std::string Now_playing_in_Rewards_Mode();

  /// "%{number} correct"
  /// %{number} is a number, probably of answers, and there are no plural forms. The text must be right for 1 and for 5.
  [[nodiscard]] static std::string number_correct(Text number);

  /// "%{number} incorrect"
  /// %{number} is a number, probably of answers, and there are no plural forms. The text must be right for 1 and for 5.
  [[nodiscard]] static std::string number_incorrect(Text number);

  /// "Oh no!"
  [[nodiscard]] static std::string Oh_no();

  /// "OK"
  /// Where this appears is not recorded; it answers a question or closes a message.
  [[nodiscard]] static std::string OK();

  /// "Okay, we'll call you with the verification code"
  [[nodiscard]] static std::string Okay_we_ll_call_you_with_the_verification_code();

  /// "Okay, we'll resend the verification code to %{phoneNumber}"
  [[nodiscard]] static std::string Okay_we_ll_resend_the_verification_code_to_phoneNumber(Text phoneNumber);

  /// "Once you have won, you can cashout\ndirectly to your PayPal account."
  [[nodiscard]] static std::string Once_you_have_won_you_can_cashout_n_directly_to_your_PayPal_account();

  /// "one"
  /// Where this appears is not recorded; translate the plain word used in counting, not a form that agrees with a noun.
  [[nodiscard]] static std::string one();

  /// "One strike and you're out"
  [[nodiscard]] static std::string One_strike_and_you_re_out();

  /// "Oops, something went wrong. Please try again later."
  [[nodiscard]] static std::string Oops_something_went_wrong_Please_try_again_later();

  /// "Open It"
  /// Where this appears is not recorded; treat it as a button. "It" is probably a gift box.
  [[nodiscard]] static std::string Open_It();

  /// "Option B"
  /// Where this appears is not recorded; treat it as the name of an answer, B or C.
  [[nodiscard]] static std::string Option_B();

  /// "Option C"
  /// Where this appears is not recorded; treat it as the name of an answer, B or C.
  [[nodiscard]] static std::string Option_C();

  /// "or"
  /// Where this appears is not recorded; it probably separates two choices, such as two ways to sign in.
  [[nodiscard]] static std::string or_();

  /// "or sign in via %{via}"
  /// It probably follows another way to sign in. %{via} is the name of a service, such as Apple or Google.
  [[nodiscard]] static std::string or_sign_in_via_via(Text via);

  /// "Order It"
  /// Where this appears is not recorded. The text "Drag into order" suggests putting things in order rather than buying them. It may also be the name of a question type.
  [[nodiscard]] static std::string Order_It();

  /// "Out of time!"
  [[nodiscard]] static std::string Out_of_time();

  /// "P%{puzzleNumber} of %{puzzleCount}"
  /// "P" means puzzle: puzzle 2 of 5. Use a word if one letter is unclear in your language.
  [[nodiscard]] static std::string P_puzzleNumber_of_puzzleCount(Text puzzleNumber, Text puzzleCount);

  /// "Payment for one or more shows that this account has won is temporarily disabled. Please try again later."
  /// A show is a game show. To win a show is to win a prize in it; the show itself is not the prize.
  [[nodiscard]] static std::string Payment_for_one_or_more_shows_that_this_account_has_won_is_temporarily_disabled_Please_try_again_lat();

  /// "PayPal Email"
  [[nodiscard]] static std::string PayPal_Email();

  /// "Paypal email address"
  [[nodiscard]] static std::string Paypal_email_address();

  /// "Pending Balance"
  [[nodiscard]] static std::string Pending_Balance();

  /// "People nearby"
  [[nodiscard]] static std::string People_nearby();

  /// "%{percent} complete"
  /// %{percent} is a number; as the text has no percent sign, the value probably has one. What is complete is not recorded.
  [[nodiscard]] static std::string percent_complete(Text percent);

  /// "phone number"
  /// Where this appears is not recorded; the lower case suggests that it is part of a sentence or list. Use the plain form, without an article.
  [[nodiscard]] static std::string phone_number();

  /// "Photos"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Photos();

  /// "Pick username"
  [[nodiscard]] static std::string Pick_username();

  /// "Pick your favorite"
  /// Where this appears is not recorded. What the player picks is not known, so use a form that fits things of any gender.
  [[nodiscard]] static std::string Pick_your_favorite();

  /// "Play"
  /// Where this appears is not recorded; treat it as a button: a verb. It starts a game, not a film or a song.
  [[nodiscard]] static std::string Play();

  /// "Play a game tonight to win some cash!"
  [[nodiscard]] static std::string Play_a_game_tonight_to_win_some_cash();

  /// "Play again now for"
  /// The text is not complete: a price or an item probably follows. Avoid articles and endings that fit only one of them.
  [[nodiscard]] static std::string Play_again_now_for();

  /// "Play %{days} more days in a row"
  /// The count is the number of days left. For 1, omit "in a row". At 0, the player has played enough days.
  /// - 0: "You've played enough days in a row"
  /// - 1: "Play %{days} more day"
  /// - 2: "Play %{days} more days in a row"
  /// - 3 to 5: "Play %{days} more days in a row"
  /// - 6 or more: "Play %{days} more days in a row"
  [[nodiscard]] static std::string Play_days_more_days_in_a_row(Text days, std::int64_t count);

  /// "Play %{days} more days in a row to earn an Extra Life!"
  /// The count is the number of days left. For 1, omit "in a row". At 0, the player has played enough days.
  /// - 0: "You've played enough days in a row to earn an Extra Life!"
  /// - 1: "Play %{days} more day to earn an Extra Life!"
  /// - 2: "Play %{days} more days in a row to earn an Extra Life!"
  /// - 3 to 5: "Play %{days} more days in a row to earn an Extra Life!"
  /// - 6 or more: "Play %{days} more days in a row to earn an Extra Life!"
  [[nodiscard]] static std::string Play_days_more_days_in_a_row_to_earn_an_Extra_Life(Text days, std::int64_t count);

  /// "Play for points"
  [[nodiscard]] static std::string Play_for_points();

  /// "Play %{game} now with"
  /// The text is not complete: an item such as an Extra Life, or a player, probably follows. %{game} is the name of a game.
  [[nodiscard]] static std::string Play_game_now_with(Text game);

  /// "Play %{gameCount} games"
  /// The count is the number of games to play, probably a task for the player. At 0 nothing is left to play.
  /// - 0: "No more games to play"
  /// - 1: "Play %{gameCount} game"
  /// - 2: "Play %{gameCount} games"
  /// - 3 to 5: "Play %{gameCount} games"
  /// - 6 or more: "Play %{gameCount} games"
  [[nodiscard]] static std::string Play_gameCount_games(Text gameCount, std::int64_t count);

  /// "Play %{gameName} with me! Use my code \"%{username}\" to sign up: https://zktrivia.example"
  /// A message that the player shares to invite friends. The player's name is also the referral code.
  [[nodiscard]] static std::string Play_gameName_with_me_Use_my_code_username_to_sign_up_https_zktrivia_example(Text gameName, Text username);

  /// "Play ZK Trivia, ZK Sports, and ZK Words"
  [[nodiscard]] static std::string Play_ZK_Trivia_ZK_Sports_and_ZK_Words();

  /// "Play ZK Trivia & Sports"
  [[nodiscard]] static std::string Play_ZK_Trivia_Sports();

  /// "Play live game shows and win cash prizes with me on %{gameName}. Use my code '%{username}' to sign up! %{downloadUrl}"
  /// A message that the player shares to invite friends. The player's name is also the referral code.
  [[nodiscard]] static std::string Play_live_game_shows_and_win_cash_prizes_with_me_on_gameName_Use_my_code_username_to_sign_up_downloa(Text gameName, Text username, Text downloadUrl);

  /// "Play live game shows with me on ZK Trivia! Sign up at https://zktrivia.example with my code \"%{username}\" and win cash prizes."
  /// A message that the player shares to invite friends. The player's name is also the referral code.
  [[nodiscard]] static std::string Play_live_game_shows_with_me_on_ZK_Trivia_Sign_up_at_https_zktrivia_example_with_my_code_username_an(Text username);

  /// "Play Now"
  [[nodiscard]] static std::string Play_Now();

  /// "Play warm up game"
  [[nodiscard]] static std::string Play_warm_up_game();

  /// "Play with %{cost} nearby players and you'll each earn an Eraser"
  /// %{cost} is a number, and there are no plural forms. The text must be right for 1 and for 5. "You" is the player and those nearby.
  [[nodiscard]] static std::string Play_with_cost_nearby_players_and_you_ll_each_earn_an_Eraser(Text cost);

  /// "%{players} in VIP Prize"
  /// %{players} is probably a finished phrase such as "12 players", from the text "%{playersCount} players". Do not repeat the noun, and read it with 0, 1 and 5.
  [[nodiscard]] static std::string players_in_VIP_Prize(Text players);

  /// "%{players} remain"
  /// %{players} is probably a finished phrase such as "12 players", from the text "%{playersCount} players". Do not repeat the noun, and read it with 0, 1 and 5.
  [[nodiscard]] static std::string players_remain(Text players);

  /// "%{playersCount} players"
  /// Also used inside other texts, probably as %{players}: "%{players} remain". Read them together.
  /// - 0: "%{playersCount} players"
  /// - 1: "%{playersCount} player"
  /// - 2: "%{playersCount} players"
  /// - 3 to 5: "%{playersCount} players"
  /// - 6 or more: "%{playersCount} players"
  [[nodiscard]] static std::string playersCount_players(Text playersCount, std::int64_t count);

  /// "Playing for points"
  [[nodiscard]] static std::string Playing_for_points();

  /// "Please do not comment repeatedly."
  [[nodiscard]] static std::string Please_do_not_comment_repeatedly();

  /// "Please enter a valid email address"
  [[nodiscard]] static std::string Please_enter_a_valid_email_address();

  /// "Please enter a valid name"
  [[nodiscard]] static std::string Please_enter_a_valid_name();

  /// "Please enter a valid phone number"
  [[nodiscard]] static std::string Please_enter_a_valid_phone_number();

  /// "Please enter a valid username in the referral code box."
  [[nodiscard]] static std::string Please_enter_a_valid_username_in_the_referral_code_box();

  /// "Please enter a valid verification code"
  [[nodiscard]] static std::string Please_enter_a_valid_verification_code();

  /// "Please enter the verification code sent to %{phoneNumber}"
  [[nodiscard]] static std::string Please_enter_the_verification_code_sent_to_phoneNumber(Text phoneNumber);

  /// "Please tell us a bit about the bug:"
  /// A field for typing probably follows the colon.
  [[nodiscard]] static std::string Please_tell_us_a_bit_about_the_bug();

  /// "Please try again later"
  [[nodiscard]] static std::string Please_try_again_later();

  /// "Please try again soon"
  [[nodiscard]] static std::string Please_try_again_soon();

  /// "Please try the next game"
  /// It asks the player to take part in the next game instead, not to test it.
  [[nodiscard]] static std::string Please_try_the_next_game();

  /// "Please try the next game: %{gameInfo}"
  /// It asks the player to take part in the next game instead, not to test it. %{gameInfo} describes that game; its form is not recorded.
  [[nodiscard]] static std::string Please_try_the_next_game_gameInfo(Text gameInfo);

  /// "Please verify that the email used above is a valid PayPal email account. Transfers to your account may take up to 15 days."
  [[nodiscard]] static std::string Please_verify_that_the_email_used_above_is_a_valid_PayPal_email_account_Transfers_to_your_account_ma();

  /// "Point"
  /// Where this appears is not recorded; treat it as a noun in the singular. It may follow the number 1.
  [[nodiscard]] static std::string Point();

  /// "Point Multiplier"
  [[nodiscard]] static std::string Point_Multiplier();

  /// "Point Multipliers"
  /// The app knows a count, but the text does not show it. The number probably appears next to it, so use the noun form that goes with that number, or one label for all.
  /// - 0: "Point Multipliers"
  /// - 1: "Point Multiplier"
  /// - 2: "Point Multipliers"
  /// - 3 to 5: "Point Multipliers"
  /// - 6 or more: "Point Multipliers"
  [[nodiscard]] static std::string Point_Multipliers(std::int64_t count);

  /// "%{pointCount} pts away from Level %{level}"
  /// The count is %{pointCount}, the points still needed for a level. "pts" means points. At 0 the level is reached.
  /// - 0: "Level %{level} reached"
  /// - 1: "%{pointCount} pt away from Level %{level}"
  /// - 2: "%{pointCount} pts away from Level %{level}"
  /// - 3 to 5: "%{pointCount} pts away from Level %{level}"
  /// - 6 or more: "%{pointCount} pts away from Level %{level}"
  [[nodiscard]] static std::string pointCount_pts_away_from_Level_level(Text pointCount, Text level, std::int64_t count);

  /// "points"
  /// Where this appears is not recorded; the lower case suggests that it follows a number. It has no plural forms; use one form that fits most numbers, or an abbreviation.
  [[nodiscard]] static std::string points();

  /// "Points"
  /// Where this appears is not recorded; treat it as a title or label. It may also follow a number, as "points" does; choose a form that fits both uses if your language has one.
  [[nodiscard]] static std::string Points();

  /// "Points on this game"
  /// A label: the points from this game.
  [[nodiscard]] static std::string Points_on_this_game();

  /// "%{points} points"
  /// %{points} is a number, and there are no plural forms. The text must be right for 1 and for 5.
  [[nodiscard]] static std::string points_points(Text points);

  /// "%{pointsMultiplier}x Points"
  /// %{pointsMultiplier} is a factor, such as 2: points count twice.
  [[nodiscard]] static std::string pointsMultiplier_x_Points(Text pointsMultiplier);

  /// "Power Ups"
  [[nodiscard]] static std::string Power_Ups();

  /// "Practice"
  /// Where this appears is not recorded; treat it as a button: a verb. The noun (a practice game) is possible too; choose a word that fits both if your language has one.
  [[nodiscard]] static std::string Practice();

  /// "Privacy"
  /// Where this appears is not recorded; treat it as a title: how the app uses personal data.
  [[nodiscard]] static std::string Privacy();

  /// "Privacy Policy"
  /// Where this appears is not recorded; treat it as the title of a document, used alone in its plain form.
  [[nodiscard]] static std::string Privacy_Policy();

  /// "Prize"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Prize();

  /// "%{prizeAmount} prize"
  /// %{prizeAmount} is a prize: an amount of money with its currency.
  [[nodiscard]] static std::string prizeAmount_prize(Text prizeAmount);

  /// "Profile"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Profile();

  /// "Pull down to leave the game"
  [[nodiscard]] static std::string Pull_down_to_leave_the_game();

  /// "Puzzle %{puzzleNumber}"
  /// The number identifies the round or puzzle, such as Round 3; it is not a count.
  [[nodiscard]] static std::string Puzzle_puzzleNumber(Text puzzleNumber);

  /// "Q1 is about to start!"
  /// "Q1" means question 1.
  [[nodiscard]] static std::string Q1_is_about_to_start();

  /// "Q%{questionNumber} of %{questionCount}"
  /// "Q" means question: question 2 of 12. Use a word if one letter is unclear in your language.
  [[nodiscard]] static std::string Q_questionNumber_of_questionCount(Text questionNumber, Text questionCount);

  /// "Question"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Question();

  /// "%{questionNumber} of %{questionCount}"
  /// The number of a question and how many there are, such as "2 of 12".
  [[nodiscard]] static std::string questionNumber_of_questionCount(Text questionNumber, Text questionCount);

  /// "%{questions} &\n%{players} remain"
  /// %{questions} and %{players} are probably finished phrases such as "3 questions" and "12 players". Do not repeat the nouns, and read it with 0, 1 and 5.
  [[nodiscard]] static std::string questions_n_players_remain(Text questions, Text players);

  /// "%{questionsCount} questions"
  /// Also used inside another text, probably as %{questions}: "%{questions} & %{players} remain". Read them together.
  /// - 0: "%{questionsCount} questions"
  /// - 1: "%{questionsCount} question"
  /// - 2: "%{questionsCount} questions"
  /// - 3 to 5: "%{questionsCount} questions"
  /// - 6 or more: "%{questionsCount} questions"
  [[nodiscard]] static std::string questionsCount_questions(Text questionsCount, std::int64_t count);

  /// "R%{roundNumber} of %{roundCount}"
  /// "R" means round: round 2 of 5. Use a word if one letter is unclear in your language.
  [[nodiscard]] static std::string R_roundNumber_of_roundCount(Text roundNumber, Text roundCount);

  /// "Rank"
  /// Where this appears is not recorded; treat it as a noun: the player's place in the leaderboard.
  [[nodiscard]] static std::string Rank();

  /// "Rate us"
  /// Treat it as a button: it asks for a review or a rating of the app in a store.
  [[nodiscard]] static std::string Rate_us();

  /// "Recent Wins"
  /// Where this appears is not recorded; "Wins" is a noun: games or prizes won.
  [[nodiscard]] static std::string Recent_Wins();

  /// "%{recommendedCount} recommended friends"
  /// How many people the app proposes as friends; they are not friends yet.
  /// - 0: "No recommended friends"
  /// - 1: "%{recommendedCount} recommended friend"
  /// - 2: "%{recommendedCount} recommended friends"
  /// - 3 to 5: "%{recommendedCount} recommended friends"
  /// - 6 or more: "%{recommendedCount} recommended friends"
  [[nodiscard]] static std::string recommendedCount_recommended_friends(Text recommendedCount, std::int64_t count);

  /// "Reconnecting…"
  /// Where this appears is not recorded; it says what the app is doing now.
  [[nodiscard]] static std::string Reconnecting();

  /// "Refer a friend"
  [[nodiscard]] static std::string Refer_a_friend();

  /// "Referral Code"
  [[nodiscard]] static std::string Referral_Code();

  /// "Referral code"
  [[nodiscard]] static std::string Referral_code();

  /// "Referral code confirmed"
  [[nodiscard]] static std::string Referral_code_confirmed();

  /// "Referral code (optional)"
  [[nodiscard]] static std::string Referral_code_optional();

  /// "Referral Codes"
  [[nodiscard]] static std::string Referral_Codes();

  /// "%{referralCount} referrals left"
  /// How many more friends the player may refer.
  /// - 0: "No referrals left"
  /// - 1: "%{referralCount} referral left"
  /// - 2: "%{referralCount} referrals left"
  /// - 3 to 5: "%{referralCount} referrals left"
  /// - 6 or more: "%{referralCount} referrals left"
  [[nodiscard]] static std::string referralCount_referrals_left(Text referralCount, std::int64_t count);

  /// "Refresh contacts"
  [[nodiscard]] static std::string Refresh_contacts();

  /// "Related Badges"
  [[nodiscard]] static std::string Related_Badges();

  /// "Remind me"
  [[nodiscard]] static std::string Remind_me();

  /// "Remove existing photo"
  [[nodiscard]] static std::string Remove_existing_photo();

  /// "Remove friend"
  [[nodiscard]] static std::string Remove_friend();

  /// "Remove request"
  [[nodiscard]] static std::string Remove_request();

  /// "Report"
  /// Where this appears is not recorded; treat it as a button: a verb. It reports a player or a problem. It is not the noun (an account of something).
  [[nodiscard]] static std::string Report();

  /// "Report issue"
  /// Treat it as a button. An issue is a problem.
  [[nodiscard]] static std::string Report_issue();

  /// "Request cannot be completed"
  [[nodiscard]] static std::string Request_cannot_be_completed();

  /// "Request no longer exists."
  [[nodiscard]] static std::string Request_no_longer_exists();

  /// "Requested"
  /// Where this appears is not recorded; treat it as a state: a friend request was sent and is not answered yet. What was requested is not certain, so do not name it if your language can do without.
  [[nodiscard]] static std::string Requested();

  /// "Resend code"
  [[nodiscard]] static std::string Resend_code();

  /// "Resend code in %{timeLeft}"
  /// %{timeLeft} is a duration as the app shows it. Add no unit.
  [[nodiscard]] static std::string Resend_code_in_timeLeft(Text timeLeft);

  /// "Rest of World Privacy Policy"
  /// Where this appears is not recorded; treat it as the title of a document, used alone in its plain form.
  [[nodiscard]] static std::string Rest_of_World_Privacy_Policy();

  /// "Results"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Results();

  /// "Retake"
  /// Where this appears is not recorded; treat it as a button: a verb. It takes a photo again.
  [[nodiscard]] static std::string Retake();

  /// "Retry"
  /// Where this appears is not recorded; treat it as a button: a verb.
  [[nodiscard]] static std::string Retry();

  /// "Reverse camera"
  [[nodiscard]] static std::string Reverse_camera();

  /// "Review Us"
  /// Treat it as a button: it asks for a review or a rating of the app in a store.
  [[nodiscard]] static std::string Review_Us();

  /// "Revived"
  /// Where this appears is not recorded; treat it as a state: a player who was out is back in the game. Use a form for players of any gender.
  [[nodiscard]] static std::string Revived();

  /// "Rewards"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Rewards();

  /// "Rewards Mode"
  /// The game goes on for rewards other than the cash prize.
  [[nodiscard]] static std::string Rewards_Mode();

  /// "Round 1 is about to start!"
  [[nodiscard]] static std::string Round_1_is_about_to_start();

  /// "Round %{roundNumber}"
  /// The number identifies the round or puzzle, such as Round 3; it is not a count.
  [[nodiscard]] static std::string Round_roundNumber(Text roundNumber);

  /// "Round %{roundNumber} Results"
  /// A title: the results of the round with this number.
  [[nodiscard]] static std::string Round_roundNumber_Results(Text roundNumber);

  /// "Round Winners"
  /// A title: the winners of a round.
  [[nodiscard]] static std::string Round_Winners();

  /// "Rules"
  /// Where this appears is not recorded; treat it as a title of a document, used alone. "and <b>Rules</b>" is the form within a sentence.
  [[nodiscard]] static std::string Rules();

  /// "Save your Super Spin"
  /// "Save" means to keep it for another time, not to store or rescue it.
  [[nodiscard]] static std::string Save_your_Super_Spin();

  /// "Say something…"
  [[nodiscard]] static std::string Say_something();

  /// "Schedule"
  /// Where this appears is not recorded; treat it as a noun: the list of coming games.
  [[nodiscard]] static std::string Schedule();

  /// "Science"
  /// Where this appears is not recorded; treat it as the name of a subject that questions are about.
  [[nodiscard]] static std::string Science();

  /// "Search for a friend by username to make your first connection"
  [[nodiscard]] static std::string Search_for_a_friend_by_username_to_make_your_first_connection();

  /// "Search ZK users"
  [[nodiscard]] static std::string Search_ZK_users();

  /// "Search results for \"%{searchTerm}\""
  [[nodiscard]] static std::string Search_results_for_searchTerm(Text searchTerm);

  /// "Searching for %{cost} nearby players to collect an *Eraser* power up"
  /// The count is %{cost}, the number of players needed for an Eraser. At 0 nobody is missing.
  /// - 0: "No more nearby players needed to collect an *Eraser* power up"
  /// - 1: "Searching for %{cost} nearby player to collect an *Eraser* power up"
  /// - 2: "Searching for %{cost} nearby players to collect an *Eraser* power up"
  /// - 3 to 5: "Searching for %{cost} nearby players to collect an *Eraser* power up"
  /// - 6 or more: "Searching for %{cost} nearby players to collect an *Eraser* power up"
  [[nodiscard]] static std::string Searching_for_cost_nearby_players_to_collect_an_Eraser_power_up(Text cost, std::int64_t count);

  /// "Season Ended!"
  [[nodiscard]] static std::string Season_Ended();

  /// "Secure your ZK account by linking one of the below accounts:"
  /// A list of services, such as Facebook, follows below the text.
  [[nodiscard]] static std::string Secure_your_ZK_account_by_linking_one_of_the_below_accounts();

  /// "See all Badges"
  [[nodiscard]] static std::string See_all_Badges();

  /// "Select an avatar"
  /// An avatar is the player's profile picture.
  [[nodiscard]] static std::string Select_an_avatar();

  /// "Send feedback"
  [[nodiscard]] static std::string Send_feedback();

  /// "Send notification"
  [[nodiscard]] static std::string Send_notification();

  /// "Sent"
  /// Where this appears is not recorded; what it describes is not known, so use a form that fits things of any gender and number, for example an impersonal one.
  [[nodiscard]] static std::string Sent();

  /// "Set Reminder"
  [[nodiscard]] static std::string Set_Reminder();

  /// "Settings"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Settings();

  /// "seven"
  /// Where this appears is not recorded; translate the plain word used in counting, not a form that agrees with a noun.
  [[nodiscard]] static std::string seven();

  /// "Share"
  /// Where this appears is not recorded; treat it as a button: a verb.
  [[nodiscard]] static std::string Share();

  /// "Share answers"
  /// Where this appears is not recorded; treat it as a button. "Share" is a verb.
  [[nodiscard]] static std::string Share_answers();

  /// "Share code"
  /// Where this appears is not recorded; treat it as a button: it shares the player's referral code.
  [[nodiscard]] static std::string Share_code();

  /// "Share code: %{username}"
  /// %{username} is the player's name, which is also the referral code. "Share" may be a verb, or the text may mean "the code to share".
  [[nodiscard]] static std::string Share_code_username(Text username);

  /// "Share to Facebook"
  [[nodiscard]] static std::string Share_to_Facebook();

  /// "Share to Twitter"
  [[nodiscard]] static std::string Share_to_Twitter();

  /// "Share with friends"
  [[nodiscard]] static std::string Share_with_friends();

  /// "Share wrong answer"
  /// Where this appears is not recorded; treat it as a button. "Share" is a verb.
  [[nodiscard]] static std::string Share_wrong_answer();

  /// "%{shareCount} shares left"
  /// How many times the player may still share. What is shared is not recorded.
  /// - 0: "No shares left"
  /// - 1: "%{shareCount} share left"
  /// - 2: "%{shareCount} shares left"
  /// - 3 to 5: "%{shareCount} shares left"
  /// - 6 or more: "%{shareCount} shares left"
  [[nodiscard]] static std::string shareCount_shares_left(Text shareCount, std::int64_t count);

  /// "Show details"
  [[nodiscard]] static std::string Show_details();

  /// "Sign in"
  [[nodiscard]] static std::string Sign_in();

  /// "Sign in to play"
  [[nodiscard]] static std::string Sign_in_to_play();

  /// "Silent Kick"
  /// It removes a player without telling anybody.
  [[nodiscard]] static std::string Silent_Kick();

  /// "six"
  /// Where this appears is not recorded; translate the plain word used in counting, not a form that agrees with a noun.
  [[nodiscard]] static std::string six();

  /// "Solved"
  /// Where this appears is not recorded; treat it as a state of a puzzle: someone has solved it. It is not known who has solved it or whether a number follows.
  [[nodiscard]] static std::string Solved();

  /// "Solved Points"
  /// Where this appears is not recorded; treat it as a label: points for solving a puzzle.
  [[nodiscard]] static std::string Solved_Points();

  /// "Solving"
  /// Where this appears is not recorded; treat it as a state: a puzzle is being solved now. The text may describe the puzzle or a player; use a form that fits both.
  [[nodiscard]] static std::string Solving();

  /// "Something went wrong"
  [[nodiscard]] static std::string Something_went_wrong();

  /// "Something went wrong.\nPlease try again."
  [[nodiscard]] static std::string Something_went_wrong_nPlease_try_again();

  /// "Sorry, erasers are not allowed on this question"
  [[nodiscard]] static std::string Sorry_erasers_are_not_allowed_on_this_question();

  /// "Sorry, something went wrong."
  [[nodiscard]] static std::string Sorry_something_went_wrong();

  /// "Sorry, that didn't work."
  [[nodiscard]] static std::string Sorry_that_didn_t_work();

  /// "Sorry, the box is empty."
  /// The player can open the box, and it may contain a gift.
  [[nodiscard]] static std::string Sorry_the_box_is_empty();

  /// "Sorry, we couldn't sign you in right now. Try again in a few?"
  [[nodiscard]] static std::string Sorry_we_couldn_t_sign_you_in_right_now_Try_again_in_a_few();

  /// "Sorry, you don’t have enough coins. You’ll be able to buy more soon."
  [[nodiscard]] static std::string Sorry_you_don_t_have_enough_coins_You_ll_be_able_to_buy_more_soon();

  /// "Sorry, you need a minimum balance of %{minBalance} to cashout. Win some more games!"
  [[nodiscard]] static std::string Sorry_you_need_a_minimum_balance_of_minBalance_to_cashout_Win_some_more_games(Text minBalance);

  /// "Spin normal wheel"
  /// It turns the normal wheel instead of the Super Wheel.
  [[nodiscard]] static std::string Spin_normal_wheel();

  /// "Spin the Super Wheel!"
  [[nodiscard]] static std::string Spin_the_Super_Wheel();

  /// "Spin the wheel!"
  [[nodiscard]] static std::string Spin_the_wheel();

  /// "Spin the wheel for a free letter"
  [[nodiscard]] static std::string Spin_the_wheel_for_a_free_letter();

  /// "Sports"
  /// Where this appears is not recorded; treat it as the name of a subject that questions are about.
  [[nodiscard]] static std::string Sports();

  /// "Start"
  /// Where this appears is not recorded; treat it as a button: a verb. Use a word that fits whatever it starts.
  [[nodiscard]] static std::string Start();

  /// "Start the Next Game"
  [[nodiscard]] static std::string Start_the_Next_Game();

  /// "Start the Next Round"
  [[nodiscard]] static std::string Start_the_Next_Round();

  /// "Starting shortly"
  [[nodiscard]] static std::string Starting_shortly();

  /// "Starting soon"
  [[nodiscard]] static std::string Starting_soon();

  /// "Stay in the game with an Extra Life"
  [[nodiscard]] static std::string Stay_in_the_game_with_an_Extra_Life();

  /// "Still have questions?"
  [[nodiscard]] static std::string Still_have_questions();

  /// "Strike Out"
  /// Where this appears is not recorded. A player is out because of too many strikes (mistakes).
  [[nodiscard]] static std::string Strike_Out();

  /// "%{strikeCount} strikes left"
  /// The number of mistakes that the player may still make. To have none left is bad news: no more mistakes are allowed.
  /// - 0: "No strikes left"
  /// - 1: "%{strikeCount} strike left"
  /// - 2: "%{strikeCount} strikes left"
  /// - 3 to 5: "%{strikeCount} strikes left"
  /// - 6 or more: "%{strikeCount} strikes left"
  [[nodiscard]] static std::string strikeCount_strikes_left(Text strikeCount, std::int64_t count);

  /// "%{strikeCount} strikes left this round!"
  /// The number of mistakes that the player may still make. To have none left is bad news: no more mistakes are allowed.
  /// - 0: "No strikes left this round!"
  /// - 1: "%{strikeCount} strike left this round!"
  /// - 2: "%{strikeCount} strikes left this round!"
  /// - 3 to 5: "%{strikeCount} strikes left this round!"
  /// - 6 or more: "%{strikeCount} strikes left this round!"
  [[nodiscard]] static std::string strikeCount_strikes_left_this_round(Text strikeCount, std::int64_t count);

  /// "Submit"
  /// Where this appears is not recorded; treat it as a button: a verb. It may send a question or a form; use a word that fits both.
  [[nodiscard]] static std::string Submit();

  /// "Submit another"
  [[nodiscard]] static std::string Submit_another();

  /// "Submit trivia"
  [[nodiscard]] static std::string Submit_trivia();

  /// "Submitted"
  /// Where this appears is not recorded; what it describes is not known, so use a form that fits things of any gender and number, for example an impersonal one.
  [[nodiscard]] static std::string Submitted();

  /// "Subscribe"
  /// Where this appears is not recorded; treat it as a button: a verb.
  [[nodiscard]] static std::string Subscribe();

  /// "Subscribe to games that you are interested in so you don’t miss out when we go live!"
  [[nodiscard]] static std::string Subscribe_to_games_that_you_are_interested_in_so_you_don_t_miss_out_when_we_go_live();

  /// "Subscribed"
  /// Where this appears is not recorded; treat it as a state: the player gets notices of a game. "Subscribe" and "Unsubscribe" change it.
  [[nodiscard]] static std::string Subscribed();

  /// "Success! You bought %{extraLifeCount} Extra Lives to help you win."
  /// At 0 nothing was bought, so do not speak of success.
  /// - 0: "You bought no Extra Lives this time."
  /// - 1: "Success! You bought %{extraLifeCount} Extra Life to help you win."
  /// - 2: "Success! You bought %{extraLifeCount} Extra Lives to help you win."
  /// - 3 to 5: "Success! You bought %{extraLifeCount} Extra Lives to help you win."
  /// - 6 or more: "Success! You bought %{extraLifeCount} Extra Lives to help you win."
  [[nodiscard]] static std::string Success_You_bought_extraLifeCount_Extra_Lives_to_help_you_win(Text extraLifeCount, std::int64_t count);

  /// "Success! You have %{count} %{name}."
  /// %{count} is a number and %{name} the name of a thing, in a form that is not recorded. Word it so that neither needs an ending, for example with a label.
  [[nodiscard]] static std::string Success_You_have_count_name(Text count, Text name);

  /// "Suggested friends"
  [[nodiscard]] static std::string Suggested_friends();

  /// "%{suggestedCount} suggested friends"
  /// How many people the app proposes as friends; they are not friends yet.
  /// - 0: "No suggested friends"
  /// - 1: "%{suggestedCount} suggested friend"
  /// - 2: "%{suggestedCount} suggested friends"
  /// - 3 to 5: "%{suggestedCount} suggested friends"
  /// - 6 or more: "%{suggestedCount} suggested friends"
  [[nodiscard]] static std::string suggestedCount_suggested_friends(Text suggestedCount, std::int64_t count);

  /// "Super Spins"
  /// Where this appears is not recorded; treat it as a title or label without a number.
  [[nodiscard]] static std::string Super_Spins();

  /// "Super Spins"
  /// The app knows a count, but the text does not show it. The number probably appears next to it, so use the noun form that goes with that number, or one label for all.
  /// - 0: "Super Spins"
  /// - 1: "Super Spin"
  /// - 2: "Super Spins"
  /// - 3 to 5: "Super Spins"
  /// - 6 or more: "Super Spins"
  [[nodiscard]] static std::string Super_Spins(std::int64_t count);

  /// "Super Wheel"
  [[nodiscard]] static std::string Super_Wheel();

  /// "Swipe left to reveal comments"
  [[nodiscard]] static std::string Swipe_left_to_reveal_comments();

  /// "Swipe right to play mini games"
  [[nodiscard]] static std::string Swipe_right_to_play_mini_games();

  /// "Take New Photo"
  [[nodiscard]] static std::string Take_New_Photo();

  /// "Take Photo"
  [[nodiscard]] static std::string Take_Photo();

  /// "Tap here to buy an *Extra Life* to help you win!"
  [[nodiscard]] static std::string Tap_here_to_buy_an_Extra_Life_to_help_you_win();

  /// "Tap here to use an *Eraser* during a question"
  [[nodiscard]] static std::string Tap_here_to_use_an_Eraser_during_a_question();

  /// "Tap the answer you think is\ncorrect in under 10 seconds."
  [[nodiscard]] static std::string Tap_the_answer_you_think_is_n_correct_in_under_10_seconds();

  /// "Tap to enable *Nearby* to collect an Eraser power up"
  [[nodiscard]] static std::string Tap_to_enable_Nearby_to_collect_an_Eraser_power_up();

  /// "Tap to open"
  [[nodiscard]] static std::string Tap_to_open();

  /// "Tap to read"
  [[nodiscard]] static std::string Tap_to_read();

  /// "Tech"
  /// Where this appears is not recorded; treat it as the name of a subject that questions are about.
  [[nodiscard]] static std::string Tech();

  /// "Tell us about your \n experience"
  [[nodiscard]] static std::string Tell_us_about_your_n_experience();

  /// "Terms"
  /// Where this appears is not recorded; treat it as a title of a document: terms of use. It is not about words or periods of time.
  [[nodiscard]] static std::string Terms();

  /// "Terms of Service"
  /// Where this appears is not recorded; treat it as the title of a document, used alone in its plain form.
  [[nodiscard]] static std::string Terms_of_Service();

  /// "Terms of Use"
  /// Where this appears is not recorded; treat it as the title of a document, used alone in its plain form.
  [[nodiscard]] static std::string Terms_of_Use();

  /// "Thank you %{username}, your request to donate %{amount} to %{charityName} has been submitted."
  /// The player asks ZK to give the winnings to a charity. The player does not ask for a donation.
  [[nodiscard]] static std::string Thank_you_username_your_request_to_donate_amount_to_charityName_has_been_submitted(Text username, Text amount, Text charityName);

  /// "Thanks for being patient! \n Your game will resume shortly."
  [[nodiscard]] static std::string Thanks_for_being_patient_n_Your_game_will_resume_shortly();

  /// "That is not a valid email address."
  [[nodiscard]] static std::string That_is_not_a_valid_email_address();

  /// "That's your best so far."
  [[nodiscard]] static std::string That_s_your_best_so_far();

  /// "That worked!"
  [[nodiscard]] static std::string That_worked();

  /// "The email you provided is invalid"
  [[nodiscard]] static std::string The_email_you_provided_is_invalid();

  /// "The next question has already started"
  [[nodiscard]] static std::string The_next_question_has_already_started();

  /// "The show will\nstart soon"
  [[nodiscard]] static std::string The_show_will_nstart_soon();

  /// "The VIP Game is full"
  [[nodiscard]] static std::string The_VIP_Game_is_full();

  /// "The VIP Prize is cancelled"
  [[nodiscard]] static std::string The_VIP_Prize_is_cancelled();

  /// "There was a problem. Please try again soon."
  [[nodiscard]] static std::string There_was_a_problem_Please_try_again_soon();

  /// "There was an issue uploading your address book. Please try again soon."
  [[nodiscard]] static std::string There_was_an_issue_uploading_your_address_book_Please_try_again_soon();

  /// "Think of a subject that interests you, then think of one fact or specific thing you like. Now Google it and dig into the results until you have a fascinating nugget. Finally, work it into an intriguing question, with proper grammar and spelling."
  [[nodiscard]] static std::string Think_of_a_subject_that_interests_you_then_think_of_one_fact_or_specific_thing_you_like_Now_Google_i();

  /// "This account is not linked to this phone number. Continue to create a new account?"
  [[nodiscard]] static std::string This_account_is_not_linked_to_this_phone_number_Continue_to_create_a_new_account();

  /// "This account is not linked to this phone number. Continue to sign in?"
  [[nodiscard]] static std::string This_account_is_not_linked_to_this_phone_number_Continue_to_sign_in();

  /// "This account is under review for a violation of the Terms of Use and/or Rules. Payment is disabled until review is complete."
  [[nodiscard]] static std::string This_account_is_under_review_for_a_violation_of_the_Terms_of_Use_and_or_Rules_Payment_is_disabled_un();

  /// "This broadcast has ended"
  [[nodiscard]] static std::string This_broadcast_has_ended();

  /// "This email is already associated with another ZK Trivia account. Using the same email address on different accounts is against the Terms of Use."
  [[nodiscard]] static std::string This_email_is_already_associated_with_another_ZK_Trivia_account_Using_the_same_email_address_on_diff();

  /// "*This feature is not available in your area.*"
  [[nodiscard]] static std::string This_feature_is_not_available_in_your_area();

  /// "This party is at capacity. Try again in a few?"
  /// A party is a group of players who play together, not a celebration. "In a few" means in a few minutes.
  [[nodiscard]] static std::string This_party_is_at_capacity_Try_again_in_a_few();

  /// "This Season has ended. Check back soon for details on the next season."
  [[nodiscard]] static std::string This_Season_has_ended_Check_back_soon_for_details_on_the_next_season();

  /// "This version of ZK Trivia is no longer supported. To continue, please update the app in the App Store."
  [[nodiscard]] static std::string This_version_of_ZK_Trivia_is_no_longer_supported_To_continue_please_update_the_app_in_the_App_Store();

  /// "This version of ZK Trivia is outdated. Don't miss out on the latest features. Please update before continuing."
  [[nodiscard]] static std::string This_version_of_ZK_Trivia_is_outdated_Don_t_miss_out_on_the_latest_features_Please_update_before_con();

  /// "This week"
  /// Where this appears is not recorded; treat it as a period for a leaderboard.
  [[nodiscard]] static std::string This_week();

  /// "three"
  /// Where this appears is not recorded; translate the plain word used in counting, not a form that agrees with a noun.
  [[nodiscard]] static std::string three();

  /// "Time"
  /// Where this appears is not recorded; treat it as a label for a time or a duration.
  [[nodiscard]] static std::string Time();

  /// "Time Bonus"
  /// A noun: extra points for time, or extra time; which one is not recorded.
  [[nodiscard]] static std::string Time_Bonus();

  /// "Time's up!"
  [[nodiscard]] static std::string Time_s_up();

  /// "Tip"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Tip();

  /// "Tips"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Tips();

  /// "To be reminded when ZK goes live please enable notifications in iOS settings."
  [[nodiscard]] static std::string To_be_reminded_when_ZK_goes_live_please_enable_notifications_in_iOS_settings();

  /// "To continue you must secure your ZK account by linking one of the below accounts"
  /// A list of services, such as Facebook, follows below the text.
  [[nodiscard]] static std::string To_continue_you_must_secure_your_ZK_account_by_linking_one_of_the_below_accounts();

  /// "Today"
  /// Where this appears is not recorded; treat it as a date in a schedule or list.
  [[nodiscard]] static std::string Today();

  /// "Today’s Prize"
  [[nodiscard]] static std::string Today_s_Prize();

  /// "Tomorrow"
  /// Where this appears is not recorded; treat it as a date in a schedule or list.
  [[nodiscard]] static std::string Tomorrow();

  /// "Tonight’s Jackpot"
  [[nodiscard]] static std::string Tonight_s_Jackpot();

  /// "Too many requests"
  [[nodiscard]] static std::string Too_many_requests();

  /// "Try Again"
  [[nodiscard]] static std::string Try_Again();

  /// "Try another photo"
  /// An instruction or a button: choose a different photo.
  [[nodiscard]] static std::string Try_another_photo();

  /// "Turn on *Bluetooth* to collect an Eraser power up"
  [[nodiscard]] static std::string Turn_on_Bluetooth_to_collect_an_Eraser_power_up();

  /// "Turn On Camera in Settings"
  [[nodiscard]] static std::string Turn_On_Camera_in_Settings();

  /// "Turn on notifications"
  [[nodiscard]] static std::string Turn_on_notifications();

  /// "TV"
  /// Where this appears is not recorded; treat it as the name of a subject that questions are about.
  [[nodiscard]] static std::string TV();

  /// "two"
  /// Where this appears is not recorded; translate the plain word used in counting, not a form that agrees with a noun.
  [[nodiscard]] static std::string two();

  /// "Type your question here…"
  [[nodiscard]] static std::string Type_your_question_here();

  /// "Unable to Cashout"
  [[nodiscard]] static std::string Unable_to_Cashout();

  /// "Unable to load image"
  [[nodiscard]] static std::string Unable_to_load_image();

  /// "Unable to load your balance. Please try again soon."
  [[nodiscard]] static std::string Unable_to_load_your_balance_Please_try_again_soon();

  /// "Unable to load your preferences"
  [[nodiscard]] static std::string Unable_to_load_your_preferences();

  /// "Under Review"
  /// A state: ZK checks something, such as a balance. What it checks is not recorded. It is not about reviews in a store.
  [[nodiscard]] static std::string Under_Review();

  /// "Unknown period"
  /// Where this appears is not recorded. A period is a span of time, such as a week, not the punctuation mark.
  [[nodiscard]] static std::string Unknown_period();

  /// "Unlock"
  /// Where this appears is not recorded; treat it as a button: a verb. Use a word that fits a game, a level and a Badge.
  [[nodiscard]] static std::string Unlock();

  /// "Unlock badges by getting\nquestions right in\ndifferent topics."
  [[nodiscard]] static std::string Unlock_badges_by_getting_nquestions_right_in_ndifferent_topics();

  /// "Unlock Next Game"
  /// An Unlock opens a game. In "Unlock Next Game" it is a verb, in "Use a Game Unlock" a noun.
  [[nodiscard]] static std::string Unlock_Next_Game();

  /// "Unlocks"
  /// The app knows a count, but the text does not show it. The number probably appears next to it, so use the noun form that goes with that number, or one label for all. An Unlock is an item that the player uses up to open a game or a level.
  /// - 0: "Unlocks"
  /// - 1: "Unlock"
  /// - 2: "Unlocks"
  /// - 3 to 5: "Unlocks"
  /// - 6 or more: "Unlocks"
  [[nodiscard]] static std::string Unlocks(std::int64_t count);

  /// "%{unlocks} Unlocks left"
  /// %{unlocks} is a number, and there are no plural forms. The text must be right for 1 and for 5.
  [[nodiscard]] static std::string unlocks_Unlocks_left(Text unlocks);

  /// "Unsubscribe"
  /// Where this appears is not recorded; treat it as a button: a verb.
  [[nodiscard]] static std::string Unsubscribe();

  /// "Update Available"
  [[nodiscard]] static std::string Update_Available();

  /// "Update in App Store"
  [[nodiscard]] static std::string Update_in_App_Store();

  /// "Update in Play Store"
  [[nodiscard]] static std::string Update_in_Play_Store();

  /// "Update Location Settings to compete for the VIP Prize."
  [[nodiscard]] static std::string Update_Location_Settings_to_compete_for_the_VIP_Prize();

  /// "Update required."
  [[nodiscard]] static std::string Update_required();

  /// "Update Settings"
  [[nodiscard]] static std::string Update_Settings();

  /// "Upgrade to Super Spin"
  [[nodiscard]] static std::string Upgrade_to_Super_Spin();

  /// "Upgrade to Super Wheel"
  [[nodiscard]] static std::string Upgrade_to_Super_Wheel();

  /// "Uploading"
  /// Where this appears is not recorded; it says what the app is doing now. What it uploads is not known.
  [[nodiscard]] static std::string Uploading();

  /// "Use a Game Unlock"
  /// An Unlock opens a game. In "Unlock Next Game" it is a verb, in "Use a Game Unlock" a noun.
  [[nodiscard]] static std::string Use_a_Game_Unlock();

  /// "Use a Super Spin"
  [[nodiscard]] static std::string Use_a_Super_Spin();

  /// "Use a Super Spin to get more letters and special Power Ups in ZK Words."
  [[nodiscard]] static std::string Use_a_Super_Spin_to_get_more_letters_and_special_Power_Ups_in_ZK_Words();

  /// "Use an Eraser to eliminate one wrong answer during a question."
  [[nodiscard]] static std::string Use_an_Eraser_to_eliminate_one_wrong_answer_during_a_question();

  /// "Use my code: "
  /// Keep the space at the end: the player's referral code follows. The player says this to friends.
  [[nodiscard]] static std::string Use_my_code();

  /// "Use my code \"%{code}\" to sign up %{url}"
  /// The player says this to friends. %{code} is the referral code, %{url} a web address at the end of the text.
  [[nodiscard]] static std::string Use_my_code_code_to_sign_up_url(Text code, Text url);

  /// "%{user} was kicked out."
  /// The placeholder is the name of a player who was removed; the gender is unknown.
  [[nodiscard]] static std::string user_was_kicked_out(Text user);

  /// "%{userCount} others"
  /// Who the others are is not recorded. The text may follow names ("Anna and 3 others") or be alone; use a form that fits both.
  /// - 0: "%{userCount} others"
  /// - 1: "%{userCount} other"
  /// - 2: "%{userCount} others"
  /// - 3 to 5: "%{userCount} others"
  /// - 6 or more: "%{userCount} others"
  [[nodiscard]] static std::string userCount_others(Text userCount, std::int64_t count);

  /// "%{userCount} others still in"
  /// Others are other players. "Still in" means not eliminated: at 0 it means that no others are left, not that none have come yet.
  /// - 0: "No others still in"
  /// - 1: "%{userCount} other still in"
  /// - 2: "%{userCount} others still in"
  /// - 3 to 5: "%{userCount} others still in"
  /// - 6 or more: "%{userCount} others still in"
  [[nodiscard]] static std::string userCount_others_still_in(Text userCount, std::int64_t count);

  /// "%{userCount} people"
  /// Which people are counted is not recorded; use a neutral word.
  /// - 0: "%{userCount} people"
  /// - 1: "%{userCount} person"
  /// - 2: "%{userCount} people"
  /// - 3 to 5: "%{userCount} people"
  /// - 6 or more: "%{userCount} people"
  [[nodiscard]] static std::string userCount_people(Text userCount, std::int64_t count);

  /// "%{userCount} VIPs"
  /// VIPs are probably the players of a VIP game. The text may appear in a list or alone.
  /// - 0: "%{userCount} VIPs"
  /// - 1: "%{userCount} VIP"
  /// - 2: "%{userCount} VIPs"
  /// - 3 to 5: "%{userCount} VIPs"
  /// - 6 or more: "%{userCount} VIPs"
  [[nodiscard]] static std::string userCount_VIPs(Text userCount, std::int64_t count);

  /// "%{userCount} VIPs still in"
  /// "Still in" means not eliminated: at 0 it means that none are left, not that none have come yet.
  /// - 0: "No VIPs still in"
  /// - 1: "%{userCount} VIP still in"
  /// - 2: "%{userCount} VIPs still in"
  /// - 3 to 5: "%{userCount} VIPs still in"
  /// - 6 or more: "%{userCount} VIPs still in"
  [[nodiscard]] static std::string userCount_VIPs_still_in(Text userCount, std::int64_t count);

  /// "Username"
  /// Where this appears is not recorded; treat it as a title or label. It is a noun.
  [[nodiscard]] static std::string Username();

  /// "Username already taken!"
  [[nodiscard]] static std::string Username_already_taken();

  /// "%{username} and %{username2} were eliminated."
  /// Both placeholders are names of players; their genders are unknown.
  [[nodiscard]] static std::string username_and_username2_were_eliminated(Text username, Text username2);

  /// "Username available!"
  [[nodiscard]] static std::string Username_available();

  /// "%{username} joined the game."
  /// %{username} is the name of a player; the gender is unknown.
  [[nodiscard]] static std::string username_joined_the_game(Text username);

  /// "Username unavailable!"
  [[nodiscard]] static std::string Username_unavailable();

  /// "%{username} used an Extra Life."
  /// %{username} is the name of a player; the gender is unknown.
  [[nodiscard]] static std::string username_used_an_Extra_Life(Text username);

  /// "%{username}, %{username2}, and %{friendCount} other friends were eliminated."
  /// Two names are always shown; the count is the number of further friends. At 0 the text names only the two.
  /// - 0: "%{username} and %{username2} were eliminated."
  /// - 1: "%{username}, %{username2}, and %{friendCount} other friend were eliminated."
  /// - 2: "%{username}, %{username2}, and %{friendCount} other friends were eliminated."
  /// - 3 to 5: "%{username}, %{username2}, and %{friendCount} other friends were eliminated."
  /// - 6 or more: "%{username}, %{username2}, and %{friendCount} other friends were eliminated."
  [[nodiscard]] static std::string username_username2_and_friendCount_other_friends_were_eliminated(Text username, Text username2, Text friendCount, std::int64_t count);

  /// "%{username} was eliminated."
  /// %{username} is the name of a player; the gender is unknown.
  [[nodiscard]] static std::string username_was_eliminated(Text username);

  /// "%{username} was kicked successfully"
  /// The placeholder is the name of a player who was removed; the gender is unknown.
  [[nodiscard]] static std::string username_was_kicked_successfully(Text username);

  /// "%{username} was silently kicked"
  /// The placeholder is the name of a player who was removed; the gender is unknown.
  [[nodiscard]] static std::string username_was_silently_kicked(Text username);

  /// "%{username} won the game!"
  /// %{username} is the name of a player; the gender is unknown.
  [[nodiscard]] static std::string username_won_the_game(Text username);

  /// "Usernames must be 3-15 characters long and can contain only letters, numbers, - , or _ . Inappropriate language in usernames is a violation of the Terms of Use. Your username will also be your referral code."
  [[nodiscard]] static std::string Usernames_must_be_3_15_characters_long_and_can_contain_only_letters_numbers_or_Inappropriate_languag();

  /// "Using Extra Life in %{seconds}"
  /// %{seconds} is a time; the text has no unit, so the value probably has one. Add none.
  [[nodiscard]] static std::string Using_Extra_Life_in_seconds(Text seconds);

  /// "Valid referral code!"
  [[nodiscard]] static std::string Valid_referral_code();

  /// "Verify code"
  /// The code is one that ZK sent to a phone, not a referral code.
  [[nodiscard]] static std::string Verify_code();

  /// "View all"
  [[nodiscard]] static std::string View_all();

  /// "View more"
  [[nodiscard]] static std::string View_more();

  /// "VIP Prize"
  [[nodiscard]] static std::string VIP_Prize();

  /// "VIP Prize Rules"
  /// Where this appears is not recorded; treat it as the title of a document, used alone in its plain form.
  [[nodiscard]] static std::string VIP_Prize_Rules();

  /// "%{votes} votes"
  /// %{votes} is a number, and there are no plural forms. The text must be right for 1 and for 5.
  [[nodiscard]] static std::string votes_votes(Text votes);

  /// "Warm up & win coins"
  [[nodiscard]] static std::string Warm_up_win_coins();

  /// "Watch"
  /// Where this appears is not recorded; treat it as a button: a verb.
  [[nodiscard]] static std::string Watch();

  /// "Watch as a guest"
  [[nodiscard]] static std::string Watch_as_a_guest();

  /// "Watching Only"
  /// A state: the player can watch but not play.
  [[nodiscard]] static std::string Watching_Only();

  /// "Watching only"
  /// A state: the player can watch but not play.
  [[nodiscard]] static std::string Watching_only();

  /// "We are phasing out phone number logins. Please login with your linked account below."
  [[nodiscard]] static std::string We_are_phasing_out_phone_number_logins_Please_login_with_your_linked_account_below();

  /// "We are reviewing your information and will contact you if additional information is necessary."
  [[nodiscard]] static std::string We_are_reviewing_your_information_and_will_contact_you_if_additional_information_is_necessary();

  /// "We are still processing your Extra Lives. Please check back later."
  /// The count is the number of Extra Lives bought; the text does not show it. 0 is not expected.
  /// - 0: "We are still processing your Extra Lives. Please check back later."
  /// - 1: "We are still processing your Extra Life. Please check back later."
  /// - 2: "We are still processing your Extra Lives. Please check back later."
  /// - 3 to 5: "We are still processing your Extra Lives. Please check back later."
  /// - 6 or more: "We are still processing your Extra Lives. Please check back later."
  [[nodiscard]] static std::string We_are_still_processing_your_Extra_Lives_Please_check_back_later(std::int64_t count);

  /// "We are still processing your payment. Please check back later."
  [[nodiscard]] static std::string We_are_still_processing_your_payment_Please_check_back_later();

  /// "We have updated our Privacy Policy"
  [[nodiscard]] static std::string We_have_updated_our_Privacy_Policy();

  /// "We'll send a push notification. Don't be late or you'll watch only."
  [[nodiscard]] static std::string We_ll_send_a_push_notification_Don_t_be_late_or_you_ll_watch_only();

  /// "We're having trouble connecting. Try again in a few?"
  [[nodiscard]] static std::string We_re_having_trouble_connecting_Try_again_in_a_few();

  /// "We’re sorry!"
  [[nodiscard]] static std::string We_re_sorry();

  /// "We review all submissions but don't make any promises to include them in games. We'll let you know if we use yours."
  [[nodiscard]] static std::string We_review_all_submissions_but_don_t_make_any_promises_to_include_them_in_games_We_ll_let_you_know_if();

  /// "We started the game without you. You can watch and chat only. Join earlier next time to play for the prize."
  [[nodiscard]] static std::string We_started_the_game_without_you_You_can_watch_and_chat_only_Join_earlier_next_time_to_play_for_the_p();

  /// "We use Location to show you nearby players and allow you to add them as friends on ZK"
  [[nodiscard]] static std::string We_use_Location_to_show_you_nearby_players_and_allow_you_to_add_them_as_friends_on_ZK();

  /// "We've updated our Privacy Policy."
  [[nodiscard]] static std::string We_ve_updated_our_Privacy_Policy();

  /// "We were unable to delete your avatar. Please try again later."
  [[nodiscard]] static std::string We_were_unable_to_delete_your_avatar_Please_try_again_later();

  /// "We were unable to process your purchase in time. Your Extra Life will be available in a future game"
  [[nodiscard]] static std::string We_were_unable_to_process_your_purchase_in_time_Your_Extra_Life_will_be_available_in_a_future_game();

  /// "We were unable to update your avatar. Please try again later."
  [[nodiscard]] static std::string We_were_unable_to_update_your_avatar_Please_try_again_later();

  /// "We were unable to update your referral code. Please try again later."
  [[nodiscard]] static std::string We_were_unable_to_update_your_referral_code_Please_try_again_later();

  /// "We were unable to update your username. Please try again later."
  [[nodiscard]] static std::string We_were_unable_to_update_your_username_Please_try_again_later();

  /// "Week"
  /// Where this appears is not recorded; it may stand alone or follow a number that the app shows. There are no plural forms: use the singular for 1 and the plural for all other numbers.
  [[nodiscard]] static std::string Week();

  /// "Weekly rank"
  /// The player's place in the leaderboard of the week.
  [[nodiscard]] static std::string Weekly_rank();

  /// "Weeks"
  /// Where this appears is not recorded; it may stand alone or follow a number that the app shows. There are no plural forms: use the singular for 1 and the plural for all other numbers.
  [[nodiscard]] static std::string Weeks();

  /// "Welcome back."
  [[nodiscard]] static std::string Welcome_back();

  /// "*Welcome back.* You've been eliminated but can still watch."
  /// "Can still watch" is an offer, not an order.
  [[nodiscard]] static std::string Welcome_back_You_ve_been_eliminated_but_can_still_watch();

  /// "Win *%{amount}* now"
  /// %{amount} is an amount of money with its currency.
  [[nodiscard]] static std::string Win_amount_now(Text amount);

  /// "Winner"
  /// Where this appears is not recorded; treat it as a title or label. Use a form for players of any gender if your language has one.
  [[nodiscard]] static std::string Winner();

  /// "Winner Take All"
  /// The name of a way to play: one player wins the whole prize.
  [[nodiscard]] static std::string Winner_Take_All();

  /// "%{winnerCount} Winners!"
  /// How many players have won. At 0 nobody has won: do not cheer.
  /// - 0: "No Winners"
  /// - 1: "%{winnerCount} Winner!"
  /// - 2: "%{winnerCount} Winners!"
  /// - 3 to 5: "%{winnerCount} Winners!"
  /// - 6 or more: "%{winnerCount} Winners!"
  [[nodiscard]] static std::string winnerCount_Winners(Text winnerCount, std::int64_t count);

  /// "Winners"
  /// Where this appears is not recorded; treat it as a title or label. Use a form for players of any gender if your language has one.
  [[nodiscard]] static std::string Winners();

  /// "Wins"
  /// Where this appears is not recorded; treat it as a noun: how many games were won, or the list of them. It is not a verb.
  [[nodiscard]] static std::string Wins();

  /// "Withdrawn"
  /// Where this appears is not recorded; treat it as a state of money: it has been paid out to the player.
  [[nodiscard]] static std::string Withdrawn();

  /// "Word Search"
  [[nodiscard]] static std::string Word_Search();

  /// "%{words} words found"
  /// %{words} is a number, and there are no plural forms. The text must be right for 1 and for 5.
  [[nodiscard]] static std::string words_words_found(Text words);

  /// "Wrong answer? Continue playing with an Extra Life."
  [[nodiscard]] static std::string Wrong_answer_Continue_playing_with_an_Extra_Life();

  /// "Wrong answer? Continue playing with an Extra Life. Extra Lives are applied automatically and once per game."
  [[nodiscard]] static std::string Wrong_answer_Continue_playing_with_an_Extra_Life_Extra_Lives_are_applied_automatically_and_once_per_();

  /// "Wrong answer? Keep playing with an Extra Life. Get one every time a new ZK user signs up with your referral code and plays their first game. They can be used once per game, except on the last question."
  [[nodiscard]] static std::string Wrong_answer_Keep_playing_with_an_Extra_Life_Get_one_every_time_a_new_ZK_user_signs_up_with_your_ref();

  /// "Yay! You played %{days} days in a row!"
  /// The count is the number of days. For 1, omit "in a row". At 0, do not cheer.
  /// - 0: "You haven't played any days in a row yet."
  /// - 1: "Yay! You played %{days} day!"
  /// - 2: "Yay! You played %{days} days in a row!"
  /// - 3 to 5: "Yay! You played %{days} days in a row!"
  /// - 6 or more: "Yay! You played %{days} days in a row!"
  [[nodiscard]] static std::string Yay_You_played_days_days_in_a_row(Text days, std::int64_t count);

  /// "Year"
  /// Where this appears is not recorded; it may stand alone or follow a number that the app shows. There are no plural forms: use the singular for 1 and the plural for all other numbers.
  [[nodiscard]] static std::string Year();

  /// "Years"
  /// Where this appears is not recorded; it may stand alone or follow a number that the app shows. There are no plural forms: use the singular for 1 and the plural for all other numbers.
  [[nodiscard]] static std::string Years();

  /// "Yep!"
  /// An informal answer, probably to "Love ZK?". Yep is the yes, Nah is the no.
  [[nodiscard]] static std::string Yep();

  /// "Yes"
  /// Where this appears is not recorded; it answers a question or closes a message.
  [[nodiscard]] static std::string Yes();

  /// "You and your friend will earn an Extra Life"
  [[nodiscard]] static std::string You_and_your_friend_will_earn_an_Extra_Life();

  /// "You are already friends."
  [[nodiscard]] static std::string You_are_already_friends();

  /// "You are unauthorized to cashout"
  [[nodiscard]] static std::string You_are_unauthorized_to_cashout();

  /// "You can't win the cash prize, but get %{pointsToGo} more points to earn an Extra Life!"
  /// The count is %{pointsToGo}, the points still needed for an Extra Life. At 0 no more are needed.
  /// - 0: "You can't win the cash prize, but you have enough points to earn an Extra Life!"
  /// - 1: "You can't win the cash prize, but get %{pointsToGo} more point to earn an Extra Life!"
  /// - 2: "You can't win the cash prize, but get %{pointsToGo} more points to earn an Extra Life!"
  /// - 3 to 5: "You can't win the cash prize, but get %{pointsToGo} more points to earn an Extra Life!"
  /// - 6 or more: "You can't win the cash prize, but get %{pointsToGo} more points to earn an Extra Life!"
  [[nodiscard]] static std::string You_can_t_win_the_cash_prize_but_get_pointsToGo_more_points_to_earn_an_Extra_Life(Text pointsToGo, std::int64_t count);

  /// "You can use your purchased ticket for the next game."
  /// What kind of ticket this is, is not recorded; no other text mentions one.
  [[nodiscard]] static std::string You_can_use_your_purchased_ticket_for_the_next_game();

  /// "You didn’t enter a number yet"
  /// Which number is not recorded; a phone number is likely.
  [[nodiscard]] static std::string You_didn_t_enter_a_number_yet();

  /// "You do not meet the minimum balance to cashout. Win some more games!"
  [[nodiscard]] static std::string You_do_not_meet_the_minimum_balance_to_cashout_Win_some_more_games();

  /// "You Earned"
  /// What was earned probably appears below or after it: points, coins or an item. Use a form that fits all of them.
  [[nodiscard]] static std::string You_Earned();

  /// "You earned an Eraser!"
  [[nodiscard]] static std::string You_earned_an_Eraser();

  /// "You earned an Eraser by playing with %{player1}!"
  /// The placeholders are names of players; their genders are unknown.
  [[nodiscard]] static std::string You_earned_an_Eraser_by_playing_with_player1(Text player1);

  /// "You earned an Eraser by playing with %{player1} and %{player2}!"
  /// The placeholders are names of players; their genders are unknown.
  [[nodiscard]] static std::string You_earned_an_Eraser_by_playing_with_player1_and_player2(Text player1, Text player2);

  /// "You earned an Eraser by playing with %{player1}, %{player2}, and %{player3}!"
  /// The placeholders are names of players; their genders are unknown.
  [[nodiscard]] static std::string You_earned_an_Eraser_by_playing_with_player1_player2_and_player3(Text player1, Text player2, Text player3);

  /// "You earned an Extra Life!"
  [[nodiscard]] static std::string You_earned_an_Extra_Life();

  /// "You found an Extra Life!"
  /// Where the player found it is not recorded.
  [[nodiscard]] static std::string You_found_an_Extra_Life();

  /// "You got a box!"
  /// The player can open the box, and it may contain a gift.
  [[nodiscard]] static std::string You_got_a_box();

  /// "You got a %{product}!"
  /// The placeholder is the name of a thing or an offer. Its gender is unknown, so avoid articles and endings.
  [[nodiscard]] static std::string You_got_a_product(Text product);

  /// "You got an Extra Life!"
  [[nodiscard]] static std::string You_got_an_Extra_Life();

  /// "You got an Extra Life from ZK! ❤️"
  [[nodiscard]] static std::string You_got_an_Extra_Life_from_ZK_️();

  /// "You got %{coinCount} coins!"
  /// At 0 the player got nothing: say so plainly and do not cheer.
  /// - 0: "No coins this time"
  /// - 1: "You got %{coinCount} coin!"
  /// - 2: "You got %{coinCount} coins!"
  /// - 3 to 5: "You got %{coinCount} coins!"
  /// - 6 or more: "You got %{coinCount} coins!"
  [[nodiscard]] static std::string You_got_coinCount_coins(Text coinCount, std::int64_t count);

  /// "You got %{dollarCount} dollars!"
  /// At 0 the player got nothing: say so plainly and do not cheer.
  /// - 0: "No dollars this time"
  /// - 1: "You got %{dollarCount} dollar!"
  /// - 2: "You got %{dollarCount} dollars!"
  /// - 3 to 5: "You got %{dollarCount} dollars!"
  /// - 6 or more: "You got %{dollarCount} dollars!"
  [[nodiscard]] static std::string You_got_dollarCount_dollars(Text dollarCount, std::int64_t count);

  /// "You got %{lifeCount} Extra Lives!"
  /// At 0 the player got nothing: say so plainly and do not cheer.
  /// - 0: "No Extra Lives this time"
  /// - 1: "You got %{lifeCount} Extra Life!"
  /// - 2: "You got %{lifeCount} Extra Lives!"
  /// - 3 to 5: "You got %{lifeCount} Extra Lives!"
  /// - 6 or more: "You got %{lifeCount} Extra Lives!"
  [[nodiscard]] static std::string You_got_lifeCount_Extra_Lives(Text lifeCount, std::int64_t count);

  /// "You got %{lifeCount} Extra Lives from %{sender}!"
  /// At 0 the player got nothing: say so plainly and do not cheer. %{sender} is the name of the person who gave them.
  /// - 0: "No Extra Lives from %{sender} this time"
  /// - 1: "You got %{lifeCount} Extra Life from %{sender}!"
  /// - 2: "You got %{lifeCount} Extra Lives from %{sender}!"
  /// - 3 to 5: "You got %{lifeCount} Extra Lives from %{sender}!"
  /// - 6 or more: "You got %{lifeCount} Extra Lives from %{sender}!"
  [[nodiscard]] static std::string You_got_lifeCount_Extra_Lives_from_sender(Text lifeCount, Text sender, std::int64_t count);

  /// "You got %{number} %{products}!"
  /// %{number} is a number and %{products} the name of a thing, probably in the English plural. Word it so that it needs no ending.
  [[nodiscard]] static std::string You_got_number_products(Text number, Text products);

  /// "You got %{points} more points!"
  /// %{points} is a number, and there are no plural forms. The text must be right for 1 and for 5.
  [[nodiscard]] static std::string You_got_points_more_points(Text points);

  /// "You got %{round} of %{totalAnswers} correct!"
  /// %{round} is the number of right answers and %{totalAnswers} the number of questions.
  [[nodiscard]] static std::string You_got_round_of_totalAnswers_correct(Text round, Text totalAnswers);

  /// "You got the letter %{letter}!"
  /// The placeholder is one letter for the word game.
  [[nodiscard]] static std::string You_got_the_letter_letter(Text letter);

  /// "You got the letter %{letter} and %{extraLifeCount} extra lives!"
  /// %{letter} is a letter for the word game; the count is the number of extra lives. At 0 there is only the letter.
  /// - 0: "You got the letter %{letter}!"
  /// - 1: "You got the letter %{letter} and %{extraLifeCount} extra life!"
  /// - 2: "You got the letter %{letter} and %{extraLifeCount} extra lives!"
  /// - 3 to 5: "You got the letter %{letter} and %{extraLifeCount} extra lives!"
  /// - 6 or more: "You got the letter %{letter} and %{extraLifeCount} extra lives!"
  [[nodiscard]] static std::string You_got_the_letter_letter_and_extraLifeCount_extra_lives(Text letter, Text extraLifeCount, std::int64_t count);

  /// "You got the letters %{letters}!"
  /// %{letters} is a list of letters for the word game, joined in a way that is not recorded; the count is how many there are.
  /// - 0: "No letters this time"
  /// - 1: "You got the letter %{letters}!"
  /// - 2: "You got the letters %{letters}!"
  /// - 3 to 5: "You got the letters %{letters}!"
  /// - 6 or more: "You got the letters %{letters}!"
  [[nodiscard]] static std::string You_got_the_letters_letters(Text letters, std::int64_t count);

  /// "You got the\n%{product}!"
  /// The placeholder is the name of a thing or an offer. Its gender is unknown, so avoid articles and endings.
  [[nodiscard]] static std::string You_got_the_n_product(Text product);

  /// "You got to Level %{level}"
  /// The level is a number, such as Level 3. The number identifies the level; it is not a count.
  [[nodiscard]] static std::string You_got_to_Level_level(Text level);

  /// "*You have 0 Extra Lives*\nBuy some to help you win!"
  /// The count is the number of Extra Lives. The text has no placeholder for the number; each form states its own amount: 0, 1, 2, a few, plenty.
  /// - 0: "*You have 0 Extra Lives*\nBuy some to help you win!"
  /// - 1: "*You have 1 Extra Life*\nBuy more to help you win!"
  /// - 2: "*You have 2 Extra Lives*\nBuy more to help you win!"
  /// - 3 to 5: "*You have a few Extra Lives*\nBuy more to help you win!"
  /// - 6 or more: "*You have plenty of Extra Lives*\nBuy more to help you win!"
  [[nodiscard]] static std::string You_have_0_Extra_Lives_nBuy_some_to_help_you_win(std::int64_t count);

  /// "You have already applied a referral code. You may only do this once."
  [[nodiscard]] static std::string You_have_already_applied_a_referral_code_You_may_only_do_this_once();

  /// "You have an Extra Life!"
  [[nodiscard]] static std::string You_have_an_Extra_Life();

  /// "You have been removed from the game for a violation of ZK’s Terms of Service and Contest Rules."
  [[nodiscard]] static std::string You_have_been_removed_from_the_game_for_a_violation_of_ZK_s_Terms_of_Service_and_Contest_Rules();

  /// "You have %{extraLifeCount} Extra Lives!"
  /// How many Extra Lives the player has. At 0 do not cheer.
  /// - 0: "You have no Extra Lives"
  /// - 1: "You have %{extraLifeCount} Extra Life!"
  /// - 2: "You have %{extraLifeCount} Extra Lives!"
  /// - 3 to 5: "You have %{extraLifeCount} Extra Lives!"
  /// - 6 or more: "You have %{extraLifeCount} Extra Lives!"
  [[nodiscard]] static std::string You_have_extraLifeCount_Extra_Lives(Text extraLifeCount, std::int64_t count);

  /// "You have reached the maximum number of Friends. We are working to increase this limit soon."
  [[nodiscard]] static std::string You_have_reached_the_maximum_number_of_Friends_We_are_working_to_increase_this_limit_soon();

  /// "You leveled up to Level %{level}"
  /// The level is a number, such as Level 3. The number identifies the level; it is not a count.
  [[nodiscard]] static std::string You_leveled_up_to_Level_level(Text level);

  /// "You'll receive an email with further instructions."
  [[nodiscard]] static std::string You_ll_receive_an_email_with_further_instructions();

  /// "You must be signed in to access this feature"
  [[nodiscard]] static std::string You_must_be_signed_in_to_access_this_feature();

  /// "You must keep at least one social account linked to play ZK."
  [[nodiscard]] static std::string You_must_keep_at_least_one_social_account_linked_to_play_ZK();

  /// "You must wait a short period between phone verification requests"
  [[nodiscard]] static std::string You_must_wait_a_short_period_between_phone_verification_requests();

  /// "You must wait a short period between verification code requests"
  [[nodiscard]] static std::string You_must_wait_a_short_period_between_verification_code_requests();

  /// "You need more Coins to buy that Power Up"
  [[nodiscard]] static std::string You_need_more_Coins_to_buy_that_Power_Up();

  /// "You ran out of time!"
  [[nodiscard]] static std::string You_ran_out_of_time();

  /// "*You’re back in the game!* No one was correct."
  [[nodiscard]] static std::string You_re_back_in_the_game_No_one_was_correct();

  /// "You're eliminated."
  [[nodiscard]] static std::string You_re_eliminated();

  /// "You're Incorrect!"
  [[nodiscard]] static std::string You_re_Incorrect();

  /// "You're late."
  [[nodiscard]] static std::string You_re_late();

  /// "*You're late.* We started the game but you can still watch."
  /// "Can still watch" is an offer, not an order.
  [[nodiscard]] static std::string You_re_late_We_started_the_game_but_you_can_still_watch();

  /// "You're out of the cash game, but you can keep playing for other rewards."
  [[nodiscard]] static std::string You_re_out_of_the_cash_game_but_you_can_keep_playing_for_other_rewards();

  /// "You're too late"
  [[nodiscard]] static std::string You_re_too_late();

  /// "You're too late to win the cash prize, but can still play for points to earn an Extra Life!"
  [[nodiscard]] static std::string You_re_too_late_to_win_the_cash_prize_but_can_still_play_for_points_to_earn_an_Extra_Life();

  /// "You're using an *Eraser*"
  [[nodiscard]] static std::string You_re_using_an_Eraser();

  /// "You reached Q%{reached} and got %{correctCount} of %{totalCount} Qs correct."
  /// %{reached} is the number of the last question reached. "Q" and "Qs" mean question and questions.
  [[nodiscard]] static std::string You_reached_Q_reached_and_got_correctCount_of_totalCount_Qs_correct(Text reached, Text correctCount, Text totalCount);

  /// "You successfully linked your %{provider} account."
  /// The placeholder is the name of a service, such as Facebook, with which the player can sign in.
  [[nodiscard]] static std::string You_successfully_linked_your_provider_account(Text provider);

  /// "You unlocked %{badgeCount} Badges"
  /// At 0 the player got nothing: say so plainly and do not cheer.
  /// - 0: "No Badges unlocked this time"
  /// - 1: "You unlocked %{badgeCount} Badge"
  /// - 2: "You unlocked %{badgeCount} Badges"
  /// - 3 to 5: "You unlocked %{badgeCount} Badges"
  /// - 6 or more: "You unlocked %{badgeCount} Badges"
  [[nodiscard]] static std::string You_unlocked_badgeCount_Badges(Text badgeCount, std::int64_t count);

  /// "You've been eliminated from the game. You can watch and chat only."
  [[nodiscard]] static std::string You_ve_been_eliminated_from_the_game_You_can_watch_and_chat_only();

  /// "You've been kicked"
  [[nodiscard]] static std::string You_ve_been_kicked();

  /// "*You've entered to win the VIP Prize!*"
  [[nodiscard]] static std::string You_ve_entered_to_win_the_VIP_Prize();

  /// "You've got a bunch of letters!"
  [[nodiscard]] static std::string You_ve_got_a_bunch_of_letters();

  /// "You've got the letter %{firstLetter}!"
  /// The placeholder is one letter for the word game.
  [[nodiscard]] static std::string You_ve_got_the_letter_firstLetter(Text firstLetter);

  /// "You've got the letters %{firstLetter} and %{secondLetter}!"
  /// Each placeholder is one letter for the word game.
  [[nodiscard]] static std::string You_ve_got_the_letters_firstLetter_and_secondLetter(Text firstLetter, Text secondLetter);

  /// "You've got the letters %{firstLetter}, %{secondLetter}, and %{thirdLetter}!"
  /// Each placeholder is one letter for the word game.
  [[nodiscard]] static std::string You_ve_got_the_letters_firstLetter_secondLetter_and_thirdLetter(Text firstLetter, Text secondLetter, Text thirdLetter);

  /// "You've got the letters %{firstLetter}, %{secondLetter}, %{thirdLetter}, and %{fourthLetter}!"
  /// Each placeholder is one letter for the word game.
  [[nodiscard]] static std::string You_ve_got_the_letters_firstLetter_secondLetter_thirdLetter_and_fourthLetter(Text firstLetter, Text secondLetter, Text thirdLetter, Text fourthLetter);

  /// "You've got the letters %{firstLetter}, %{secondLetter}, %{thirdLetter}, %{fourthLetter}, and %{fifthLetter}!"
  /// Each placeholder is one letter for the word game.
  [[nodiscard]] static std::string You_ve_got_the_letters_firstLetter_secondLetter_thirdLetter_fourthLetter_and_fifthLetter(Text firstLetter, Text secondLetter, Text thirdLetter, Text fourthLetter, Text fifthLetter);

  /// "You’ve violated the terms of service so you will not be able to cash out. If you think this may be a mistake, please contact support. Learn more"
  /// "Learn more" at the end is probably a link; use the same words as in the text "Learn more".
  [[nodiscard]] static std::string You_ve_violated_the_terms_of_service_so_you_will_not_be_able_to_cash_out_If_you_think_this_may_be_a_();

  /// "You will receive an email with further instructions shortly."
  [[nodiscard]] static std::string You_will_receive_an_email_with_further_instructions_shortly();

  /// "You won!"
  [[nodiscard]] static std::string You_won();

  /// "You won %{level} points!"
  /// %{level} is the number of points, despite its name. There are no plural forms; the text must be right for 1 and for 5.
  [[nodiscard]] static std::string You_won_level_points(Text level);

  /// "You won the\nVIP Prize!"
  [[nodiscard]] static std::string You_won_the_nVIP_Prize();

  /// "Your account already exists"
  [[nodiscard]] static std::string Your_account_already_exists();

  /// "Your answer could not be accepted due to connectivity issues."
  [[nodiscard]] static std::string Your_answer_could_not_be_accepted_due_to_connectivity_issues();

  /// "Your available balance may be lower because a show you won is currently in review. Learn more"
  /// "Learn more" at the end is probably a link; use the same words as in the text "Learn more".
  [[nodiscard]] static std::string Your_available_balance_may_be_lower_because_a_show_you_won_is_currently_in_review_Learn_more();

  /// "Your available balance may be lower because a show you won is currently in review. %{learnMore}"
  /// %{learnMore} is the text "Learn more", at the end as a link. To win a show is to win a prize in it.
  [[nodiscard]] static std::string Your_available_balance_may_be_lower_because_a_show_you_won_is_currently_in_review_learnMore(Text learnMore);

  /// "Your Balance"
  [[nodiscard]] static std::string Your_Balance();

  /// "Your code has expired. We will try to send you a new one."
  /// The code is one that ZK sent to a phone, not a referral code.
  [[nodiscard]] static std::string Your_code_has_expired_We_will_try_to_send_you_a_new_one();

  /// "Your code was invalid"
  /// The code is one that ZK sent to a phone, not a referral code.
  [[nodiscard]] static std::string Your_code_was_invalid();

  /// "Your country code"
  [[nodiscard]] static std::string Your_country_code();

  /// "Your detailed feedback helps us make ZK Trivia better."
  [[nodiscard]] static std::string Your_detailed_feedback_helps_us_make_ZK_Trivia_better();

  /// "Your Extra Lives are on the way"
  /// The count is the number of Extra Lives bought; the text does not show it. 0 is not expected.
  /// - 0: "Your Extra Lives are on the way"
  /// - 1: "Your Extra Life is on the way"
  /// - 2: "Your Extra Lives are on the way"
  /// - 3 to 5: "Your Extra Lives are on the way"
  /// - 6 or more: "Your Extra Lives are on the way"
  [[nodiscard]] static std::string Your_Extra_Lives_are_on_the_way(std::int64_t count);

  /// "Your forms have been received"
  [[nodiscard]] static std::string Your_forms_have_been_received();

  /// "Your friend has reached the maximum number of Friend Requests. We are working to increase this limit soon."
  [[nodiscard]] static std::string Your_friend_has_reached_the_maximum_number_of_Friend_Requests_We_are_working_to_increase_this_limit_();

  /// "Your friend has reached the maximum number of Friends. We are working to increase this limit soon."
  [[nodiscard]] static std::string Your_friend_has_reached_the_maximum_number_of_Friends_We_are_working_to_increase_this_limit_soon();

  /// "Your In App Purchase is on the way!"
  /// The player has paid, and the item that was bought will arrive soon.
  [[nodiscard]] static std::string Your_In_App_Purchase_is_on_the_way();

  /// "Your location is required to participate."
  [[nodiscard]] static std::string Your_location_is_required_to_participate();

  /// "Your money will be there in just a bit."
  /// "There" is the player's PayPal account, probably.
  [[nodiscard]] static std::string Your_money_will_be_there_in_just_a_bit();

  /// "Your phone"
  /// Whether this is the device or the phone number is not recorded.
  [[nodiscard]] static std::string Your_phone();

  /// "Your phone number"
  [[nodiscard]] static std::string Your_phone_number();

  /// "Your phone number is invalid"
  [[nodiscard]] static std::string Your_phone_number_is_invalid();

  /// "Your profile"
  [[nodiscard]] static std::string Your_profile();

  /// "Your purchase was not processed in time. Your Extra Life can be used in a future game, and an additional free Extra Life has been added to your account."
  [[nodiscard]] static std::string Your_purchase_was_not_processed_in_time_Your_Extra_Life_can_be_used_in_a_future_game_and_an_addition();

  /// "Your purchase was successful!"
  [[nodiscard]] static std::string Your_purchase_was_successful();

  /// "Your question has been submitted."
  [[nodiscard]] static std::string Your_question_has_been_submitted();

  /// "Your rating: %{percent}%"
  /// %{percent} is a number without a sign; the text adds the percent sign. What is rated is not recorded.
  [[nodiscard]] static std::string Your_rating_percent(Text percent);

  /// "Your referral can't be processed due to a possible violation of the Terms of Use. Please contact help at support@zktrivia.example if you have any questions."
  [[nodiscard]] static std::string Your_referral_can_t_be_processed_due_to_a_possible_violation_of_the_Terms_of_Use_Please_contact_help();

  /// "Your referral code"
  [[nodiscard]] static std::string Your_referral_code();

  /// "Your referral code can't be the same as your username"
  [[nodiscard]] static std::string Your_referral_code_can_t_be_the_same_as_your_username();

  /// "Your request to cash out %{amount} has been submitted"
  [[nodiscard]] static std::string Your_request_to_cash_out_amount_has_been_submitted(Text amount);

  /// "Your Results"
  [[nodiscard]] static std::string Your_Results();

  /// "Your username can't be empty."
  [[nodiscard]] static std::string Your_username_can_t_be_empty();

  /// "Your username can't contain symbols."
  [[nodiscard]] static std::string Your_username_can_t_contain_symbols();

  /// "Your username must be at least 3 characters"
  [[nodiscard]] static std::string Your_username_must_be_at_least_3_characters();

  /// "Your verification code"
  /// The code is one that ZK sent to a phone, not a referral code.
  [[nodiscard]] static std::string Your_verification_code();
};

}  // namespace zk
