#pragma once

#include "webhook/run/browsercontrol.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace Corvex::Webhook {

/// What the commands that look at one page have in common: `corvexweb COMMAND [options] URL`. The browser lives as long
/// as this object.
class PageCommand {
public:
  /// `description` says what the command does and what its exit codes mean.
  explicit PageCommand(const QString& description);

  /// For the options of the command itself, before `parse`.
  QCommandLineParser& parser() { return m_parser; }

  /// Has the browser's window shown unless --headless is given; before `parse`.
  void showWindow();
  /// What `open` does with the browser before it starts.
  void prepareWith(const std::function<void(BrowserControl&)>& prepare) { m_prepare = prepare; }

  /// Reads the arguments. Answers an exit code when the command is over with that, after saying why.
  std::optional<int> parse(const QStringList& arguments);

  /// Starts the browser and opens the page; dialogs that it shows meanwhile are dismissed. Answers an exit code when
  /// there is no page to look at, after saying why.
  std::optional<int> open();

  /// Complains that the command cannot go on; answers the exit code.
  int fail(const QString& sentence) const;

  /// What was opened; valid once `open` answered nothing.
  Connection& page() { return *m_browser->windows()->current(); }
  BrowserControl& browser() { return *m_browser; }
  /// The address as it was given.
  const QString& address() const { return m_address; }

private:
  QString load();
  /// Whether there were any.
  bool dismissDialogs();

  QCommandLineParser m_parser;
  SessionOptions m_session;
  QString m_command;
  QString m_address;
  int m_settleMs = 0;
  bool m_showsWindow = false;
  std::function<void(BrowserControl&)> m_prepare = [](BrowserControl&) {};
  std::unique_ptr<BrowserControl> m_browser;
};

}  // namespace Corvex::Webhook
