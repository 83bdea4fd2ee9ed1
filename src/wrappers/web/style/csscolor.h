#pragma once

#include "shared/functioncallresult.h"
#include "wrappers/web/glue/scriptclass.h"

namespace Corvex::WebWrapper {

/// A colour of a style. The invalid one has no components.
class CssColor {
public:
  static constexpr const char* ScriptName = "CssColor";

  CssColor() = default;
  CssColor(quint8 red, quint8 green, quint8 blue, double alpha = 1.0)
      : m_red(red), m_green(green), m_blue(blue), m_alpha(alpha), m_valid(true) {}

  bool isValid() const { return m_valid; }
  quint8 red() const { return m_red; }
  quint8 green() const { return m_green; }
  quint8 blue() const { return m_blue; }
  /// From 0, transparent, to 1.
  double alpha() const { return m_alpha; }

  void setRed(quint8 red) { m_red = red; }
  void setGreen(quint8 green) { m_green = green; }
  void setBlue(quint8 blue) { m_blue = blue; }
  void setAlpha(double alpha) { m_alpha = alpha; }

  /// "rgba(1,2,3,0.5)"
  FunctionCallResult<QString> text() const;

private:
  quint8 m_red = 0;
  quint8 m_green = 0;
  quint8 m_blue = 0;
  double m_alpha = 0;
  bool m_valid = false;
};

/// Whole numbers from 0 to 255, and numbers from 0 to 1.
FunctionCallResult<quint8> verifyAndGetColorValue(int value);
FunctionCallResult<double> verifyAndGetAlphaValue(double value);

/// The script class "CssColor".
const Class* objectModelCssColorClass();
SharedPtr<Object> wrapCssColor(const CssColor& color);
/// The invalid colour for an object of another class.
CssColor unwrapCssColor(const SharedPtr<Object>& object);
Argument cssColorArg(const QString& name);

/// "rgb(1, 2, 3)" as "#010203". Any other text comes back as it is, and the reason is traced.
QString convertRgbToHashHex(const QString& text);

/// A colour in a script's text reads as `CssColor::text`.
void createCssColorDelegates();

extern const ClassMembers CssColorClass;

template <>
struct ScriptValue<CssColor> {
  static const Class* type() { return objectModelCssColorClass(); }
  static SharedPtr<Object> wrap(const CssColor& color) { return wrapCssColor(color); }
};

}  // namespace Corvex::WebWrapper
