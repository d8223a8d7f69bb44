#pragma once

#include <string>
#include <string_view>

namespace zk::tools {

/// What a catalogue is called: its accessors are functions of `nameSpace::name`, and its resources lie in
/// share/`name`. A catalogue of one's own says so in a file:
///
///     {"name": "Texts", "namespace": "myapp"}
///
/// Without the file, a catalogue is the module's own.
struct CatalogueName {
  static constexpr const char* kFile = "catalogue/catalogue.json";
  static constexpr const char* kModule = "ZKStrings";

  std::string name = kModule;
  std::string nameSpace = "zk";  ///< empty for none; "myapp::texts" for one in another

  [[nodiscard]] bool isModule() const { return name == kModule; }
  [[nodiscard]] std::string headerFile() const { return "catalogue/" + name + ".h"; }
  [[nodiscard]] std::string sourceFile() const { return "catalogue/" + name + ".cpp"; }

  /// Reads the name of the catalogue in the project at `root`. Throws `CommandFailed` when its file cannot be
  /// read or is wrong.
  [[nodiscard]] static CatalogueName read(const std::string& root);
  /// The same of the text of such a file.
  [[nodiscard]] static CatalogueName parse(std::string_view json);

  /// What keeps this from naming a catalogue of one's own, and what to do; empty when nothing does.
  [[nodiscard]] std::string fault() const;
  /// The text of the file that says it.
  [[nodiscard]] std::string toJson() const;
};

}  // namespace zk::tools
