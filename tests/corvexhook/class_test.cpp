#include "corvexhook/class.h"

#include <gtest/gtest.h>

#include "corvexhook/primitives.h"
#include "corvexhook/testclass.h"
#include "support/printing.h"

using namespace Corvex;

namespace {

QString text(const char* latin1) { return QString::fromLatin1(latin1); }

/// Registered once, the subclasses before their super classes.
struct Chain {
  TestClass* leaf = new TestClass("ChainLeaf", "ChainMiddle", 1, 1);
  TestClass* middle = new TestClass("ChainMiddle", "ChainRoot", 0, 2);
  TestClass* root = new TestClass("ChainRoot", "", 3, 1);
};

Chain& chain() {
  static Chain theChain;
  return theChain;
}

}  // namespace

TEST(Class, ResolvesItsSuperClassOnceAndOnDemand) {
  EXPECT_EQ(chain().leaf->superClass(), chain().middle);
  EXPECT_EQ(chain().leaf->superClass()->superClass(), chain().root);
  EXPECT_EQ(chain().root->superClass(), nullptr);
  EXPECT_EQ(chain().leaf->superInits, 1);
  EXPECT_TRUE(chain().leaf->derivesFrom(chain().root));
  EXPECT_TRUE(chain().leaf->derivesFrom(chain().leaf));
  EXPECT_FALSE(chain().root->derivesFrom(chain().leaf));
}

TEST(Class, CountsMembersOverTheChainTheRootsFirst) {
  EXPECT_EQ(chain().leaf->numMethods(), 4);
  EXPECT_EQ(chain().leaf->numProperties(), 4);
  EXPECT_EQ(chain().leaf->superClassOffset(Class::MethodOffset), 3);
  EXPECT_EQ(chain().leaf->superClassOffset(Class::PropertyOffset), 3);
  EXPECT_EQ(chain().leaf->method(0)->name(), text("ChainRootm0"));
  EXPECT_EQ(chain().leaf->method(3)->name(), text("ChainLeafm0"));
  EXPECT_EQ(chain().leaf->method(3)->owner(), chain().leaf);
  EXPECT_EQ(chain().leaf->property(2)->name(), text("ChainMiddlep1"));
  EXPECT_EQ(chain().leaf->property(2)->owner(), chain().middle);
  EXPECT_EQ(chain().leaf->property(text("ChainRootp0"))->index(), 0);
  EXPECT_EQ(chain().root->property(text("ChainLeafp0")), nullptr);
}

TEST(Class, VerifyTellsTheScriptWhatIsWrong) {
  Inspector* inspector = Inspector::self();
  int data = 0;
  const SharedPtr<Object> leaf = new Object(chain().leaf, &data);
  const SharedPtr<Object> root = new Object(chain().root, &data);
  const Method* method = chain().leaf->method(3);
  EXPECT_TRUE(verifyMethodInvocation(leaf, method));
  EXPECT_TRUE(verifyMethodInvocation(leaf, chain().leaf->method(0)));
  EXPECT_FALSE(inspector->hasScriptError());

  EXPECT_FALSE(verifyMethodInvocation(root, method));
  EXPECT_EQ(inspector->takeScriptError(), text("Cannot call ChainLeaf.ChainLeafm0 on an object of type ChainRoot."));
  for (const SharedPtr<Object>& null : {SharedPtr<Object>(), inspector->nullObject(chain().leaf)}) {
    EXPECT_FALSE(verifyMethodInvocation(null, method));
    EXPECT_EQ(inspector->takeScriptError(),
              text("Cannot call ChainLeaf.ChainLeafm0 on a null object. Check that the object was found."));
  }

  EXPECT_TRUE(verifyMethodArgumentCount(text("ChainLeaf"), method, {inspector->wrapInt(1)}));
  EXPECT_FALSE(verifyMethodArgumentCount(text("ChainLeaf"), method, {}));
  EXPECT_EQ(inspector->takeScriptError(),
            text("ChainLeaf.ChainLeafm0(text: string): void takes 1 argument(s), but got 0."));
}

TEST(Class, SignatureEndsAtTheFirstEmptyArgument) {
  const Class* type = Inspector::self()->primitiveType(PrimitiveType::Int);
  EXPECT_EQ(Signature(Argument(text("a"), type), Argument(), Argument(text("b"), type)).count(), 1);
  EXPECT_EQ(Signature().text(), QString());
  EXPECT_EQ(Signature(Argument(text("a"), type), Argument(text("b"), type)).text(), text("a: int, b: int"));
}
