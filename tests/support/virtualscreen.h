#pragma once

#include <QByteArray>
#include <QImage>
#include <QProcess>
#include <QRect>
#include <QSize>
#include <QString>

struct _XDisplay;

namespace TestSupport {

/// A program that ends with this one, whatever ends it.
class DependentProcess : public QProcess {
protected:
  void setupChildProcess() override;
};

/// A screen of its own in memory, without a window manager, on a display number that is free. It ends with the object.
class VirtualScreen {
public:
  /// Starts it and waits until it takes connections. `error()` says why there is none.
  explicit VirtualScreen(QSize size);
  ~VirtualScreen();

  VirtualScreen(const VirtualScreen&) = delete;
  VirtualScreen& operator=(const VirtualScreen&) = delete;

  const QString& error() const { return m_error; }
  /// What DISPLAY has to say for programs that shall appear here.
  const QByteArray& display() const { return m_display; }

  /// Ends the server before the object, however many connections it has.
  void end();

  /// What the screen shows now, pixel by pixel.
  QImage grab() const;

  /// Does what a window manager would do: gives the largest window its place, its size and the keyboard. False while
  /// there is no window.
  bool placeWindow(const QRect& place) const;

  /// Presses and releases a key in the largest window, such as "plus", with Control held down.
  bool pressWithControl(const char* keyName) const;

private:
  unsigned long largestWindow() const;

  DependentProcess m_server;
  QByteArray m_display;
  QString m_error;
  _XDisplay* m_connection = nullptr;
};

}  // namespace TestSupport
