#include "scripting/objects/valuecomparison.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "corvexhook/class.h"
#include "scripting/objects/values.h"
#include "scripting/objects/valuetext.h"

namespace Corvex::Scripting {

namespace {

// Values may hold themselves, even many times.
const int maxDepth = 500;
const int maxComparisons = 1000000;

QString keyInPath(const QString& key) {
  static const QRegularExpression identifier(QStringLiteral("^[A-Za-z_$][\\w$]*$"));
  return identifier.match(key).hasMatch() ? QLatin1Char('.') + key : QStringLiteral("['%1']").arg(key);
}

class Comparison {
public:
  explicit Comparison(const Values& values) : m_values(values) {}

  bool areEqual(const QJSValue& actual, const QJSValue& expected) {
    if (actual.strictlyEquals(expected)) {
      return true;
    }
    if (actual.isArray() && expected.isArray()) {
      return areEqualArrays(actual, expected);
    }
    if (m_values.isPlainObject(actual) && m_values.isPlainObject(expected)) {
      return areEqualObjects(actual, expected);
    }
    return areEqualLeaves(actual, expected) || differs(valueText(m_values, actual), valueText(m_values, expected));
  }

  bool isTooMuch() const { return m_isTooMuch; }
  Difference difference() const { return {m_text.isEmpty(), m_path.join(QString()), m_text}; }

private:
  bool areEqualLeaves(const QJSValue& actual, const QJSValue& expected) const {
    if (actual.isNumber() && expected.isNumber()) {
      return std::isnan(actual.toNumber()) && std::isnan(expected.toNumber());
    }
    if (actual.isDate() && expected.isDate()) {
      return actual.toDateTime() == expected.toDateTime();
    }
    const SharedPtr<Object> first = m_values.objectOf(actual);
    const SharedPtr<Object> second = m_values.objectOf(expected);
    return first && second && first->objectClass()->sameObjects(first, second);
  }

  bool areEqualArrays(const QJSValue& actual, const QJSValue& expected) {
    const quint32 length = Values::lengthOf(actual);
    const quint32 expectedLength = Values::lengthOf(expected);
    for (quint32 i = 0; i < std::max(length, expectedLength); ++i) {
      if (!areEqualParts(actual, expected, {QStringLiteral("[%1]").arg(i), i < length, i < expectedLength},
                         [i](const QJSValue& array) { return array.property(i); })) {
        return false;
      }
    }
    return true;
  }

  bool areEqualObjects(const QJSValue& actual, const QJSValue& expected) {
    const QStringList keys = m_values.keysOf(actual);
    const QStringList expectedKeys = m_values.keysOf(expected);
    const QSet<QString> known(keys.begin(), keys.end());
    const QSet<QString> expectedKnown(expectedKeys.begin(), expectedKeys.end());
    QStringList all = expectedKeys;
    std::copy_if(keys.begin(), keys.end(), std::back_inserter(all),
                 [&expectedKnown](const QString& key) { return !expectedKnown.contains(key); });
    for (const QString& key : all) {
      if (!areEqualParts(actual, expected, {keyInPath(key), known.contains(key), expectedKnown.contains(key)},
                         [&key](const QJSValue& object) { return object.property(key); })) {
        return false;
      }
    }
    return true;
  }

  /// A part of two values: how a path goes on to it, and which of them have it.
  struct Part {
    QString path;
    bool isThere;
    bool isExpected;
  };

  template <typename Read>
  bool areEqualParts(const QJSValue& actual, const QJSValue& expected, const Part& part, const Read& read) {
    m_isTooMuch = m_isTooMuch || m_path.size() >= maxDepth || ++m_comparisons > maxComparisons;
    if (m_isTooMuch) {
      return false;
    }
    m_path << part.path;
    const bool equal = part.isThere && part.isExpected
                           ? areEqual(read(actual), read(expected))
                           : differs(part.isThere ? valueText(m_values, read(actual)) : QStringLiteral("there is none"),
                                     part.isExpected ? valueText(m_values, read(expected)) : QStringLiteral("none"));
    if (equal) {
      m_path.removeLast();
    }
    return equal;
  }

  bool differs(const QString& actual, const QString& expected) {
    m_text = QStringLiteral("%1, but expected %2").arg(actual, expected);
    return false;
  }

  const Values& m_values;
  /// Where the comparison is; stays at the first difference.
  QStringList m_path;
  QString m_text;
  int m_comparisons = 0;
  bool m_isTooMuch = false;
};

}  // namespace

FunctionCallResult<Difference> firstDifference(const Values& values, const QJSValue& actual, const QJSValue& expected) {
  Comparison comparison(values);
  comparison.areEqual(actual, expected);
  return comparison.isTooMuch()
             ? FunctionCallResult<Difference>::failure(
                   QStringLiteral("The values are too large, or too deeply nested, to be compared: compare parts of "
                                  "them."))
             : FunctionCallResult<Difference>::success(comparison.difference());
}

}  // namespace Corvex::Scripting
