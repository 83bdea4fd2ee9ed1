#pragma once

#include <QString>

#include "scripting/functions/functiontable.h"

namespace Corvex::Scripting {

/// What came of a call, with the error that the framework may have been told meanwhile.
ObjectResult outcome(const SharedPtr<Object>& value);

bool isText(const SharedPtr<Object>& value);
bool isNumber(const SharedPtr<Object>& value);

/// Finds an object, which error sentences call by this name from then on. One attempt with a timeout of 0.
ObjectResult look(const FunctionCall& call, const QString& name, int timeoutMs);

/// An object that a function works on, and how error sentences call it.
struct Target {
  SharedPtr<Object> object;
  QString name;
  QString error;
};

/// The object that an argument is, or names; waits until one that is named can take input.
Target awaitedTarget(const FunctionCall& call, const SharedPtr<Object>& argument);
/// The same for what needs no input: looks once, where hidden objects count, too.
Target presentTarget(const FunctionCall& call, const SharedPtr<Object>& argument);

/// The milliseconds that the argument at this place gives, if there is one, else the default time.
FunctionCallResult<int> timeToWait(const FunctionCall& call, int index);

/// Calls a method of a target, which has to have it.
ObjectResult callOn(const FunctionCall& call, const char* method, const Target& target, const ObjectList& arguments);
/// Calls a method of the awaited first argument with the others.
ObjectResult callOnFirst(const FunctionCall& call, const char* method);

}  // namespace Corvex::Scripting
