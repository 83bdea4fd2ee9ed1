#pragma once

#include "corvexhook/x11/xtypes.h"

#include <QByteArray>

#include <vector>

namespace Corvex {

/// A window of the X server; any may go at any time, and then has no properties and no children.
using XWindow = unsigned long;

/// The first number of a property, an atom or a cardinal as `type` says; 0 where a window has none.
unsigned long firstNumberOf(Display* display, XWindow window, const char* property, unsigned long type);

/// The class part of WM_CLASS.
QByteArray classOf(Display* display, XWindow window);

/// From the lowest to the topmost.
std::vector<XWindow> childrenOf(Display* display, XWindow window);

/// Whether the window is of a type that is meant for dialogs.
bool hasDialogType(Display* display, XWindow window);

}  // namespace Corvex
