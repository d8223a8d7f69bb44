#pragma once

// POSIX functions that the tests use and that have other names on Windows. Included before each test for Windows.

#include <cstddef>
#include <cstdlib>

#include <malloc.h>

inline int setenv(const char* name, const char* value, int) {
  return _putenv_s(name, value);
}

inline int unsetenv(const char* name) {
  return _putenv_s(name, "");
}

/// The bytes that are allocated on the heap.
struct HeapUse {
  std::size_t uordblks, hblkhd;
};

inline HeapUse mallinfo2() {
  HeapUse info = {};
  _HEAPINFO block = {};
  while (_heapwalk(&block) == _HEAPOK) {
    if (block._useflag == _USEDENTRY) info.uordblks += block._size;
  }
  return info;
}
