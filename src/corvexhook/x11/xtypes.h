#pragma once

// The few types of Xlib that this folder's headers name, so that Xlib's own headers, whose macros take such names as
// None, Bool and Status from everyone, stay within its sources.

struct _XDisplay;
typedef struct _XDisplay Display;
typedef unsigned long KeySym;
typedef unsigned char KeyCode;
