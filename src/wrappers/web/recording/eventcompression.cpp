#include "wrappers/web/recording/eventcompression.h"

#include "corvexhook/datetime.h"
#include "corvexhook/inspector.h"
#include "tracelib/tracepoint.h"
#include "wrappers/web/recording/recordedtypes.h"

namespace Corvex::WebWrapper {

namespace {

const char* const channel = "WebEventCompression";

using ArgumentMaker = ObjectList (*)(const LoggedEvent&);

/// What is done besides recording the call of a row.
enum Manner : unsigned int {
  Plain = 0,
  Once = 1,           ///< Not where it is the last recorded call already.
  TakesBackLast = 2,  ///< In place of the last recorded call.
  Unhandled = 4,      ///< Nobody knows what to do with the event.
  Traced = 8
};

ObjectList none(const LoggedEvent&) { return {}; }

ObjectList modifiers(const LoggedEvent& e) {
  const int word = getModifiers(e.data);
  return word != 0 ? ObjectList{Inspector::self()->wrapInt(word)} : ObjectList();
}

ObjectList place(const LoggedEvent& e) { return getMouseClickArguments(e.data); }

SharedPtr<Object> number(const LoggedEvent& e, const char* key) {
  return Inspector::self()->wrapInt(e.item(key).toInt());
}

template <const char* const& key>
ObjectList text(const LoggedEvent& e) {
  return {Inspector::self()->wrapString(e.item(key))};
}

template <ArgumentMaker first, ArgumentMaker second>
ObjectList both(const LoggedEvent& e) {
  ObjectList arguments = first(e);
  arguments.append(second(e));
  return arguments;
}

ObjectList position(const LoggedEvent& e) { return {number(e, "x"), number(e, "y")}; }
ObjectList one(const LoggedEvent&) { return {Inspector::self()->wrapInt(1)}; }
ObjectList cell(const LoggedEvent& e) { return {number(e, "itemRow"), number(e, "itemColumn")}; }

ObjectList selectedDate(const LoggedEvent& e) {
  return {wrapDateTime(
      DateTime(e.item("selectedYear").toInt(), e.item("selectedMonth").toInt(), e.item("selectedDay").toInt()))};
}

/// A toolkit marks what it handles itself, where a position means nothing.
ObjectList placeOrNone(const LoggedEvent& e) {
  return e.type.startsWith(QLatin1String("calendarevent_")) ? ObjectList() : place(e);
}

const char* const value = "value";
const char* const itemText = "itemText";
const char* const menuItemText = "menuitemtext";
const char* const tabTitle = "tabTitle";

bool always(const LoggedEvent&) { return true; }

bool isReadOnlyField(const LoggedEvent& e) {
  return isTextFieldType(e.type) && e.item("readonly") == QLatin1String("true");
}

bool isClickOnly(const LoggedEvent& e) {
  return e.has("clickHandler") && !isTextFieldType(e.type) && !isMenuItem(e.type) && !isDateChooser(e.type) &&
         !isButtonType(e.type) && !isSelect(e.type) && !isLink(e.type);
}

template <bool (*isKind)(const QString&)>
bool typeIs(const LoggedEvent& e) {
  return isKind(e.type);
}

}  // namespace

/// One decision: where it applies, `function` is recorded on the object. A list of rows ends with one that has no test.
struct CallRow {
  bool (*applies)(const LoggedEvent&);
  /// Null where nothing is recorded.
  const char* function;
  ArgumentMaker arguments = &none;
  unsigned int manner = Plain;
  /// The item that names the object in place of the event's own; null for that.
  const char* object = nullptr;
};

namespace {

#define WHERE(condition) [](const LoggedEvent& e) -> bool { return condition; }

bool isType(const LoggedEvent& e, const char* type) { return e.type == QLatin1String(type); }
bool typeBegins(const LoggedEvent& e, const char* beginning) { return e.type.startsWith(QLatin1String(beginning)); }

const CallRow pressRows[] = {
    {&isReadOnlyField, "mouseClick", &place},
    {WHERE(isTextFieldType(e.type) && e.logger.recordClickOnTextField()), "nativeMouseClick", &both<position, one>},
    {&typeIs<isTextFieldType>, "setFocus"},
    {&typeIs<isMenuItem>, "clickItem", &text<menuItemText>, Plain, "menuname"},
    {&typeIs<isDateChooser>, "chooseDate", &selectedDate},
    {WHERE(isButtonType(e.type) && getModifiers(e.data) == 0), "clickButton", &none, Once},
    {&typeIs<isButtonType>, "mouseClick", &modifiers, Once},
    // Recorded when its selection changes.
    {&typeIs<isSelect>, nullptr},
    {&typeIs<isLink>, "mouseClick", &modifiers, Once},
    // In place of the click that opened the choice.
    {WHERE(isType(e, "kiwi_choice") && e.has(value)), "selectOption", &text<value>, TakesBackLast},
    {WHERE(isType(e, "kiwi_choice")), nullptr, &none, Unhandled},
    {&typeIs<isTreeHandle>, "clickTreeHandle", &text<itemText>},
    {WHERE(isItem(e.type) && e.has("itemRow") && e.has("itemColumn")), "clickItem", &both<cell, modifiers>},
    {WHERE(isItem(e.type) && e.has("checkTreeItem")), "checkTreeItem", &text<itemText>},
    {&typeIs<isItem>, "clickItem", &both<text<itemText>, modifiers>},
    {WHERE(isType(e, "kiwi_table_item") || isType(e, "kiwi_treetable_item")), "clickItem",
     &both<text<itemText>, modifiers>},
    {WHERE(isType(e, "bb_combobox")), "selectOption", &text<value>},
    {WHERE(typeBegins(e, "tabitem_")), "clickTab", &text<tabTitle>, Plain, "tabWidgetName"},
    {WHERE(typeBegins(e, "expandablesectionheader_")), "toggleExpandable"},
    {WHERE(e.has("clickHandler") && e.has("type") && !isPressedAsAWhole(e.type)), "mouseClick", &placeOrNone},
    {},
};

// The text of a text field comes with its keys.
const CallRow changeRows[] = {
    {&typeIs<isSelect>, "selectOption", &text<value>},
    {WHERE(typeBegins(e, "file")), "setText", &text<value>},
    {},
};

const CallRow clickRows[] = {
    {WHERE(isType(e, "kiwi_more_menu")), "activateItem", &text<itemText>},
    {&isClickOnly, "mouseClick", &modifiers, Once | Traced},
    // A browser clicks the default button of a form without a press.
    {WHERE(isType(e, "submit")), "clickButton", &none, Once},
    {},
};

const CallRow unloadRows[] = {{&always, "closeWindow"}, {}};
const CallRow doubleClickRows[] = {{&always, "doubleClick", &position}, {}};
const CallRow noRows[] = {{}};

#undef WHERE

struct KindRow {
  const char* event;
  bool flushesText;
  const CallRow* rows;
};

const KindRow kinds[] = {
    {"mousedown", true, pressRows}, {"change", true, changeRows},         {"click", true, clickRows},
    {"unload", true, unloadRows},   {"dblclick", false, doubleClickRows}, {"ignoreEvent", false, noRows},
};

QString printable(const QString& typed) {
  QString result;
  for (const uint character : typed.toUcs4()) {
    if (QChar::isPrint(character)) {
      result += QString::fromUcs4(&character, 1);
      continue;
    }
    TRACE_POINT(channel, QStringLiteral("Non-Printable character (hex code: 0x%1) found in text, replacing with space")
                             .arg(QString::number(character, 16).toUpper(), 4, QLatin1Char('0')));
    result += QLatin1Char(' ');
  }
  return result;
}

}  // namespace

EventCompression::EventCompression(EventLogger& logger, const QString& eventName, const QString& objectName,
                                   const EventMap& data)
    : m_logger(logger), m_event{logger,
                                eventName,
                                objectName,
                                data,
                                data.value(QStringLiteral("type")),
                                getTimeStampFromEventData(data)} {}

bool EventCompression::run() {
  TRACE_POINT(channel, QStringLiteral("Consider compressing event '%1' for object name: '%2' data: %3")
                           .arg(m_event.name, m_event.objectName, shownItems(m_event.data)));
  if (m_event.name == QLatin1String("keyup")) {
    return takeKey();
  }
  m_logger.lastPressWasSubmit = false;
  if (m_event.name == QLatin1String("chooseColor")) {
    return takeColor();
  }
  for (const KindRow& kind : kinds) {
    if (m_event.name != QLatin1String(kind.event)) {
      continue;
    }
    if (kind.flushesText) {
      m_logger.flushRecordedTextInput();
    }
    if (kind.rows == doubleClickRows) {
      m_logger.doubleClickSeen(m_event.objectName, m_event.data);
    }
    m_logger.lastPressWasSubmit = kind.rows == pressRows && m_event.type == QLatin1String("submit");
    return takeByRows(kind.rows);
  }
  m_logger.flushRecordedTextInput();
  return false;
}

bool EventCompression::takeByRows(const CallRow* rows) {
  for (const CallRow* row = rows; row->applies; ++row) {
    if (!row->applies(m_event)) {
      continue;
    }
    if (row->manner & Unhandled) {
      m_logger.flushRecordedTextInput();
      return false;
    }
    const bool isRecorded =
        (row->manner & Once) && m_logger.isLastRecordedCall(QLatin1String(row->function), m_event.objectName);
    if (!row->function || isRecorded) {
      return true;
    }
    if (row->manner & Traced) {
      TRACE_POINT(
          channel,
          QStringLiteral("Recording a mouseClick due to seeing a clickHandler for: %1").arg(m_event.objectName));
    }
    if (row->manner & TakesBackLast) {
      m_logger.removeLastRecordedEvent();
    }
    record(row->function, row->object ? objectNamedBy(row->object) : m_event.objectName, row->arguments(m_event));
    return true;
  }
  return true;
}

bool EventCompression::takeKey() {
  m_logger.keyEventSeen(m_event.objectName);
  bool isTaken = true;
  if (isTextFieldType(m_event.type)) {
    isTaken = m_event.item("keyCode") == QLatin1String("13") ? typeReturn() : typeText();
  }
  m_logger.lastPressWasSubmit = false;
  return isTaken;
}

// The press on the button that a Return stands for is recorded already.
bool EventCompression::typeReturn() {
  m_logger.flushRecordedTextInput();
  if (!m_logger.lastPressWasSubmit) {
    keepText(QStringLiteral("<Return>"));
  }
  return true;
}

// Each key comes with the whole content of its field, which takes the place of what came with the key before.
bool EventCompression::typeText() {
  if (m_logger.recordedTextInput->objectName != m_event.objectName) {
    m_logger.flushRecordedTextInput();
  }
  // Messages overtake each other on their way, and the older one must not win.
  const QTime& last = m_logger.recordedTextInput->time;
  if (last.isNull() || last <= m_event.time) {
    keepText(printable(m_event.item(value)));
  }
  return true;
}

void EventCompression::keepText(const QString& text) {
  *m_logger.recordedTextInput = {text, m_event.objectName, m_event.time, m_event.type};
}

// A colour picker tells of the same colour several times.
bool EventCompression::takeColor() {
  const QString object = m_event.has("colorFieldName") ? objectNamedBy("colorFieldName") : m_event.objectName;
  const QString color = m_event.item("colorFieldValue");
  const EventData last = m_logger.lastRecordedEvent();
  const bool isRecorded = last.kind() == EventData::FunctionCall &&
                          last.functionName() == QLatin1String("chooseColor") && last.objectName() == object &&
                          !last.arguments().isEmpty() && last.arguments().at(0)->toString() == color;
  if (!isRecorded) {
    record("chooseColor", object, {Inspector::self()->wrapString(color)});
  }
  return true;
}

QString EventCompression::objectNamedBy(const char* key) {
  return m_logger.adaptQualifiedName(m_event.item(key), m_event.data);
}

void EventCompression::record(const char* functionName, const QString& objectName, const ObjectList& arguments) {
  m_logger.recordCall(objectName, functionName, arguments, &m_event.time);
}

}  // namespace Corvex::WebWrapper
