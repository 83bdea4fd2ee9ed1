#pragma once

#include "webhook/browser/browsersession.h"

#include <QCommandLineParser>
#include <QString>

namespace Corvex::Webhook {

/// Adds the options that say which browser a command takes and how long it waits: --browser, --headed, --attach,
/// --remote, --capabilities, --ignore-certificate-errors, --proxy, --timeout.
void addBrowserOptions(QCommandLineParser& parser);

/// Reads them. The error says what is wrong with them; empty when all is well.
QString readBrowserOptions(const QCommandLineParser& parser, SessionOptions* options);

/// Reads an option that takes a number of seconds, as milliseconds. The error says what it takes.
QString readSeconds(const QCommandLineParser& parser, const QCommandLineOption& option, int* milliseconds);

}  // namespace Corvex::Webhook
