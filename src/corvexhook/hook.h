#pragma once

#include "corvexhook/export.h"
#include "corvexhook/nativeinterface.h"

#include <QString>
#include <QVariantList>

#include <functional>

namespace Corvex {

/// Arguments of a message to the test runner.
using ArgumentList = QVariantList;

/// The process-wide road to the test runner.
class CORVEXHOOK_EXPORT Hook {
public:
  using Receiver = std::function<void(int, const QString&, const ArgumentList&)>;

  /// Valid from the start of the program.
  static Hook* hook;

  /// The number of whoever answers where no other one is meant.
  int defaultConnection() const { return 0; }
  /// The number of a connected spy, or -1.
  int spyConnection() const { return m_spyConnection; }
  void setSpyConnection(int connection) { m_spyConnection = connection; }

  /// Hands a message to the receiver; without one it is dropped.
  void send(int connection, const QString& text, const ArgumentList& arguments);
  void setReceiver(const Receiver& receiver) { m_receiver = receiver; }

  /// Native input, that to this machine's screen unless another one was set. Never null: where there is no screen, each
  /// operation says so.
  NativeInterface* nativeInterface() const { return m_nativeInterface ? m_nativeInterface : &screenInput(); }
  /// The new one stays its owner's; null puts the screen's back.
  void setNativeInterface(NativeInterface* nativeInterface) { m_nativeInterface = nativeInterface; }

private:
  Receiver m_receiver;
  int m_spyConnection = -1;
  NativeInterface* m_nativeInterface = nullptr;
};

}  // namespace Corvex
