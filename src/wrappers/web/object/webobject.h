#pragma once

#include "corvexhook/geometry.h"
#include "shared/functioncallresult.h"
#include "shared/javascriptanswer.h"
#include "wrappers/web/export.h"

#include <QString>

#include <utility>

namespace Corvex::WebWrapper {

class HTMLComponent;
class HTML_Style;
class HTML_XPathResult;
struct CSSProperties;
struct ClassMembers;

/// Properties of a page object that have a fixed way to be read.
enum class PropertyId {
  Id,
  InnerText,
  InnerHTML,
  X,
  Y,
  Width,
  Height,
  TagName,
  Title,
  StyleDisplay,
  DomClassName,
  DomPath,
  NumChildren,
  Visible,
  SimplifiedInnerText,
  SelectedText,
};

/// An object in a page, known by its reference: a JavaScript expression that names it there. Each operation is one
/// short JavaScript text around the reference, and reads or changes the page, not this object.
///
/// Operations that only may fail answer an error text, empty on success. A returned object is the caller's; null
/// without an error means that there is none.
class CORVEX_WEBWRAPPER_EXPORT HTML_Object {
public:
  static constexpr const char* ScriptName = "HTML_Object";

  /// `name` may be empty. `connection` is not owned.
  HTML_Object(const QString& name, const QString& objectReference, HTMLComponent* connection);
  virtual ~HTML_Object();

  /// The name of the script class.
  virtual const char* className() const;
  virtual FunctionCallResult<bool> visible() const;
  virtual FunctionCallResult<HTML_Object*> parentElement();
  /// `modifierState` is a sum of 1 (Alt), 2 (Control), 4 (Shift) and 16 (the right button, whatever `button` says). The
  /// position is in pixels from the object's corner. `button` is 1 (left), 2 (right) or 4 (middle). Returns 200 ms
  /// after the start; the click happens meanwhile.
  virtual QString click(int modifierState, int x, int y, int button);
  virtual QString doubleClick(int modifierState, int x, int y);
  /// The name inside the parent. Asked once, then kept.
  virtual FunctionCallResult<QString> name() const;
  virtual FunctionCallResult<bool> hasFocus() const;

  bool hasValidReference() const;
  /// What a script is told that uses the object when its reference is not valid.
  static QString deadError();
  /// From now on the object is dead.
  void invalidate();
  /// Whether both mean the same object in the page. `other` is of the same connection and not null.
  FunctionCallResult<bool> sameAs(HTML_Object* other) const;

  /// Evaluates with the connection's default time limit.
  JavaScriptAnswer evaluateJS(const QString& code) const;

  FunctionCallResult<QString> id() const;
  FunctionCallResult<QString> innerText() const;
  FunctionCallResult<QString> innerHTML() const;
  FunctionCallResult<int> x() const;
  FunctionCallResult<int> y() const;
  FunctionCallResult<int> width() const;
  FunctionCallResult<int> height() const;
  FunctionCallResult<QString> tagName() const;
  FunctionCallResult<QString> title() const;
  FunctionCallResult<QString> styleDisplay() const;
  FunctionCallResult<QString> styleVisibility() const;
  FunctionCallResult<QString> domClassName() const;
  FunctionCallResult<QString> simplifiedInnerText() const;
  FunctionCallResult<QString> hierarchicalQualifiedName() const;
  FunctionCallResult<int> numChildren() const;

  /// Any property by its path, as text.
  FunctionCallResult<QString> property(const char* name) const;
  QString setProperty(const char* name, const char* value);
  QString setProperty(const char* name, int value);
  QString setProperty(const char* name, bool value);
  /// Calls a method of the page object. Arguments are JavaScript expressions: texts bring their quotes.
  FunctionCallResult<QString> invoke(const char* method) const;
  FunctionCallResult<QString> invoke(const char* method, const char* argument) const;
  FunctionCallResult<QString> invoke(const char* method, const char* argument1, const char* argument2) const;

  /// The code of a click, or double click, on another reference of the same page.
  static QString clickOn(const char* reference, int modifierState, int x, int y, int button);
  static QString dblClickOn(const char* reference, int modifierState, int x, int y);
  QString openContextMenu();

  FunctionCallResult<HTML_Object*> firstChild();
  FunctionCallResult<HTML_Object*> lastChild();
  FunctionCallResult<HTML_Object*> nextSibling();
  FunctionCallResult<HTML_Object*> previousSibling();
  FunctionCallResult<HTML_Object*> shadowRoot();

  /// Scrolls the object into view, its top at the top or its bottom at the bottom.
  QString scrollTo(bool top) const;
  QString scrollToTop() const;
  /// Pixels of the screen; all -1 when the object is not on the screen. Scrolls nothing.
  FunctionCallResult<ScreenRectangle> screenRect() const;
  /// Pixels of the page's visible part; all -1 with an error.
  FunctionCallResult<ScreenRectangle> boundingClientRect() const;

  // The caller owns what these give.

  FunctionCallResult<HTML_Style*> style();
  /// The whole computed style at once, as it is now.
  FunctionCallResult<CSSProperties*> cssProperties() const;
  /// Evaluates an XPath expression with this object as its context node.
  FunctionCallResult<HTML_XPathResult*> evaluateXPath(const QString& expression);

  static bool isJavaScriptPropertyReadSupported(const QString& name);
  static FunctionCallResult<PropertyId> parsePropertyIdString(const QString& name);
  /// The expression that reads a property of this object.
  QString propertyGetterCode(PropertyId id) const;

  HTML_Object(const HTML_Object&) = delete;
  HTML_Object& operator=(const HTML_Object&) = delete;

private:
  // The reference and the connection follow it: this order is part of the interface.
  mutable QString m_name;

public:
  QString reference;
  /// Not owned.
  HTMLComponent* component;

  /// What the page said of the object's readiness when it was retrieved; good for one use, right after that.
  void keepReadiness(const QString& readiness) { m_readiness = readiness; }
  QString takeReadiness() { return std::exchange(m_readiness, QString()); }

  /// The name as far as it is known without asking the page.
  const QString& knownName() const { return m_name; }

protected:
  /// How long a page gets for what happens a moment after a click.
  static constexpr int settleTimeMs = 200;

  FunctionCallResult<QString> textProperty(PropertyId id) const;
  FunctionCallResult<int> numberProperty(PropertyId id) const;
  /// Reads of page properties as values. `sentence` has the page's text at its "%1" when that is no number.
  FunctionCallResult<bool> boolProperty(const char* name) const;
  FunctionCallResult<int> integerProperty(const char* name, const char* sentence) const;
  /// The code that calls a click function of the page a moment after the evaluation has returned.
  static QString getClickCode(const QString& function, const QString& reference, int modifierState, int x, int y,
                              int button);
  /// The same for any statement.
  static QString deferredCode(const QString& statement);
  /// Runs the code of a click and gives the page the time for it, whatever came back.
  JavaScriptAnswer runClickCode(const QString& code) const;
  FunctionCallResult<HTML_Object*> navigate(const QString& expression, const char* sentence);

private:
  QString m_readiness;
};

extern const ClassMembers HTML_Object_Class;

}  // namespace Corvex::WebWrapper
