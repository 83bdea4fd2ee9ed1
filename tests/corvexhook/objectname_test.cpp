#include "corvexhook/objectname.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "support/files.h"
#include "support/printing.h"

using namespace Corvex;

namespace {

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

/// The cases that the page's parser of names is tested with, too.
QJsonArray grammarCases() {
  return QJsonDocument::fromJson(TestSupport::readFile(QStringLiteral(CORVEX_TEST_SOURCE "/names/grammar_cases.json")))
      .array();
}

PropertyValue::Modifiers modifiersOf(const QString& op) {
  return op == text("~=")   ? PropertyValue::RegExp
         : op == text("?=") ? PropertyValue::Wildcard
                            : PropertyValue::StrictMatch;
}

/// properties: a list of name, operator, and a text or, for a nested name, such a list.
void expectProperties(const ObjectName& name, const QJsonArray& properties) {
  EXPECT_EQ(name.properties().size(), properties.size());
  for (const QJsonValue& expected : properties) {
    const QJsonArray row = expected.toArray();
    const PropertyValue value = name.property(row.at(0).toString());
    EXPECT_EQ(value.modifiers(), modifiersOf(row.at(1).toString()));
    EXPECT_EQ(value.type() == PropertyValue::NestedName, row.at(2).isArray());
    if (row.at(2).isArray()) {
      expectProperties(ObjectName(value.value()), row.at(2).toArray());
    } else {
      EXPECT_EQ(value.value(), row.at(2).toString());
    }
  }
}

}  // namespace

TEST(ObjectName, ReadsAndWritesNamesOrSaysWhatIsWrongAndWhere) {
  ASSERT_GT(grammarCases().size(), 20);
  for (const QJsonValue& one : grammarCases()) {
    const QJsonObject row = one.toObject();
    const QString given = row[text("name")].toString();
    SCOPED_TRACE(given.toStdString());
    const ObjectName name(given);
    EXPECT_EQ(name.parseError(), row[text("error")].toString());
    EXPECT_EQ(name.isMultiProperty(), !row[text("plain")].toBool());
    EXPECT_EQ(name.qualifiedName(), row[text("text")].toString(given));
    expectProperties(name, row[text("properties")].toArray());
  }
}

TEST(ObjectName, WritesWhatItReads) {
  const QString odd = text("\\' {}=~?\n\"");
  ObjectName built(text("{}"));
  built.setProperty(text("a"), PropertyValue(odd));
  EXPECT_EQ(ObjectName(built.qualifiedName()).property(text("a")).value(), odd);
  EXPECT_FALSE(built.hasProperty(text("none")));
  EXPECT_EQ(built.property(text("none")).value(), QString());
}

TEST(ObjectName, ChangesKeepTheOrder) {
  ObjectName name(text("{c='1' a='2' b='3'}"));
  name.setProperty(text("a"), PropertyValue(text("x"), PropertyValue::RegExp));
  name.setProperty(text("d"), PropertyValue(text("{e='1'}"), PropertyValue::StrictMatch, PropertyValue::NestedName));
  name.removeProperty(text("c"));
  name.removeProperty(text("none"));
  EXPECT_EQ(name.qualifiedName(), text("{a~='x' b='3' d={e='1'}}"));
}

TEST(ObjectName, IsBoundedInDepthAndLength) {
  const auto nested = [](int levels) {
    return text("{a='1' container=").repeated(levels - 1) + text("{b='2'}") + text("}").repeated(levels - 1);
  };
  EXPECT_EQ(ObjectName(nested(100)).parseError(), QString());
  EXPECT_TRUE(ObjectName(nested(101)).parseError().endsWith(text("names are nested more than 100 deep")));
  EXPECT_LT(ObjectName(nested(20000)).parseError().size(), 200);
  EXPECT_LT(ObjectName(text("{a=").repeated(300000)).parseError().size(), 200);
  EXPECT_EQ(ObjectName(text("{") + text("a='' ").repeated(1001) + text("}")).parseError(),
            text("a name has at most 1000 properties"));
  const QString filler(999980, QLatin1Char('{'));
  EXPECT_EQ(ObjectName(text("{a='") + filler + text("'}")).parseError(), QString());
  EXPECT_EQ(ObjectName(text("{a='") + filler + filler + text("'}")).parseError(),
            text("it has more than 1000000 characters"));
}
