#include "webhook/cli/pagecommand.h"

#include "corvexhook/inspector.h"
#include "shared/wait.h"
#include "webhook/cli/browseroptions.h"
#include "webhook/cli/commandline.h"
#include "webhook/cli/commandoptions.h"
#include "webhook/cli/output.h"

#include <QFileInfo>

namespace Corvex::Webhook {

namespace {

// A page may show the next dialog when one is answered, and never stop.
const int mostDialogs = 20;

// How soon a lost browser ends the time that a page is given.
const int settleIntervalMs = 50;

const QCommandLineOption settleOption(QStringLiteral("wait"),
                                      QStringLiteral("Let the page work for so long once it is loaded."),
                                      QStringLiteral("seconds"));
const QCommandLineOption headlessOption(QStringLiteral("headless"), QStringLiteral("Show no window."));

}  // namespace

PageCommand::PageCommand(const QString& description) {
  m_parser.setApplicationDescription(description);
  addBrowserOptions(m_parser);
  m_parser.addOption(settleOption);
  m_parser.addPositionalArgument(QStringLiteral("URL"), QStringLiteral("The page: an address, or an HTML file."));
}

void PageCommand::showWindow() {
  m_showsWindow = true;
  m_parser.addOption(headlessOption);
}

std::optional<int> PageCommand::parse(const QStringList& arguments) {
  m_command = arguments.value(0);
  if (const std::optional<int> exitCode = parseOptions(m_parser, arguments)) {
    return exitCode;
  }
  QString error = readBrowserOptions(m_parser, &m_session);
  m_session.headed |= m_showsWindow && m_session.remoteUrl.isEmpty() && !m_parser.isSet(headlessOption);
  if (error.isEmpty() && m_parser.isSet(settleOption)) {
    error = readSeconds(m_parser, settleOption, &m_settleMs);
  }
  QStringList addresses = m_parser.positionalArguments();
  addresses.removeAll(QString());
  if (error.isEmpty() && addresses.size() != 1) {
    error = addresses.isEmpty() ? QStringLiteral("The page's URL is missing.")
                                : QStringLiteral("It takes one URL, not %1.").arg(addresses.size());
  }
  if (!error.isEmpty()) {
    return wrongUsage(m_command, error);
  }
  m_address = addresses.first();
  return std::nullopt;
}

std::optional<int> PageCommand::open() {
  m_browser = std::make_unique<BrowserControl>(m_session);
  m_prepare(*m_browser);
  Inspector::self()->setDefaultTimeout(m_session.defaultTimeoutMs);
  const QString error = load();
  return error.isEmpty() ? std::nullopt : std::optional<int>(fail(error));
}

QString PageCommand::load() {
  const QFileInfo file(m_address);
  const bool isFile = file.isFile();
  QString error = m_browser->startBrowser(isFile ? file.absoluteFilePath() : m_address);
  if (dismissDialogs() && m_browser->whyNotAskPage().isEmpty()) {
    // Loaded all the same, but for the dialog.
    const WebWrapper::JavaScriptAnswer answer = page().evaluateJS(QStringLiteral("0"), 0);
    error = answer.succeeded() ? QString() : answer.text;
  }
  if (!error.isEmpty()) {
    // What was meant as a file has been taken for an address.
    const bool mayBeFile = !isFile && !m_address.contains(QLatin1Char(':')) && !m_browser->hadBrowserFailure();
    return mayBeFile ? error + QStringLiteral(" There is no file '%1' either.").arg(m_address) : error;
  }
  if (m_settleMs > 0) {
    poll(m_settleMs, settleIntervalMs, [this] { return !m_browser->whyNoWindow().isEmpty(); });
    dismissDialogs();
  }
  return m_browser->whyNotAskPage();
}

bool PageCommand::dismissDialogs() {
  int dismissed = 0;
  while (dismissed < mostDialogs && m_browser->whyNoWindow().isEmpty() && page().openDialog() &&
         page().answerDialog(false, QString()).isEmpty()) {
    ++dismissed;
    // An answer means that the page has gone on, as far as its next dialog.
    page().evaluateJS(QStringLiteral("0"), 0);
  }
  return dismissed > 0;
}

int PageCommand::fail(const QString& sentence) const {
  printError(QStringLiteral("corvexweb %1: %2\n").arg(m_command, sentence));
  return m_browser->hadBrowserFailure() ? ExitCode::BrowserFailed : ExitCode::Failed;
}

}  // namespace Corvex::Webhook
