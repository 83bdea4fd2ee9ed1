#include "corvexhook/x11/windows.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <cstring>
#include <memory>

namespace Corvex {

namespace {

struct XDeleter {
  void operator()(void* data) const { XFree(data); }
};

template <typename T>
using XOwned = std::unique_ptr<T, XDeleter>;

}  // namespace

unsigned long firstNumberOf(Display* display, XWindow window, const char* property, unsigned long type) {
  Atom found = 0;
  int format = 0;
  unsigned long count = 0, left = 0;
  unsigned char* data = nullptr;
  const int status = XGetWindowProperty(display, window, XInternAtom(display, property, False), 0, 1, False, type,
                                        &found, &format, &count, &left, &data);
  const XOwned<unsigned char> owned(data);
  unsigned long number = 0;
  // Xlib gives numbers of 32 bits as longs.
  if (status == Success && data && format == 32 && count > 0) {
    std::memcpy(&number, data, sizeof number);
  }
  return number;
}

QByteArray classOf(Display* display, XWindow window) {
  XClassHint hint = {};
  if (!XGetClassHint(display, window, &hint)) {
    return QByteArray();
  }
  const XOwned<char> name(hint.res_name);
  const XOwned<char> cls(hint.res_class);
  return QByteArray(cls.get());
}

std::vector<XWindow> childrenOf(Display* display, XWindow window) {
  Window root = 0, parent = 0;
  Window* children = nullptr;
  unsigned int count = 0;
  if (!XQueryTree(display, window, &root, &parent, &children, &count) || !children) {
    return {};
  }
  const XOwned<Window> owned(children);
  return std::vector<XWindow>(children, children + count);
}

bool hasDialogType(Display* display, XWindow window) {
  const Atom dialog = XInternAtom(display, "_NET_WM_WINDOW_TYPE_DIALOG", False);
  return dialog && firstNumberOf(display, window, "_NET_WM_WINDOW_TYPE", XA_ATOM) == dialog;
}

}  // namespace Corvex
