#pragma once

#include "corvexhook/geometry.h"
#include "shared/functioncallresult.h"
#include "shared/javascriptanswer.h"
#include "wrappers/web/export.h"

#include <QImage>
#include <QString>

namespace Corvex {
namespace WebWrapper {

class HTML_CustomText;
class HTML_Object;
class HTML_TextBase;
class WrapperConfig;

/// The connection to one browser page; all page access of the wrapper goes through it. The embedding process supplies
/// the subclass and owns the object, which outlives every page object that points to it.
class CORVEX_WEBWRAPPER_EXPORT HTMLComponent {
public:
  virtual ~HTMLComponent();

  /// Evaluates `code`, which may hold several statements, in the page's global scope and returns its completion value
  /// as text. Blocks until the page has answered or `timeoutMs` is over; 0 means the connection's own default.
  virtual JavaScriptAnswer evaluateJS(const QString& code, unsigned int timeoutMs) = 0;
  /// Which browser is at the other end. 2 gives property reads a time limit, 5 has text fields cleared before they are
  /// set.
  virtual int browserKind() = 0;
  /// Whether the browser can be asked anything now.
  virtual bool isAvailable() = 0;
  /// Never null.
  virtual const WrapperConfig* config() = 0;
  /// Where the object is on the screen; with an error all four fields are -1.
  virtual FunctionCallResult<ScreenRectangle> getScreenRect(const HTML_Object* object, bool scrollIntoView);
  virtual bool supportsPageScreenshot();
  /// The whole page. Null image and no error where the connection cannot.
  virtual FunctionCallResult<QImage> grabPageScreenshot();
  virtual FunctionCallResult<double> zoomFactor();
  /// Puts `path` into a file input. Answers an error text, empty on success.
  virtual QString selectFileToUpload(HTML_TextBase* field, const QString& path) = 0;
  virtual QString selectFileToUpload(HTML_CustomText* field, const QString& path) = 0;

  /// `evaluateJS` for code that holds no reference of an object, so that it may run in any document. A connection that
  /// keeps other code to the document that its references come from need not do so here.
  virtual JavaScriptAnswer evaluateInAnyDocument(const QString& code, unsigned int timeoutMs);
};

}  // namespace WebWrapper
}  // namespace Corvex
