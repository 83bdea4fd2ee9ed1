#include "scripting/objects/valuecomparison.h"

#include <QDateTime>
#include <cmath>

#include "corvexhook/class.h"
#include "scripting/objects/values.h"

namespace Corvex::Scripting {

namespace {

// Arrays may hold themselves, even many times.
const int maxDepth = 500;
const int maxComparisons = 1000000;

class Comparison {
public:
  explicit Comparison(const Values& values) : m_values(values) {}

  bool areEqual(const QJSValue& a, const QJSValue& b, int depth) {
    if (a.strictlyEquals(b)) {
      return true;
    }
    if (a.isNumber() && b.isNumber()) {
      return std::isnan(a.toNumber()) && std::isnan(b.toNumber());
    }
    if (a.isDate() && b.isDate()) {
      return a.toDateTime() == b.toDateTime();
    }
    if (a.isArray() && b.isArray()) {
      return areEqualArrays(a, b, depth);
    }
    const SharedPtr<Object> first = m_values.objectOf(a);
    const SharedPtr<Object> second = m_values.objectOf(b);
    return first && second && first->objectClass()->sameObjects(first, second);
  }

  bool isTooMuch() const { return m_isTooMuch; }

private:
  bool areEqualArrays(const QJSValue& a, const QJSValue& b, int depth) {
    const quint32 length = Values::lengthOf(a);
    bool equal = length == Values::lengthOf(b);
    for (quint32 i = 0; equal && i < length; ++i) {
      m_isTooMuch = m_isTooMuch || depth >= maxDepth || ++m_comparisons > maxComparisons;
      equal = !m_isTooMuch && areEqual(a.property(i), b.property(i), depth + 1);
    }
    return equal;
  }

  const Values& m_values;
  int m_comparisons = 0;
  bool m_isTooMuch = false;
};

}  // namespace

FunctionCallResult<bool> equalValues(const Values& values, const QJSValue& a, const QJSValue& b) {
  Comparison comparison(values);
  const bool equal = comparison.areEqual(a, b, 0);
  return comparison.isTooMuch()
             ? FunctionCallResult<bool>::failure(QStringLiteral("The arrays are too large, or too deeply nested, to be "
                                                                "compared: compare parts of them."))
             : FunctionCallResult<bool>::success(equal);
}

}  // namespace Corvex::Scripting
