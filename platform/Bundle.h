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
#include <system_error>
#include <typeinfo>
#include <vector>

namespace zk {

class ResourcePath;
class StringTable;
struct ResourcePlaces;

/// A directory of resources: string tables, language directories, data files.
///
///     if (const zk::ResourcePath* path = zk::bundle().pathForResource("de", "lproj")) {
///       if (const zk::Bundle* german = zk::Bundle::initWithPath(*path)) {
///         std::cout << german->localizedStringForKey("About", "");
///       }
///     }
///
/// A bundle lists its directory once, when it is opened; directories and tables that are added or removed
/// later are not seen. Bundles and the tables opened in them live until the process ends and are shared by
/// all threads; any thread may call anything, and only the first opening of a directory or table takes a
/// lock.
///
/// When the process or the system is short of descriptors or memory for the moment, nothing is remembered:
/// the same call succeeds when the shortage is over. Any function may throw std::bad_alloc.
class ZK_EXPORT alignas(kCacheLine) Bundle {
 public:
  /// The bundle of the module that defines the type `type`: the nearest directory `share/ZKStrings` at or
  /// above the directory of the shared library or executable that holds the module's code, two levels up at
  /// most, or else the place that the module was configured to be installed with. When there is none, a
  /// bundle without resources, whose path is empty.
  ///
  /// Throws std::system_error when it cannot be said for the moment which directory it is or what is in it.
  [[nodiscard]] static const Bundle& bundleForClass(const std::type_info& type);

  /// The same for code that has resources of its own, in a directory `name`: the nearest `share/name` at or
  /// above the directory of the file that defines the type `type`, two levels up at most. A `name` that is no
  /// single name, such as "" or "a/b", has none.
  [[nodiscard]] static const Bundle& bundleForClass(const std::type_info& type, std::string_view name);

  /// The bundle of the running app: the directory of its executable, without resources when that cannot be
  /// listed. Throws like `bundleForClass`.
  [[nodiscard]] static const Bundle& mainBundle();

  /// A bundle without resources at `path`; the same path gives the same bundle.
  [[nodiscard]] static const Bundle& withoutResources(const std::string& path);

  /// Opens the directory at `path`; null when it is none or cannot be listed. The same path gives the same
  /// bundle.
  [[nodiscard]] static const Bundle* initWithPath(const std::string& path);

  /// Opens a directory that a bundle holds; null when it cannot be listed. Throws std::system_error when that
  /// is so for the moment only.
  [[nodiscard]] static const Bundle* initWithPath(const ResourcePath& path);

  /// The directory `name`.`type` among the bundle's resources, for example "de" and "lproj"; null when there
  /// is none. Names are compared byte for byte; an empty name, a slash, ".." or a dot in `type` names nothing.
  [[nodiscard]] const ResourcePath* pathForResource(std::string_view name, std::string_view type) const;

  /// The full path of the file `name`.`extension` in the bundle's directory; nothing when there is none.
  /// Looks afresh at each call.
  [[nodiscard]] std::optional<std::string> URLForResource(std::string_view name,
                                                          std::string_view extension) const;

  /// The text that the table `table`.strings, or Localizable.strings when none is named, holds for `key`.
  /// When it holds none, `value`; when that is empty, `key`. The result views into the table, or is the
  /// argument itself.
  [[nodiscard]] std::string_view localizedStringForKey(
      std::string_view key, std::string_view value,
      std::optional<std::string_view> table = std::nullopt) const;

  /// The path of the bundle's directory.
  [[nodiscard]] const std::string& path() const { return path_; }

  ~Bundle();
  Bundle(const Bundle&) = delete;
  Bundle& operator=(const Bundle&) = delete;

 private:
  using Resources = std::vector<std::unique_ptr<const ResourcePath>>;
  struct Name;
  struct Slot;

  Bundle(std::string path, Resources resources);
  static const Bundle* open(const std::string& path, std::error_code& failure);
  static const Bundle* open(const ResourcePath& path);
  static const Bundle& bundleOfCode(const std::type_info& type, const ResourcePlaces& places);
  static const Bundle& openOrThrow(const std::string& path, std::error_code failure);
  [[nodiscard]] Name nameOf(std::string_view name, std::string_view type) const;
  [[nodiscard]] std::size_t placeOf(const Name& name) const;
  [[nodiscard]] const ResourcePath* find(std::string_view name, std::string_view type) const;

  /// An index of the resources by name, with open addressing. Its size is a power of two; `last_` is one less.
  std::unique_ptr<Slot[]> slots_{};
  std::size_t last_ = 0;
  const std::uint64_t seed_;
  const ResourcePath* defaultTable_;

  const std::string path_;
  const Resources resources_;
};

/// The place of one resource, as a bundle's listing keeps it for the rest of the process. What has been
/// opened there is remembered beside it, so that opening it again costs no search.
class ZK_EXPORT alignas(kCacheLine) ResourcePath {
 public:
  /// The full path of the file or directory.
  [[nodiscard]] const std::string& string() const { return path_; }
  /// Whether it was a directory when it was listed.
  [[nodiscard]] bool isDirectory() const { return isDirectory_; }

  /// What a listing has found at the full path `path`.
  ResourcePath(std::string path, bool isDirectory);
  ~ResourcePath();
  ResourcePath(const ResourcePath&) = delete;
  ResourcePath& operator=(const ResourcePath&) = delete;

 private:
  friend class Bundle;
  [[nodiscard]] std::string_view fileName() const { return fileName_; }
  [[nodiscard]] const StringTable* table() const;
  [[nodiscard]] const StringTable* openTable() const;

  const std::string path_;
  const std::string_view fileName_;
  const bool isDirectory_;
  mutable std::atomic<const Bundle*> bundle_{nullptr};
  mutable std::atomic<const StringTable*> table_{nullptr};
};

}  // namespace zk
