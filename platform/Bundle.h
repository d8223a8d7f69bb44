#pragma once

#include <ZKStrings/platform/CacheLines.h>
#include <ZKStrings/platform/Export.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

namespace zk {

class Bundle;
class StringTable;

/// The place of one resource, as a bundle's listing keeps it for the rest of the process. What has been
/// opened there is remembered beside it, so that opening it again costs no search.
class ZK_EXPORT alignas(kCacheLine) ResourcePath {
 public:
  ResourcePath(std::string path, bool isDirectory);
  ~ResourcePath();
  ResourcePath(const ResourcePath&) = delete;
  ResourcePath& operator=(const ResourcePath&) = delete;

  /// The full path of the file or directory.
  [[nodiscard]] const std::string& string() const { return path_; }
  /// The last part of the path: "de.lproj".
  [[nodiscard]] std::string_view fileName() const { return fileName_; }
  [[nodiscard]] bool isDirectory() const { return isDirectory_; }

 private:
  friend class Bundle;
  [[nodiscard]] const StringTable& table() const;

  const std::string path_;
  const std::string_view fileName_;
  const bool isDirectory_;
  mutable std::atomic<const Bundle*> bundle_{nullptr};
  mutable std::atomic<const StringTable*> table_{nullptr};
};

/// A directory of resources: string tables, language directories, data files.
///
/// A bundle lists its directory once, when it is opened; what is added or removed later is not seen. Bundles
/// and the tables opened in them live until the process ends and are shared by all threads; any thread may
/// call anything, and only the first opening of a directory or table takes a lock.
class ZK_EXPORT alignas(kCacheLine) Bundle {
 public:
  /// The bundle of the module that defines the type `type`: the nearest directory `share/ZKStrings` at or
  /// above the directory of the shared library or executable that holds the module's code, two levels up at
  /// most. When there is none, a bundle without resources.
  [[nodiscard]] static const Bundle& bundleForClass(const std::type_info& type);

  /// The bundle of the running app: the directory of its executable.
  [[nodiscard]] static const Bundle& mainBundle();

  /// Opens the directory at `path`; null when it is none or cannot be listed. The same path gives the same
  /// bundle.
  [[nodiscard]] static const Bundle* initWithPath(const ResourcePath& path);
  [[nodiscard]] static const Bundle* initWithPath(const std::string& path);

  /// The directory `name`.`type` among the bundle's resources, for example "de" and "lproj"; null when there
  /// is none. Names are compared byte for byte; an empty name, a slash or ".." names nothing.
  [[nodiscard]] const ResourcePath* pathForResource(std::string_view name, std::string_view type) const;

  /// The resource `name`.`extension`, whatever it is; null when there is none.
  [[nodiscard]] const ResourcePath* URLForResource(std::string_view name, std::string_view extension) const;

  /// The text that the table `table`.strings, or Localizable.strings when none is named, holds for `key`.
  /// When it holds none, `value`; when that is empty, `key`. The result views into the table, or is the
  /// argument itself.
  [[nodiscard]] std::string_view localizedStringForKey(
      std::string_view key, std::string_view value,
      std::optional<std::string_view> table = std::nullopt) const;

  [[nodiscard]] const std::string& path() const { return path_; }

  ~Bundle();
  Bundle(const Bundle&) = delete;
  Bundle& operator=(const Bundle&) = delete;

 private:
  using Resources = std::vector<std::unique_ptr<const ResourcePath>>;

  Bundle(std::string path, Resources resources);
  static const Bundle& inDirectory(const std::string& path);

  const std::string path_;
  const Resources resources_;
  /// What tells one file name from another, in as few words as can be compared at once.
  struct Name {
    std::uint64_t name;   // the word of what stands before the last dot
    std::uint64_t type;   // the word of what stands behind it
    std::uint64_t sizes;  // of both
    friend bool operator==(const Name&, const Name&) = default;
  };
  struct Slot {
    Name name;
    const ResourcePath* path;
  };
  static Name nameOf(std::string_view name, std::string_view type);
  static std::size_t hashOf(const Name& name);
  [[nodiscard]] const ResourcePath* find(std::string_view name, std::string_view type) const;

  std::vector<Slot> index_;  // open addressing; its size is a power of two
  const ResourcePath* defaultTable_;
};

}  // namespace zk
