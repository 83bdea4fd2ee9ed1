#pragma once

#include <QImage>
#include <QMap>
#include <QString>
#include <functional>
#include <vector>

#include "corvexhook/object.h"
#include "scripting/scriptlistener.h"
#include "shared/functioncallresult.h"

namespace Corvex::Scripting {

/// A global function of test scripts.
struct ScriptFunction {
  /// With a dot, as in "test.compare", a function of a global object.
  QString name;
  /// How it is called, for the sentence of a wrong call.
  QString usage;
  int minArguments = 0;
  int maxArguments = 0;
  /// A null that a script passes for an argument that may be left out, or to
  /// a function that takes null, arrives as a null pointer; any other never
  /// arrives. A result of null is undefined in the script.
  std::function<FunctionCallResult<SharedPtr<Object>>(const ObjectList&)> call;
  bool takesNull = false;
  /// Whether the standard function of this name is to run in its place for these arguments; never without it.
  std::function<bool(const ObjectList&)> yields = {};
  /// The result is a text of JSON, and the script gets what it says.
  bool givesJson = false;
  /// The last argument may be a plain object, and arrives as a text of JSON. Of its values, texts, numbers, true and
  /// false arrive; others but undefined as null.
  bool takesOptions = false;
  /// How many of the first arguments reports show, when others may be secret.
  int shownArguments = -1;
};

/// What happened beside the script.
struct HostNews {
  QString text;
  bool isFailure = false;                     ///< It counts as a failed check.
  QString kind = QStringLiteral("uncaught");  ///< See `PageMessage`.

  bool isUncaught() const { return kind == QLatin1String("uncaught"); }
};

/// When there may be something to see that a report should show.
enum class Moment {
  StepDone,
  StepFailed,   ///< The script may catch its error.
  CheckFailed,  ///< It goes on.
  CodeFailed    ///< Its body, or a function, ended with an error.
};

/// What the process that embeds the engine offers to scripts.
struct ScriptHost {
  std::vector<ScriptFunction> functions;
  /// The picture of an object, for comparisons; scripts get an error where there is none.
  std::function<FunctionCallResult<QImage>(const SharedPtr<Object>&)> pictureOf = {};
  /// What scripts were started with, by the names.
  QMap<QString, QString> arguments = {};
  /// What is new since it was asked last. Asked after each call of a function, and at the script's end.
  std::function<std::vector<HostNews>()> takeNews = {};
  /// Tells the listener what there is to see. `about` is the object that it was about, or its name; null where that is
  /// not known. Never reports an error.
  std::function<void(Moment moment, const SharedPtr<Object>& about, ScriptListener* listener)> look = {};
};

}  // namespace Corvex::Scripting
