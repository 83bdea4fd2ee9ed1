#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "shared/functioncallresult.h"

namespace Corvex::Scripting {

/// A table of test data.
struct Table {
  QStringList columns;
  /// Each with a value for every column.
  std::vector<QStringList> rows;
  /// In place of all that the text of a JSON file, which is an array of objects.
  QString json;
};

/// Reads a table; the file's ending tells the format: .csv with commas, .tsv with tabulators, or .json. The first two
/// have values in quotes, which may hold line breaks, separators and doubled quotes; their first line names the
/// columns, and empty lines count as nothing. Error sentences call the file `shownPath` and name the line.
FunctionCallResult<Table> readTable(const QString& path, const QString& shownPath);

}  // namespace Corvex::Scripting
