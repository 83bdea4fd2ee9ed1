#include "webhook/inspect/picking.h"

#include "corvexhook/class.h"
#include "corvexhook/hook.h"
#include "corvexhook/inspector.h"
#include "webhook/pages/browserwindows.h"
#include "webhook/pages/windownames.h"
#include "webhook/protocol/inpagetext.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/object/webobject.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/escaping.h"

#include <algorithm>
#include <utility>

namespace Corvex::Webhook {

namespace {

// A page that is slow for a moment is asked again soon.
const int askMs = 1000;

bool isReady(Connection& page) {
  const QString code = QStringLiteral("window.__corvex__picking ? (__corvex__picking.arm(), 'ready') : ''");
  return page.evaluateJS(code, askMs).text == QLatin1String("ready");
}

int countIn(const Connection* page, const QString& name) {
  const ObjectList found = Inspector::self()->lookupAll(name);
  Inspector::self()->takeScriptError();
  return static_cast<int>(std::count_if(found.begin(), found.end(), [page](const SharedPtr<Object>& object) {
    const WebWrapper::HTML_Object* const native = WebWrapper::retrieveObject(object);
    return native && native->component == page;
  }));
}

}  // namespace

Picking::Picking(BrowserWindows& windows) : m_windows(windows) {
  Hook::hook->setReceiver([this](int, const QString& text, const ArgumentList& arguments) {
    if (text == QLatin1String("objectPicked")) {
      m_picked.push_back(arguments.value(0).toString());
    }
  });
}

Picking::~Picking() {
  Hook::hook->setReceiver(nullptr);
  for (Connection* page : pagesToAsk()) {
    page->evaluateJS(QStringLiteral("window.__corvex__picking && __corvex__picking.end()"), askMs);
  }
}

QVector<Connection*> Picking::pagesToAsk() const {
  QVector<Connection*> pages = m_windows.connections();
  pages.erase(
      std::remove_if(pages.begin(), pages.end(),
                     [](Connection* page) { return !page->isAvailable() || page->isBusy() || page->mayBeHeld(); }),
      pages.end());
  return pages;
}

void Picking::serve() {
  const QString hovered = std::exchange(m_hovered, QString());
  for (Connection* page : pagesToAsk()) {
    if (!page->isOpen() || (!isReady(*page) && page->evaluateJS(inPageText("picking.js"), askMs).aborted)) {
      continue;
    }
    if (!hovered.isEmpty()) {
      page->evaluateJS(
          QStringLiteral("__corvex__picking.paint(\"%1\", \"%2\")")
              .arg(WebWrapper::escapeObjectNameForUseAsStringLiteral(hovered.section(QLatin1Char(','), 0, 3)),
                   WebWrapper::escapeObjectNameForUseAsStringLiteral(hovered.section(QLatin1Char(','), 4))),
          askMs);
    }
  }
}

PickedObject Picking::take() {
  PickedObject picked;
  picked.name = m_picked.front();
  m_picked.pop_front();
  for (Connection* page : pagesToAsk()) {
    const WebWrapper::JavaScriptAnswer pressed =
        page->evaluateJS(QStringLiteral("window.__corvex__picking ? __corvex__picking.whatIsPressed() : ''"), 0);
    if (!pressed.succeeded() || pressed.text.isEmpty()) {
      continue;
    }
    WebWrapper::HTML_Object* const native =
        WebWrapper::htmlObjectFromJavaScriptResult(page, QStringLiteral("__corvex__picking.take()"), picked.name, 0)
            .value;
    if (!native) {
      continue;
    }
    const SharedPtr<Object> object = WebWrapper::wrapObject(native);
    const QString context = pressed.text.section(QLatin1Char('\n'), 0, 0);
    picked.className = object->objectClass()->name();
    picked.domPath = pressed.text.section(QLatin1Char('\n'), 1);
    m_windows.setCurrent(page);
    picked.matches = countIn(page, picked.name);
    const QVector<Connection*> windows = m_windows.connections();
    if (windows.size() > 1 || !framesOf(context).isEmpty()) {
      picked.context = WindowNames(windows).outside(page, context);
    }
    break;
  }
  return picked;
}

}  // namespace Corvex::Webhook
