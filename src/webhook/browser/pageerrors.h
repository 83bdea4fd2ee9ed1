#pragma once

#include <QString>
#include <QStringList>

#include "webhook/browser/browserpage.h"

/// The sentences by which a page's calls fail, the same for every back end.
namespace Corvex::Webhook::PageErrors {

QString browserLost(const QString& reason);
/// Before it could be driven. `explanation` is what else is known, in sentences, or "".
QString endedEarly(const QString& reason, const QString& explanation);
QString pageClosed();
/// The browser opened one that it did not tell of.
QString pageNotReported();
QString pageCrashed();
QString pageReplaced();
QString noAnswerWithin(int milliseconds);
QString dialogOpen(const Dialog& dialog);
QString noDialogOpen();
QString refused(const QString& browsersWords);

/// `errorCode` in the browser's words, such as "net::ERR_CONNECTION_REFUSED" or "NS_ERROR_CONNECTION_REFUSED".
QString notLoaded(const QString& url, const QString& errorCode);
QString notLoadedWithin(const QString& url, int milliseconds);
/// The browser showed a page of its own in its place, and did not tell why.
QString errorPageLoaded(const QString& url);
/// `steps` are those of BrowserPage::goThroughHistory().
QString noSuchHistory(int steps);
QString notReachedWithin(int steps, int milliseconds);

/// Why a file of this machine cannot be given to a page, "" when it can.
QString whyNotUpload(const QString& path);
QString noFileInput(const QString& referenceExpression);
/// `paths` are those of another machine.
QString filesRefused(const QStringList& paths, const QString& browsersWords);
QString noScreenshot();
QString noCookies(const QString& url);
/// `browsersWords` may be empty.
QString cookieRefused(const QString& name, const QString& browsersWords);

}  // namespace Corvex::Webhook::PageErrors
