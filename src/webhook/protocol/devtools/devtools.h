#pragma once

#include <QSize>
#include <QStringList>
#include <optional>

#include "webhook/protocol/dialect.h"
#include "webhook/protocol/dialog.h"

/// The DevTools protocol as data: what each request looks like and what its answer says. Keeps no state and sends
/// nothing.
namespace Corvex::Webhook::DevTools {

/// Messages of the form {id, sessionId, method, params} and {id, result} or {id, error: {code, message}}.
const Dialect& dialect();

// The browser.

Command version();
/// Reports every page from now on, existing ones included. A new one waits for resumePage().
Command reportPages();
Command createPage();
Command closePage(const QString& target);
Command leavePage(const QString& session);

/// A page that the browser reports.
struct Target {
  QString session;
  QString id;
  QString opener;  ///< Target id of the page that opened it, or "".
  QString kind;    ///< "page" for a page.
  QString url;
};
Target readTarget(const QJsonObject& attached);

// A page: watching and loading.

/// What is sent to a page first: events on, and scripts kept out of frames.
QVector<Command> watchPage();
Command resumePage();
/// `script` runs at document start of every new top document, in the global scope.
Command addStartScript(const QString& script);
/// Has the page take every server's certificate.
Command ignoreCertificateErrors();
Command navigate(const QString& url);
Command reload();
Command listHistory();
/// The page that is `steps` pages after the one that is shown, from the answer to listHistory(). Nothing when there is
/// none; the page that a window without an opener begins with counts as none.
struct HistoryEntry {
  int id = 0;
  QString url;
};
std::optional<HistoryEntry> readHistory(const QJsonObject& answer, int steps);
Command goToHistory(const HistoryEntry& entry);
Command stopLoading();

struct Navigation {
  QString document;         ///< Its number in the events; "" when only the fragment changed.
  QString errorCode;        ///< Such as "net::ERR_NAME_NOT_RESOLVED"; "" when the document came.
  bool isDownload = false;  ///< What came is a file, and the old document stays.
};
Navigation readNavigation(const QJsonObject& answer);

/// A new document in the top frame. Nothing for other frames.
struct NewDocument {
  QString document;
  QString url;
  bool isErrorPage = false;  ///< The browser's own, in place of one that could not be loaded.
};
std::optional<NewDocument> readNewDocument(const QJsonObject& event);

/// Whether a request for a document, from its event, is to replace the one of the top frame, which has its page's id.
bool leavesDocument(const QJsonObject& event, const QString& page);

// A page: evaluation.

/// Plain code in the top frame's own world. Handles that its answer holds live in `group`; the browser ends code that
/// runs longer than `timeoutMs`.
Command evaluate(const QString& code, const QString& group, int timeoutMs);
/// String(value) of the object behind a handle.
Command textOfObject(const QString& handle, const QString& group);
Command releaseGroup(const QString& group);
/// Ends the code that runs in the page; if none does, the next that runs.
Command terminate();

struct Outcome {
  bool thrown = false;
  QString text;    ///< String(value) if there is no handle, else a description.
  QString handle;  ///< Of an object or function, whose text only the page can give.
};
Outcome readOutcome(const QJsonObject& answer);

// A page: the other verbs.

Command metrics();
/// A ratio of 0 is the screen's.
Command setViewport(const QSize& size, double pixelRatio);
/// Zoom that the user or the driver set, from the answer to metrics().
double readZoom(const QJsonObject& answer);
/// `contents`: the answer to metrics() for the whole page, nothing for the part that is in view.
Command screenshot(const std::optional<QJsonObject>& contents);
QByteArray readScreenshot(const QJsonObject& answer);
Command setFiles(const QString& handle, const QStringList& paths);
Command answerDialog(bool accept, const QString& text);
Dialog readDialog(const QJsonObject& event);

}  // namespace Corvex::Webhook::DevTools
