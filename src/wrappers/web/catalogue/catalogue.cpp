#include "wrappers/web/catalogue/catalogue.h"

#include "wrappers/web/catalogue/jsobjectclass.h"

#include "wrappers/web/elements/html_anchor.h"
#include "wrappers/web/elements/html_array.h"
#include "wrappers/web/elements/html_button.h"
#include "wrappers/web/elements/html_checkablebutton.h"
#include "wrappers/web/elements/html_document.h"
#include "wrappers/web/elements/html_event.h"
#include "wrappers/web/elements/html_form.h"
#include "wrappers/web/elements/html_formelement.h"
#include "wrappers/web/elements/html_image.h"
#include "wrappers/web/elements/html_option.h"
#include "wrappers/web/elements/html_select.h"
#include "wrappers/web/elements/html_shadowroot.h"
#include "wrappers/web/elements/html_text.h"
#include "wrappers/web/itemviews/html_calendarview.h"
#include "wrappers/web/itemviews/html_customitem.h"
#include "wrappers/web/itemviews/html_menu.h"
#include "wrappers/web/lookup/itemchildren.h"
#include "wrappers/web/style/csscolor.h"
#include "wrappers/web/style/cssproperties.h"
#include "wrappers/web/style/html_style.h"
#include "wrappers/web/tables/html_table.h"
#include "wrappers/web/toolkits/toolkitclasses.h"
#include "wrappers/web/widgets/html_datechooser.h"
#include "wrappers/web/widgets/html_progressbar.h"
#include "wrappers/web/widgets/widgetclasses.h"
#include "wrappers/web/xpath/html_xpathresult.h"

#include <iterator>

namespace Corvex::WebWrapper {

namespace {

constexpr ClassMembers noMembers;

template <typename... Texts>
constexpr TypeTexts texts(TypeTexts::Match match, Texts... all) {
  static_assert(sizeof...(Texts) < TypeTexts::Most, "a class has too many type texts");
  return {match, {all...}};
}

struct Whole : TypeTexts {};
struct BeforeExtension : TypeTexts {};

template <typename... Texts>
constexpr Whole whole(Texts... all) {
  return {texts(TypeTexts::Whole, all...)};
}

constexpr TypeTexts beginning(const char* text) { return texts(TypeTexts::Beginning, text); }

constexpr BeforeExtension prefix(const char* text) { return {texts(TypeTexts::BeforeExtension, text)}; }

template <typename T>
HTML_Object* plain(const ReferenceInfo& info) {
  return new T(info.name, info.reference, info.component);
}

template <typename T>
HTML_Object* withExtension(const ReferenceInfo& info) {
  return new T(info.name, info.reference, info.component, info.extension);
}

HTML_Object* select(const ReferenceInfo& info) {
  return new HTML_Select(info.name, info.reference, info.component, info.type == QLatin1String("select-multiple"));
}

HTML_Object* singleComboBox(const ReferenceInfo& info) {
  return new HTML_BackBaseComboBox(info.name, info.reference, info.component, false);
}

HTML_Object* moreMenu(const ReferenceInfo& info) {
  return new HTML_KiwiMoreMenu(info.name, info.reference, info.component, QString());
}

template <typename T>
HTML_Object* named(const ReferenceInfo& info) {
  return new T(info.name, info.reference, info.component, info.name);
}

template <typename T>
HTML_Object* namedOrNull(const ReferenceInfo& info) {
  const QString name = info.name.isEmpty() ? QStringLiteral("null") : info.name;
  return new T(name, info.reference, info.component, name);
}

template <typename T>
constexpr const char* nameOf = T::ScriptName;
template <>
constexpr const char* nameOf<void> = nullptr;

/// A class whose objects come from no type text.
template <typename T, typename Super>
constexpr ClassRow row(const ClassMembers& members) {
  return {nameOf<T>, nameOf<Super>, &members, &nativeKind<T>, {}};
}

template <typename T, typename Super>
constexpr ClassRow row(const ClassMembers& members, const TypeTexts& types, ClassRow::Make make) {
  return {nameOf<T>, nameOf<Super>, &members, &nativeKind<T>, types, make};
}

template <typename T, typename Super>
constexpr ClassRow row(const ClassMembers& members, const Whole& types) {
  return row<T, Super>(members, types, plain<T>);
}

template <typename T, typename Super>
constexpr ClassRow row(const ClassMembers& members, const BeforeExtension& types) {
  return row<T, Super>(members, types, withExtension<T>);
}

// A class without members of its own stands here so that its objects are wrapped as what they are.
constexpr ClassRow rows[] = {
    row<CssColor, void>(CssColorClass),
    row<HTML_Anchor, HTML_Object>(noMembers, whole("a", "area")),
    row<HTML_Array, HTML_Object>(HTML_Array_Class, whole("htmlarray")),
    row<HTML_BackBaseButton, HTML_ButtonBase>(
        noMembers, whole("bb_button", "bb_menucell", "bb_toolbaritem", "bb_tabselector", "bb_sidebarselector",
                         "bb_navpanelhead", "bb_navhead", "bb_treeleaf", "bb_tree", "bb_treehandle", "bb_accordeon",
                         "bb_spinnerupbutton", "bb_spinnerdownbutton", "bb_card")),
    row<HTML_BackBaseComboBox, HTML_Select>(noMembers, whole("bb_combobox"), singleComboBox),
    row<HTML_BackBaseListView, HTML_FormElement>(noMembers, whole("bb_listview")),
    row<HTML_BackBaseSpinner, HTML_FormElement>(noMembers, whole("bb_spinner")),
    row<HTML_Button, HTML_ButtonBase>(HTML_Button_Class, whole("button", "submit")),
    row<HTML_ButtonBase, HTML_FormElement>(HTML_ButtonBase_Class),
    row<HTML_CalendarEvent, HTML_Object>(noMembers, prefix("calendarevent_")),
    row<HTML_CalendarView, HTML_CustomItemView>(HTML_CalendarView_Class, prefix("calendarview_"))
        .withItems(eventsOfCalendar),
    row<HTML_CheckBox, HTML_ButtonBase>(HTML_CheckBox_Class, whole("checkbox")),
    row<HTML_ColorField, HTML_Object>(noMembers, prefix("colorfield_")),
    row<HTML_CustomButton, HTML_CustomButtonBase>(noMembers, prefix("custom_button_")),
    row<HTML_CustomButtonBase, HTML_Object>(noMembers),
    row<HTML_CustomCheckbox, HTML_CustomButtonBase>(noMembers, prefix("custom_checkbox_")),
    row<HTML_CustomComboBox, HTML_FormElement>(noMembers, prefix("custom_combobox_")),
    row<HTML_CustomItem, HTML_Object>(HTML_CustomItem_Class, prefix("custom_item_")),
    row<HTML_CustomItemView, HTML_FormElement>(noMembers, prefix("custom_itemview_")).withItems(itemsOfView),
    row<HTML_CustomRadioButton, HTML_CustomButtonBase>(noMembers, prefix("custom_radiobutton_")),
    row<HTML_CustomSelectList, HTML_FormElement>(noMembers, prefix("custom_selectlist_")),
    row<HTML_CustomText, HTML_FormElement>(noMembers, prefix("custom_text_")),
    row<HTML_DateChooser, HTML_Object>(HTML_DateChooser_Class, prefix("datechooser_")),
    row<HTML_Document, HTML_Object>(HTML_Document_Class, whole("document")),
    row<HTML_DojoSplitPane, HTML_FormElement>(noMembers, whole("dojo_splitpane")),
    row<HTML_DojoTree, HTML_TreeBase>(noMembers, whole("dojo_tree")),
    row<HTML_Event, void>(HTML_Event_Class),
    row<HTML_ExpandableSectionHeader, HTML_Object>(noMembers, prefix("expandablesectionheader_")),
    row<HTML_Form, HTML_Object>(HTML_Form_Class, whole("form")),
    row<HTML_FormElement, HTML_Object>(HTML_FormElement_Class),
    row<HTML_GWCFormFieldBox, HTML_FormElement>(noMembers, whole("gwc_formfieldbox")),
    row<HTML_GWCTable, HTML_FormElement>(noMembers, whole("gwc_table")),
    row<HTML_Image, HTML_Object>(noMembers, whole("img")),
    row<HTML_ImageButton, HTML_ButtonBase>(noMembers, whole("image")),
    row<HTML_KiwiChoice, HTML_FormElement>(noMembers, whole("kiwi_choice")),
    row<HTML_KiwiMatrix, HTML_Object>(noMembers, whole("kiwi_matrix"), namedOrNull<HTML_KiwiMatrix>),
    row<HTML_KiwiMatrixCell, HTML_Object>(noMembers, whole("kiwi_matrixcell"), named<HTML_KiwiMatrixCell>),
    row<HTML_KiwiMatrixTable, HTML_FormElement>(noMembers, whole("kiwi_matrixtable")),
    row<HTML_KiwiMoreMenu, HTML_FormElement>(noMembers, whole("kiwi_more_menu"), moreMenu),
    row<HTML_KiwiMoreMenuItem, HTML_FormElement>(noMembers, whole("kiwi_more_menu_item")),
    row<HTML_KiwiTable, HTML_FormElement>(noMembers, whole("kiwi_table")),
    row<HTML_KiwiTableCell, HTML_Object>(noMembers, whole("kiwi_table_item"), namedOrNull<HTML_KiwiTableCell>),
    row<HTML_KiwiTree, HTML_TreeBase>(noMembers, whole("kiwi_tree")),
    row<HTML_KiwiTreeTable, HTML_FormElement>(noMembers, whole("kiwi_treetable")),
    row<HTML_KiwiTreeTableCell, HTML_Object>(noMembers, whole("kiwi_treetable_item"),
                                             namedOrNull<HTML_KiwiTreeTableCell>),
    row<HTML_Menu, HTML_Object>(HTML_Menu_Class, prefix("menu_")).withItems(itemsOfMenu),
    row<HTML_MenuButton, HTML_CustomButtonBase>(noMembers, prefix("menubutton_")),
    row<HTML_MenuItem, HTML_Object>(noMembers, prefix("menuitem_")),
    row<HTML_Object, void>(HTML_Object_Class),
    row<HTML_Option, HTML_Object>(HTML_Option_Class, whole("option")),
    row<HTML_ProgressBar, HTML_Object>(HTML_ProgressBar_Class, prefix("progressbar_")),
    row<HTML_QxWidget, HTML_Object>(noMembers, whole("qx_widget")),
    row<HTML_QxWidgetElement, HTML_Object>(noMembers, whole("qx_widget_container")),
    row<HTML_RadioButton, HTML_ButtonBase>(HTML_RadioButton_Class, whole("radio")),
    row<HTML_Select, HTML_FormElement>(HTML_Select_Class, beginning("select"), select),
    row<HTML_ShadowRoot, HTML_Object>(noMembers, whole("shadowroot")),
    row<HTML_Style, void>(HTML_Style_Class),
    row<HTML_Tab, HTML_Object>(noMembers, prefix("tabitem_")),
    row<HTML_TabWidget, HTML_Object>(noMembers, prefix("tabwidget_")),
    row<HTML_Table, HTML_Object>(noMembers, prefix("htmltable_")),
    row<HTML_Text, HTML_TextBase>(noMembers,
                                  whole("email", "password", "text", "file", "search", "number", "tel", "url")),
    row<HTML_TextArea, HTML_TextBase>(noMembers, whole("textarea")),
    row<HTML_TextBase, HTML_FormElement>(HTML_TextBase_Class),
    row<HTML_TreeBase, HTML_FormElement>(noMembers),
    row<HTML_XPathResult, void>(HTML_XPathResult_Class),
    row<CSSProperties, void>(CSSProperties_Class),
    row<JsObject, void>(JsObjectClass),
};

}  // namespace

const ClassRow* Catalogue::begin() const { return std::begin(rows); }

const ClassRow* Catalogue::end() const { return std::end(rows); }

}  // namespace Corvex::WebWrapper
