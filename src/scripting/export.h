#pragma once

#define CORVEXSCRIPTING_EXPORT __attribute__((visibility("default")))
