#pragma once

#include <version>

#if __cplusplus < 202002L
#error "ZKStrings needs C++20: compile with -std=c++20 or newer"
#include "a newer C++ than this"  // no such file: ends the compilation here, before the errors that would follow
#endif

/// Marks a name that the shared library exports. All other names are hidden. For users of the Windows DLL, CMake and
/// pkg-config define ZK_IMPORTS.
#if !defined(_WIN32)
#define ZK_EXPORT [[gnu::visibility("default")]]
#elif defined(ZK_IMPORTS)
#define ZK_EXPORT [[gnu::dllimport]]
#else
#define ZK_EXPORT [[gnu::dllexport]]
#endif

/// Marks the accessors of another catalogue. They belong to the program or library that links them, not to the module.
#if defined(_WIN32)
#define ZK_EXPORT_ACCESSORS
#else
#define ZK_EXPORT_ACCESSORS ZK_EXPORT
#endif

/// Marks a function whose result refers to its object, or a parameter that the result refers to. Clang then warns if
/// the result outlives them.
#if __has_cpp_attribute(clang::lifetimebound)
#define ZK_REFERRED_TO [[clang::lifetimebound]]
#else
#define ZK_REFERRED_TO
#endif

// The layout of public types depends on the standard library and its mode. If a program is built in a different mode
// from the module, it does not link: it needs a function that the module does not define. The function's name says why.
#if defined(_LIBCPP_VERSION)
#define ZK_STANDARD_LIBRARY ZKStringsMustBeBuiltWithLibcxxLikeThisProgram
#elif defined(_GLIBCXX_DEBUG)
#define ZK_STANDARD_LIBRARY ZKStringsMustBeBuiltWith_GLIBCXX_DEBUG_LikeThisProgram
#else
#define ZK_STANDARD_LIBRARY ZKStringsMustBeBuiltWithLibstdcxxLikeThisProgram
#endif
namespace zk::internal {
ZK_EXPORT void ZK_STANDARD_LIBRARY();
[[gnu::used]] inline void (*const standardLibrary)() = &ZK_STANDARD_LIBRARY;
}  // namespace zk::internal
