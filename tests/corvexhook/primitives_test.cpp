#include "corvexhook/primitives.h"

#include <gtest/gtest.h>

#include "corvexhook/arrayclass.h"
#include "corvexhook/testclass.h"
#include "support/printing.h"

using namespace Corvex;

namespace {

QString text(const char* latin1) { return QString::fromLatin1(latin1); }

}  // namespace

TEST(Primitives, AreAcceptedWhereNothingIsLost) {
  const Inspector* inspector = Inspector::self();
  const struct {
    SharedPtr<Object> value;
    // Accepted as int, bool, string, double: one letter each.
    const char* accepted;
  } rows[] = {
      {inspector->wrapInt(5), "i.sd"},
      {inspector->wrapUInt(4000000000U), "..sd"},
      {inspector->wrapDouble(2.0), "i.sd"},
      {inspector->wrapDouble(2.5), "..sd"},
      {inspector->wrapDouble(1e10), "..sd"},
      {inspector->wrapBool(true), ".bs."},
      {inspector->wrapString(text("5")), "..s."},
      {inspector->wrapVoid(), "...."},
      {inspector->nullObject(nullptr), "...."},
      {ArrayClass::wrapObject({}), "...."},
      {nullptr, "...."},
  };
  const struct {
    PrimitiveType::Id id;
    char letter;
  } columns[] = {{PrimitiveType::Int, 'i'},
                 {PrimitiveType::Bool, 'b'},
                 {PrimitiveType::String, 's'},
                 {PrimitiveType::Double, 'd'}};
  for (const auto& row : rows) {
    std::string accepted;
    for (const auto& column : columns) {
      accepted += isAcceptable(row.value, inspector->primitiveType(column.id)) ? column.letter : '.';
    }
    EXPECT_EQ(accepted, row.accepted) << (row.value ? row.value->toString().toStdString() : "none");
  }
}

TEST(Primitives, ObjectsAreAcceptedByTheirClassAndNullsByAny) {
  const Inspector* inspector = Inspector::self();
  const auto* super = new TestClass("AcceptSuper", "");
  const auto* sub = new TestClass("AcceptSub", "AcceptSuper");
  int data = 0;
  const SharedPtr<Object> object = new Object(sub, &data);
  EXPECT_TRUE(isAcceptable(object, super));
  EXPECT_FALSE(isAcceptable(new Object(super, &data), sub));
  EXPECT_FALSE(isAcceptable(inspector->wrapInt(1), super));
  EXPECT_TRUE(isAcceptable(inspector->nullObject(super), sub));
  EXPECT_FALSE(isAcceptable(object, inspector->primitiveType(PrimitiveType::String)));
}

TEST(Primitives, UnwrapRefusesWhatIsNoWholeNumber) {
  int number = 7;
  EXPECT_TRUE(unwrap(Inspector::self()->wrapDouble(-3.0), &number));
  EXPECT_EQ(number, -3);
  EXPECT_FALSE(unwrap(Inspector::self()->wrapString(text("4")), &number));
  EXPECT_FALSE(unwrap(nullptr, &number));
  EXPECT_EQ(number, -3);

  QStringList list;
  EXPECT_TRUE(unwrap(Inspector::self()->wrapInt(4), &list));
  EXPECT_EQ(list, QStringList(text("4")));
  EXPECT_FALSE(unwrap(Inspector::self()->wrapVoid(), &list));
}
