#include "wrappers/web/page/exceptiontext.h"

namespace Corvex::WebWrapper {

const char* const catchAsError =
    "  } catch( e ) {\n"
    "    return JSON.stringify({'error': {'name': e['name'], 'message': e['message'], 'file': e['fileName'], "
    "'line': e['lineNumber'], 'stack': e['stack']}});";

QString exceptionText(const Json::Value& e, const ExceptionForm& form) {
  const auto part = [&](const char* before, const char* member) {
    return QLatin1String(before) + form.textOf(e.get(member, Json::Value()));
  };
  QString text = part("", "name") + part(": ", "message");
  if (e.isMember("file")) {
    text += part(form.beforeFile, "file");
    if (e.isMember("line")) {
      text += part(form.beforeLine, "line");
    }
  }
  text += QLatin1String(form.afterPlace);
  return e.isMember("stack") ? text + part(form.beforeStack, "stack") : text;
}

}  // namespace Corvex::WebWrapper
