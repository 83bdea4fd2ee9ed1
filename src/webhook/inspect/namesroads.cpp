#include "webhook/inspect/namesroads.h"

#include "corvexhook/objectname.h"
#include "wrappers/web/lookup/containers.h"

#include <QJsonObject>

namespace Corvex::Webhook {

namespace {

struct KindRow {
  const char* tagName;
  NameKind kind;
};

const KindRow kindsByTag[] = {
    {"INPUT", NameKind::Control}, {"SELECT", NameKind::Control}, {"BUTTON", NameKind::Control},
    {"IMG", NameKind::Image},     {"A", NameKind::Link},
};

bool hasContext(const ObjectName& name) { return name.hasProperty(QStringLiteral("context")); }

void addRoad(const QString& text, NameRoads* roads) {
  const ObjectName name(text);
  if (!name.parseError().isEmpty()) {
    roads->error = name.parseError();
    return;
  }
  if (!name.isMultiProperty()) {
    const QJsonArray path = QJsonArray::fromStringList(text.split(QLatin1Char('.')));
    roads->roads.append(QJsonObject{{QStringLiteral("name"), text}, {QStringLiteral("path"), path}});
    return;
  }
  QJsonArray names;
  for (const ObjectName& part : WebWrapper::splitByContainer(name)) {
    if (!names.isEmpty() && hasContext(part)) {
      roads->refusal = QStringLiteral("look-ups refuse a name with both a context and a container");
      return;
    }
    names.append(part.qualifiedName());
  }
  const QJsonValue first = names.takeAt(0);
  roads->roads.append(QJsonObject{{QStringLiteral("name"), first}, {QStringLiteral("below"), names}});
}

}  // namespace

NameRoads roadsOfName(const QString& name) {
  NameRoads roads;
  addRoad(name, &roads);
  const QLatin1String entity("&amp;");
  if (name.contains(entity)) {
    addRoad(QString(name).replace(entity, QLatin1String("&")), &roads);
  }
  return roads;
}

NameKind kindOfName(const QString& text) {
  if (text.isEmpty()) {
    return NameKind::None;
  }
  const ObjectName name(text);
  if (!name.isMultiProperty()) {
    return NameKind::Hierarchical;
  }
  const QString tagName = name.property(QStringLiteral("tagName")).value();
  for (const KindRow& row : kindsByTag) {
    if (tagName == QLatin1String(row.tagName)) {
      return row.kind;
    }
  }
  for (const char* property : {"name", "title", "id"}) {
    if (name.hasProperty(QLatin1String(property))) {
      return NameKind::Named;
    }
  }
  return NameKind::Text;
}

}  // namespace Corvex::Webhook
