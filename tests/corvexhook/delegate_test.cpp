#include "corvexhook/delegate.h"

#include <gtest/gtest.h>

#include "corvexhook/primitives.h"
#include "corvexhook/testclass.h"
#include "support/printing.h"

using namespace Corvex;

namespace {

QString text(const char* latin1) { return QString::fromLatin1(latin1); }

class TextDelegate : public CastDelegate {
public:
  TextDelegate(const char* className, const char* answer) : CastDelegate(text(className)), m_answer(answer) {}

  bool canCastTo(const Class* target) const override {
    return target == Inspector::self()->primitiveType(PrimitiveType::String);
  }
  bool canCastFrom(const Class*) const override { return false; }
  SharedPtr<Object> castTo(SharedPtr<Object>, const Class*) const override {
    return Inspector::self()->wrapString(text(m_answer));
  }
  SharedPtr<Object> castFrom(SharedPtr<Object>, const Class*) const override { return nullptr; }

private:
  const char* m_answer;
};

class DelegateTest : public testing::Test {
protected:
  static const Class* cls(const char* name) { return Inspector::self()->classByName(text(name)); }
  static Delegate* found(const char* name, Delegate::Type type = Delegate::CastDelegateType) {
    return DelegateFactory::self()->delegate(cls(name), type);
  }
  static void SetUpTestSuite() {
    new TestClass("DelegateLeaf", "DelegateMiddle");
    new TestClass("DelegateMiddle", "DelegateRoot");
    new TestClass("DelegateRoot", "");
  }
};

}  // namespace

TEST_F(DelegateTest, TheNearestSuperClassWins) {
  const TextDelegate root("DelegateRoot", "root");
  EXPECT_EQ(found("DelegateLeaf"), &root);
  {
    const TextDelegate middle("DelegateMiddle", "middle");
    EXPECT_EQ(found("DelegateLeaf"), &middle);
    EXPECT_EQ(found("DelegateMiddle"), &middle);
    EXPECT_EQ(found("DelegateRoot"), &root);
    const TextDelegate later("DelegateMiddle", "later");
    EXPECT_EQ(found("DelegateLeaf"), &later);
  }
  EXPECT_EQ(found("DelegateLeaf"), &root);
  EXPECT_EQ(found("DelegateLeaf", Delegate::ComparisonDelegateType), nullptr);
}

TEST_F(DelegateTest, UnregistersItself) {
  { const TextDelegate root("DelegateRoot", "root"); }
  EXPECT_EQ(found("DelegateRoot"), nullptr);
  EXPECT_EQ(DelegateFactory::self()->delegate(nullptr, Delegate::CastDelegateType), nullptr);
}

TEST_F(DelegateTest, GivesAnObjectItsText) {
  int data = 0;
  const SharedPtr<Object> object = new Object(cls("DelegateLeaf"), &data);
  EXPECT_EQ(object->toString(), QString());
  const TextDelegate root("DelegateRoot", "the text");
  EXPECT_EQ(object->toString(), text("the text"));
  EXPECT_EQ(object->toStringList(), QStringList(text("the text")));
  EXPECT_EQ(Inspector::self()->nullObject(cls("DelegateLeaf"))->toString(), QString());
}
