#pragma once

// Functions of POSIX that the tests use and Windows names differently. Included before each test for Windows.

#include <cstdlib>

inline int setenv(const char* name, const char* value, int) {
  return _putenv_s(name, value);
}

inline int unsetenv(const char* name) {
  return _putenv_s(name, "");
}
