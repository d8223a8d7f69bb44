#include <ZKStrings/tools/exchange/POReference.h>

#include <charconv>
#include <cstddef>

#include <fmt/format.h>

namespace zk::tools {

std::string referenceTo(std::string_view key) {
  constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-.";
  std::string reference;
  for (const char character : key) {
    const bool isPlain = kPlain.find(character) != std::string_view::npos;
    reference +=
        isPlain ? std::string(1, character) : fmt::format("%{:02X}", static_cast<unsigned char>(character));
  }
  return reference;
}

std::string keyNamedBy(std::string_view reference) {
  std::string key;
  for (std::size_t at = 0; at < reference.size(); ++at) {
    const std::string_view digits = reference.substr(at + 1, 2);
    unsigned byte = 0;
    const bool isByte = reference[at] == '%' && digits.size() == 2 &&
                        std::from_chars(digits.data(), digits.data() + 2, byte, 16).ptr == digits.data() + 2;
    key += isByte ? static_cast<char>(byte) : reference[at] == '+' ? ' ' : reference[at];
    if (isByte) at += 2;
  }
  return key;
}

}  // namespace zk::tools
