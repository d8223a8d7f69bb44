#pragma once

/// Marks a name that the shared library shows to its users; all other names stay inside it.
#define ZK_EXPORT __attribute__((visibility("default")))
