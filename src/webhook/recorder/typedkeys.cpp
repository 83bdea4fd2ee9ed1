#include "webhook/recorder/typedkeys.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace Corvex::Webhook {

bool isKeyWithoutText(int keyCode) {
  const struct {
    int first;
    int last;
  } ranges[] = {{9, 9}, {16, 20}, {27, 27}, {33, 40}, {112, 123}};
  return std::any_of(std::begin(ranges), std::end(ranges),
                     [keyCode](const auto& range) { return keyCode >= range.first && keyCode <= range.last; });
}

bool readsAsKeys(const QString& text) {
  static const QRegularExpression brackets(QStringLiteral("<[A-Za-z0-9]+(\\+[^<>\\s]+)*>"));
  return brackets.match(text).hasMatch();
}

}  // namespace Corvex::Webhook
