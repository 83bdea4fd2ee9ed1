#include "wrappers/web/recording/recordedtypes.h"

#include <QStringList>

#include <algorithm>

namespace Corvex::WebWrapper {

namespace {

/// Words that are a type, and beginnings of types.
struct TypeSet {
  explicit TypeSet(const char* wordTexts, const char* beginningTexts = "")
      : words(QString::fromLatin1(wordTexts).split(QLatin1Char(' '), Qt::SkipEmptyParts)),
        beginnings(QString::fromLatin1(beginningTexts).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {}

  bool contains(const QString& type) const {
    return words.contains(type) || std::any_of(beginnings.begin(), beginnings.end(), [&type](const QString& beginning) {
             return type.startsWith(beginning);
           });
  }

  QStringList words;
  QStringList beginnings;
};

}  // namespace

bool isLink(const QString& type) {
  static const TypeSet types("A AREA");
  return types.contains(type);
}

bool isTextFieldType(const QString& type) {
  static const TypeSet types("text textarea email number url tel password search bb_spinner", "custom_text_");
  return types.contains(type);
}

bool isButtonType(const QString& type) {
  static const TypeSet types(
      "button checkbox submit image radio bb_button bb_toolbaritem bb_tabselector bb_sidebarselector bb_navpanelhead "
      "bb_navhead bb_treeleaf bb_tree bb_treehandle bb_accordeon bb_menucell bb_spinnerupbutton bb_spinnerdownbutton "
      "bb_card",
      "custom_button_ custom_checkbox_ custom_radiobutton_ menubutton_");
  return types.contains(type);
}

bool isSelect(const QString& type) {
  static const TypeSet types("", "select custom_combobox_ custom_selectlist_");
  return types.contains(type);
}

bool isMenuItem(const QString& type) { return type.startsWith(QLatin1String("menuitem_")); }

bool isDateChooser(const QString& type) { return type.startsWith(QLatin1String("datechooser_")); }

bool isTreeHandle(const QString& type) {
  static const TypeSet types("kiwi_treenode_handle dojo_treeNodeHandle", "custom_itemhandle_");
  return types.contains(type);
}

bool isItem(const QString& type) {
  static const TypeSet types(
      "kiwi_treenode_label dojo_treeNodeLabel dojo_splitpaneItem bb_listview_item gwc_tableitem gwc_comboitem",
      "custom_item_");
  return types.contains(type);
}

bool isPressedAsAWhole(const QString& type) {
  static const TypeSet types("button checkbox image radio submit file",
                             "custom_button_ custom_checkbox_ custom_radiobutton_");
  return types.contains(type);
}

}  // namespace Corvex::WebWrapper
