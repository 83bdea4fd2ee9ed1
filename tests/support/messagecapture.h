#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace TestSupport {

/// Collects what goes through Qt's message logger while it lives, instead of printing it.
class MessageCapture {
public:
  MessageCapture() {
    messages().clear();
    categories().clear();
    m_previous = qInstallMessageHandler(&MessageCapture::take);
  }
  ~MessageCapture() { qInstallMessageHandler(m_previous); }

  MessageCapture(const MessageCapture&) = delete;
  MessageCapture& operator=(const MessageCapture&) = delete;

  static QStringList& messages() {
    static QStringList list;
    return list;
  }
  /// The category of each message.
  static QStringList& categories() {
    static QStringList list;
    return list;
  }

private:
  static void take(QtMsgType, const QMessageLogContext& context, const QString& text) {
    messages().append(text);
    categories().append(QString::fromUtf8(context.category));
  }

  QtMessageHandler m_previous;
};

}  // namespace TestSupport
