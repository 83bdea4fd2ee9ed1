#include "webhook/inspect/askforeach.h"

#include "webhook/pages/connection.h"
#include "webhook/protocol/inpagetext.h"
#include "wrappers/web/object/webobject.h"
#include "wrappers/web/object/wraphtmlobject.h"

namespace Corvex::Webhook {

namespace {

const unsigned int callTimeoutMs = 60000;

}  // namespace

FunctionCallResult<QStringList> askForEach(Connection& page, const char* question, const ObjectList& objects) {
  QString calls;
  for (const SharedPtr<Object>& object : objects) {
    calls += QStringLiteral("add(function () { return %1; });\n").arg(WebWrapper::retrieveObject(object)->reference);
  }
  const QString code = inPageText("asklines.js").arg(QLatin1String(question), calls);
  const WebWrapper::JavaScriptAnswer answer = page.evaluateJS(code, callTimeoutMs);
  QStringList lines = answer.text.split(QLatin1Char('\n'));
  if (!answer.succeeded()) {
    return FunctionCallResult<QStringList>::failure(answer.text.isEmpty() ? QStringLiteral("the page did not say why")
                                                                          : answer.text);
  }
  if (lines.size() != objects.size() + 1) {
    return FunctionCallResult<QStringList>::failure(
        QStringLiteral("it gave %1 answers for %2 objects.").arg(lines.size() - 1).arg(objects.size()));
  }
  lines.removeLast();
  return FunctionCallResult<QStringList>::success(lines);
}

}  // namespace Corvex::Webhook
