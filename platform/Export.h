#pragma once

/// Marks a name that the shared library shows to its users; all other names stay inside it.
#define ZK_EXPORT [[gnu::visibility("default")]]

/// Marks a function whose result refers to its object, or a parameter that the result refers to: where the
/// compiler can tell (Clang), it warns of a result that is kept for longer.
#if __has_cpp_attribute(clang::lifetimebound)
#define ZK_REFERRED_TO [[clang::lifetimebound]]
#else
#define ZK_REFERRED_TO
#endif
