#pragma once

/// Marks what the shared library that holds this code shows to its users; all else is hidden.
#define CORVEX_EXPORT __attribute__((visibility("default")))
