#include "corvexhook/x11/firefoxdialog.h"

#include "corvexhook/x11/connection.h"
#include "corvexhook/x11/windows.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <vector>

namespace Corvex {

namespace {

/// The windows that say that they are a process's.
class FindWindowsForPid {
public:
  FindWindowsForPid(Display* display, int pid) : m_display(display), m_pid(static_cast<unsigned long>(pid)) {}

  /// Looks at the window and all below it.
  void search(XWindow window) {
    std::vector<XWindow> open{window};
    while (!open.empty()) {
      const XWindow next = open.back();
      open.pop_back();
      if (firstNumberOf(m_display, next, "_NET_WM_PID", XA_CARDINAL) == m_pid) {
        m_found.push_back(next);
      }
      const std::vector<XWindow> children = childrenOf(m_display, next);
      open.insert(open.end(), children.rbegin(), children.rend());
    }
  }

  const std::vector<XWindow>& found() const { return m_found; }

private:
  Display* m_display;
  unsigned long m_pid;
  std::vector<XWindow> m_found;
};

bool isTransient(Display* display, XWindow window) {
  Window owner = 0;
  return XGetTransientForHint(display, window, &owner) == 0 && owner;
}

}  // namespace

bool hasFirefoxDialog(int pid) {
  const XConnection connection;
  Display* const display = connection.display();
  if (!display || pid <= 0) {
    return false;
  }
  FindWindowsForPid windows(display, pid);
  windows.search(DefaultRootWindow(display));
  return std::any_of(windows.found().begin(), windows.found().end(), [display](XWindow window) {
    return classOf(display, window) == "Dialog" || hasDialogType(display, window) || isTransient(display, window);
  });
}

}  // namespace Corvex
