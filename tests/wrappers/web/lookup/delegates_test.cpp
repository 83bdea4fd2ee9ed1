#include "corvexhook/objectmap.h"
#include "support/environment.h"
#include "wrappers/web/elements/html_document.h"
#include "wrappers/web/lookup/containers.h"
#include "wrappers/web/lookup/webobjectdelegate.h"
#include "wrappers/web/webtest.h"

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

class Toplevel : public WebToplevelDelegate {
public:
  explicit Toplevel(HTMLComponent* page) : WebToplevelDelegate("Browser"), page(page) {}
  HTMLComponent* component(SharedPtr<Object>) const override { return page; }
  bool keepsDocumentAcrossComponents() const override { return keeps; }

  HTMLComponent* page;
  bool keeps = false;
};

class Delegates : public WebTest {
protected:
  void TearDown() override {
    toplevel.clearDocumentReference();
    ObjectMap::self()->clear();
    WebTest::TearDown();
  }
  QStringList split(const QString& name) {
    QStringList texts;
    for (const ObjectName& part : splitByContainer(ObjectName(name))) {
      texts << part.qualifiedName();
    }
    return texts;
  }

  Toplevel toplevel{&page};
  HTMLObjectHierarchyDelegate hierarchy;
};

}  // namespace

TEST_F(Delegates, NamesPartAtTheirContainers) {
  EXPECT_EQ(split("{a='1'}"), QStringList({"{a='1'}"}));
  EXPECT_EQ(split("{a='1' container={b='2' container={c='3'}}}"), QStringList({"{c='3'}", "{b='2'}", "{a='1'}"}));
  EXPECT_EQ(split("{container=':box' a='1'}"), QStringList({":box", "{a='1'}"}));
  ObjectMap::self()->insert(":box", "{x='y' container={z='0'}}");
  EXPECT_EQ(split("{container=':box' a='1'}"), QStringList({"{z='0'}", "{x='y'}", "{a='1'}"}));
  ObjectMap::self()->insert(":loop", "{container=':loop' q='1'}");
  EXPECT_FALSE(toplevel.objectByQualifiedName(nullptr, ObjectName("{container=':loop' a='1'}")));
  EXPECT_EQ(scriptError(), QString("Invalid object name '{container=':loop' a='1'}': its containers go round in a "
                                   "circle. Correct the object map."));
}

TEST_F(Delegates, NamesJoinAgain) {
  for (const QString& name : {QStringLiteral("{container={container={c='3'} b='2'} a='1'}"),
                              QStringLiteral("{container='it\\'s' a='1'}"), QStringLiteral("plain")}) {
    EXPECT_EQ(joinByContainer(splitByContainer(ObjectName(name))).qualifiedName(), name);
  }
  EXPECT_EQ(setObjectNameContainer(ObjectName("a.b"), "c").qualifiedName(), QString("c.a.b"));
  EXPECT_EQ(setObjectNameContainer(ObjectName("{a='1'}"), "{b='2'}").qualifiedName(),
            QString("{a='1' container={b='2'}}"));
  EXPECT_EQ(setObjectNameContainer(ObjectName("{a='1' container={b='2'}}"), "{c='3'}").qualifiedName(),
            QString("{a='1' container={b='2' container={c='3'}}}"));
}

TEST_F(Delegates, LookupFromTheRootAsksThePageOnce) {
  const ObjectName name("{a='say \"x\"'}");
  page.answerObject("__corvex__findObject(\"{a='say \\\"x\\\"'}\");", "button", "r");
  Inspector::self()->addUnmatchedProperty("{a='say \"x\"'}", "a");
  const SharedPtr<Object> object = toplevel.objectByQualifiedName(nullptr, name);
  ASSERT_TRUE(object);
  EXPECT_EQ(object->objectClass()->name(), QString("HTML_Button"));
  EXPECT_EQ(page.calls.size(), 1U);
  EXPECT_EQ(page.calls[0].timeoutMs, 5000U);
  EXPECT_EQ(Inspector::self()->unmatchedProperties("{a='say \"x\"'}"), QStringList());
}

TEST_F(Delegates, AnObjectThatIsNotThereIsNoError) {
  page.answer("__corvex__findObject", R"({"refName":null,"type":"[unknown]"})");
  Inspector::self()->addUnmatchedProperty("{a='1'}", "a");
  EXPECT_FALSE(toplevel.objectByQualifiedName(nullptr, ObjectName("{a='1'}")));
  EXPECT_EQ(Inspector::self()->unmatchedProperties("{a='1'}"), QStringList("a"));
  page.available = false;
  page.calls.clear();
  EXPECT_FALSE(toplevel.objectByQualifiedName(nullptr, ObjectName("{a='1'}")));
  EXPECT_TRUE(page.calls.empty());
}

TEST_F(Delegates, AFailedLookupIsReported) {
  page.fail("__corvex__findObject", "boom");
  EXPECT_FALSE(toplevel.objectByQualifiedName(nullptr, ObjectName("x")));
  EXPECT_EQ(scriptError(),
            QString("Failed to lookup object name 'x' with function '__corvex__findObject(\"x\");': boom"));
}

TEST_F(Delegates, TheEnvironmentLimitsALookup) {
  page.answer(QString(), R"({"refName":null,"type":""})");
  const std::pair<const char*, unsigned int> rows[] = {
      {"120", 120}, {"0", 0}, {"", 5000}, {"soon", 5000}, {"-1", 5000}};
  for (const auto& row : rows) {
    const ScopedVariable limit("CORVEX_WEB_OBJECT_LOOKUP_TIMEOUT", row.first);
    page.calls.clear();
    toplevel.objectByQualifiedName(nullptr, ObjectName("x"));
    EXPECT_EQ(page.calls[0].timeoutMs, row.second) << row.first;
  }
}

TEST_F(Delegates, TheContainersDelegateFindsTheRest) {
  page.answerObject("__corvex__findObject(\"{tagName='DIV'}\");", "div", "box");
  page.answerObject("__corvex__findObjectByProps( box, \"{tagName='P'}\");", "p", "inner");
  page.answerObject("__corvex__findObjectByProps( inner, \"{tagName='A'}\");", "a", "link");
  const SharedPtr<Object> object = toplevel.objectByQualifiedName(
      nullptr, ObjectName("{tagName='A' container={tagName='P' container={tagName='DIV'}}}"));
  ASSERT_TRUE(object);
  EXPECT_EQ(page.named(object->toString()), QString("link"));

  page.answer("__corvex__findObject(", R"({"refName":null,"type":""})");
  const QString name = "{tagName='A' container={tagName='DIV'}}";
  EXPECT_FALSE(toplevel.objectByQualifiedName(nullptr, ObjectName(name)));
  EXPECT_EQ(Inspector::self()->unmatchedProperties(name), QStringList("container"));
  page.answerObject("__corvex__findObject(\"{tagName='DIV'}\");", "div", "box");
  page.answerObject("__corvex__findObjectByProps( box, \"{tagName='A'}\");", "a", "link");
  EXPECT_TRUE(toplevel.objectByQualifiedName(nullptr, ObjectName(name)));
  EXPECT_EQ(Inspector::self()->unmatchedProperties(name), QStringList());
}

TEST_F(Delegates, BelowAnElementAContextIsOneTooMany) {
  const SharedPtr<Object> parent = wrapped<HTML_Object>();
  EXPECT_FALSE(hierarchy.objectByQualifiedName(parent, ObjectName("{tagName='A' context='f'}")));
  EXPECT_TRUE(
      scriptError().startsWith("Invalid object name '{tagName='A' context='f'}'. Cannot lookup objects that have"));
  EXPECT_FALSE(hierarchy.objectByQualifiedName(parent, ObjectName("{id='a'}")));
  EXPECT_TRUE(page.calls.empty());
}

TEST_F(Delegates, TheDocumentIsTheRootsOnlyChild) {
  page.answerObject("__corvex__ctxwin", "document", "doc");
  const SharedPtr<Object> document = toplevel.child(nullptr, 0);
  ASSERT_TRUE(document);
  EXPECT_EQ(toplevel.childByName(nullptr, "DOCUMENT"), document);
  EXPECT_EQ(toplevel.children(nullptr).size(), 1);
  EXPECT_EQ(page.calls.size(), 1U);
  EXPECT_FALSE(toplevel.child(nullptr, 1));

  FakeComponent other;
  other.answerObject("__corvex__ctxwin", "document", "other");
  toplevel.page = &other;
  toplevel.keeps = true;
  EXPECT_EQ(toplevel.child(nullptr, 0), document);
  toplevel.keeps = false;
  EXPECT_EQ(other.named(toplevel.child(nullptr, 0)->toString()), QString("other"));
  EXPECT_EQ(page.named(document->toString()), QString("undefined"));
  toplevel.page = nullptr;
  EXPECT_FALSE(toplevel.child(nullptr, 0));
  EXPECT_EQ(toplevel.numChildren(nullptr), 1);
}

TEST_F(Delegates, OtherRootNamesAreContextsOrHeuristic) {
  page.answerObject("__corvex__documentOfContext('a.b')", "document", "inner");
  EXPECT_EQ(page.named(toplevel.childByName(nullptr, "DOCUMENT[a.b]")->toString()), QString("inner"));
  page.answerObject("__corvex__findObjectByHeuristic(\"O\\\"K\");", "button", "ok");
  EXPECT_EQ(page.named(toplevel.childByName(nullptr, "O\"K")->toString()), QString("ok"));
  page.answerObject("__corvex__documentOfContext('it\\'s|html')", "document", "its");
  EXPECT_EQ(page.named(toplevel.childByName(nullptr, "DOCUMENT[it's|html]")->toString()), QString("its"));
  page.fail("__corvex__documentOfContext", "no");
  EXPECT_FALSE(toplevel.childByName(nullptr, "DOCUMENT[x]"));
  EXPECT_EQ(scriptError(), QString("Failed to retrieve child object with name DOCUMENT[x]: no"));
}

TEST_F(Delegates, PlainNamesLeadFromChildToChild) {
  static const Class browser("Browser", false);
  const SharedPtr<Object> root = new Object(&browser, &page);
  Inspector* inspector = Inspector::self();
  inspector->addRootObject(root);
  const QString nothing = R"({"refName":null,"type":""})";
  page.answer("__corvex__findObject", nothing);
  page.answerObject("__corvex__ctxwin", "document", "doc");
  page.answerValue("childObjectAndInfo( doc )", R"([{"reference":"@html@","typeString":"html","nameInLeaf":"HTML1"}])");
  page.answerValue("childObjectAndInfo( html )", "[]");
  EXPECT_EQ(page.named(inspector->lookup("DOCUMENT")->toString()), QString("doc"));
  EXPECT_EQ(page.named(inspector->lookup("DOCUMENT.HTML1")->toString()), QString("html"));
  page.answerObject("__corvex__documentOfContext('f')", "document", "inner");
  EXPECT_EQ(page.named(inspector->lookup("DOCUMENT[f].")->toString()), QString("inner"));
  EXPECT_FALSE(inspector->lookup("DOCUMENT.HTML1.BODY1"));
  page.answerObject("__corvex__findObjectByHeuristic(\"Version 1.0\");", "a", "link");
  EXPECT_EQ(page.named(inspector->lookup("Version 1.0")->toString()), QString("link"));
  inspector->removeRootObject(root);
}

TEST_F(Delegates, ChildrenAreAskedForOnce) {
  const SharedPtr<Object> parent = wrapped<HTML_Object>();
  page.answerValue("window.top.__corvex.childObjectAndInfo( ref )",
                   R"([{"reference":"@a@","typeString":"p","nameInLeaf":"P1"},
                       {"reference":"@b@","typeString":"true","nameInLeaf":""},
                       {"reference":"@c@","typeString":"select-one","nameInLeaf":"SELECT1"}, 7])");
  EXPECT_EQ(hierarchy.numChildren(parent), 2);
  EXPECT_EQ(page.calls[0].timeoutMs, 60000U);
  EXPECT_EQ(hierarchy.childByName(parent, "SELECT1")->objectClass()->name(), QString("HTML_Select"));
  EXPECT_FALSE(hierarchy.child(parent, -1) || hierarchy.child(parent, 2));
  EXPECT_EQ(page.calls.size(), 1U);
  page.available = false;
  EXPECT_EQ(hierarchy.numChildren(parent), 0);
  page.available = true;
  hierarchy.clearAllJSReferences(nullptr);
  page.answerValue("childObjectAndInfo", "[]");
  EXPECT_EQ(hierarchy.numChildren(parent), 0);
}

TEST_F(Delegates, AFailedListOfChildrenIsPrintedAndEmpty) {
  page.fail("childObjectAndInfo", "gone");
  testing::internal::CaptureStderr();
  EXPECT_EQ(hierarchy.children(wrapObject(new HTML_Object("box", "r", &page))).size(), 0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Failed to retrieve children for html object box: gone\n\n");
}

TEST_F(Delegates, ADocumentHasAParentOnlyInAFrame) {
  const SharedPtr<Object> document = wrapped<HTML_Document>();
  page.answerObject("ref.parentNode;", "iframe", "frame");
  page.answer("__corvex__contextOf( ref );", "top");
  EXPECT_FALSE(hierarchy.parent(document));
  page.answer("__corvex__contextOf( ref );", "top.IFRAME1");
  EXPECT_EQ(page.named(hierarchy.parent(document)->toString()), QString("frame"));
  page.answer("ref.parentNode;", R"({"refName":null,"type":""})");
  EXPECT_FALSE(hierarchy.parent(wrapped<HTML_Object>()));
  page.fail("ref.parentNode;", "gone");
  EXPECT_FALSE(hierarchy.parent(wrapped<HTML_Object>()));
  EXPECT_EQ(scriptError(), QString("Error obtaining parent element: gone"));
}

TEST_F(Delegates, TheQualifiedNameIsDecoded) {
  page.answer("__corvex__nameOf(ref);", "%7Ba%3D%27x%26y%27%7D");
  EXPECT_EQ(hierarchy.qualifiedName(wrapped<HTML_Object>()), QString("{a='x&amp;y'}"));
  EXPECT_EQ(hierarchy.qualifiedName(wrapObject(nullptr)), QString());
}

TEST_F(Delegates, ComparisonNeedsOneConnection) {
  const WebObjectComparisonDelegate comparison("Browser");
  FakeComponent other;
  const SharedPtr<Object> a = wrapObject(new HTML_Object("", "a", &page));
  const SharedPtr<Object> b = wrapObject(new HTML_Object("", "b", &page));
  page.answer("if( a === b ) { true; } else { false; }", "true");
  EXPECT_TRUE(comparison.compare(a, b));
  EXPECT_FALSE(comparison.compare(a, wrapObject(new HTML_Object("", "b", &other))));
  EXPECT_FALSE(comparison.compare(a, wrapObject(nullptr)));
}
