#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <functional>

#include "webhook/protocol/transport/transport.h"

/// The other side of a connection as a script: notes what is sent and says what it is told to say.
class FakeTransport : public Corvex::Webhook::Transport {
public:
  void send(const QByteArray& message) override {
    sent.append(QJsonDocument::fromJson(message).object());
    if (onSend) {
      onSend(sent.last());
    }
  }
  void close() override {
    discardInbox();
    isClosed = true;
  }

  void receive(const QByteArray& text) { receiveTogether({text}); }
  /// All of them at once, as from one read.
  void receiveTogether(const QList<QByteArray>& texts) {
    for (const QByteArray& text : texts) {
      enqueue(text);
    }
    deliver();
  }
  void lose(const QString& reason) {
    noteClosed(reason);
    deliver();
  }

  /// Receives it as soon as events are served.
  void receiveLater(const QByteArray& text) {
    QMetaObject::invokeMethod(
        this, [this, text] { receive(text); }, Qt::QueuedConnection);
  }

  QList<QJsonObject> sent;
  std::function<void(const QJsonObject& message)> onSend;
  bool isClosed = false;
};
