#pragma once

#include <QString>

#include <functional>
#include <system_error>

namespace Corvex::Webhook {

/// Prints what a command was asked for, as it is. Answers `exitCode`; when the output cannot be written, that is a
/// failure, which it complains about unless somebody only stopped reading.
int printOut(const QString& text, int exitCode);

/// What `printOut` does after such an error.
int outputFailed(const std::error_code& error, int exitCode);

/// Prints sentences for the user to standard error, made visible.
void printError(const QString& text);

/// Called before each of them, to make room on the terminal; null for nothing.
void beforeErrors(const std::function<void()>& makeRoom);

/// Has files that are opened later not take the places of standard streams that are closed, so that what is written to
/// these fails. To be called first of all.
void holdClosedStreams();

/// From now on what is logged goes to standard error and is made visible: it may quote pages and browsers.
void makeLogVisible();

}  // namespace Corvex::Webhook
