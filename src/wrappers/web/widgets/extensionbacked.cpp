#include "wrappers/web/widgets/extensionbacked.h"

namespace Corvex::WebWrapper {

FunctionCallResult<int> numberOf(const JavaScriptAnswer& answer, const char* failure, const char* unconvertible) {
  using Result = FunctionCallResult<int>;
  if (!answer.succeeded()) {
    return Result::failure(QString::fromLatin1(failure).arg(answer.text));
  }
  bool isNumber = false;
  const int number = answer.text.toInt(&isNumber);
  return isNumber ? Result::success(number) : Result::failure(QString::fromLatin1(unconvertible).arg(answer.text));
}

}  // namespace Corvex::WebWrapper
