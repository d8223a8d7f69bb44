// An app with settings of its own, as on a phone: it tells the module which languages its user prefers and which
// country the network shows, instead of letting the module ask the environment, and follows a change while it
// runs.

#include <ZKStrings/ZKStrings.h>

#include <iostream>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

/// The settings of the host system. Its threads and the app's meet here.
class HostSettings {
 public:
  [[nodiscard]] zk::LocaleSettings locale() const {
    const std::lock_guard lock(mutex_);
    return {languages_.front(), languages_};
  }
  void setLanguages(std::vector<std::string> languages) {
    const std::lock_guard lock(mutex_);
    languages_ = std::move(languages);
  }

 private:
  mutable std::mutex mutex_;
  std::vector<std::string> languages_ = {"en-US"};
};

/// What the host system knows of the mobile network.
class MobileNetwork : public zk::NetworkReaching {
 public:
  void setCountry(std::optional<std::string> code) {
    const std::lock_guard lock(mutex_);
    country_ = std::move(code);
  }

  [[nodiscard]] std::optional<std::string> networkCountryCode() const override {
    const std::lock_guard lock(mutex_);
    return country_;
  }

 private:
  mutable std::mutex mutex_;
  std::optional<std::string> country_;
};

/// What an app does when the host system says that the user has changed the settings.
void takeOverLanguages() {
  zk::Current::language->preferredLanguages = zk::Locale::preferredLanguages();
}

void showScreen() {
  const zk::Language language = zk::Current::language;
  std::cout << language.locale.identifier() << ", " << language.country().value_or("no country") << ": "
            << zk::ZKStrings::badgeCount_Badges("2", 2) << ", " << zk::ZKStrings::Coins(0) << "\n";
}

}  // namespace

int main() {
  // Before the first text.
  static HostSettings settings;
  const auto network = std::make_shared<MobileNetwork>();
  zk::Locale::readSettingsFrom([] { return settings.locale(); });
  zk::Current::reachability = network;
  zk::Current::language = zk::Language{};
  showScreen();

  network->setCountry("AT");
  showScreen();

  // The user opens the settings; the host system tells the app on a thread of its own.
  std::thread([] {
    settings.setLanguages({"de-AT", "en-GB"});
    takeOverLanguages();
  }).join();
  showScreen();

  network->setCountry(std::nullopt);
  showScreen();
}
