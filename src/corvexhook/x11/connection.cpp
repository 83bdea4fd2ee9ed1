#include "corvexhook/x11/connection.h"

#include <QByteArray>

#include <X11/Xlib.h>

namespace Corvex {

namespace {

XConnection* innermost = nullptr;
// What was there before ours, for the connections of others.
XErrorHandler othersErrorHandler = nullptr;
XIOErrorHandler othersLossHandler = nullptr;

QString whatToDo() {
  return QStringLiteral(" Run this program on a desktop, set DISPLAY to a running X server, or run it by xvfb-run.");
}

int onError(Display* display, XErrorEvent* event) {
  XConnection* const connection = XConnection::of(display);
  if (!connection) {
    return othersErrorHandler ? othersErrorHandler(display, event) : 0;
  }
  char text[256] = "";
  XGetErrorText(display, event->error_code, text, sizeof text);
  connection->noteError(QString::fromLocal8Bit(text));
  return 0;
}

int onLoss(Display* display) {
  XConnection* const connection = XConnection::of(display);
  if (!connection) {
    return othersLossHandler ? othersLossHandler(display) : 0;
  }
  connection->noteLoss();
  return 0;
}

// Xlib ends the process after a loss, unless a connection has a handler of its own for that.
void onLossEnd(Display*, void*) {}

void installHandlers() {
  othersErrorHandler = XSetErrorHandler(onError);
  othersLossHandler = XSetIOErrorHandler(onLoss);
}

/// Puts back what was there, unless somebody else has replaced ours meanwhile.
void removeHandlers() {
  const XErrorHandler errorHandler = XSetErrorHandler(othersErrorHandler);
  if (errorHandler != onError) {
    XSetErrorHandler(errorHandler);
  }
  const XIOErrorHandler lossHandler = XSetIOErrorHandler(othersLossHandler);
  if (lossHandler != onLoss) {
    XSetIOErrorHandler(lossHandler);
  }
}

}  // namespace

XConnection::XConnection() : m_outer(innermost) {
  if (!m_outer) {
    installHandlers();
  }
  innermost = this;
  open();
}

void XConnection::open() {
  const QByteArray name = qgetenv("DISPLAY");
  if (name.isEmpty()) {
    m_error = QStringLiteral("There is no X server for native input: DISPLAY is not set.") + whatToDo();
    return;
  }
  m_display = XOpenDisplay(name.constData());
  if (!m_display) {
    m_error = QStringLiteral("The X server '%1', which DISPLAY names, takes no connection for native input.")
                  .arg(QString::fromLocal8Bit(name)) +
              whatToDo();
    return;
  }
  XSetIOErrorExitHandler(m_display, onLossEnd, nullptr);
}

XConnection::~XConnection() {
  if (m_display) {
    XCloseDisplay(m_display);
  }
  innermost = m_outer;
  if (!m_outer) {
    removeHandlers();
  }
}

const QString& XConnection::finish() {
  if (isUsable()) {
    // Events are of no use here, and would only pile up.
    XSync(m_display, True);
  }
  return m_error;
}

XConnection* XConnection::of(const Display* display) {
  XConnection* connection = innermost;
  while (connection && connection->m_display != display) {
    connection = connection->m_outer;
  }
  return connection;
}

void XConnection::noteError(const QString& what) {
  if (m_error.isEmpty()) {
    m_error = QStringLiteral("The X server refused native input: %1").arg(what);
  }
}

void XConnection::noteLoss() {
  m_isLost = true;
  m_error = QStringLiteral("The connection to the X server was lost during native input.") + whatToDo();
}

}  // namespace Corvex
