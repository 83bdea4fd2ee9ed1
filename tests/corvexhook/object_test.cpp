#include "corvexhook/object.h"

#include <gtest/gtest.h>

#include "corvexhook/arrayclass.h"
#include "corvexhook/datetime.h"
#include "corvexhook/geometry.h"
#include "corvexhook/testclass.h"
#include "support/printing.h"

using namespace Corvex;

namespace {

const TestClass* ownerClass() {
  static const auto* cls = new TestClass("OwnerTest", "");
  return cls;
}

QString text(const char* latin1) { return QString::fromLatin1(latin1); }

}  // namespace

TEST(SharedPtr, TheLastReleaseDeletes) {
  ownerClass()->deleted.clear();
  int data = 0;
  SharedPtr<Object> first = new Object(ownerClass(), &data);
  first->setOwnsData(true);
  {
    SharedPtr<Object> second = first;
    const SharedPtr<Object> moved = std::move(second);
    EXPECT_EQ(moved, first);
  }
  const SharedPtr<Object>& alias = first;
  first = alias;
  ObjectList list{first};
  first = nullptr;
  EXPECT_TRUE(ownerClass()->deleted.empty());
  list.clear();
  EXPECT_EQ(ownerClass()->deleted, std::vector<void*>{&data});
}

TEST(Object, DeletesOnlyDataThatItOwns) {
  ownerClass()->deleted.clear();
  int data = 0;
  SharedPtr<Object> borrowed = ownerClass()->wrap(&data, ObjectAttribute(ObjectAttribute::NativePointer));
  void* out = nullptr;
  EXPECT_TRUE(borrowed->get(&out));
  EXPECT_EQ(out, &data);
  EXPECT_TRUE(borrowed->isA(ownerClass()));
  EXPECT_FALSE(borrowed->isA(nullptr));
  borrowed = nullptr;
  EXPECT_TRUE(ownerClass()->deleted.empty());

  const SharedPtr<Object> null = Inspector::self()->nullObject(ownerClass());
  EXPECT_TRUE(null->isNull());
  EXPECT_FALSE(null->get(&out));
  EXPECT_EQ(out, nullptr);
}

TEST(Object, ListsHoldWhatWasPutIn) {
  Inspector* inspector = Inspector::self();
  const SharedPtr<Object> array =
      ArrayClass::wrapObject({inspector->wrapInt(1), ArrayClass::wrapObject({inspector->wrapString(text("x"))})});
  EXPECT_EQ(ArrayClass::unwrapObject(array).size(), 2u);
  EXPECT_EQ(array->toStringList(), QStringList({text("1"), text("x")}));
  EXPECT_TRUE(ArrayClass::unwrapObject(inspector->wrapInt(1)).empty());
  EXPECT_TRUE(ArrayClass::unwrapObject(nullptr).empty());
  EXPECT_EQ(ObjectList().at(0), SharedPtr<Object>());
}

TEST(Object, ValueClassesShowTheirFields) {
  const SharedPtr<Object> rectangle = wrapScreenRectangle({1, 2, 3, 4});
  const Class* cls = objectModelScreenRectangleClass();
  QStringList fields;
  for (int id = 0; id < cls->numProperties(); ++id) {
    fields << cls->property(id)->name() + cls->getProperty(rectangle, cls->property(id))->toString();
  }
  EXPECT_EQ(fields, QStringList({text("x1"), text("y2"), text("width3"), text("height4")}));

  const DateTime date(2024, 2, 29);
  EXPECT_EQ(unwrapDateTime(wrapDateTime(date)).value(), date.value());
  EXPECT_FALSE(unwrapDateTime(rectangle).value().isValid());
}
