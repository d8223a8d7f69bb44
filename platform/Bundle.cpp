#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/formats/StringTable.h>
#include <ZKStrings/platform/system/CodeLocation.h>
#include <ZKStrings/platform/system/DirectoryListing.h>
#include <ZKStrings/platform/system/Failure.h>
#include <ZKStrings/platform/system/ProcessSeed.h>
#include <ZKStrings/platform/system/ResourceDirectory.h>
#include <ZKStrings/platform/text/Bytes.h>

#include <filesystem>
#include <map>
#include <mutex>
#include <utility>

namespace zk {

namespace {

namespace fs = std::filesystem;

using BundlesByPath = std::map<std::string, std::unique_ptr<const Bundle>>;

/// Guards the opening of bundles and tables; those that are open are found without it.
std::recursive_mutex& opening() {
  static auto& mutex = *new std::recursive_mutex;  // never destroyed: a lookup may come as late as it likes
  return mutex;
}

/// Whether `name` names something in a directory, and nothing beyond.
bool isFileName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." && name.find_first_of({"/\0", 2}) == name.npos;
}

}  // namespace

ResourcePath::ResourcePath(std::string path, bool isDirectory)
    : path_(std::move(path)),
      fileName_(std::string_view(path_).substr(path_.rfind('/') + 1)),
      isDirectory_(isDirectory) {
}

ResourcePath::~ResourcePath() {
  delete table_.load();
}

/// The string table in this file; null when it cannot be read for the moment.
inline const StringTable* ResourcePath::table() const {
  const StringTable* const open = table_.load(std::memory_order_acquire);
  return open ? open : openTable();
}

const StringTable* ResourcePath::openTable() const {
  const std::lock_guard lock(opening());
  if (const StringTable* open = table_.load()) return open;
  std::error_code failure;
  auto table = std::make_unique<const StringTable>(StringTable::inFile(path_, failure));
  if (isPassing(failure) || failure == std::errc::permission_denied) return nullptr;
  table_.store(table.get(), std::memory_order_release);
  return table.release();
}

/// What tells one file name from another, in as few words as can be compared at once.
struct Bundle::Name {
  std::uint64_t name;   // the word of what stands before the last dot
  std::uint64_t type;   // the word of what stands behind it
  std::uint64_t sizes;  // of both
  friend bool operator==(const Name&, const Name&) = default;
};

struct Bundle::Slot {
  Name name;
  const ResourcePath* path;
};

Bundle::Bundle(std::string path, Resources resources)
    : seed_(processSeed()), defaultTable_(nullptr), path_(std::move(path)), resources_(std::move(resources)) {
  std::size_t size = 64;
  while (size < resources_.size() * 4) size *= 2;
  slots_ = std::make_unique<Slot[]>(size);
  last_ = size - 1;
  for (const auto& resource : resources_) {
    const std::string_view fileName = resource->fileName();
    const std::size_t dot = fileName.rfind('.');
    if (dot == 0 || dot == std::string_view::npos) continue;  // without name or type, and so never asked for
    const Name name = nameOf(fileName.substr(0, dot), fileName.substr(dot + 1));
    std::size_t at = placeOf(name);
    while (slots_[at].path) at = (at + 1) & last_;
    slots_[at] = {name, resource.get()};
  }
  defaultTable_ = find("Localizable", "strings");
}

Bundle::~Bundle() = default;

const Bundle& Bundle::bundleForClass(const std::type_info& type) {
  return bundleOfCode(type, modulePlaces());
}

const Bundle& Bundle::bundleForClass(const std::type_info& type, std::string_view name) {
  if (!isFileName(name)) return withoutResources("");
  return bundleOfCode(type, {"share/" + std::string(name), ""});
}

const Bundle& Bundle::bundleOfCode(const std::type_info& type, const ResourcePlaces& places) {
  std::error_code failure;
  // The name of a type stands in the file that defines the type, like its code.
  const std::string codeFile = fileHolding(type.name(), failure);
  const std::string path = isPassing(failure) ? "" : resourceDirectory(codeFile, places, failure);
  return openOrThrow(path, failure);
}

const Bundle& Bundle::mainBundle() {
  std::error_code failure;
  return openOrThrow(fs::path(executablePath(failure)).parent_path().string(), failure);
}

/// The bundle at `path`, unless `failure` is a passing one.
const Bundle& Bundle::openOrThrow(const std::string& path, std::error_code failure) {
  const Bundle* const opened = isPassing(failure) ? nullptr : open(path, failure);
  if (isPassing(failure)) throw std::system_error(failure, path);
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
  std::error_code unused;
  return open(path, unused);
}

const Bundle* Bundle::initWithPath(const ResourcePath& path) {
  const Bundle* const opened = path.bundle_.load(std::memory_order_acquire);
  return opened ? opened : open(path);
}

const Bundle* Bundle::open(const ResourcePath& path) {
  std::error_code failure;
  const Bundle* const opened = open(path.string(), failure);
  // Not null: who opens it twice may find the second time that it cannot be opened at all, and take that for a change.
  if (isPassing(failure)) throw std::system_error(failure, path.string());
  path.bundle_.store(opened, std::memory_order_release);
  return opened;
}

const Bundle* Bundle::open(const std::string& path, std::error_code& failure) {
  static auto& bundles = *new BundlesByPath;  // never destroyed, like the lock
  const std::lock_guard lock(opening());
  if (const auto open = bundles.find(path); open != bundles.end()) return open->second.get();
  Resources resources;
  for (const DirectoryEntry& entry : entriesOf(path, failure)) {
    resources.push_back(std::make_unique<const ResourcePath>(path + "/" + entry.name, entry.isDirectory));
  }
  if (failure) return nullptr;
  return (bundles[path] = std::unique_ptr<const Bundle>(new Bundle(path, std::move(resources)))).get();
}

inline Bundle::Name Bundle::nameOf(std::string_view name, std::string_view type) const {
  return {wordOf(name, seed_), wordOf(type, seed_), std::uint64_t{name.size()} << 32 | type.size()};
}

inline std::size_t Bundle::placeOf(const Name& name) const {
  return static_cast<std::size_t>(hashOfWords(name.name, name.type, seed_)) & last_;
}

inline const ResourcePath* Bundle::find(std::string_view name, std::string_view type) const {
  if (name.empty()) return nullptr;
  const Name wanted = nameOf(name, type);
  for (std::size_t at = placeOf(wanted); slots_[at].path; at = (at + 1) & last_) {
    if (!(slots_[at].name == wanted)) continue;
    if (name.size() <= 8 && type.size() <= 8) return slots_[at].path;
    const std::string_view fileName = slots_[at].path->fileName();
    if (fileName.starts_with(name) && fileName.ends_with(type)) return slots_[at].path;
  }
  return nullptr;
}

const ResourcePath* Bundle::pathForResource(std::string_view name, std::string_view type) const {
  const ResourcePath* const resource = find(name, type);
  return resource && resource->isDirectory() ? resource : nullptr;
}

std::optional<std::string> Bundle::URLForResource(std::string_view name, std::string_view extension) const {
  const auto fileName = std::string(name).append(".").append(extension);
  if (path_.empty() || name.empty() || !isFileName(fileName)) return std::nullopt;
  std::string path = path_ + "/" + fileName;
  std::error_code notThere;
  if (!fs::exists(path, notThere)) return std::nullopt;
  return path;
}

std::string_view Bundle::localizedStringForKey(std::string_view key, std::string_view value,
                                               std::optional<std::string_view> table) const {
  const ResourcePath* const file = table ? find(*table, "strings") : defaultTable_;
  const StringTable* const open = file ? file->table() : nullptr;
  const std::optional<std::string_view> text = open ? open->find(key) : std::nullopt;
  if (text) return *text;
  return value.empty() ? key : value;
}

}  // namespace zk
