#pragma once

/// Marks a name that the shared library shows to its users; all other names stay inside it.
#define ZK_EXPORT [[gnu::visibility("default")]]
