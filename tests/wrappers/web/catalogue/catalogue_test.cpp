#include "wrappers/web/catalogue/catalogue.h"

#include "support/printing.h"
#include "wrappers/web/elements/html_formelement.h"
#include "wrappers/web/lookup/itemchildren.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/webtest.h"

#include <QRegularExpression>

#include <memory>

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

QStringList textsOf(const ClassRow& row) {
  QStringList texts;
  for (auto text = row.types.texts.begin(); text != row.types.texts.end() && *text; ++text) {
    texts << QLatin1String(*text);
  }
  return texts;
}

class CatalogueTest : public WebTest {};

}  // namespace

TEST_F(CatalogueTest, EachTypeTextMakesAnObjectOfItsClass) {
  for (const ClassRow& row : Catalogue()) {
    for (const QString& text : textsOf(row)) {
      const QString type = row.types.match == TypeTexts::BeforeExtension ? text + QStringLiteral("MyKit") : text;
      const std::unique_ptr<HTML_Object> object(
          htmlObjectFromReferenceInfo(&page, type, "window.__corvex__object__C1", "n"));
      ASSERT_TRUE(object) << type.toStdString();
      EXPECT_EQ(QLatin1String(object->className()), QLatin1String(row.name)) << type.toStdString();
      EXPECT_EQ(hasItems(*object), row.items != nullptr) << type.toStdString();
      // Scripts see the inheritance of the native side.
      const Inspector* const inspector = Inspector::self();
      EXPECT_EQ(bool(dynamic_cast<HTML_FormElement*>(object.get())),
                inspector->classByName(row.name)->derivesFrom(inspector->classByName("HTML_FormElement")))
          << type.toStdString();
    }
  }
}

TEST_F(CatalogueTest, NoTypeTextHidesAnother) {
  QStringList all;
  QStringList prefixes;
  for (const ClassRow& row : Catalogue()) {
    all += textsOf(row);
    prefixes += row.types.match != TypeTexts::Whole ? textsOf(row) : QStringList();
  }
  for (const QString& prefix : prefixes) {
    EXPECT_EQ(all.filter(QRegularExpression(QLatin1Char('^') + prefix)), QStringList(prefix));
  }
  EXPECT_EQ(all.removeDuplicates(), 0);
}

TEST_F(CatalogueTest, EverySuperClassIsARow) {
  for (const ClassRow& row : Catalogue()) {
    EXPECT_TRUE(!row.superClass || classRowNamed(QLatin1String(row.superClass))) << row.name;
  }
}
