#include "corvexhook/x11/testwindow.h"

#include <QObject>

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace TestSupport {

namespace {

QString described(const XKeyEvent& event) {
  KeySym symbol = 0;
  unsigned int used = 0;
  XkbLookupKeySym(event.display, static_cast<KeyCode>(event.keycode), event.state, &used, &symbol);
  // Xlib leaks the names of these.
  const QString name =
      symbol >> 24 == 1
          ? QLatin1Char('U') + QString::number(symbol & 0xffffff, 16).toUpper().rightJustified(4, QLatin1Char('0'))
          : QString::fromLatin1(XKeysymToString(symbol));
  const unsigned int more = event.state & ~used;
  return QLatin1String(event.state & ControlMask ? "Ctrl+" : "") + QLatin1String(more & Mod1Mask ? "Alt+" : "") +
         QLatin1String(more & ShiftMask ? "Shift+" : "") + name;
}

}  // namespace

TestWindow::TestWindow(const QByteArray& displayName) : m_display(XOpenDisplay(displayName.constData())) {
  if (!m_display) {
    return;
  }
  m_window = XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 100, 50, 400, 300, 0, 0, 0);
  XSelectInput(m_display, m_window, KeyPressMask | ButtonPressMask | StructureNotifyMask);
  XMapWindow(m_display, m_window);
  for (XEvent event = {}; event.type != MapNotify;) {
    XNextEvent(m_display, &event);
  }
  XSetInputFocus(m_display, m_window, RevertToPointerRoot, CurrentTime);
  XSync(m_display, False);
  m_notifier = std::make_unique<QSocketNotifier>(ConnectionNumber(m_display), QSocketNotifier::Read);
  QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { readEvents(); });
}

void TestWindow::close() {
  m_notifier.reset();
  if (m_display) {
    XCloseDisplay(m_display);
    m_display = nullptr;
  }
}

void TestWindow::setProcess(int pid) {
  const long number = pid;
  XChangeProperty(m_display, m_window, XInternAtom(m_display, "_NET_WM_PID", False), XA_CARDINAL, 32, PropModeReplace,
                  reinterpret_cast<const unsigned char*>(&number), 1);
  XSync(m_display, False);
}

void TestWindow::setClass(const char* name) {
  XClassHint hint = {const_cast<char*>("test"), const_cast<char*>(name)};
  XSetClassHint(m_display, m_window, &hint);
  XSync(m_display, False);
}

void TestWindow::setType(const char* type) {
  const Atom value = XInternAtom(m_display, type, False);
  XChangeProperty(m_display, m_window, XInternAtom(m_display, "_NET_WM_WINDOW_TYPE", False), XA_ATOM, 32,
                  PropModeReplace, reinterpret_cast<const unsigned char*>(&value), 1);
  XSync(m_display, False);
}

QStringList TestWindow::takeInput() {
  XSync(m_display, False);
  readEvents();
  QStringList input;
  input.swap(m_input);
  return input;
}

QStringList TestWindow::keyboard() const {
  int lowest = 0, highest = 0, perKey = 0;
  XDisplayKeycodes(m_display, &lowest, &highest);
  KeySym* const symbols = XGetKeyboardMapping(m_display, static_cast<KeyCode>(lowest), highest - lowest + 1, &perKey);
  QStringList list;
  for (int code = lowest; code <= highest; ++code) {
    QString row;
    for (int i = 0; i < perKey; ++i) {
      const KeySym symbol = symbols[(code - lowest) * perKey + i];
      row += symbol ? QString::number(symbol, 16) + QLatin1Char(' ') : QString();
    }
    list << QString::number(code) + QLatin1Char(':') + row;
  }
  XFree(symbols);
  return list;
}

void TestWindow::readEvents() {
  while (XPending(m_display)) {
    XEvent event = {};
    XNextEvent(m_display, &event);
    if (event.type == MappingNotify) {
      XRefreshKeyboardMapping(&event.xmapping);
    } else if (event.type == KeyPress) {
      m_input << described(event.xkey);
    } else if (event.type == ButtonPress) {
      m_input
          << QStringLiteral("button %1 at %2,%3").arg(event.xbutton.button).arg(event.xbutton.x).arg(event.xbutton.y);
    }
  }
}

}  // namespace TestSupport
