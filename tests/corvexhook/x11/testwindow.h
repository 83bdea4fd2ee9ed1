#pragma once

#include <QByteArray>
#include <QSocketNotifier>
#include <QStringList>

#include <memory>

struct _XDisplay;

namespace TestSupport {

/// A window without anything in it, which notes the input that it gets.
class TestWindow {
public:
  explicit TestWindow(const QByteArray& displayName);
  ~TestWindow() { close(); }

  TestWindow(const TestWindow&) = delete;
  TestWindow& operator=(const TestWindow&) = delete;

  /// Ends the connection to the server before the object.
  void close();

  _XDisplay* display() const { return m_display; }

  void setProcess(int pid);
  void setClass(const char* name);
  void setType(const char* type);

  /// The symbols of the keys that were pressed since the last call, such as "Ctrl+a", or the buttons, such as "button 1
  /// at 5,6". What is on its way is waited for.
  QStringList takeInput();
  /// All symbols of the keyboard, by which two states of it can be compared.
  QStringList keyboard() const;

private:
  void readEvents();

  _XDisplay* m_display;
  unsigned long m_window = 0;
  std::unique_ptr<QSocketNotifier> m_notifier;
  QStringList m_input;
};

}  // namespace TestSupport
