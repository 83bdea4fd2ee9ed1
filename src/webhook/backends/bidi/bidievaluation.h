#pragma once

#include <functional>

#include "webhook/browser/browserpage.h"
#include "webhook/browser/pagecall.h"
#include "webhook/protocol/bidi/bidi.h"

namespace Corvex::Webhook {

/// Gives the place for code in the document that is there now, or on its way, or the obstacle. Waits for it within the
/// call's time.
using PlaceNow = std::function<FunctionCallResult<Bidi::Place>(PageCall& call)>;

/// Evaluates `code` in a page within the call's time, in one request for a primitive or an exception and in two for an
/// object. Where the document went before the code came to it, the next one gets the code.
JavaScriptAnswer evaluateInPage(PageCall& call, const PlaceNow& placeNow, const QString& code);

/// Puts a text at the caret, in place of what is selected. Returns the error, or "".
QString insertText(PageCall& call, const PlaceNow& placeNow, const QString& text);

/// Puts files into the file input of the page, or of one of its frames, that the expression gives. Returns the error,
/// or "".
QString putFilesInto(PageCall& call, const QString& page, const PlaceNow& placeNow, const QString& referenceExpression,
                     const QStringList& paths);

}  // namespace Corvex::Webhook
