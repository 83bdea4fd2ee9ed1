#include "webhook/typings/classdeclarations.h"

#include "corvexhook/arrayclass.h"
#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"
#include "webhook/typings/memberdescriptions.h"

#include <algorithm>
#include <vector>

namespace Corvex::Webhook {

namespace {

/// Which way a value goes: objects that scripts get are of any sub class, dates that they give are those of JavaScript.
enum class Direction { ToScript, FromScript };

QString plainType(PrimitiveType::Id id) {
  switch (id) {
    case PrimitiveType::Int:
    case PrimitiveType::UInt:
    case PrimitiveType::Double:
      return QStringLiteral("number");
    case PrimitiveType::Bool:
      return QStringLiteral("boolean");
    case PrimitiveType::String:
      return QStringLiteral("string");
    case PrimitiveType::Void:
      return QStringLiteral("void");
    case PrimitiveType::Any:
      break;
  }
  return QStringLiteral("any");
}

QString typeText(const Class* type, const QString& listType, Direction direction) {
  if (const auto* const primitive = dynamic_cast<const PrimitiveClass*>(type)) {
    return plainType(primitive->id());
  }
  if (type == ArrayClass::registeredClass()) {
    return listType.isEmpty() ? QStringLiteral("any[]") : listType;
  }
  const bool toScript = direction == Direction::ToScript;
  if (toScript && type->name() == QLatin1String("HTML_Object")) {
    return QStringLiteral("AnyObject");
  }
  return !toScript && type->name() == QLatin1String("DateTime") ? QStringLiteral("Date | DateTime") : type->name();
}

QString comment(const QString& indent, const QString& sentence) {
  return sentence.isEmpty() ? QString() : QStringLiteral("%1/** %2 */\n").arg(indent, sentence);
}

/// Writes one class.
class ClassWriter {
public:
  ClassWriter(const Class* cls, const MemberDescriptions& descriptions) : m_class(*cls), m_descriptions(descriptions) {}

  /// What there is without an object; empty where that is nothing.
  QString statics() const {
    QString members = enumItems();
    for (int id = firstMethod(); id < m_class.numMethods(); ++id) {
      members += m_class.method(id)->isStatic() ? method(*m_class.method(id)) : QString();
    }
    return members.isEmpty() ? QString()
                             : comment(QString(), m_descriptions.sentence(m_class.name())) +
                                   QStringLiteral("declare const %1: {\n%2};\n").arg(m_class.name(), members);
  }

  /// The class of objects; empty for one that has none.
  QString objects() const {
    const Class* const super = m_class.superClass();
    QString members;
    for (int id = m_class.superClassOffset(Class::PropertyOffset); id < m_class.numProperties(); ++id) {
      members += property(*m_class.property(id));
    }
    for (int id = firstMethod(); id < m_class.numMethods(); ++id) {
      const Method& each = *m_class.method(id);
      members += each.isStatic() || m_class.property(each.name()) ? QString() : method(each);
    }
    if (members.isEmpty() && !super) {
      return QString();
    }
    const QString base = super ? QStringLiteral(" extends ") + super->name() : QString();
    return comment(QString(), m_descriptions.sentence(m_class.name())) +
           QStringLiteral("interface %1%2 {\n%3}\n").arg(m_class.name(), base, members);
  }

private:
  int firstMethod() const { return m_class.superClassOffset(Class::MethodOffset); }
  QString keyOf(const QString& member) const { return m_class.name() + QLatin1Char('.') + member; }
  QString commentOf(const QString& member) const {
    return comment(QStringLiteral("  "), m_descriptions.sentence(keyOf(member)));
  }

  QString enumItems() const {
    QString members;
    const Enum* const values = m_class.createEnum(0);
    for (const Enum::Item& item : values ? values->items() : std::vector<Enum::Item>()) {
      const QString name = QLatin1String(item.name);
      members += commentOf(name) + QStringLiteral("  readonly %1: %2;\n").arg(name).arg(item.value);
    }
    return members;
  }

  QString property(const Property& property) const {
    const QString better = m_descriptions.type(keyOf(property.name()));
    const auto type = [&](Direction direction) {
      return better.isEmpty() ? typeText(property.type().type(), QString(), direction) : better;
    };
    const QString read = type(Direction::ToScript);
    const QString written = type(Direction::FromScript);
    const QString name = property.name();
    QString text = QStringLiteral("  readonly %1: %2;\n").arg(name, read);
    if (property.isWritable() && read == written) {
      text = QStringLiteral("  %1: %2;\n").arg(name, read);
    } else if (property.isWritable()) {
      text = QStringLiteral("  get %1(): %2;\n  set %1(value: %3);\n").arg(name, read, written);
    }
    return commentOf(name) + text;
  }

  QString method(const Method& method) const {
    const QString list = m_descriptions.type(keyOf(method.name()));
    QStringList arguments;
    for (int i = 0; i < method.signature().count(); ++i) {
      const Argument& argument = method.signature().at(i);
      arguments << argument.name() + QLatin1String(": ") + typeText(argument.type(), list, Direction::FromScript);
    }
    return commentOf(method.name()) + QStringLiteral("  %1(%2): %3;\n")
                                          .arg(method.name(), arguments.join(QLatin1String(", ")),
                                               typeText(method.returnType().type(), list, Direction::ToScript));
  }

  const Class& m_class;
  const MemberDescriptions& m_descriptions;
};

QString declaration(const Class* cls, const MemberDescriptions& descriptions) {
  const ClassWriter writer(cls, descriptions);
  const QString text = writer.statics() + writer.objects();
  return text.isEmpty() ? QString() : QLatin1Char('\n') + text;
}

QString section(const QString& title, const QStringList& prose, const QString& declarations) {
  QString text = QStringLiteral("\n// == %1 ==\n").arg(title);
  for (const QString& line : prose) {
    text += QStringLiteral("// %1\n").arg(line);
  }
  return declarations.isEmpty() ? QString() : text + declarations;
}

}  // namespace

QString classDeclarations(const MemberDescriptions& descriptions) {
  std::vector<const Class*> others = Inspector::self()->globalNamespace()->classes();
  QString text;
  for (const MemberDescriptions::Group& group : descriptions.groups()) {
    QString declarations;
    for (const QString& name : group.classes) {
      if (const Class* const cls = Inspector::self()->classByName(name)) {
        declarations += declaration(cls, descriptions);
        others.erase(std::remove(others.begin(), others.end(), cls), others.end());
      }
    }
    text += section(group.title, group.prose, declarations);
  }
  QString rest;
  for (const Class* cls : others) {
    rest += declaration(cls, descriptions);
  }
  return text + section(QStringLiteral("Other classes"), {}, rest);
}

}  // namespace Corvex::Webhook
