#include <ZKStrings/platform/system/File.h>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zk {

namespace {

constexpr off_t kLargestFile = off_t{256} << 20;

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  int number() const { return number_; }

 private:
  int number_;
};

/// Fills `bytes` from the file, and shortens them when the file turns out to be shorter. False when reading
/// fails.
bool readInto(std::string& bytes, int file) {
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    const ssize_t got = read(file, bytes.data() + filled, bytes.size() - filled);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return false;
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
  }
  bytes.resize(filled);
  return true;
}

}  // namespace

std::optional<std::string> contentsOfFile(const std::string& path) {
  if (path.find('\0') != std::string::npos) return std::nullopt;
  // Without O_NONBLOCK, opening a FIFO would wait for a writer.
  const Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (file.number() < 0) return std::nullopt;
  struct stat status {};
  if (fstat(file.number(), &status) != 0) return std::nullopt;
  if (!S_ISREG(status.st_mode) || status.st_size > kLargestFile) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  if (!readInto(bytes, file.number())) return std::nullopt;
  return bytes;
}

}  // namespace zk
