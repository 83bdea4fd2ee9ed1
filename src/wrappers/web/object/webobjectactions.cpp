#include "shared/wait.h"
#include "wrappers/web/object/webobject.h"

namespace Corvex::WebWrapper {

namespace {

enum ModifierMask { AltMask = 1, ControlMask = 2, ShiftMask = 4, RightButtonMask = 16 };
const int rightButton = 2;

QString flag(int modifierState, ModifierMask mask) { return QLatin1String(modifierState & mask ? "true" : "false"); }

FunctionCallResult<QString> invocationResult(const JavaScriptAnswer& answer, const QString& call) {
  return answer.succeeded() ? FunctionCallResult<QString>::success(answer.text)
                            : FunctionCallResult<QString>::failure(
                                  QStringLiteral("Error invoking function '%1': %2").arg(call, answer.text));
}

}  // namespace

FunctionCallResult<QString> HTML_Object::invoke(const char* method) const {
  const QString name = QString::fromUtf8(method);
  return invocationResult(evaluateJS(reference + QLatin1Char('.') + name + QLatin1String("();")), name);
}

FunctionCallResult<QString> HTML_Object::invoke(const char* method, const char* argument) const {
  const QString call = QStringLiteral("%1(%2)").arg(QString::fromUtf8(method), QString::fromUtf8(argument));
  return invocationResult(evaluateJS(reference + QLatin1Char('.') + call + QLatin1Char(';')), call);
}

FunctionCallResult<QString> HTML_Object::invoke(const char* method, const char* argument1,
                                                const char* argument2) const {
  const QString call = QStringLiteral("%1(%2, %3)")
                           .arg(QString::fromUtf8(method), QString::fromUtf8(argument1), QString::fromUtf8(argument2));
  return invocationResult(evaluateJS(reference + QLatin1Char('.') + call + QLatin1Char(';')), call);
}

QString HTML_Object::deferredCode(const QString& statement) {
  return QLatin1String("setTimeout(function(e){") + statement + QLatin1String("}, 100);");
}

QString HTML_Object::getClickCode(const QString& function, const QString& reference, int modifierState, int x, int y,
                                  int button) {
  const int effectiveButton = modifierState & RightButtonMask ? rightButton : button;
  const QStringList arguments = {reference,
                                 flag(modifierState, ControlMask),
                                 flag(modifierState, ShiftMask),
                                 flag(modifierState, AltMask),
                                 QString::number(x),
                                 QString::number(y),
                                 QString::number(effectiveButton)};
  return deferredCode(function + QLatin1Char('(') + arguments.join(QLatin1String(", ")) + QLatin1String(");"));
}

QString HTML_Object::clickOn(const char* reference, int modifierState, int x, int y, int button) {
  return getClickCode(QStringLiteral("__corvex__click"), QString::fromUtf8(reference), modifierState, x, y, button);
}

QString HTML_Object::dblClickOn(const char* reference, int modifierState, int x, int y) {
  return getClickCode(QStringLiteral("__corvex__dblclick"), QString::fromUtf8(reference), modifierState, x, y, 1);
}

JavaScriptAnswer HTML_Object::runClickCode(const QString& code) const {
  const JavaScriptAnswer answer = evaluateJS(code);
  gentleSleep(settleTimeMs);
  return answer;
}

QString HTML_Object::click(int modifierState, int x, int y, int button) {
  const JavaScriptAnswer answer = runClickCode(clickOn(reference.toUtf8().constData(), modifierState, x, y, button));
  return answer.succeeded() ? QString()
                            : QStringLiteral("Error occurred while clicking on object: %1").arg(answer.text);
}

QString HTML_Object::doubleClick(int modifierState, int x, int y) {
  const JavaScriptAnswer answer = runClickCode(dblClickOn(reference.toUtf8().constData(), modifierState, x, y));
  return answer.succeeded()
             ? QString()
             : QStringLiteral(
                   "Error occurred while double-clicking on object at relative position %1/%2 with modifier "
                   "%3: %4")
                   .arg(QString::number(x), QString::number(y), QString::number(modifierState), answer.text);
}

QString HTML_Object::openContextMenu() {
  const JavaScriptAnswer answer =
      evaluateJS(deferredCode(QStringLiteral("__corvex__openContextMenu(%1);").arg(reference)));
  return answer.succeeded() ? QString() : QStringLiteral("Error opening context menu: %1").arg(answer.text);
}

}  // namespace Corvex::WebWrapper
