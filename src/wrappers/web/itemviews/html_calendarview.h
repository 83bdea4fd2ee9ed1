#pragma once

#include "wrappers/web/itemviews/html_customitem.h"

namespace Corvex::WebWrapper {

class HTML_CalendarEvent : public ExtensionBacked<HTML_Object> {
public:
  static constexpr const char* ScriptName = "HTML_CalendarEvent";
  using ExtensionBacked<HTML_Object>::ExtensionBacked;
  const char* className() const override { return ScriptName; }
};

class HTML_CalendarView : public HTML_CustomItemView {
public:
  static constexpr const char* ScriptName = "HTML_CalendarView";
  using HTML_CustomItemView::HTML_CustomItemView;
  const char* className() const override { return ScriptName; }

  FunctionCallResult<int> numVisibleEvents() const;
  /// Counted from 0; null where there is none.
  FunctionCallResult<HTML_Object*> visibleEventAt(int index);
};

extern const ClassMembers HTML_CalendarView_Class;

}  // namespace Corvex::WebWrapper
