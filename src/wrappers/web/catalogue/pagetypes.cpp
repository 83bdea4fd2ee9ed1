#include "wrappers/web/elements/html_anchor.h"
#include "wrappers/web/elements/html_array.h"
#include "wrappers/web/elements/html_button.h"
#include "wrappers/web/elements/html_checkablebutton.h"
#include "wrappers/web/elements/html_document.h"
#include "wrappers/web/elements/html_form.h"
#include "wrappers/web/elements/html_image.h"
#include "wrappers/web/elements/html_option.h"
#include "wrappers/web/elements/html_select.h"
#include "wrappers/web/elements/html_shadowroot.h"
#include "wrappers/web/elements/html_text.h"
#include "wrappers/web/itemviews/html_calendarview.h"
#include "wrappers/web/itemviews/html_customitem.h"
#include "wrappers/web/itemviews/html_menu.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/tables/html_table.h"
#include "wrappers/web/toolkits/toolkitclasses.h"
#include "wrappers/web/widgets/widgetclasses.h"

#include <array>

namespace Corvex::WebWrapper {

namespace {

struct ReferenceInfo {
  HTMLComponent* component;
  /// Lower case.
  QString type;
  /// What stands behind the prefix, in its own case.
  QString extension;
  QString reference;
  QString name;
};

enum class Match { Exact, Prefix };

/// Filled up with nulls.
using Texts = std::array<const char*, 15>;

struct TypeRow {
  Match match;
  Texts texts;
  HTML_Object* (*make)(const ReferenceInfo& info);
};

HTML_Object* nothing(const ReferenceInfo&) { return nullptr; }

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

constexpr Texts html5InputTypesThatAreSimilarToText = {"email",  "password", "text", "file",
                                                       "search", "number",   "tel",  "url"};

/// The first row that fits decides.
constexpr TypeRow typeRows[] = {
    {Match::Exact, {"undefined", "[unknown]", "true", ""}, nothing},
    {Match::Exact, {"button", "submit"}, plain<HTML_Button>},
    {Match::Exact, {"radio"}, plain<HTML_RadioButton>},
    {Match::Exact, {"checkbox"}, plain<HTML_CheckBox>},
    {Match::Exact, {"image"}, plain<HTML_ImageButton>},
    {Match::Exact, html5InputTypesThatAreSimilarToText, plain<HTML_Text>},
    {Match::Exact, {"textarea"}, plain<HTML_TextArea>},
    {Match::Prefix, {"select"}, select},
    {Match::Exact, {"form"}, plain<HTML_Form>},
    {Match::Exact, {"a", "area"}, plain<HTML_Anchor>},
    {Match::Exact, {"option"}, plain<HTML_Option>},
    {Match::Exact, {"document"}, plain<HTML_Document>},
    {Match::Exact, {"img"}, plain<HTML_Image>},
    {Match::Exact, {"shadowroot"}, plain<HTML_ShadowRoot>},
    {Match::Exact, {"kiwi_choice"}, plain<HTML_KiwiChoice>},
    {Match::Exact, {"kiwi_tree"}, plain<HTML_KiwiTree>},
    {Match::Exact, {"kiwi_table"}, plain<HTML_KiwiTable>},
    {Match::Exact, {"kiwi_treetable"}, plain<HTML_KiwiTreeTable>},
    {Match::Exact, {"kiwi_more_menu"}, moreMenu},
    {Match::Exact, {"kiwi_more_menu_item"}, plain<HTML_KiwiMoreMenuItem>},
    {Match::Exact, {"kiwi_table_item"}, namedOrNull<HTML_KiwiTableCell>},
    {Match::Exact, {"kiwi_treetable_item"}, namedOrNull<HTML_KiwiTreeTableCell>},
    {Match::Exact, {"kiwi_matrixtable"}, plain<HTML_KiwiMatrixTable>},
    {Match::Exact, {"kiwi_matrix"}, namedOrNull<HTML_KiwiMatrix>},
    {Match::Exact, {"kiwi_matrixcell"}, named<HTML_KiwiMatrixCell>},
    {Match::Exact, {"dojo_tree"}, plain<HTML_DojoTree>},
    {Match::Exact, {"dojo_splitpane"}, plain<HTML_DojoSplitPane>},
    {Match::Exact,
     {"bb_button", "bb_menucell", "bb_toolbaritem", "bb_tabselector", "bb_sidebarselector", "bb_navpanelhead",
      "bb_navhead", "bb_treeleaf", "bb_tree", "bb_treehandle", "bb_accordeon", "bb_spinnerupbutton",
      "bb_spinnerdownbutton", "bb_card"},
     plain<HTML_BackBaseButton>},
    {Match::Exact, {"bb_combobox"}, singleComboBox},
    {Match::Exact, {"bb_spinner"}, plain<HTML_BackBaseSpinner>},
    {Match::Exact, {"bb_listview"}, plain<HTML_BackBaseListView>},
    {Match::Exact, {"gwc_formfieldbox"}, plain<HTML_GWCFormFieldBox>},
    {Match::Exact, {"gwc_table"}, plain<HTML_GWCTable>},
    {Match::Exact, {"qx_widget_container"}, plain<HTML_QxWidgetElement>},
    {Match::Exact, {"qx_widget"}, plain<HTML_QxWidget>},
    {Match::Prefix, {"custom_itemview_"}, withExtension<HTML_CustomItemView>},
    {Match::Prefix, {"custom_item_"}, withExtension<HTML_CustomItem>},
    {Match::Prefix, {"custom_combobox_"}, withExtension<HTML_CustomComboBox>},
    {Match::Prefix, {"custom_selectlist_"}, withExtension<HTML_CustomSelectList>},
    {Match::Prefix, {"custom_text_"}, withExtension<HTML_CustomText>},
    {Match::Prefix, {"custom_button_"}, withExtension<HTML_CustomButton>},
    {Match::Prefix, {"custom_checkbox_"}, withExtension<HTML_CustomCheckbox>},
    {Match::Prefix, {"custom_radiobutton_"}, withExtension<HTML_CustomRadioButton>},
    {Match::Prefix, {"tabwidget_"}, withExtension<HTML_TabWidget>},
    {Match::Prefix, {"tabitem_"}, withExtension<HTML_Tab>},
    {Match::Prefix, {"colorfield_"}, withExtension<HTML_ColorField>},
    {Match::Prefix, {"expandablesectionheader_"}, withExtension<HTML_ExpandableSectionHeader>},
    {Match::Prefix, {"progressbar_"}, withExtension<HTML_ProgressBar>},
    {Match::Prefix, {"menu_"}, withExtension<HTML_Menu>},
    {Match::Prefix, {"menuitem_"}, withExtension<HTML_MenuItem>},
    {Match::Prefix, {"menubutton_"}, withExtension<HTML_MenuButton>},
    {Match::Prefix, {"datechooser_"}, withExtension<HTML_DateChooser>},
    {Match::Prefix, {"calendarview_"}, withExtension<HTML_CalendarView>},
    {Match::Prefix, {"calendarevent_"}, withExtension<HTML_CalendarEvent>},
    {Match::Prefix, {"htmltable_"}, withExtension<HTML_Table>},
    {Match::Exact, {"htmlarray"}, plain<HTML_Array>},
};

}  // namespace

HTML_Object* htmlObjectFromReferenceInfo(HTMLComponent* component, const QString& type, const QString& reference,
                                         const QString& name) {
  ReferenceInfo info = {component, type.toLower(), QString(), reference, name};
  for (const TypeRow& row : typeRows) {
    for (auto text = row.texts.begin(); text != row.texts.end() && *text; ++text) {
      const QLatin1String wanted(*text);
      if (row.match == Match::Exact ? info.type == wanted : info.type.startsWith(wanted)) {
        info.extension = type.mid(wanted.size());
        return row.make(info);
      }
    }
  }
  return plain<HTML_Object>(info);
}

}  // namespace Corvex::WebWrapper
