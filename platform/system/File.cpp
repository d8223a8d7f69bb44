#include <ZKStrings/platform/system/Failure.h>
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
  std::error_code unused;
  return contentsOfFile(path, unused);
}

std::optional<std::string> contentsOfFile(const std::string& path, std::error_code& failure) {
  const auto fail = [&](std::error_code reason) {
    failure = reason;
    return std::nullopt;
  };
  failure.clear();
  if (path.find('\0') != std::string::npos)
    return fail(make_error_code(std::errc::no_such_file_or_directory));
  // Without O_NONBLOCK, opening a FIFO would wait for a writer.
  const Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (file.number() < 0) return fail(lastFailure());
  struct stat status {};
  if (fstat(file.number(), &status) != 0) return fail(lastFailure());
  if (!S_ISREG(status.st_mode)) return fail(make_error_code(std::errc::not_supported));
  if (status.st_size > kLargestFile) return fail(make_error_code(std::errc::file_too_large));
  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  if (!readInto(bytes, file.number())) return fail(lastFailure());
  return bytes;
}

}  // namespace zk
