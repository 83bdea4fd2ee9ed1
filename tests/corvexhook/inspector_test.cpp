#include "corvexhook/inspector.h"
#include "corvexhook/hostservices.h"

#include <gtest/gtest.h>

#include "corvexhook/delegate.h"
#include "corvexhook/objectmap.h"
#include "corvexhook/testclass.h"
#include "support/fakeclock.h"
#include "support/printing.h"

using namespace Corvex;

namespace {

QString text(const char* latin1) { return QString::fromLatin1(latin1); }

/// Finds exactly the names of `known`, and writes down all that it is asked for.
class KnownNames : public ObjectHierarchyDelegate {
public:
  KnownNames() : ObjectHierarchyDelegate(text("InspectorRoot")) {}

  SharedPtr<Object> objectByQualifiedName(SharedPtr<Object> root, const ObjectName& name) const override {
    asked << name.qualifiedName();
    if (!error.isEmpty()) {
      Inspector::self()->reportScriptError(error);
    }
    return known.contains(name.qualifiedName()) ? root : SharedPtr<Object>();
  }
  int numChildren(SharedPtr<Object>) const override { return 0; }
  SharedPtr<Object> child(SharedPtr<Object>, int) const override { return nullptr; }
  SharedPtr<Object> childByName(SharedPtr<Object>, const QString&) const override { return nullptr; }
  QString name(SharedPtr<Object>) const override { return QString(); }
  QString qualifiedName(SharedPtr<Object>) const override { return QString(); }
  ObjectList children(SharedPtr<Object>) const override { return ObjectList(); }
  int wrapperType() const override { return 0; }

  QStringList known;
  QString error;
  mutable QStringList asked;
};

/// Answers as the test says.
class Services : public HostServices {
public:
  Services() { Inspector::self()->setHostServices(this); }
  ~Services() override { Inspector::self()->setHostServices(nullptr); }

  QString whyNotLookUp(const QString&) const override { return noLookup; }
  QString whyNeverFound(const QString& name) const override {
    ++timesAsked;
    return name.contains(text("bad")) ? text("it is bad") : QString();
  }
  SharedPtr<Object> lookUpToUse(const std::function<SharedPtr<Object>()>& lookUp) const override {
    ++timesLookedUpToUse;
    return lookUp();
  }
  FunctionCallResult<bool> isReady(const SharedPtr<Object>&) const override {
    return FunctionCallResult<bool>::success(false);
  }

  QString noLookup;
  mutable int timesAsked = 0;
  mutable int timesLookedUpToUse = 0;
};

class InspectorTest : public testing::Test {
protected:
  InspectorTest() {
    static const auto* cls = new TestClass("InspectorRoot", "");
    m_root = new Object(cls, this);
    m_inspector->addRootObject(m_root);
  }
  ~InspectorTest() override {
    m_inspector->removeRootObject(m_root);
    m_inspector->setHostServices(nullptr);
    m_inspector->takeScriptError();
    ObjectMap::self()->clear();
  }

  Inspector* m_inspector = Inspector::self();
  KnownNames m_names;
  SharedPtr<Object> m_root;

private:
};

}  // namespace

TEST_F(InspectorTest, TheFirstErrorOfACallStays) {
  m_inspector->reportScriptError(text("first"));
  m_inspector->reportScriptError(text("second"));
  EXPECT_EQ(m_inspector->takeScriptError(), text("first"));
  EXPECT_FALSE(m_inspector->hasScriptError());
}

TEST_F(InspectorTest, LookupTriesAmpersandEntitiesAsAmpersandsAfterwards) {
  m_names.known << text("{a='x & y'}");
  EXPECT_EQ(m_inspector->lookup(text("{a='x &amp; y'}")), m_root);
  EXPECT_EQ(m_names.asked, QStringList({text("{a='x &amp; y'}"), text("{a='x & y'}")}));
  m_names.known << text("{a='x &amp; y'}");
  m_names.asked.clear();
  EXPECT_EQ(m_inspector->lookup(text("{a='x &amp; y'}")), m_root);
  EXPECT_EQ(m_names.asked.size(), 1);
  m_names.error = text("The page said no.");
  EXPECT_FALSE(m_inspector->findObject(text("{b='&amp;'}"), 0));
  EXPECT_EQ(m_names.asked.size(), 2);
  EXPECT_EQ(m_inspector->takeScriptError(), text("The page said no."));
}

TEST_F(InspectorTest, FindObjectNamesWhatNothingMatched) {
  m_inspector->addUnmatchedProperty(text("{a='1' b='2'}"), text("b"));
  m_inspector->addUnmatchedProperty(text("{a='1' b='2'}"), text("a"));
  m_inspector->addUnmatchedProperty(text("{a='1' b='2'}"), text("b"));
  EXPECT_FALSE(m_inspector->findObject(text("{a='1' b='2'}"), 0));
  EXPECT_EQ(m_inspector->takeScriptError(), text("Object '{a='1' b='2'}' not found. No element matched: b, a."));
  m_inspector->removeUnmatchedProperties(text("{a='1' b='2'}"));
  EXPECT_FALSE(m_inspector->findObject(text("{a='1' b='2'}"), 0));
  EXPECT_EQ(m_inspector->takeScriptError(), text("Object '{a='1' b='2'}' not found."));
}

TEST_F(InspectorTest, WaitingOutlivesOneFailedLookup) {
  TestSupport::FakeClock clock;
  const Services services;
  m_names.known << text("{a='%2'}");
  m_names.error = text("The page was replaced.");
  clock.onSleep = [this] { m_names.error.clear(); };
  EXPECT_FALSE(m_inspector->findObject(text("{a='%2'}"), 100));
  EXPECT_EQ(m_inspector->takeScriptError(),
            text("The object '{a='%2'}' was found, but was not ready within 100 ms: it is hidden or disabled."));

  EXPECT_EQ(services.timesLookedUpToUse, m_names.asked.size());
  m_names.asked.clear();
  m_names.error = text("The page said no.");
  clock.onSleep = nullptr;
  EXPECT_FALSE(m_inspector->findObject(text("{a='1'}"), 100));
  EXPECT_EQ(m_names.asked.size(), 2);
  EXPECT_EQ(m_inspector->takeScriptError(), text("The page said no."));
}

TEST_F(InspectorTest, WaitingEndsWhenNothingCanBeLookedUp) {
  TestSupport::FakeClock clock;
  Services services;
  clock.onSleep = [&services] { services.noLookup = text("The browser is gone."); };
  EXPECT_FALSE(m_inspector->waitForObject(text("{a='1'}")));
  EXPECT_LT(clock.nowMs, 100);
  EXPECT_EQ(m_inspector->takeScriptError(), text("The browser is gone."));
}

TEST_F(InspectorTest, ANameThatCanNeverBeFoundIsRefusedAtOnce) {
  const TestSupport::FakeClock clock;
  Services services;
  const QString error = text("Invalid object name '{a='bad'}': it is bad.");
  EXPECT_FALSE(m_inspector->waitForObject(text("{a='bad'}")));
  EXPECT_EQ(m_inspector->takeScriptError(), error);
  EXPECT_FALSE(m_inspector->waitForObject(text("{a='1'")));
  EXPECT_TRUE(m_inspector->takeScriptError().startsWith(text("Invalid object name '{a='1'': ")));
  EXPECT_EQ(clock.nowMs, 0);
  EXPECT_FALSE(m_inspector->lookup(text("{a='bad'}")));
  EXPECT_EQ(m_inspector->takeScriptError(), error);
  services.timesAsked = 0;
  EXPECT_FALSE(m_inspector->findObject(text("{a='good'}"), 1000));
  EXPECT_EQ(m_inspector->takeScriptError(), text("Object '{a='good'}' not found. It was waited for during 1000 ms."));
  EXPECT_EQ(services.timesAsked, 1) << "waiting asks once";
}

TEST_F(InspectorTest, UnmatchedPropertiesOfEndlessNamesAreForgotten) {
  for (int i = 0; i < 5000; ++i) {
    m_inspector->addUnmatchedProperty(QString::number(i), text("b"));
  }
  EXPECT_EQ(m_inspector->unmatchedProperties(text("0")), QStringList());
  EXPECT_EQ(m_inspector->unmatchedProperties(text("4999")), QStringList(text("b")));
}
