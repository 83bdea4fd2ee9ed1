#pragma once

#include <vector>

#include "corvexhook/class.h"

namespace Corvex::Scripting {

/// A method with its number, counted over the whole chain of classes.
struct NumberedMethod {
  int id = 0;
  const Method* method = nullptr;
};

/// All methods of the name: the class's own first, then those of its super
/// classes, each class's in their order.
std::vector<NumberedMethod> methodsNamed(const Class* cls, const QString& name);

struct OverloadChoice {
  /// -1 with an error.
  int index = -1;
  /// The arguments as the method wants them: a script's null has become a null
  /// of the wanted class.
  ObjectList arguments;
  QString error;
};

/// The method that takes these arguments with the least conversion; among equal
/// ones the first. A null pointer in `arguments` is a script's null.
/// `callName` opens the sentence of an error.
OverloadChoice chooseOverload(const QString& callName, const std::vector<const Method*>& methods,
                              const ObjectList& arguments);

/// A value as error sentences show it: 'abc', 5, true, null, an HTML_Select.
QString describeValue(const SharedPtr<Object>& value);
/// "an HTML_Select", "a DateTime"
QString withArticle(const QString& className);

}  // namespace Corvex::Scripting
