#pragma once

#include "wrappers/web/recording/eventpayload.h"

#include <QDeadlineTimer>
#include <QString>
#include <QStringList>

namespace Corvex::Webhook {

/// Tells the moves from page to page that a person made by the browser's own means from those that pages made.
class PageMoves {
public:
  /// The calls that make the same move: none, "openUrl", "reload", or "goBack" or "goForward" some times.
  struct Calls {
    const char* function = nullptr;
    int times = 0;
  };

  /// A page moves itself to another document: the next one that is there is no move of a person.
  void noteLeaving();
  /// A page is there. The first one of all is where the recording began.
  Calls noteArrived(const WebWrapper::EventMap& data);

private:
  QDeadlineTimer m_pageMoves{0};
  QString m_current;
  /// The entries of histories, in the order in which they came to be.
  QStringList m_entries;
};

}  // namespace Corvex::Webhook
