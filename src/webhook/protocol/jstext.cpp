#include "webhook/protocol/jstext.h"

#include <charconv>
#include <cmath>
#include <string>

namespace Corvex::Webhook {

namespace {

struct Decimal {
  std::string digits;  ///< Without leading and trailing zeros.
  int pointAt = 0;     ///< The value is 0.digits * 10^pointAt.
};

Decimal shortestDecimal(double positive) {
  char buffer[32];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, positive, std::chars_format::scientific).ptr;
  const std::string text(buffer, end);
  const size_t exponentAt = text.find('e');
  Decimal decimal;
  for (char digit : text.substr(0, exponentAt)) {
    if (digit != '.') {
      decimal.digits += digit;
    }
  }
  decimal.pointAt = std::stoi(text.substr(exponentAt + 1)) + 1;
  return decimal;
}

std::string withExponent(const Decimal& decimal) {
  const int exponent = decimal.pointAt - 1;
  std::string text = decimal.digits.substr(0, 1);
  if (decimal.digits.size() > 1) {
    text += '.' + decimal.digits.substr(1);
  }
  return text + (exponent < 0 ? "e-" : "e+") + std::to_string(std::abs(exponent));
}

std::string textOf(const Decimal& decimal) {
  const int count = int(decimal.digits.size());
  const int point = decimal.pointAt;
  if (point > 21 || point <= -6) {
    return withExponent(decimal);
  }
  if (point <= 0) {
    return "0." + std::string(size_t(-point), '0') + decimal.digits;
  }
  if (point >= count) {
    return decimal.digits + std::string(size_t(point - count), '0');
  }
  return decimal.digits.substr(0, size_t(point)) + '.' + decimal.digits.substr(size_t(point));
}

}  // namespace

QString jsNumberText(double number) {
  if (std::isnan(number)) {
    return QStringLiteral("NaN");
  }
  if (number == 0) {
    return QStringLiteral("0");
  }
  const QString sign = number < 0 ? QStringLiteral("-") : QString();
  if (std::isinf(number)) {
    return sign + QStringLiteral("Infinity");
  }
  return sign + QString::fromStdString(textOf(shortestDecimal(std::fabs(number))));
}

}  // namespace Corvex::Webhook
