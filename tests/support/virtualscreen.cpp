#include "support/virtualscreen.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/keysym.h>
#include <signal.h>
#include <sys/prctl.h>

// Names that Xlib takes from everyone.
#undef Bool
#undef None

#include <QDeadlineTimer>
#include <memory>

namespace TestSupport {

namespace {

const int startTimeoutMs = 20000;

struct ImageDeleter {
  void operator()(XImage* image) const { XDestroyImage(image); }
};

struct WindowListDeleter {
  void operator()(Window* list) const { XFree(list); }
};

// A window may close between two questions about it: that is an answer, and no reason to end the program.
int ignoreXError(Display*, XErrorEvent*) { return 0; }

QByteArray readDisplayNumber(QProcess& server) {
  QByteArray line;
  const QDeadlineTimer deadline(startTimeoutMs);
  while (!line.endsWith('\n') && server.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) {
    line += server.readAllStandardOutput();
  }
  return line.trimmed();
}

void sendKey(Display* display, Window window, KeyCode code, unsigned int state, int type) {
  XEvent event = {};
  event.xkey.type = type;
  event.xkey.display = display;
  event.xkey.window = window;
  event.xkey.root = DefaultRootWindow(display);
  event.xkey.time = CurrentTime;
  event.xkey.same_screen = True;
  event.xkey.keycode = code;
  event.xkey.state = state;
  XSendEvent(display, window, True, type == KeyPress ? KeyPressMask : KeyReleaseMask, &event);
}

}  // namespace

void DependentProcess::setupChildProcess() { prctl(PR_SET_PDEATHSIG, SIGTERM); }

VirtualScreen::VirtualScreen(QSize size) {
  const QString screen = QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height());
  m_server.setStandardErrorFile(QProcess::nullDevice());
  m_server.start(QStringLiteral("Xvfb"),
                 {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                  screen, QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")});
  const QByteArray number = readDisplayNumber(m_server);
  if (number.isEmpty()) {
    m_error = QStringLiteral("Xvfb gave no screen. Install it (on Debian: apt-get install xvfb). It says: %1")
                  .arg(m_server.errorString());
    return;
  }
  m_display = ':' + number;
  XSetErrorHandler(ignoreXError);
  m_connection = XOpenDisplay(m_display.constData());
  if (!m_connection) {
    m_error = QStringLiteral("The screen %1 takes no connection.").arg(QString::fromLatin1(m_display));
  }
}

VirtualScreen::~VirtualScreen() { end(); }

void VirtualScreen::end() {
  if (m_connection) {
    XCloseDisplay(m_connection);
    m_connection = nullptr;
  }
  m_server.terminate();
  if (m_server.state() != QProcess::NotRunning && !m_server.waitForFinished(startTimeoutMs)) {
    m_server.kill();
    m_server.waitForFinished();
  }
}

QImage VirtualScreen::grab() const {
  const int screen = DefaultScreen(m_connection);
  const int width = DisplayWidth(m_connection, screen);
  const int height = DisplayHeight(m_connection, screen);
  const std::unique_ptr<XImage, ImageDeleter> grabbed(XGetImage(m_connection, DefaultRootWindow(m_connection), 0, 0,
                                                                static_cast<unsigned int>(width),
                                                                static_cast<unsigned int>(height), AllPlanes, ZPixmap));
  if (!grabbed || grabbed->bits_per_pixel != 32) {
    return QImage();
  }
  return QImage(reinterpret_cast<const uchar*>(grabbed->data), width, height, grabbed->bytes_per_line,
                QImage::Format_RGB32)
      .copy();
}

unsigned long VirtualScreen::largestWindow() const {
  Window root = 0, parent = 0, largest = 0;
  Window* children = nullptr;
  unsigned int count = 0;
  if (!XQueryTree(m_connection, DefaultRootWindow(m_connection), &root, &parent, &children, &count)) {
    return 0;
  }
  const std::unique_ptr<Window, WindowListDeleter> owned(children);
  long largestArea = 100 * 100;
  for (unsigned int i = 0; i < count; ++i) {
    XWindowAttributes attributes = {};
    const bool isThere = XGetWindowAttributes(m_connection, children[i], &attributes) != 0;
    const long area = static_cast<long>(attributes.width) * attributes.height;
    if (isThere && attributes.map_state == IsViewable && area > largestArea) {
      largest = children[i];
      largestArea = area;
    }
  }
  return largest;
}

bool VirtualScreen::placeWindow(const QRect& place) const {
  const Window window = largestWindow();
  if (!window) {
    return false;
  }
  XMoveResizeWindow(m_connection, window, place.x(), place.y(), static_cast<unsigned int>(place.width()),
                    static_cast<unsigned int>(place.height()));
  XSetInputFocus(m_connection, window, RevertToPointerRoot, CurrentTime);
  XSync(m_connection, False);
  return true;
}

bool VirtualScreen::pressWithControl(const char* keyName) const {
  const Window window = largestWindow();
  const KeyCode code = XKeysymToKeycode(m_connection, XStringToKeysym(keyName));
  if (!window || !code) {
    return false;
  }
  sendKey(m_connection, window, code, ControlMask, KeyPress);
  sendKey(m_connection, window, code, ControlMask, KeyRelease);
  XSync(m_connection, False);
  return true;
}

}  // namespace TestSupport
