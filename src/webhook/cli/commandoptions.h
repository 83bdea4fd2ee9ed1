#pragma once

#include <QCommandLineParser>
#include <QStringList>

#include <optional>

namespace Corvex::Webhook {

/// Reads the options of a command. Answers an exit code when the command is over with that: help was asked for and
/// printed, or the usage is wrong and was complained about.
std::optional<int> parseOptions(QCommandLineParser& parser, const QStringList& arguments);

/// Complains about wrong usage of a command; answers the exit code.
int wrongUsage(const QString& command, const QString& complaint);

}  // namespace Corvex::Webhook
