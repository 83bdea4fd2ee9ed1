#pragma once

#define TRACELIB_EXPORT __attribute__((visibility("default")))
