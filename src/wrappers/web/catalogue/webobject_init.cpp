#include "wrappers/web/catalogue/webobject_init.h"

#include "corvexhook/inspector.h"
#include "wrappers/web/elements/html_anchor.h"
#include "wrappers/web/elements/html_array.h"
#include "wrappers/web/elements/html_button.h"
#include "wrappers/web/elements/html_checkablebutton.h"
#include "wrappers/web/elements/html_document.h"
#include "wrappers/web/elements/html_form.h"
#include "wrappers/web/elements/html_formelement.h"
#include "wrappers/web/elements/html_image.h"
#include "wrappers/web/elements/html_option.h"
#include "wrappers/web/elements/html_select.h"
#include "wrappers/web/elements/html_shadowroot.h"
#include "wrappers/web/elements/html_text.h"
#include "wrappers/web/glue/castdelegate.h"
#include "wrappers/web/glue/comparisondelegate.h"
#include "wrappers/web/glue/scriptclass.h"
#include "wrappers/web/itemviews/html_calendarview.h"
#include "wrappers/web/itemviews/html_customitem.h"
#include "wrappers/web/itemviews/html_menu.h"

namespace Corvex::WebWrapper {

namespace {

struct ClassEntry {
  /// Null for a class that adds nothing to its super class.
  const ClassRows* own;
  ClassRows inherited;
};

constexpr ClassEntry own(const ClassRows& rows) { return {&rows, {}}; }

constexpr ClassEntry inherited(const char* name, const char* superClass) {
  return {nullptr, classRows(name, superClass)};
}

/// Every script class in the order of registration. A class without members of its own stands here so that its objects
/// can be wrapped as what they are.
constexpr ClassEntry classEntries[] = {
    own(HTML_Anchor_Class),
    own(HTML_Array_Class),
    inherited("HTML_BackBaseButton", "HTML_ButtonBase"),
    inherited("HTML_BackBaseComboBox", "HTML_Select"),
    inherited("HTML_BackBaseListView", "HTML_FormElement"),
    inherited("HTML_BackBaseSpinner", "HTML_FormElement"),
    own(HTML_Button_Class),
    own(HTML_ButtonBase_Class),
    inherited("HTML_CalendarEvent", "HTML_Object"),
    own(HTML_CalendarView_Class),
    own(HTML_CheckBox_Class),
    inherited("HTML_ColorField", "HTML_Object"),
    inherited("HTML_CustomButton", "HTML_CustomButtonBase"),
    inherited("HTML_CustomButtonBase", "HTML_Object"),
    inherited("HTML_CustomCheckbox", "HTML_CustomButtonBase"),
    inherited("HTML_CustomComboBox", "HTML_FormElement"),
    own(HTML_CustomItem_Class),
    inherited("HTML_CustomItemView", "HTML_FormElement"),
    inherited("HTML_CustomRadioButton", "HTML_CustomButtonBase"),
    inherited("HTML_CustomSelectList", "HTML_FormElement"),
    inherited("HTML_CustomText", "HTML_FormElement"),
    inherited("HTML_DateChooser", "HTML_Object"),
    own(HTML_Document_Class),
    inherited("HTML_DojoSplitPane", "HTML_FormElement"),
    inherited("HTML_DojoTree", "HTML_TreeBase"),
    inherited("HTML_ExpandableSectionHeader", "HTML_Object"),
    own(HTML_Form_Class),
    own(HTML_FormElement_Class),
    inherited("HTML_GWCFormFieldBox", "HTML_FormElement"),
    inherited("HTML_GWCTable", "HTML_FormElement"),
    own(HTML_Image_Class),
    own(HTML_ImageButton_Class),
    inherited("HTML_KiwiChoice", "HTML_FormElement"),
    inherited("HTML_KiwiMatrix", "HTML_Object"),
    inherited("HTML_KiwiMatrixCell", "HTML_Object"),
    inherited("HTML_KiwiMatrixTable", "HTML_FormElement"),
    inherited("HTML_KiwiMoreMenu", "HTML_FormElement"),
    inherited("HTML_KiwiMoreMenuItem", "HTML_FormElement"),
    inherited("HTML_KiwiTable", "HTML_FormElement"),
    inherited("HTML_KiwiTableCell", "HTML_Object"),
    inherited("HTML_KiwiTree", "HTML_TreeBase"),
    inherited("HTML_KiwiTreeTable", "HTML_FormElement"),
    inherited("HTML_KiwiTreeTableCell", "HTML_Object"),
    own(HTML_Menu_Class),
    inherited("HTML_MenuButton", "HTML_CustomButtonBase"),
    inherited("HTML_MenuItem", "HTML_Object"),
    own(HTML_Object_Class),
    own(HTML_Option_Class),
    inherited("HTML_ProgressBar", "HTML_Object"),
    inherited("HTML_QxWidget", "HTML_Object"),
    inherited("HTML_QxWidgetElement", "HTML_Object"),
    own(HTML_RadioButton_Class),
    own(HTML_Select_Class),
    own(HTML_ShadowRoot_Class),
    inherited("HTML_Tab", "HTML_Object"),
    inherited("HTML_TabWidget", "HTML_Object"),
    inherited("HTML_Table", "HTML_Object"),
    own(HTML_Text_Class),
    own(HTML_TextArea_Class),
    own(HTML_TextBase_Class),
    inherited("HTML_TreeBase", "HTML_FormElement"),
};

}  // namespace

void createWebObjectClasses() {
  Namespace* const ns = Inspector::self()->globalNamespace();
  for (const ClassEntry& entry : classEntries) {
    new ScriptClass(entry.own ? *entry.own : entry.inherited, ns);
  }
  new HTML_Object_CastToStringDelegate;
  new HTML_Object_ComparisonDelegate;
}

}  // namespace Corvex::WebWrapper
