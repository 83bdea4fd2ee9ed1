#pragma once

#include <vector>

#include "scripting/objects/liveobjects.h"
#include "scripting/objects/membercalls.h"

namespace Corvex::Scripting {

/// What the standard functions work with; borrowed.
struct FunctionContext {
  MemberCalls* calls;
  LiveObjects* liveObjects;
};

/// One call of a function by a script.
struct FunctionCall {
  /// The function's name.
  const char* function;
  const FunctionContext& context;
  const ObjectList& arguments;
};

/// A function that every script has.
struct FunctionRow {
  const char* name;
  /// How it is called, for the sentence of a wrong call.
  const char* usage;
  int minArguments;
  int maxArguments;
  ObjectResult (*run)(const FunctionCall& call);
};

using FunctionTable = std::vector<FunctionRow>;

// One table for each family, in the file of its name. To add a function, write it there, and a row for it.

/// Finding objects by their names.
FunctionTable lookupFunctions();
/// Walking the object tree.
FunctionTable treeFunctions();
/// Mouse, keyboard and choices.
FunctionTable inputFunctions();
/// Events by their names.
FunctionTable eventFunctions();
/// Letting time pass.
FunctionTable waitingFunctions();

}  // namespace Corvex::Scripting
