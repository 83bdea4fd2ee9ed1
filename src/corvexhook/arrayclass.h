#pragma once

#include "corvexhook/class.h"

#include <string>
#include <vector>

namespace Corvex {

/// The class of lists of script values, "Array".
class CORVEXHOOK_EXPORT ArrayClass : public Class {
public:
  explicit ArrayClass(Namespace* ns);
  void deleteObjectData(void* data, const ObjectAttribute& attribute) const override;

  static const Class* registeredClass();
  static SharedPtr<Object> wrapObject(const std::vector<SharedPtr<Object>>& values);
  /// Empty for anything that is no list.
  static std::vector<SharedPtr<Object>> unwrapObject(SharedPtr<Object> object);
  /// An argument that takes a list.
  static Argument arrayClassArg(const std::string& name);
};

}  // namespace Corvex
