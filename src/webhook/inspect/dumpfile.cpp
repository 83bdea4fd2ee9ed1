#include "webhook/inspect/dumpfile.h"

#include "shared/visibletext.h"
#include "shared/wholefile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamWriter>

namespace Corvex::Webhook {

namespace {

using UIAbstraction::UIProperty;

QString shownText(const QString& text) { return visibleText(text); }

bool isShown(const GlobalBounds& bounds) { return bounds.width > 0 && bounds.height > 0; }

QJsonObject asJson(const GlobalBounds& bounds) {
  return {{QStringLiteral("x"), bounds.x},
          {QStringLiteral("y"), bounds.y},
          {QStringLiteral("width"), bounds.width},
          {QStringLiteral("height"), bounds.height}};
}

QJsonObject asJson(const DumpedObject& object, const QJsonArray& children) {
  QJsonObject properties;
  for (const UIProperty& property : object.properties) {
    properties.insert(property.name, property.value);
  }
  QJsonObject json{{QStringLiteral("class"), object.className},
                   {QStringLiteral("name"), object.name},
                   {QStringLiteral("qualifiedName"), object.qualifiedName},
                   {QStringLiteral("matches"), object.matches},
                   {QStringLiteral("properties"), properties},
                   {QStringLiteral("children"), children}};
  if (!object.context.isEmpty()) {
    json.insert(QStringLiteral("context"), object.context);
  }
  if (isShown(object.bounds)) {
    json.insert(QStringLiteral("bounds"), asJson(object.bounds));
  }
  return json;
}

/// The objects from `*place` on that are at this depth, each with what is below it; moves `*place` after them.
QJsonArray siblings(const QVector<DumpedObject>& objects, int depth, int* place) {
  QJsonArray array;
  while (*place < objects.size() && objects.at(*place).depth == depth) {
    const DumpedObject& object = objects.at((*place)++);
    array.append(asJson(object, siblings(objects, depth + 1, place)));
  }
  return array;
}

void writeObject(const DumpedObject& object, QXmlStreamWriter* xml) {
  const auto attribute = [xml](const char* name, const QString& value) {
    xml->writeAttribute(QLatin1String(name), shownText(value));
  };
  xml->writeStartElement(QStringLiteral("object"));
  attribute("class", object.className);
  attribute("name", object.name);
  attribute("qualifiedName", object.qualifiedName);
  attribute("matches", QString::number(object.matches));
  if (!object.context.isEmpty()) {
    attribute("context", object.context);
  }
  if (isShown(object.bounds)) {
    attribute("x", QString::number(object.bounds.x));
    attribute("y", QString::number(object.bounds.y));
    attribute("width", QString::number(object.bounds.width));
    attribute("height", QString::number(object.bounds.height));
  }
  for (const UIProperty& property : object.properties) {
    xml->writeStartElement(QStringLiteral("property"));
    attribute("name", property.name);
    xml->writeCharacters(shownText(property.value));
    xml->writeEndElement();
  }
}

}  // namespace

DumpFormat dumpFormatOf(const QString& file) {
  return file.endsWith(QLatin1String(".json"), Qt::CaseInsensitive)  ? DumpFormat::Json
         : file.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive) ? DumpFormat::Xml
                                                                     : DumpFormat::Html;
}

QByteArray dumpAsJson(const PageDump& dump) {
  int place = 0;
  return QJsonDocument(QJsonObject{{QStringLiteral("url"), dump.url},
                                   {QStringLiteral("title"), dump.title},
                                   {QStringLiteral("documents"), siblings(dump.objects, 0, &place)}})
      .toJson();
}

QByteArray dumpAsXml(const PageDump& dump) {
  QByteArray bytes;
  QXmlStreamWriter xml(&bytes);
  xml.setAutoFormatting(true);
  xml.writeStartDocument();
  xml.writeStartElement(QStringLiteral("page"));
  xml.writeAttribute(QStringLiteral("url"), shownText(dump.url));
  xml.writeAttribute(QStringLiteral("title"), shownText(dump.title));
  int open = 0;
  for (const DumpedObject& object : dump.objects) {
    for (; open > object.depth; --open) {
      xml.writeEndElement();
    }
    writeObject(object, &xml);
    ++open;
  }
  xml.writeEndDocument();
  return bytes;
}

QByteArray dumpAs(DumpFormat format, const PageDump& dump) {
  return format == DumpFormat::Json ? dumpAsJson(dump) : format == DumpFormat::Xml ? dumpAsXml(dump) : dumpAsHtml(dump);
}

QString saveDump(const PageDump& dump, const QString& path) {
  const QString why = writeWholeFile(path, dumpAs(dumpFormatOf(path), dump));
  return why.isEmpty() ? QString() : QStringLiteral("The file '%1' cannot be written: %2.").arg(path, why);
}

}  // namespace Corvex::Webhook
