#include "webhook/pages/hookinjector.h"

#include "webhook/pages/globaldeclarations.h"
#include "webhook/protocol/inpagetext.h"
#include "wrappers/web/setup/extensionscripts.h"
#include "wrappers/web/setup/getjscode.h"
#include "wrappers/web/setup/wrapperconfig.h"

namespace Corvex {
namespace Webhook {

namespace {

using WebWrapper::WrapperConfig;

// The script compares the scheme with the two others; none of them is the scheme of property names.
const int propertyNames = 0;
const int singlePropertyNames = 1;
const int hierarchicalNames = 2;

struct FamilyFlag {
  BrowserIdentity::Family family;
  const char* variable;
};

const FamilyFlag familyFlags[] = {
    {BrowserIdentity::Chromium, "window.__corvex__chromiumbased"},
    {BrowserIdentity::Chrome, "window.__corvex__googlechrome"},
    {BrowserIdentity::Firefox, "window.__corvex__mozilla"},
};

struct ConfigVariable {
  const char* variable;
  bool (WrapperConfig::*value)() const;
};

const ConfigVariable configVariables[] = {
    {"window.__corvex__enableObjectInfoOverlay", &WrapperConfig::enableObjectInfoOverlay},
    {"window.__corvex__filter__non__element__nodes", &WrapperConfig::filterNonElementNodes},
    {"window.__corvex__improvedTabAndWindowSupport", &WrapperConfig::improvedTabAndWindowSupport},
    {"window.__corvex__throwErrorForUnknownContextName", &WrapperConfig::throwErrorOnUnknownContextNames},
};

// These are members of the object that the prelude makes.
const ConfigVariable namespaceMembers[] = {
    {"window.__corvex.includeIdPropertyInGeneratedNames", &WrapperConfig::includeIdPropertyInGeneratedNames},
    {"window.__corvex.useSessionStorageForEvents", &WrapperConfig::useSessionStorageForEvents},
};

QString assignment(const char* variable, const QString& value) {
  return QStringLiteral("%1 = %2;\n").arg(QLatin1String(variable), value);
}

QString assignment(const ConfigVariable& row, const WrapperConfig& config) {
  return assignment(row.variable, (config.*row.value)() ? QStringLiteral("true") : QStringLiteral("false"));
}

QString globals(const WrapperConfig& config, const BrowserIdentity& browser) {
  QString text;
  for (const FamilyFlag& row : familyFlags) {
    if (row.family == browser.family) {
      text += assignment(row.variable, QStringLiteral("true"));
    }
  }
  for (const ConfigVariable& row : configVariables) {
    text += assignment(row, config);
  }
  // Its being defined already means that windows are watched from outside.
  if (config.hookNewWindows()) {
    text += assignment("window.__corvex__newwindowhook", QStringLiteral("true"));
  }
  if (!browser.messagePort.isEmpty()) {
    text += assignment("window.__corvex__port", QLatin1Char('"') + browser.messagePort + QLatin1Char('"'));
    text += assignment("window.__corvex__asynclog", QStringLiteral("true"));
  }
  if (browser.isRecorded) {
    text += assignment("window.__corvex__recording", QStringLiteral("true"));
  }
  const int scheme = config.supportSinglePropertyNaming() ? singlePropertyNames : propertyNames;
  text += assignment("window.__corvex__os", QStringLiteral("\"Linux\""));
  text += assignment("window.__corvex__namegen__singleprop", QString::number(singlePropertyNames));
  text += assignment("window.__corvex__namegen__hierarchical", QString::number(hierarchicalNames));
  text += assignment("window.__corvex__namegen__scheme", QString::number(scheme));
  return text;
}

QString members(const WrapperConfig& config, const BrowserIdentity& browser) {
  QString text = assignment("window.__corvex.browsermajorversion", QString::number(browser.majorVersion));
  for (const ConfigVariable& row : namespaceMembers) {
    text += assignment(row, config);
  }
  if (browser.messagePort.isEmpty()) {
    text += assignment("window.__corvex.useSessionStorageForEvents", QStringLiteral("true"));
  }
  return text;
}

QString hookScript(const WrapperConfig& config) {
  QStringList extensions;
  for (const WebWrapper::ExtensionScript& script : WebWrapper::extensionScripts()) {
    extensions.append(withGlobalDeclarations(script.text));
  }
  return WebWrapper::getJSCode(config, extensions);
}

}  // namespace

QString hookText(const WrapperConfig& config, const BrowserIdentity& browser) {
  const QString dialogs = inPageText(browser.opensNativeDialogs ? "nativedialogs.js" : "dialogtexts.js");
  return QStringLiteral(
             "if (window === window.top && !(typeof __corvex__isHooked === 'function' && __corvex__isHooked())) {\n") +
         globals(config, browser) + WebWrapper::getCorvexJsNamespaceInitCode() + QLatin1Char('\n') +
         members(config, browser) + inPageText("ownjson.js") + hookScript(config) + dialogs +
         inPageText("fallback.js") +
         (browser.isRecorded
              ? inPageText("recordedwindow.js") + inPageText("recordedmoves.js") + inPageText("recordedchecks.js") +
                    inPageText("recordeddialogs.js") + inPageText("recordedhovers.js") + inPageText("recordedkeys.js") +
                    inPageText("recordedacts.js")
              : QString()) +
         QStringLiteral("\n}");
}

}  // namespace Webhook
}  // namespace Corvex
