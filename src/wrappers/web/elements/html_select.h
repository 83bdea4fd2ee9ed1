#pragma once

#include "wrappers/web/elements/html_array.h"
#include "wrappers/web/elements/html_formelement.h"
#include "wrappers/web/elements/html_option.h"

#include <QStringList>

#include <string>
#include <vector>

namespace Corvex::WebWrapper {

/// A list of options of which one, or with `multiple` several, can be selected. Selecting happens in the page a moment
/// after the call.
class HTML_Select : public HTML_FormElement {
public:
  static constexpr const char* ScriptName = "HTML_Select";

  HTML_Select(const QString& name, const QString& objectReference, HTMLComponent* connection, bool allowsMultiple);

  const char* className() const override;
  virtual QString setSelectedIndex(int index);
  virtual FunctionCallResult<int> selectedIndex() const;
  /// With `multiple` the text holds several options' texts. An option that is not there is no error here.
  virtual QString setSelectedOption(const QString& text);
  virtual FunctionCallResult<QString> selectedOption() const;

  bool isMulti() const { return multiple; }
  FunctionCallResult<HTML_Array*> options();
  FunctionCallResult<HTML_Option*> optionAt(int index);

  FunctionCallResult<std::vector<int>> selectedIndexes() const;
  FunctionCallResult<std::vector<std::string>> selectedLabels() const;
  FunctionCallResult<std::vector<std::string>> selectedTexts() const;
  FunctionCallResult<std::vector<std::string>> selectedValues() const;

  /// These select exactly the given options, all of which must be there.
  QString setSelectedOptions(const QStringList& texts);
  QString setSelectedOptionsByText(const QStringList& texts);
  QString setSelectedOptionsByValue(const QStringList& values);
  QString setSelectedOptionByValue(const QString& value);
  QString setSelectedOptionsByIndexes(const QStringList& indexes);

  QString deselectByIndexes(const QStringList& indexes);
  QString deselectByTexts(const QStringList& texts);
  QString deselectByValues(const QStringList& values);

  bool multiple;

private:
  QString selectOptions(const QStringList& values, const char* accessor);
  QString deselectOptions(const QStringList& values, const char* accessor);
  FunctionCallResult<std::vector<std::string>> selectedList(const char* function, const char* what) const;
};

extern const ClassMembers HTML_Select_Class;

}  // namespace Corvex::WebWrapper
