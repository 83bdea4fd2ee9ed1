#pragma once

#include "webhook/browser/browserpage.h"
#include "webhook/browser/pagecall.h"

namespace Corvex::Webhook {

/// Evaluates `code` within the call's time, in one request for a primitive and in two for an object or an exception.
JavaScriptAnswer evaluateCode(PageCall& call, const QString& code);

/// Puts files into the file input that the expression gives. Returns the error, or "".
QString setFilesOfInput(PageCall& call, const QString& referenceExpression, const QStringList& paths);

}  // namespace Corvex::Webhook
