#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/formats/StringTable.h>
#include <ZKStrings/platform/system/CodeLocation.h>
#include <ZKStrings/platform/text/Bytes.h>

#include <map>
#include <mutex>
#include <optional>
#include <utility>

#include <dirent.h>
#include <sys/stat.h>

namespace zk {

namespace {

bool isNamed(std::string_view fileName, std::string_view name, std::string_view type) {
  return fileName.starts_with(name) && fileName.ends_with(type);
}

bool isDirectoryEntry(const dirent& entry, const std::string& path) {
  if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK) return entry.d_type == DT_DIR;
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// Everything in the directory at `path`; nothing when it cannot be listed.
std::optional<std::vector<std::unique_ptr<const ResourcePath>>> listing(const std::string& path) {
  const auto close = [](DIR* open) { closedir(open); };
  const std::unique_ptr<DIR, decltype(close)> directory(opendir(path.c_str()), close);
  if (!directory) return std::nullopt;
  std::vector<std::unique_ptr<const ResourcePath>> resources;
  while (const dirent* entry = readdir(directory.get())) {
    const std::string_view name = entry->d_name;
    if (name == "." || name == "..") continue;
    std::string full = path + "/" + entry->d_name;
    const bool isDirectory = isDirectoryEntry(*entry, full);
    resources.push_back(std::make_unique<const ResourcePath>(std::move(full), isDirectory));
  }
  return resources;
}

/// Guards the opening of bundles and tables; those that are open are found without it.
std::recursive_mutex& opening() {
  static auto& mutex = *new std::recursive_mutex;  // never destroyed: a lookup may come as late as it likes
  return mutex;
}

/// The nearest directory share/ZKStrings at or above `directory`.
std::string resourceDirectory(std::string directory) {
  constexpr int kLevels = 3;
  for (int level = 0; level < kLevels; ++level, directory = directoryOf(directory)) {
    const std::string candidate = directory + "/share/ZKStrings";
    struct stat status {};
    if (stat(candidate.c_str(), &status) == 0) return candidate;
  }
  return {};
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

const StringTable& ResourcePath::table() const {
  if (const StringTable* open = table_.load(std::memory_order_acquire)) return *open;
  const std::lock_guard lock(opening());
  if (!table_.load()) table_.store(new StringTable(StringTable::inFile(path_)), std::memory_order_release);
  return *table_.load();
}

Bundle::Bundle(std::string path, Resources resources)
    : path_(std::move(path)), resources_(std::move(resources)), defaultTable_(nullptr) {
  std::size_t size = 64;
  while (size < resources_.size() * 4) size *= 2;
  index_.resize(size);
  for (const auto& resource : resources_) {
    const std::string_view fileName = resource->fileName();
    const std::size_t dot = fileName.rfind('.');
    if (dot == 0 || dot == std::string_view::npos) continue;  // without name or type, and so never asked for
    const Name name = nameOf(fileName.substr(0, dot), fileName.substr(dot + 1));
    std::size_t at = hashOf(name) % size;
    while (index_[at].path) at = (at + 1) % size;
    index_[at] = {name, resource.get()};
  }
  defaultTable_ = URLForResource("Localizable", "strings");
}

Bundle::~Bundle() = default;

const Bundle* Bundle::initWithPath(const ResourcePath& path) {
  if (const Bundle* open = path.bundle_.load(std::memory_order_acquire)) return open;
  const Bundle* const opened = initWithPath(path.string());
  path.bundle_.store(opened, std::memory_order_release);
  return opened;
}

const Bundle* Bundle::initWithPath(const std::string& path) {
  static auto& bundles =
      *new std::map<std::string, std::unique_ptr<const Bundle>>;  // never destroyed, like the lock
  const std::lock_guard lock(opening());
  if (const auto open = bundles.find(path); open != bundles.end()) return open->second.get();
  std::optional<Resources> resources = listing(path);
  if (!resources) return nullptr;
  return (bundles[path] = std::unique_ptr<const Bundle>(new Bundle(path, *std::move(resources)))).get();
}

const Bundle& Bundle::inDirectory(const std::string& path) {
  const Bundle* const opened = initWithPath(path);
  return opened ? *opened : *new Bundle(path, {});
}

const Bundle& Bundle::bundleForClass(const std::type_info& type) {
  // The name of a type stands in the file that defines the type, like its code.
  return inDirectory(resourceDirectory(directoryOf(fileHolding(type.name()))));
}

const Bundle& Bundle::mainBundle() {
  return inDirectory(directoryOf(executablePath()));
}

inline Bundle::Name Bundle::nameOf(std::string_view name, std::string_view type) {
  return {wordOf(name), wordOf(type), std::uint64_t{name.size()} << 32 | type.size()};
}

inline std::size_t Bundle::hashOf(const Name& name) {
  constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15;
  return static_cast<std::size_t>(((name.name ^ name.type) * kSpread) >> 32);
}

inline const ResourcePath* Bundle::find(std::string_view name, std::string_view type) const {
  if (name.empty()) return nullptr;
  const Name wanted = nameOf(name, type);
  const std::size_t last = index_.size() - 1;
  for (std::size_t at = hashOf(wanted) & last; index_[at].path; at = (at + 1) & last) {
    if (!(index_[at].name == wanted)) continue;
    const bool isExact = name.size() <= 8 && type.size() <= 8;
    if (isExact || isNamed(index_[at].path->fileName(), name, type)) return index_[at].path;
  }
  return nullptr;
}

const ResourcePath* Bundle::URLForResource(std::string_view name, std::string_view extension) const {
  return find(name, extension);
}

const ResourcePath* Bundle::pathForResource(std::string_view name, std::string_view type) const {
  const ResourcePath* const resource = find(name, type);
  return resource && resource->isDirectory() ? resource : nullptr;
}

std::string_view Bundle::localizedStringForKey(std::string_view key, std::string_view value,
                                               std::optional<std::string_view> table) const {
  const ResourcePath* const file = table ? URLForResource(*table, "strings") : defaultTable_;
  const std::optional<std::string_view> text = file ? file->table().find(key) : std::nullopt;
  if (text) return *text;
  return value.empty() ? key : value;
}

}  // namespace zk
