#include "webhook/endpoint/endpointreply.h"

#include <vector>

namespace Corvex::Webhook {

namespace {

struct Header {
  const char* name;
  QByteArray value;
};

using Headers = std::vector<Header>;

struct WantedHeader {
  const char* name;
  QByteArrayList RequestHead::*list;
};

const WantedHeader wantedHeaders[] = {
    {"Host", &RequestHead::hosts},
    {"Origin", &RequestHead::origins},
    {"Referer", &RequestHead::referers},
    {"Content-Length", &RequestHead::lengths},
    {"Transfer-Encoding", &RequestHead::transferEncodings},
};

MHD_Result noteHeader(void* context, MHD_ValueKind, const char* name, const char* value) {
  for (const WantedHeader& wanted : wantedHeaders) {
    if (qstricmp(wanted.name, name) == 0) {
      (static_cast<RequestHead*>(context)->*wanted.list).append(value);
    }
  }
  return MHD_YES;
}

MHD_Result send(MHD_Connection* connection, unsigned status, const QByteArray& body, const Headers& headers) {
  MHD_Response* response = MHD_create_response_from_buffer(std::size_t(body.size()),
                                                           const_cast<char*>(body.constData()), MHD_RESPMEM_MUST_COPY);
  if (!response) {
    return MHD_NO;
  }
  for (const Header& header : headers) {
    MHD_add_response_header(response, header.name, header.value.constData());
  }
  const MHD_Result result = MHD_queue_response(connection, status, response);
  MHD_destroy_response(response);
  return result;
}

Headers commonHeaders(const QByteArray& origin) {
  Headers headers{{"Cache-Control", "no-store"}, {"Vary", "Origin"}};
  if (!origin.isEmpty()) {
    headers.push_back({"Access-Control-Allow-Origin", origin});
    // For pages that make all their requests carry credentials.
    headers.push_back({"Access-Control-Allow-Credentials", "true"});
  }
  return headers;
}

}  // namespace

RequestHead headOf(MHD_Connection* connection, const char* method, const QByteArray& target) {
  RequestHead head{method, target};
  MHD_get_connection_values(connection, MHD_HEADER_KIND, &noteHeader, &head);
  return head;
}

MHD_Result sendReply(MHD_Connection* connection, unsigned status, const QByteArray& body, const QByteArray& origin) {
  Headers headers = commonHeaders(origin);
  headers.push_back({"Content-Type", "text/plain; charset=utf-8"});
  return send(connection, status, body, headers);
}

MHD_Result sendPreflightReply(MHD_Connection* connection, const QByteArray& origin) {
  const char* asked = MHD_lookup_connection_value(connection, MHD_HEADER_KIND, "Access-Control-Request-Headers");
  Headers headers = commonHeaders(origin);
  headers.push_back({"Access-Control-Allow-Methods", "GET, POST"});
  // Pages that wrap XMLHttpRequest add headers of their own.
  headers.push_back({"Access-Control-Allow-Headers", asked ? asked : "Content-Type"});
  headers.push_back({"Access-Control-Allow-Private-Network", "true"});
  headers.push_back({"Access-Control-Allow-Local-Network", "true"});
  return send(connection, MHD_HTTP_NO_CONTENT, {}, headers);
}

}  // namespace Corvex::Webhook
