#pragma once

#include <ZKStrings/platform/Export.h>
#include <ZKStrings/platform/ZKCommon.h>
#include <ZKStrings/region/Language.h>

namespace zk::Current {

/// Temporary access to the current language, as `Current::language->` gives it: a copy that is written back
/// when the access ends, also when an exception ends it.
class ZK_EXPORT LanguageAccess {
 public:
  LanguageAccess();
  ~LanguageAccess();
  LanguageAccess(const LanguageAccess&) = delete;
  LanguageAccess& operator=(const LanguageAccess&) = delete;

  Language* operator->() { return &language_; }

 private:
  Language language_;
};

/// The property behind `Current::language`.
class ZK_EXPORT LanguageProperty {
 public:
  constexpr LanguageProperty() = default;
  LanguageProperty(const LanguageProperty&) = delete;

  const LanguageProperty& operator=(Language value) const;
  [[nodiscard]] operator Language() const;
  [[nodiscard]] LanguageAccess operator->() const { return {}; }
};

/// The app-wide language setting that every text follows. It is kept in the `Resolver`, as the unnamed
/// service of type `Language` with application scope, and must be assigned before the first text is looked
/// up: reading it before stops the process with a message.
///
///     zk::Current::language = zk::Language{};                         // set
///     zk::Language now = zk::Current::language;                       // get: a copy
///     zk::Current::language->preferredLanguages = {"de-DE"};          // change in place
///
/// A change in place is written back when the full expression ends, also when it ends by an exception. Any
/// thread may read and assign; between the reading and the writing back of a change in place, another
/// thread's assignment is lost.
inline constexpr LanguageProperty language;

}  // namespace zk::Current
