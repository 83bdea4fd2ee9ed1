#pragma once

#include "webhook/browser/browserpage.h"
#include "webhook/browser/pagecall.h"
#include "webhook/protocol/bidi.h"

namespace Corvex::Webhook {

/// Evaluates `code` in a page within the call's time, in one request for a primitive or an exception and in two for an
/// object. Takes the document that is there now if the certain one of the place is gone.
JavaScriptAnswer evaluateInPage(PageCall& call, const Bidi::Place& place, const QString& code);

/// Puts files into the file input of the page, or of one of its frames, that the expression gives. Returns the error,
/// or "".
QString putFilesInto(PageCall& call, const Bidi::Place& place, const QString& referenceExpression,
                     const QStringList& paths);

}  // namespace Corvex::Webhook
