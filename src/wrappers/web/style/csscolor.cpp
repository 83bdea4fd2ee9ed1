#include "wrappers/web/style/csscolor.h"

#include "corvexhook/inspector.h"
#include "tracelib/tracepoint.h"
#include "wrappers/web/glue/castdelegate.h"
#include "wrappers/web/object/wraphtmlobject.h"

namespace Corvex::WebWrapper {

namespace {

using ColorResult = FunctionCallResult<CssColor>;

QString invalidColor(const char* property) {
  return QStringLiteral("Invalid color, cannot access %1 property").arg(QLatin1String(property));
}

template <typename T>
FunctionCallResult<T> component(const CssColor& color, const char* property, T value) {
  return color.isValid() ? FunctionCallResult<T>::success(value)
                         : FunctionCallResult<T>::failure(invalidColor(property));
}

FunctionCallResult<int> red(CssColor& color) { return component<int>(color, "red", color.red()); }
FunctionCallResult<int> green(CssColor& color) { return component<int>(color, "green", color.green()); }
FunctionCallResult<int> blue(CssColor& color) { return component<int>(color, "blue", color.blue()); }
FunctionCallResult<double> alpha(CssColor& color) { return component(color, "alpha", color.alpha()); }

template <auto Set, typename T>
QString assign(CssColor& color, const FunctionCallResult<T>& value) {
  if (!color.isValid()) {
    return QStringLiteral("Cannot set properties on invalid color.");
  }
  if (!value.failed()) {
    (color.*Set)(value.value);
  }
  return value.error;
}

QString setRed(CssColor& color, int value) { return assign<&CssColor::setRed>(color, verifyAndGetColorValue(value)); }

QString setGreen(CssColor& color, int value) {
  return assign<&CssColor::setGreen>(color, verifyAndGetColorValue(value));
}

QString setBlue(CssColor& color, int value) { return assign<&CssColor::setBlue>(color, verifyAndGetColorValue(value)); }

QString setAlpha(CssColor& color, double value) {
  return assign<&CssColor::setAlpha>(color, verifyAndGetAlphaValue(value));
}

/// The first component that is wrong, as the script is told of it.
QString errorOf(std::initializer_list<std::pair<const char*, QString>> components) {
  for (const auto& [name, error] : components) {
    if (!error.isEmpty()) {
      TRACE_POINT("WebObject",
                  QStringLiteral("Error constructing CssColor for %1: %2").arg(QLatin1String(name), error));
      return QStringLiteral("Error for %1 component: %2").arg(QLatin1String(name), error);
    }
  }
  return QString();
}

ColorResult fromRgba(int red, int green, int blue, double alpha) {
  const FunctionCallResult<quint8> r = verifyAndGetColorValue(red);
  const FunctionCallResult<quint8> g = verifyAndGetColorValue(green);
  const FunctionCallResult<quint8> b = verifyAndGetColorValue(blue);
  const FunctionCallResult<double> a = verifyAndGetAlphaValue(alpha);
  const QString error = errorOf({{"red", r.error}, {"green", g.error}, {"blue", b.error}, {"alpha", a.error}});
  return error.isEmpty() ? ColorResult::success(CssColor(r.value, g.value, b.value, a.value))
                         : ColorResult::failure(error);
}

ColorResult fromRgb(int red, int green, int blue) { return fromRgba(red, green, blue, 1.0); }

constexpr PropertyRow properties[] = {
    property<&CssColor::isValid>("isValid"), property<&red, &setRed>("red"),       property<&green, &setGreen>("green"),
    property<&blue, &setBlue>("blue"),       property<&alpha, &setAlpha>("alpha"),
};

constexpr MethodRow methods[] = {
    staticMethod<&fromRgb>("fromRgb", "red", "green", "blue"),
    staticMethod<&fromRgba>("fromRgba", "red", "green", "blue", "alpha"),
};

QString readOnlyError(const QString& property) {
  return QStringLiteral("Cannot set read-only property '%1' on CssColor").arg(property);
}

QString unknownError(const QString& property) {
  return QStringLiteral("Invalid property of CssColor accessed: %1").arg(property);
}

FunctionCallResult<QString> textOf(const SharedPtr<Object>& color) { return unwrapCssColor(color).text(); }

FunctionCallResult<unsigned int> extractNextNumber(const QString& text, QChar end, int* position) {
  using Number = FunctionCallResult<unsigned int>;
  const int found = text.indexOf(end, *position);
  if (found < 0) {
    return Number::failure(QStringLiteral("End character '%1' not found in '%2' starting at %3.")
                               .arg(QString(end), text, QString::number(*position)));
  }
  const QString digits = text.mid(*position, found - *position);
  *position = found + 1;
  bool isNumber = false;
  const unsigned int number = digits.toUInt(&isNumber);
  return isNumber ? Number::success(number)
                  : Number::failure(QStringLiteral("Could not convert '%1' to unsigned int").arg(digits));
}

}  // namespace

const ClassMembers CssColorClass =
    classMembers(properties, methods).withReadOnlyError(readOnlyError).withUnknownError(unknownError);

FunctionCallResult<QString> CssColor::text() const {
  if (!m_valid) {
    return FunctionCallResult<QString>::failure(QStringLiteral("Invalid color cannot be converted to a string."));
  }
  return FunctionCallResult<QString>::success(
      QStringLiteral("rgba(%1,%2,%3,%4)").arg(m_red).arg(m_green).arg(m_blue).arg(m_alpha));
}

FunctionCallResult<quint8> verifyAndGetColorValue(int value) {
  return value >= 0 && value < 256
             ? FunctionCallResult<quint8>::success(static_cast<quint8>(value))
             : FunctionCallResult<quint8>::failure(
                   QStringLiteral("Invalid argument, value needs to be between 0 and 255 (inclusive), was: %1")
                       .arg(value));
}

FunctionCallResult<double> verifyAndGetAlphaValue(double value) {
  return value >= 0 && value <= 1
             ? FunctionCallResult<double>::success(value)
             : FunctionCallResult<double>::failure(
                   QStringLiteral("Invalid argument, alpha value needs to be between 0 and 1 (inclusive), was: %1")
                       .arg(value));
}

const Class* objectModelCssColorClass() { return scriptClassByName(CssColor::ScriptName); }

SharedPtr<Object> wrapCssColor(const CssColor& color) {
  return wrapAndTransferOwnership(new CssColor(color), QLatin1String(CssColor::ScriptName));
}

CssColor unwrapCssColor(const SharedPtr<Object>& object) {
  void* native = nullptr;
  const bool isColor = object && object->isA(objectModelCssColorClass()) && object->get(&native);
  return isColor ? *static_cast<CssColor*>(native) : CssColor();
}

Argument cssColorArg(const QString& name) { return Argument(name, objectModelCssColorClass()); }

QString convertRgbToHashHex(const QString& text) {
  int position = text.indexOf(QLatin1Char('(')) + 1;
  if (position == 0) {
    TRACE_POINT("WebObject", QStringLiteral("Unable to convert the color '%1': it has no components").arg(text));
    return text;
  }
  const struct {
    const char* name;
    char end;
  } components[] = {{"red", ','}, {"green", ','}, {"blue", ')'}};
  QString hash = QStringLiteral("#");
  for (const auto& component : components) {
    const FunctionCallResult<unsigned int> number = extractNextNumber(text, QLatin1Char(component.end), &position);
    if (number.failed()) {
      TRACE_POINT("WebObject",
                  QStringLiteral("Unable to convert %1 value: ").arg(QLatin1String(component.name)) + number.error);
      return text;
    }
    hash += QStringLiteral("%1").arg(number.value, 2, 16, QLatin1Char('0'));
  }
  return hash;
}

void createCssColorDelegates() { new CastToStringDelegate(QLatin1String(CssColor::ScriptName), textOf); }

}  // namespace Corvex::WebWrapper
