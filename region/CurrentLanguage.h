#pragma once

#include <ZKStrings/platform/Export.h>
#include <ZKStrings/platform/ZKCommon.h>
#include <ZKStrings/region/Language.h>

#include <memory>
#include <utility>

namespace zk::registry {
class Registration;
}

namespace zk::Current {

/// Temporary access to the current language, as `Current::language->` gives it: a copy. When the access ends,
/// also by an exception, the copy is written back if it was changed; one that was only read writes nothing.
class ZK_EXPORT LanguageAccess {
 public:
  /// Takes all the memory that writing back needs, so that only this may throw `std::bad_alloc`.
  LanguageAccess();
  ~LanguageAccess();
  LanguageAccess(const LanguageAccess&) = delete;
  LanguageAccess& operator=(const LanguageAccess&) = delete;

  /// The copy's fields, to read or change.
  Language* operator->() ZK_REFERRED_TO { return &language_; }
  /// The copy.
  Language& operator*() ZK_REFERRED_TO { return language_; }

 private:
  Language language_;
  std::shared_ptr<registry::Registration> writeBack_{};  // what is registered if the copy was changed
  Language* captured_ = nullptr;                         // in it: the language as it was resolved
};

/// The property behind `Current::language`.
class ZK_EXPORT LanguageProperty {
 public:
  constexpr LanguageProperty() = default;
  LanguageProperty(const LanguageProperty&) = delete;

  /// Makes `value` the language of every text from now on, on all threads.
  const LanguageProperty& operator=(Language value) const;

  /// A copy of the current language.
  [[nodiscard]] Language get() const;
  /// The same.
  [[nodiscard]] operator Language() const { return get(); }

  /// Access to one field, until the end of the statement.
  [[nodiscard]] LanguageAccess operator->() const { return {}; }

  /// Calls `change(Language&)` on a copy of the current language, and writes it back as `->` does.
  template <class Change>
  void change(Change&& change) const {
    LanguageAccess access;
    std::forward<Change>(change)(*access);
  }
};

/// The app-wide language setting that every text follows. It is kept in the `Resolver`, as the unnamed
/// service of type `Language` with application scope, and must be assigned before the first text is looked
/// up: reading it before stops the process with a message.
///
///     zk::Current::language = zk::Language{};                          // set
///     zk::Language now = zk::Current::language.get();                  // get: a copy
///     zk::Current::language->preferredLanguages = {"de-DE"};           // change one field
///     zk::Current::language.change([](zk::Language& language) {        // change several at once
///       language.preferredLanguages = {"de-DE"};
///       language.countries = {};
///     });
///
/// What `->` gives ends with the full expression. A loop over a list therefore takes a copy:
///
///     for (const zk::Country& country : zk::Current::language.get().countries) ...   // right
///     for (const zk::Country& country : zk::Current::language->countries) ...        // wrong: the list is gone
///
/// Any thread may read and assign. A change with `->` or `change` is written back when it ends, also when it
/// ends by an exception; what another thread assigned meanwhile is lost then. For the same reason, make one
/// change in one full expression: of two, the one that ends last is what remains. Reading beside it is fine,
/// as in `language->preferredLanguages = {language->preferredLanguages[0], "en"}`.
///
/// A thread that has looked texts up keeps the language that it saw until its next lookup, also when another
/// has been assigned since. A plug-in that assigned or changed the language must stay loaded.
inline constexpr LanguageProperty language;

}  // namespace zk::Current
