#pragma once

#define CORVEXHOOK_EXPORT __attribute__((visibility("default")))
