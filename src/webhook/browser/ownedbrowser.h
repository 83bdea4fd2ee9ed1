#pragma once

#include <QObject>
#include <QString>

namespace Corvex::Webhook {

/// A browser that ends with its session: one that was started here, or one that a server keeps for it.
class OwnedBrowser : public QObject {
  Q_OBJECT

public:
  ~OwnedBrowser() override;

  /// Ends it and removes what it leaves. A server is waited for, 2 s at the most. A second call does nothing.
  virtual void end() = 0;

  /// 0 for one on another machine.
  virtual qint64 process() const { return 0; }
  /// Where it keeps its files, "" for one on another machine.
  virtual QString directory() const { return {}; }
  /// What may explain that it ended before it could be driven, in sentences; "" when nothing does.
  virtual QString explanation() const { return {}; }

Q_SIGNALS:
  /// It ended by itself, or was given up for what it did.
  void lost(const QString& reason);
};

}  // namespace Corvex::Webhook
