#pragma once

#include <ZKStrings/platform/Export.h>
#include <ZKStrings/platform/ZKCommon.h>
#include <ZKStrings/region/Language.h>

#include <memory>
#include <utility>

namespace zk::internal {
class Registration;
}

namespace zk::Current {

/// Temporary access to a copy of the current language, returned by `Current::language->`. When the access ends, even
/// because of an exception, the copy is written back if it was changed. A copy that was only read is not written back.
class ZK_EXPORT LanguageAccess {
 public:
  /// Allocates all the memory that writing back needs. Only this constructor may throw std::bad_alloc.
  LanguageAccess();
  ~LanguageAccess();
  LanguageAccess(const LanguageAccess&) = delete;
  LanguageAccess& operator=(const LanguageAccess&) = delete;

  /// The fields of the copy, to read or change.
  Language* operator->() ZK_REFERRED_TO { return &language_; }
  /// The copy itself, to read or change.
  Language& operator*() ZK_REFERRED_TO { return language_; }

 private:
  friend class LanguageProperty;
  Language language_;
  bool isAlwaysWrittenBack_ = false;
  std::shared_ptr<zk::internal::Registration> writeBack_{};  // registered when the copy is written back
  Language* captured_ = nullptr;                             // the language that `writeBack_` owns
};

/// The type of `Current::language`.
class ZK_EXPORT LanguageProperty {
 public:
  constexpr LanguageProperty() = default;
  LanguageProperty(const LanguageProperty&) = delete;

  /// Makes `value` the language of all texts from now on, on all threads.
  const LanguageProperty& operator=(Language value) const;

  /// Returns a copy of the current language.
  [[nodiscard]] Language get() const;
  /// Returns a copy of the current language.
  [[nodiscard]] operator Language() const { return get(); }

  /// Provides access to the fields until the end of the full expression.
  [[nodiscard]] LanguageAccess operator->() const { return {}; }

  /// Calls `change(Language&)` on a copy of the current language, and writes the copy back, even if `change` did not
  /// change it or threw an exception.
  template <class Change>
  void change(Change&& change) const {
    LanguageAccess access;
    access.isAlwaysWrittenBack_ = true;
    std::forward<Change>(change)(*access);
  }
};

/// The app-wide language setting that every text follows. Assign it before the first text is looked up.
///
///     zk::Current::language = zk::Language{};                          // set
///     zk::Language now = zk::Current::language.get();                  // get: a copy
///     zk::Current::language->preferredLanguages = {"de-DE"};           // change one field
///     zk::Current::language.change([](zk::Language& language) {        // change several at once
///       language.preferredLanguages = {"de-DE"};
///       language.countries = {};
///     });
///
/// The temporary that `->` returns is destroyed at the end of the full expression. A loop over a list needs a copy:
///
///     for (const zk::Country& country : zk::Current::language.get().countries) ...   // right
///     for (const zk::Country& country : zk::Current::language->countries) ...        // wrong: the list is destroyed
///
/// Thread-safe. A change with `->` or `change` is written back when it ends, and then replaces what another thread
/// has assigned in the meantime. If one full expression makes several changes, only the one that ends last takes effect.
/// Reading in the same expression as a change is safe.
///
/// The setting is kept in `Resolver`, as the unnamed service of type `Language` with application scope. A plug-in that
/// assigned or changed the language must stay loaded.
///
/// Stops the process, after one line on standard error, if it is read or changed before it is assigned. Throws
/// std::bad_alloc if memory runs out; the setting is then unchanged.
inline constexpr LanguageProperty language;

}  // namespace zk::Current
