#include "wrappers/web/lookup/itemchildren.h"
#include "wrappers/web/itemviews/html_calendarview.h"
#include "wrappers/web/itemviews/html_menu.h"
#include "wrappers/web/lookup/webobjectdelegate.h"
#include "wrappers/web/webtest.h"

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

const char* const nothing = R"({"refName":null,"type":"[unknown]"})";

class ItemChildren : public WebTest {
protected:
  void SetUp() override {
    WebTest::SetUp();
    page.answerValue("childObjectAndInfo( ref )", R"([{"reference":"@d@","typeString":"div","nameInLeaf":"DIV1"}])");
  }
  QStringList texts(const ObjectList& list) const {
    QStringList references;
    for (const SharedPtr<Object>& object : list) {
      references << page.named(object->toString()) + QLatin1Char(' ') + object->objectClass()->name();
    }
    return references;
  }
  QStringList parse(const QString& text) { return texts(parseItemViewBasedChildInfo(&page, page.expanded(text))); }
  /// The children of an object, and after them, what was printed.
  template <typename T>
  QStringList children() {
    testing::internal::CaptureStderr();
    const SharedPtr<Object> object = wrapped<T>(QStringLiteral("Kit"));
    QStringList found = texts(hierarchyDelegate(object)->children(object));
    const std::string printed = testing::internal::GetCapturedStderr();
    return printed.empty() ? found : found << QString::fromStdString(printed);
  }

  HTMLObjectHierarchyDelegate hierarchy;
  CustomViewItemPropertyDelegate items;
};

const QString domChild = QStringLiteral("d HTML_Object");

}  // namespace

TEST_F(ItemChildren, RecordsAreReadCharacterByCharacter) {
  EXPECT_EQ(parse("item_1|@a@~custom_item_Kit#item_2|@b@~DIV#"), QStringList({"a HTML_CustomItem", "b HTML_Object"}));
  EXPECT_EQ(parse("item_1|@a@~custom_item_Kit#item_2|@b@~custom_it"), QStringList("a HTML_CustomItem"));
  EXPECT_EQ(parse("item_1|@a@~undefined#item_2|@b@~a#"), QStringList("b HTML_Anchor"));
  EXPECT_EQ(parse("[err]"), QStringList());
  EXPECT_EQ(parse(""), QStringList());
}

TEST_F(ItemChildren, ViewsShowTheirItemsBehindTheDomsChildren) {
  page.answer("try{__corvex__fetchItemViewChildren(ref, KitExtension );}catch(e){'[err]';}",
              "item_1|@a@~custom_item_Kit#");
  EXPECT_EQ(children<HTML_CustomItemView>(), QStringList({domChild, "a HTML_CustomItem"}));
  EXPECT_EQ(page.calls.back().timeoutMs, 10000U);
  page.answer("fetchItemViewChildren", "[err]");
  EXPECT_EQ(children<HTML_CustomItemView>(), QStringList(domChild));
  page.abort("fetchItemViewChildren", "late");
  EXPECT_EQ(children<HTML_CustomItemView>(), QStringList({domChild, "Error obtaining itemview children: late\n"}));
  page.answer("fetchItemViewChildren", "item_1|@a@~custom_item_Kit#");
  page.fail("childObjectAndInfo", "gone");
  EXPECT_EQ(children<HTML_CustomItemView>(),
            QStringList({"a HTML_CustomItem", "Failed to retrieve children for html object : gone\n\n"}));
}

TEST_F(ItemChildren, ItemsAreAskedForEachTimeButNotWithoutAPage) {
  const SharedPtr<Object> view = wrapped<HTML_CustomItemView>(QStringLiteral("Kit"));
  page.answer("fetchItemViewChildren", "item_1|@a@~custom_item_Kit#");
  EXPECT_EQ(hierarchy.numChildren(view), 2);
  page.answer("fetchItemViewChildren", "");
  EXPECT_EQ(hierarchy.numChildren(view), 1);
  page.available = false;
  page.calls.clear();
  EXPECT_EQ(hierarchy.numChildren(view), 0);
  EXPECT_TRUE(page.calls.empty());
}

TEST_F(ItemChildren, MenusShowWhatThereIsUpToAFailure) {
  page.answer("KitExtension.getMenuItemCount(ref);", "3");
  page.answerObject("KitExtension.getMenuItemAt(ref, 0);", "menuitem_Kit", "m0");
  page.answerObject("KitExtension.getMenuItemAt(ref, 1);", "div", "no item");
  page.fail("KitExtension.getMenuItemAt(ref, 2);", "gone");
  EXPECT_EQ(children<HTML_Menu>(), QStringList({domChild, "m0 HTML_MenuItem", "Error obtaining menu item 2: gone\n"}));
  page.answer("getMenuItemCount", "many");
  EXPECT_EQ(children<HTML_Menu>(), QStringList({domChild,
                                                "Error obtaining number of menu items: Cannot convert 'many' to "
                                                "number of items\n"}));
}

TEST_F(ItemChildren, CalendarsPassOverAFailedEvent) {
  page.answer("KitExtension.getVisibleEventCount(ref);", "2");
  page.fail("KitExtension.getVisibleEventAt(ref, 0);", "gone");
  page.answerObject("KitExtension.getVisibleEventAt(ref, 1);", "calendarevent_Kit", "e1");
  EXPECT_EQ(children<HTML_CalendarView>(),
            QStringList({domChild, "e1 HTML_CalendarEvent", "Error obtaining event at 0: gone\n"}));
  page.fail("getVisibleEventCount", "gone");
  EXPECT_EQ(children<HTML_CalendarView>(),
            QStringList({domChild, "Error obtaining number of events: Error obtaining number of events: gone\n"}));
}

TEST_F(ItemChildren, ItemsHaveAnItemsDelegate) {
  page.answer("try{__corvex__fetchItemChildren(ref, KitExtension );}catch(e){'[err]';}", "item_1|@a@~custom_item_Kit#");
  EXPECT_EQ(children<HTML_CustomItem>(), QStringList("a HTML_CustomItem"));
  page.fail("fetchItemChildren", "gone");
  EXPECT_EQ(children<HTML_CustomItem>(), QStringList("Error obtaining itemview children: gone\n"));
  const SharedPtr<Object> item = wrapped<HTML_CustomItem>(QStringLiteral("Kit"));
  EXPECT_EQ(items.qualifiedName(item), QString("__noimpl__"));
  EXPECT_FALSE(items.objectByQualifiedName(item, ObjectName("{tagName='P'}")));
  EXPECT_FALSE(items.parent(item));
  EXPECT_EQ(items.numChildren(wrapped<HTML_Object>()), 0);
  page.available = false;
  EXPECT_EQ(items.numChildren(item), 0);
}

TEST_F(ItemChildren, AnItemHasANameOnceItHasAPlace) {
  const SharedPtr<Object> item = wrapped<HTML_CustomItem>(QStringLiteral("Kit"));
  page.answer("__corvex__hierarchicalItemName(KitExtension, ref);", "item_0");
  page.answer("KitExtension.parentItem(ref, -1);", nothing);
  page.answer("KitExtension.itemView(ref);", nothing);
  EXPECT_EQ(items.name(item), QString());
  page.answerObject("KitExtension.itemView(ref);", "custom_itemview_Kit", "view");
  EXPECT_EQ(items.name(item), QString("item_0"));
  testing::internal::CaptureStderr();
  page.answer("hierarchicalItemName", "[err]");
  EXPECT_EQ(items.name(item), QString());
  page.fail("KitExtension.parentItem", "gone");
  EXPECT_EQ(items.name(item), QString());
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Error obtaining item name: [err]\nError fetching parent item for column '-1': gone\n");
}
