#include "corvexhook/objectname.h"

#include <gtest/gtest.h>

#include "support/printing.h"

using namespace Corvex;

namespace {

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

}  // namespace

TEST(ObjectName, ReadsPropertiesWithTheirModes) {
  const ObjectName name(text("{tagName='A' img_src?='*p.png'\ttitle~='x|y' container={id='{host}' n='\\''}}"));
  EXPECT_EQ(name.parseError(), QString());
  EXPECT_TRUE(name.isMultiProperty());
  EXPECT_EQ(name.properties().keys(),
            QStringList({text("container"), text("img_src"), text("tagName"), text("title")}));
  EXPECT_EQ(name.property(text("tagName")).value(), text("A"));
  EXPECT_EQ(name.property(text("tagName")).modifiers(), PropertyValue::StrictMatch);
  EXPECT_EQ(name.property(text("img_src")).modifiers(), PropertyValue::Wildcard);
  EXPECT_EQ(name.property(text("title")).modifiers(), PropertyValue::RegExp);
  EXPECT_EQ(name.property(text("container")).type(), PropertyValue::NestedName);
  EXPECT_EQ(name.property(text("container")).value(), text("{id='{host}' n='\\''}"));
  EXPECT_EQ(name.property(text("none")).value(), QString());
  EXPECT_FALSE(name.hasProperty(text("none")));
}

TEST(ObjectName, RoundTrips) {
  for (const char* name : {"{}", "{z='1' a='2' m='3'}", "{a~='x' b?='y*' c='z'}", "{a='it\\'s' b='C:\\\\dir\\\\'}",
                           "{a='' b='{not} nested'}", "{container={container={a='}'} b='2'} c='\xc3\xbc & &amp;'}",
                           "DOCUMENT.HTML1.BODY1", "[Window]", ":Symbolic", ""}) {
    const ObjectName parsed(text(name));
    EXPECT_EQ(parsed.parseError(), QString()) << name;
    EXPECT_EQ(parsed.qualifiedName(), text(name));
  }
  const QString odd = text("\\' {}=~?\n\"");
  ObjectName built(text("{}"));
  built.setProperty(text("a"), PropertyValue(odd));
  EXPECT_EQ(ObjectName(built.qualifiedName()).property(text("a")).value(), odd);
}

TEST(ObjectName, ChangesKeepTheOrder) {
  ObjectName name(text("{c='1' a='2' b='3'}"));
  name.setProperty(text("a"), PropertyValue(text("x"), PropertyValue::RegExp));
  name.setProperty(text("d"), PropertyValue(text("{e='1'}"), PropertyValue::StrictMatch, PropertyValue::NestedName));
  name.removeProperty(text("c"));
  name.removeProperty(text("none"));
  EXPECT_EQ(name.qualifiedName(), text("{a~='x' b='3' d={e='1'}}"));
  EXPECT_EQ(ObjectName(text("{a='1' b='2' a='3'}")).qualifiedName(), text("{a='3' b='2'}"));
}

TEST(ObjectName, SaysWhatIsWrongAndWhere) {
  const struct {
    const char* name;
    const char* error;
  } cases[] = {
      {"{a='b'", "the closing brace is missing at position 7"},
      {"{a%2='b' c%1}", "one of the operators =, ~= or ?= is missing after the property 'c%1' at position 13"},
      {"{a='b'} x", "there is text after the closing brace at position 9"},
      {"{='b'}", "a property name is missing at position 2"},
      {"{a}", "one of the operators =, ~= or ?= is missing after the property 'a' at position 3"},
      {"{a b='c'}", "one of the operators =, ~= or ?= is missing after the property 'a' at position 3"},
      {"{a~'b'}", "one of the operators =, ~= or ?= is missing after the property 'a' at position 3"},
      {"{a=b}", "the value of the property 'a' is not in single quotes at position 4"},
      {"{a=", "the value of the property 'a' is not in single quotes at position 4"},
      {"{a='b}", "the closing quote of the property 'a' is missing at position 7"},
      {"{a='b\\'}", "the closing quote of the property 'a' is missing at position 9"},
      {"{a={b='c'}", "the closing brace is missing at position 11"},
      {"{a={b='c'", "in the value of 'a': the closing brace is missing at position 7"},
      {"{a={b=c}}", "in the value of 'a': the value of the property 'b' is not in single quotes at position 4"},
  };
  for (const auto& one : cases) {
    const ObjectName name(text(one.name));
    EXPECT_EQ(name.parseError(), text(one.error)) << one.name;
    EXPECT_EQ(name.qualifiedName(), text(one.name));
    EXPECT_TRUE(name.properties().isEmpty());
  }
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
