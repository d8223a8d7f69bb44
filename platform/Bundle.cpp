#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/formats/StringTable.h>
#include <ZKStrings/platform/system/CodeLocation.h>
#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/platform/system/ResourceDirectory.h>
#include <ZKStrings/platform/text/Bytes.h>

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <typeinfo>
#include <utility>
#include <vector>

namespace zk {

namespace {

using BundlesByPath = std::map<std::string, std::unique_ptr<const Bundle>>;

/// Guards the opening of bundles and tables. Open ones are found without it.
std::mutex& opening() {
  static auto& mutex = *new std::mutex;  // never destroyed: a lookup may run in the last destructor of an app
  return mutex;
}

}  // namespace

ResourcePath::ResourcePath(std::string path, bool isDirectory)
    : path_(std::move(path)), isDirectory_(isDirectory) {
  const std::string_view fileName = std::string_view(path_).substr(path_.rfind('/') + 1);
  const std::size_t dot = fileName.rfind('.');
  if (dot == std::string_view::npos) return;
  name_ = fileName.substr(0, dot);
  type_ = fileName.substr(dot + 1);
}

/// The string table in this file; null if it temporarily cannot be read.
inline const StringTable* ResourcePath::table() const {
  const StringTable* const open = table_.load(std::memory_order_acquire);
  return open ? open : openTable();
}

const StringTable* ResourcePath::openTable() const {
  const std::lock_guard lock(opening());
  if (const StringTable* const open = table_.load()) return open;
  std::error_code failure;
  auto table = std::make_unique<const StringTable>(StringTable::inFile(path_, failure));
  if (isTemporary(failure) || isRefusal(failure)) return nullptr;
  table_.store(table.get(), std::memory_order_release);
  return table.release();
}

/// The named entries of a directory, in a hash index with open addressing.
struct Bundle::Listing {
  /// A name and a type in a few machine words. Short names that differ have different words.
  struct Name {
    std::uint64_t nameWord = 0, typeWord = 0, sizes = 0;
    friend bool operator==(const Name&, const Name&) = default;
  };
  struct Slot {
    Name name{};
    std::unique_ptr<const ResourcePath> path{};
  };

  Listing(const std::string& path, const std::vector<DirectoryEntry>& entries)
      : slots(std::bit_ceil(std::max<std::size_t>(entries.size() * 8, 64))) {
    for (const DirectoryEntry& entry : entries) {
      std::unique_ptr<const ResourcePath> resource(
          new ResourcePath(path + "/" + entry.name, entry.isDirectory));
      if (resource->name_.empty()) continue;  // cannot be looked up
      const Name name = nameOf(resource->name_, resource->type_);
      std::size_t at = placeOf(name);
      while (slots[at].path) at = placeAfter(at);
      slots[at] = {name, std::move(resource)};
    }
  }

  [[nodiscard]] const ResourcePath* find(std::string_view name, std::string_view type) const {
    const Name wanted = nameOf(name, type);
    for (std::size_t at = placeOf(wanted); slots[at].path; at = placeAfter(at)) {
      if (slots[at].name != wanted) continue;
      const ResourcePath* const path = slots[at].path.get();
      const bool areShort = name.size() <= 8 && type.size() <= 8;
      if (areShort || (path->name_ == name && path->type_ == type)) return path;
    }
    return nullptr;
  }

  static Name nameOf(std::string_view name, std::string_view type) {
    return {wordOf(name), wordOf(type), std::uint64_t{name.size()} << 32 | type.size()};
  }
  [[nodiscard]] std::size_t placeOf(const Name& name) const {
    return static_cast<std::size_t>(hashOfWords(name.typeWord, name.nameWord) >> 32) & last;
  }
  [[nodiscard]] std::size_t placeAfter(std::size_t place) const { return (place + 1) & last; }

  std::vector<Slot> slots;  // their number is a power of two
  std::size_t last = slots.size() - 1;
};

Bundle::Bundle(std::string path, const std::vector<DirectoryEntry>& entries)
    : path_(std::move(path)),
      listing_(std::make_unique<const Listing>(path_, entries)),
      defaultTable_(listing_->find("Localizable", "strings")) {
}

Bundle::~Bundle() = default;

const Bundle& Bundle::bundleForClass(const std::type_info& type) {
  return bundleOfCode(type, {ZK_RESOURCES_ABOVE, ZK_RESOURCES_INSTALLED});
}

const Bundle& Bundle::bundleForClass(const std::type_info& type, std::string_view name) {
  if (!isFileName(name)) return withoutResources("");
  return bundleOfCode(type, {"share/" + std::string(name), ""});
}

const Bundle& Bundle::bundleOfCode(const std::type_info& type, const internal::ResourcePlaces& places) {
  std::error_code failure;
  // The name of a type is in the same file as the type's code.
  const std::string codeFile = fileHolding(type.name(), failure);
  const std::string path = isTemporary(failure) ? "" : internal::resourceDirectory(codeFile, places, failure);
  return openOrThrow(path, failure);
}

const Bundle& Bundle::mainBundle() {
  std::error_code failure;
  return openOrThrow(nativePath(executablePath(failure)).parent_path().string(), failure);
}

/// The bundle at `path`. Throws if `failure` or the failure to open it is temporary.
const Bundle& Bundle::openOrThrow(const std::string& path, std::error_code failure) {
  const Bundle* const opened = isTemporary(failure) ? nullptr : open(path, failure);
  if (isTemporary(failure)) throw std::system_error(failure, path);
  return opened ? *opened : withoutResources(path);
}

const Bundle& Bundle::withoutResources(const std::string& path) {
  static auto& bundles = *new BundlesByPath;  // never destroyed, like the lock
  const std::lock_guard lock(opening());
  std::unique_ptr<const Bundle>& bundle = bundles[path];
  if (!bundle) bundle.reset(new Bundle(path, {}));
  return *bundle;
}

const Bundle* Bundle::initWithPath(const std::string& path) {
  std::error_code failure;
  const Bundle* const opened = open(path, failure);
  if (isTemporary(failure)) throw std::system_error(failure, path);
  return opened;
}

const Bundle* Bundle::initWithPath(const ResourcePath& path) {
  const Bundle* const opened = path.bundle_.load(std::memory_order_acquire);
  return opened ? opened : openListed(path);
}

const Bundle* Bundle::openListed(const ResourcePath& path) {
  const Bundle* const opened = initWithPath(path.string());
  path.bundle_.store(opened, std::memory_order_release);
  return opened;
}

const Bundle* Bundle::open(const std::string& path, std::error_code& failure) {
  static auto& bundles = *new BundlesByPath;  // never destroyed, like the lock
  const std::lock_guard lock(opening());
  if (const auto open = bundles.find(path); open != bundles.end()) return open->second.get();
  const std::vector<DirectoryEntry> entries = entriesOf(path, failure);
  if (failure) return nullptr;
  std::unique_ptr<const Bundle> bundle(new Bundle(path, entries));
  return (bundles[path] = std::move(bundle)).get();
}

const ResourcePath* Bundle::pathForResource(std::string_view name, std::string_view type) const {
  const ResourcePath* const resource = listing_->find(name, type);
  return resource && resource->isDirectory() ? resource : nullptr;
}

std::vector<std::string_view> Bundle::directoriesOfType(std::string_view type) const {
  std::vector<std::string_view> names;
  for (const Listing::Slot& slot : listing_->slots) {
    if (slot.path && slot.path->type_ == type && slot.path->isDirectory()) names.push_back(slot.path->name_);
  }
  return names;
}

std::optional<std::string> Bundle::URLForResource(std::string_view name, std::string_view extension) const {
  const auto fileName = std::string(name).append(".").append(extension);
  if (path_.empty() || name.empty() || !isFileName(fileName)) return std::nullopt;
  std::string path = path_ + "/" + fileName;
  if (!pathExists(path)) return std::nullopt;
  return path;
}

std::string_view Bundle::localizedStringForKey(std::string_view key, std::string_view value,
                                               std::optional<std::string_view> table) const {
  const ResourcePath* const file = table ? listing_->find(*table, "strings") : defaultTable_;
  const StringTable* const open = file ? file->table() : nullptr;
  const std::optional<std::string_view> text = open ? open->find(key) : std::nullopt;
  if (text) return *text;
  return value.empty() ? key : value;
}

}  // namespace zk
