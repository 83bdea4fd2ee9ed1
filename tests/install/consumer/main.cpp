// A process that embeds the wrapper: a page that answers each look-up with a select, and a script's way to find it.

#include <corvexhook/class.h>
#include <corvexhook/inspector.h>
#include <wrappers/web/catalogue/webobject_init.h>
#include <wrappers/web/lookup/webobjectdelegate.h>
#include <wrappers/web/page/htmlcomponent.h>
#include <wrappers/web/setup/getjscode.h>
#include <wrappers/web/setup/wrapperconfig.h>

#include <cstdio>

using namespace Corvex;
using namespace Corvex::WebWrapper;

namespace {

class Page : public HTMLComponent {
public:
  JavaScriptAnswer evaluateJS(const QString& code, unsigned int) override {
    lastCode = code;
    return {QStringLiteral("{\"refName\":\"window.__corvex__object__C1\",\"type\":\"select-one\"}"), false, false};
  }
  int browserKind() override { return 4; }
  bool isAvailable() override { return true; }
  const WrapperConfig* config() override { return &m_config; }
  QString selectFileToUpload(HTML_TextBase*, const QString&) override { return QString(); }
  QString selectFileToUpload(HTML_CustomText*, const QString&) override { return QString(); }

  QString lastCode;

private:
  MemoryBasedConfig m_config;
};

class Toplevel : public WebToplevelDelegate {
public:
  explicit Toplevel(Page* page) : WebToplevelDelegate(QStringLiteral("Embedder")), m_page(page) {}
  HTMLComponent* component(SharedPtr<Object>) const override { return m_page; }
  bool keepsDocumentAcrossComponents() const override { return false; }

private:
  Page* m_page;
};

}  // namespace

int main() {
  Page page;
  createWebObjectClasses();
  const Toplevel toplevel(&page);
  Inspector* const inspector = Inspector::self();
  auto* const embedder = new Class("Embedder", inspector->globalNamespace(), true);
  inspector->addRootObject(embedder->wrap(&page, ObjectAttribute(ObjectAttribute::NativePointer)));

  const SharedPtr<Object> found = inspector->findObject(QStringLiteral("{tagName='SELECT' id='s'}"), 0);
  const bool isAsked = page.lastCode.contains(QLatin1String("__corvex__findObject"));
  const bool hasScript = getJSCode(MemoryBasedConfig()).contains(QLatin1String("__corvex__findObject"));
  std::printf("found %s, asked %d, script %d\n", found ? qPrintable(found->objectClass()->name()) : "nothing", isAsked,
              hasScript);
  return 0;
}
