#include <ZKStrings/platform/system/windows/Text.h>
#include <ZKStrings/tools/command/Subcommands.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <string>
#include <vector>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

int _dowildcard = 0;  // texts may have asterisks, which are not names of files

int wmain(int argc, wchar_t** argv) {
  for (std::FILE* const stream : {stdout, stderr}) {
    _setmode(_fileno(stream), _O_BINARY);
    std::setvbuf(stream, nullptr, _IOFBF, 1 << 16);  // a console cannot join the bytes of a character
  }
  const UINT codePage = GetConsoleOutputCP();
  SetConsoleOutputCP(CP_UTF8);
  std::vector<std::string> arguments;
  std::transform(argv + 1, argv + argc, std::back_inserter(arguments), zk::toUTF8);
  const int status = zk::tools::runCommandLine(arguments);
  SetConsoleOutputCP(codePage);  // the console outlives the command
  return status;
}
