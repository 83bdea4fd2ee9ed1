#pragma once

#include "support/testserver.h"

#include <QString>
#include <QStringList>

namespace Walks {

/// The pages for walks, and their server.
class WalkedPages {
public:
  WalkedPages();

  static QStringList names();
  /// The name is one of `names`.
  QString address(const QString& name) const;
  /// A page without anything.
  QString emptyPage() const;

private:
  TestSupport::TestServer m_server;
};

}  // namespace Walks
