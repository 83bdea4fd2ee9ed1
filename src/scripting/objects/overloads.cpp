#include "scripting/objects/overloads.h"

#include <QVariant>
#include <algorithm>
#include <set>

#include "corvexhook/arrayclass.h"
#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"

namespace Corvex::Scripting {

namespace {

// An array of a script may hold the same arrays many times.
const int mostDescribed = 50;
const int mostDescribedText = 1000;

enum Distance { Unfit = -1, Same = 0, Near = 1, AsText = 100, ByCast = 200 };

int depth(const Class* cls) {
  int count = 0;
  for (const Class* c = cls; c; c = c->superClass()) {
    ++count;
  }
  return count;
}

bool isPrimitive(const Class* type) { return dynamic_cast<const PrimitiveClass*>(type) != nullptr; }

int distance(const SharedPtr<Object>& value, const Class* type) {
  if (!value) {
    return isPrimitive(type) ? Unfit : Near;
  }
  if (!isAcceptable(value, type)) {
    return Unfit;
  }
  if (value->objectClass() == type) {
    return Same;
  }
  if (!isPrimitive(type)) {
    return value->isA(type) ? depth(value->objectClass()) - depth(type) : Near;
  }
  if (!primitiveValue(value).isValid()) {
    return ByCast;
  }
  const auto id = static_cast<const PrimitiveClass*>(type)->id();
  return id == PrimitiveType::String ? AsText : Near;
}

int distance(const ObjectList& arguments, const Method* method) {
  int sum = Same;
  for (int i = 0; i < arguments.size(); ++i) {
    const int one = distance(arguments[i], method->signature().at(i).type());
    if (one == Unfit) {
      return Unfit;
    }
    sum += one;
  }
  return sum;
}

QString countError(const QString& callName, const std::vector<const Method*>& methods, int got) {
  std::set<int> counts;
  for (const Method* method : methods) {
    counts.insert(method->signature().count());
  }
  QStringList texts;
  for (int count : counts) {
    texts << QString::number(count);
  }
  const QString last = texts.takeLast();
  const QString expected = texts.isEmpty() ? last : texts.join(QLatin1String(", ")) + QLatin1String(" or ") + last;
  const QString forms = methods.size() == 1 ? QStringLiteral(" Use it as %1.").arg(methods.front()->text()) : QString();
  return QStringLiteral("%1 takes %2 argument(s), but got %3.%4").arg(callName, expected).arg(got).arg(forms);
}

QString argumentError(const QString& callName, const Method* method, const ObjectList& arguments) {
  for (int i = 0; i < arguments.size(); ++i) {
    const Argument& wanted = method->signature().at(i);
    if (distance(arguments[i], wanted.type()) == Unfit) {
      return QStringLiteral("%1: argument '%2' must be of type %3, but got %4.")
          .arg(callName, wanted.name(), wanted.type()->name(), describeValue(arguments[i]));
    }
  }
  return QString();
}

QString typeError(const QString& callName, const std::vector<const Method*>& fitting, const ObjectList& arguments) {
  if (fitting.size() == 1) {
    return argumentError(callName, fitting.front(), arguments);
  }
  QStringList got;
  for (const SharedPtr<Object>& argument : arguments) {
    got << describeValue(argument);
  }
  QStringList forms;
  for (const Method* method : fitting) {
    forms << method->text();
  }
  return QStringLiteral("%1 does not take (%2). Use it as %3.")
      .arg(callName, got.join(QLatin1String(", ")), forms.join(QLatin1String(" or ")));
}

ObjectList withTypedNulls(const ObjectList& arguments, const Method* method) {
  ObjectList typed;
  for (int i = 0; i < arguments.size(); ++i) {
    const Class* type = method->signature().at(i).type();
    typed.push_back(arguments[i] ? arguments[i] : Inspector::self()->nullObject(type));
  }
  return typed;
}

/// `left` counts the entries of arrays that may still be shown.
QString describe(const SharedPtr<Object>& value, int* left) {
  if (!value || value->isNull()) {
    return QStringLiteral("null");
  }
  const QVariant primitive = primitiveValue(value);
  if (primitive.type() == QVariant::String) {
    const QString text = primitive.toString();
    const QString end = text.size() > mostDescribedText ? QStringLiteral("...") : QString();
    return QLatin1Char('\'') + text.left(mostDescribedText) + end + QLatin1Char('\'');
  }
  if (primitive.isValid()) {
    return primitive.toString();
  }
  if (!value->isA(ArrayClass::registeredClass())) {
    return withArticle(value->objectClass()->name());
  }
  QStringList texts;
  for (const SharedPtr<Object>& entry : ArrayClass::unwrapObject(value)) {
    if ((*left)-- <= 0) {
      texts << QStringLiteral("...");
      break;
    }
    texts << describe(entry, left);
  }
  return QLatin1Char('[') + texts.join(QLatin1String(", ")) + QLatin1Char(']');
}

}  // namespace

std::vector<NumberedMethod> methodsNamed(const Class* cls, const QString& name) {
  std::vector<NumberedMethod> found;
  const int count = cls->numMethods();
  for (int id = 0; id < count; ++id) {
    const Method* method = cls->method(id);
    if (method && method->name() == name) {
      found.push_back({id, method});
    }
  }
  std::stable_sort(found.begin(), found.end(), [](const NumberedMethod& a, const NumberedMethod& b) {
    return depth(a.method->owner()) > depth(b.method->owner());
  });
  return found;
}

OverloadChoice chooseOverload(const QString& callName, const std::vector<const Method*>& methods,
                              const ObjectList& arguments) {
  OverloadChoice choice;
  int best = 0;
  std::vector<const Method*> fitting;
  for (std::size_t i = 0; i < methods.size(); ++i) {
    const Method* method = methods[i];
    if (method->signature().count() != arguments.size()) {
      continue;
    }
    fitting.push_back(method);
    const int candidate = distance(arguments, method);
    if (candidate != Unfit && (choice.index < 0 || candidate < best)) {
      best = candidate;
      choice.index = static_cast<int>(i);
    }
  }
  if (choice.index >= 0) {
    choice.arguments = withTypedNulls(arguments, methods[static_cast<std::size_t>(choice.index)]);
  } else if (fitting.empty()) {
    choice.error = countError(callName, methods, arguments.size());
  } else {
    choice.error = typeError(callName, fitting, arguments);
  }
  return choice;
}

QString describeValue(const SharedPtr<Object>& value) {
  int left = mostDescribed;
  return describe(value, &left);
}

QString withArticle(const QString& className) {
  const bool vowel = className.startsWith(QLatin1String("HTML")) || QStringLiteral("AEIO").contains(className.at(0));
  return (vowel ? QLatin1String("an ") : QLatin1String("a ")) + className;
}

}  // namespace Corvex::Scripting
