// An app with its own settings, as on a phone. It passes the user's languages and the network's country to the module.
// The module then does not read the environment. The app follows changes while it runs.

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

/// The settings of the host system, shared by its threads and the app's.
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

/// The country of the mobile network, as the host system reports it.
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

/// Called when the user has changed the settings of the host system.
void updateLanguages() {
  zk::Current::language->preferredLanguages = zk::Locale::preferredLanguages();
}

void showScreen() {
  const zk::Language language = zk::Current::language;
  std::cout << language.locale.identifier() << ", " << language.country().value_or("no country") << ": "
            << zk::ZKStrings::badgeCount_Badges("2", 2) << ", " << zk::ZKStrings::Coins(0) << "\n";
}

}  // namespace

int main() {
  // All of this comes before the first text.
  static HostSettings settings;
  const auto network = std::make_shared<MobileNetwork>();
  zk::Locale::readSettingsFrom([] { return settings.locale(); });
  zk::Current::reachability = network;
  zk::Current::language = zk::Language{};
  showScreen();

  network->setCountry("AT");
  showScreen();

  // The user changes the settings, and the host system reports it on another thread.
  std::thread([] {
    settings.setLanguages({"de-AT", "en-GB"});
    updateLanguages();
  }).join();
  showScreen();

  network->setCountry(std::nullopt);
  showScreen();
}
