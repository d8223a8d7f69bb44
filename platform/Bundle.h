#pragma once

#include <ZKStrings/platform/CacheLines.h>
#include <ZKStrings/platform/Export.h>

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <typeinfo>
#include <vector>

namespace zk {

class ResourcePath;
class StringTable;
struct DirectoryEntry;

namespace internal {
struct ResourcePlaces;
}

/// A directory of resources: string tables, language directories, data files.
///
///     if (const zk::ResourcePath* path = zk::bundle().pathForResource("de", "lproj")) {
///       if (const zk::Bundle* german = zk::Bundle::initWithPath(*path)) {
///         std::cout << german->localizedStringForKey("About", "");
///       }
///     }
///
/// A bundle lists its directory once, when it is opened, and does not see later changes. Bundles and their tables live
/// until the process ends.
///
/// Thread-safe. Only the first opening of a directory or table takes a lock. Throws std::bad_alloc if memory runs out, and
/// std::system_error where a function says so. A call that threw an exception succeeds once the cause is gone.
class ZK_EXPORT alignas(internal::kCacheLine) Bundle {
 public:
  /// Returns the bundle of the module that defines the type `type`: the nearest directory `share/ZKStrings` at or above
  /// the directory of the module's shared library or executable, at most two levels up, or else the configured
  /// installation directory. Returns a bundle without resources, whose path is empty, if there is no such directory.
  /// Throws std::system_error if the directory temporarily cannot be found or listed.
  ///
  ///     const zk::Bundle& resources = zk::Bundle::bundleForClass(typeid(MyClass));
  [[nodiscard]] static const Bundle& bundleForClass(const std::type_info& type);

  /// Returns the bundle `name` of a program or library that has its own resources: the directory `share/NAME` next to the
  /// executable or shared library that contains the type `type`, or else one or two levels up. Returns a bundle without
  /// resources if there is none, or if `name` is not the name of one directory, such as "" or "a/b". Throws
  /// std::system_error if the directory temporarily cannot be found or listed.
  ///
  ///     const zk::Bundle& texts = zk::Bundle::bundleForClass(typeid(MyTexts), "MyTexts");
  [[nodiscard]] static const Bundle& bundleForClass(const std::type_info& type, std::string_view name);

  /// Returns the bundle of the running app: the directory of its executable. It has no resources if the directory cannot
  /// be listed. Throws std::system_error if the directory temporarily cannot be found or listed.
  [[nodiscard]] static const Bundle& mainBundle();

  /// Returns a bundle that has the path `path` and no resources. The same path returns the same bundle.
  [[nodiscard]] static const Bundle& withoutResources(const std::string& path);

  /// Opens the directory at `path`. Returns null if it is not a directory or cannot be listed. The same path returns the
  /// same bundle. Throws std::system_error if the directory temporarily cannot be listed.
  [[nodiscard]] static const Bundle* initWithPath(const std::string& path);

  /// Opens a directory that another bundle lists. Returns null if it is not a directory or cannot be listed. The same
  /// path returns the same bundle. Throws std::system_error if the directory temporarily cannot be listed.
  [[nodiscard]] static const Bundle* initWithPath(const ResourcePath& path);

  /// Returns the directory `name`.`type` among the bundle's resources, for example "de" and "lproj"; null if there
  /// is none. Names are compared byte for byte and are never used to build a path. An empty name, a name with a slash
  /// and a type with a dot are never found.
  [[nodiscard]] const ResourcePath* pathForResource(std::string_view name, std::string_view type) const;

  /// Returns the names of the directories of the type `type` among the bundle's resources, in no particular order: "Base"
  /// and "de" for "lproj". The names live as long as the bundle.
  [[nodiscard]] std::vector<std::string_view> directoriesOfType(std::string_view type) const;

  /// Returns the full path of the file `name`.`extension` in the bundle's directory; nothing if there is none.
  /// Looks for the file on every call.
  [[nodiscard]] std::optional<std::string> URLForResource(std::string_view name,
                                                          std::string_view extension) const;

  /// Returns the text for `key` in the table `table`.strings, or in Localizable.strings if `table` is omitted. If
  /// the table has none, returns `value`, or `key` if `value` is empty. The result is a view of the table, or the
  /// argument itself.
  [[nodiscard]] std::string_view localizedStringForKey(
      std::string_view key, std::string_view value,
      std::optional<std::string_view> table = std::nullopt) const;

  /// The path of the bundle's directory.
  [[nodiscard]] const std::string& path() const { return path_; }

  ~Bundle();

 private:
  struct Listing;

  Bundle(std::string path, const std::vector<DirectoryEntry>& entries);
  static const Bundle* open(const std::string& path, std::error_code& failure);
  static const Bundle* openListed(const ResourcePath& path);
  static const Bundle& openOrThrow(const std::string& path, std::error_code failure);
  static const Bundle& bundleOfCode(const std::type_info& type, const internal::ResourcePlaces& places);

  const std::string path_;
  const std::unique_ptr<const Listing> listing_;
  const ResourcePath* const defaultTable_;
};

/// The path of one resource that a bundle lists. Lives until the process ends.
class ZK_EXPORT alignas(internal::kCacheLine) ResourcePath {
 public:
  /// The full path of the file or directory.
  [[nodiscard]] const std::string& string() const { return path_; }
  /// Whether it was a directory when it was listed.
  [[nodiscard]] bool isDirectory() const { return isDirectory_; }

 private:
  friend class Bundle;
  ResourcePath(std::string path, bool isDirectory);
  [[nodiscard]] const StringTable* table() const;
  [[nodiscard]] const StringTable* openTable() const;

  const std::string path_;
  std::string_view name_{};  // the file name before its last dot, or empty
  std::string_view type_{};  // the file name after its last dot, or empty
  const bool isDirectory_;
  // The bundle and the table that were opened at this path. Opening them again needs no search.
  mutable std::atomic<const Bundle*> bundle_{nullptr};
  mutable std::atomic<const StringTable*> table_{nullptr};
};

}  // namespace zk
