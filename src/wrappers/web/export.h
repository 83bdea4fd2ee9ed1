#pragma once

/// Marks the entry points of the web wrapper; all else in its library is hidden.
#define CORVEX_WEBWRAPPER_EXPORT __attribute__((visibility("default")))
