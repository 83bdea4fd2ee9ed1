#include "support/memory.h"
#include "wrappers/web/lookup/findallobjects.h"
#include "wrappers/web/lookup/webobjectdelegate.h"
#include "wrappers/web/object/references.h"
#include "wrappers/web/webtest.h"

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

class OnePage : public WebToplevelDelegate {
public:
  explicit OnePage(HTMLComponent* page) : WebToplevelDelegate("OnePage"), m_page(page) {}
  HTMLComponent* component(SharedPtr<Object>) const override { return m_page; }
  bool keepsDocumentAcrossComponents() const override { return false; }

private:
  HTMLComponent* m_page;
};

class FindAll : public WebTest {
protected:
  QString all(const QString& name) {
    QStringList references;
    for (const SharedPtr<Object>& object : findAllObjects(toplevel, nullptr, ObjectName(name))) {
      references << page.named(object->toString());
    }
    return references.join(QLatin1Char(' '));
  }

  OnePage toplevel{&page};
  HTMLObjectHierarchyDelegate hierarchy;
};

/// Finds a button whatever it is asked, and keeps nothing.
class ButtonPage : public FakeComponent {
public:
  JavaScriptAnswer evaluateJS(const QString&, unsigned int) override {
    return {QStringLiteral("{\"refName\":\"window.__corvex__object__C%1\",\"type\":\"button\"}").arg(m_count++ % 1000),
            false, false};
  }

private:
  int m_count = 0;
};

}  // namespace

TEST_F(FindAll, AsksThePageOnce) {
  page.answerValue("findAllObjects(\"{tagName='P'}\")",
                   R"([{"reference":"@a@","typeString":"p"},{"reference":"@b@","typeString":"a"},7])");
  EXPECT_EQ(all("{tagName='P'}"), QString("a b"));
  EXPECT_EQ(page.calls.size(), 1U);
  EXPECT_EQ(page.calls[0].timeoutMs, 5000U);
  page.answerValue("findAllObjects", "[]");
  EXPECT_EQ(all("{tagName='P'}"), QString());
  page.fail("findAllObjects", "gone");
  EXPECT_EQ(all("{tagName='P'}"), QString());
  EXPECT_EQ(scriptError(), QString("Failed to look up all objects with the name '{tagName='P'}': gone"));
  page.available = false;
  EXPECT_EQ(all("{tagName='P'}"), QString());
}

TEST_F(FindAll, LooksOnlyBelowTheContainer) {
  const QString name = "{tagName='P' container={tagName='UL' container={tagName='DIV'}}}";
  page.answerObject("__corvex__findObject(\"{tagName='DIV'}\")", "div", "box");
  page.answerObject("__corvex__findObjectByProps( box, \"{tagName='UL'}\")", "ul", "list");
  page.answerValue("findAllObjects(\"{tagName='P'}\", list)", R"([{"reference":"@a@","typeString":"p"}])");
  Inspector::self()->addUnmatchedProperty(name, "container");
  EXPECT_EQ(all(name), QString("a"));
  EXPECT_EQ(Inspector::self()->unmatchedProperties(name), QStringList());
  EXPECT_EQ(all("{tagName='P' context='f' container={tagName='DIV'}}"), QString());
  EXPECT_TRUE(scriptError().startsWith("Invalid object name '{tagName='P' context='f'}'. Cannot lookup objects"));
  page.answerObject("__corvex__findObject(\"{tagName='DIV'}\")", "custom_item_Kit", "item");
  const CustomViewItemPropertyDelegate items;
  EXPECT_EQ(all("{tagName='P' container={tagName='DIV'}}"), QString());
}

TEST_F(FindAll, OnlyAnExactOccurrencePicksOne) {
  EXPECT_TRUE(namesOneOccurrence(ObjectName("{tagName='P' occurrence='2'}")));
  EXPECT_TRUE(namesOneOccurrence(ObjectName("{tagName='P' occurance='2'}")));
  EXPECT_FALSE(namesOneOccurrence(ObjectName("{tagName='P' occurrence='' occurance='2'}")));
  EXPECT_FALSE(namesOneOccurrence(ObjectName("{tagName='P' occurrence~='2'}")));
  EXPECT_FALSE(namesOneOccurrence(ObjectName("{tagName='P'}")));
}

TEST_F(FindAll, ManyReleasedLookupsLeaveNoMemoryBehind) {
  if (TestSupport::freedMemoryStays) {
    GTEST_SKIP() << "freed memory stays resident in this build";
  }
  ButtonPage buttons;
  const OnePage root(&buttons);
  const std::size_t registered = referencedObjects.size();
  const ObjectName name("{tagName='BUTTON' title='Save'}");
  const auto lookUp = [&](int times) {
    for (int i = 0; i < times; ++i) {
      ASSERT_TRUE(root.objectByQualifiedName(nullptr, name));
    }
  };
  lookUp(1000);
  const qint64 before = residentBytes();
  ASSERT_GT(before, 0);
  lookUp(99000);
  EXPECT_LT(residentBytes() - before, 10 << 20);
  EXPECT_EQ(referencedObjects.size(), registered);
}
