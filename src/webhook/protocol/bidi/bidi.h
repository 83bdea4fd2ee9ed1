#pragma once

#include <QSize>
#include <QStringList>
#include <optional>

#include "webhook/protocol/dialect.h"
#include "webhook/protocol/dialog.h"

/// WebDriver BiDi as data: what each request looks like and what its answer says. Keeps no state and sends nothing.
namespace Corvex::Webhook::Bidi {

/// Messages of the form {id, method, params}, {type: "success", id, result}, {type: "error", id, error, message} and
/// {type: "event", method, params}. The session of an event is the page or frame that it names; of one that tells that
/// pages or frames come and go it is "", the browser itself.
const Dialect& dialect();

// The browser.

/// What a session must be asked for: dialogs stay open until they are answered.
QJsonObject neededCapabilities();
Command newSession(bool ignoreCertificateErrors);
Command watchPages();
Command listPages();
Command createPage();
Command closePage(const QString& page);
/// Gives the page the focus that the window in front has.
Command activatePage(const QString& page);

struct BrowserInfo {
  QString name;
  QString version;
};
/// From the capabilities that a server answers with.
BrowserInfo readBrowser(const QJsonObject& capabilities);

/// A page, or a frame in one.
struct Context {
  QString id;
  QString parent;  ///< "" for a page.
  QString opener;  ///< The page whose script opened it, or "".
  QString url;
};
Context readContext(const QJsonObject& info);
/// The pages that listPages() answers with.
QVector<Context> readPages(const QJsonObject& answer);

// A page: loading.

/// `script` runs at document start of every new document of the page, or of all pages when `page` is "", frames
/// included: in the global scope, and before the page's security policy takes hold.
Command addStartScript(const QString& page, const QString& script);
/// Answered as soon as the document takes the place of the old one.
Command navigate(const QString& page, const QString& url);
QString readNavigation(const QJsonObject& answer);
Command reload(const QString& page);
/// Answered at once, whatever becomes of it.
Command goThroughHistory(const QString& page, int steps);
bool isHistoryMissing(const QString& refusal);
/// Whether it is what a browser's first window shows before it is told what to show.
bool isStartPage(const QString& url);
/// Why a refused navigation did not come about, in short.
QString readNavigationError(const QString& refusal);

/// Number and address of the document that an event is about.
struct Document {
  QString navigation;
  QString url;
};
Document readDocument(const QJsonObject& event);
/// Whether it is what Firefox shows in place of a page whose process ended.
bool isCrashNotice(const Document& document);
/// Whether it is what Firefox shows in place of a page that it could not load.
bool isErrorPage(const Document& document);

// A page: evaluation.

/// The place for code in a new document; "" for places of another kind.
QString readNewRealm(const QJsonObject& event);
QString readGoneRealm(const QJsonObject& event);

/// Where code runs: in the document that a page or frame shows when the code comes to it, or in a certain one.
struct Place {
  QString context;
  QString realm;  ///< Of the certain document, or "".
};
Command evaluate(const Place& place, const QString& code);
/// String(value) of the object behind a handle; a symbol's text, too.
Command textOfObject(const QString& realm, const QString& handle);
Command release(const QString& realm, const QString& handle);
/// The window that the element behind a handle belongs to. A frame's element is left there for handedOverElement().
Command handOverElement(const QString& realm, const QString& handle);
Command handedOverElement(const QString& frame);

struct Outcome {
  bool thrown = false;
  QString text;      ///< String(value) if there is no handle. String(exception) if it threw.
  QString handle;    ///< Of what is no primitive.
  QString sharedId;  ///< Of an element or another node.
  QString window;    ///< Of a window: the page or frame that it is.
  QString realm;     ///< Where it was evaluated.
};
Outcome readOutcome(const QJsonObject& answer);
/// Firefox refuses to tell of an exception whose stack was not recorded: each document but the one that is asked has
/// only its first fifty recorded. The refusal holds the exception's text; this is the answer that should have come,
/// nothing for other refusals.
std::optional<QJsonObject> readRefusedException(const QString& refusal);

// A page: the other verbs.

/// A ratio of 0 leaves it as it is.
Command setViewport(const QString& page, const QSize& size, double pixelRatio);
Command screenshot(const QString& page, bool wholePage);
QByteArray readScreenshot(const QJsonObject& answer);
Command setFiles(const QString& pageOrFrame, const QString& sharedId, const QStringList& paths);
Command answerDialog(const QString& page, bool accept, const QString& text);
Dialog readDialog(const QJsonObject& event);

// Browsers built on Chromium let DevTools requests through.

/// Has crashes of pages reported.
Command watchCrashes();
/// The DevTools session of the page that crashed; nothing for other events.
std::optional<QString> readCrash(const QString& method, const QJsonObject& event);
Command devToolsSession(const QString& page);
/// "" when the browser has no such thing.
QString readDevToolsSession(const QJsonObject& answer);
Command throughDevTools(const QString& session, const Command& command);
QJsonObject readThroughDevTools(const QJsonObject& answer);

}  // namespace Corvex::Webhook::Bidi
