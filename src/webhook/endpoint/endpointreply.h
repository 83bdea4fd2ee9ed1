#pragma once

#include "webhook/endpoint/endpointpolicy.h"

#include <microhttpd.h>
#include <QByteArray>

namespace Corvex::Webhook {

/// The request's lines that decide whether it is let in.
RequestHead headOf(MHD_Connection* connection, const char* method, const QByteArray& target);

/// Replies with `body` as plain text in UTF-8. The pages of `origin` may read it; nobody may if that is empty.
MHD_Result sendReply(MHD_Connection* connection, unsigned status, const QByteArray& body, const QByteArray& origin);

/// Tells the browser that the request which it asks about may come.
MHD_Result sendPreflightReply(MHD_Connection* connection, const QByteArray& origin);

}  // namespace Corvex::Webhook
