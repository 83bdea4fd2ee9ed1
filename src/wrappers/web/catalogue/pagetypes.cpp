// From what the page says of an object to the class that it is of.

#include "wrappers/web/catalogue/catalogue.h"
#include "wrappers/web/lookup/itemchildren.h"
#include "wrappers/web/object/references.h"
#include "wrappers/web/object/retrievehtmlobject.h"

#include <QHash>
#include <QRegularExpression>

#include <vector>

namespace Corvex::WebWrapper {

namespace {

// With these the page says that there is no object.
const char* const nothing[] = {"undefined", "[unknown]", "true", ""};

/// The rows of the catalogue, ready for many questions.
class Index {
public:
  Index() {
    for (const ClassRow& row : Catalogue()) {
      m_byName.insert(QLatin1String(row.name), &row);
      for (auto text = row.types.texts.begin(); text != row.types.texts.end() && *text; ++text) {
        if (row.types.match == TypeTexts::Whole) {
          m_whole.insert(QLatin1String(*text), &row);
        } else {
          m_prefixes.push_back({QLatin1String(*text), &row});
        }
      }
    }
  }

  const ClassRow* named(const QString& name) const { return m_byName.value(name); }

  /// The row for a type in lower case, and how much of the text is the prefix; null without one.
  const ClassRow* ofType(const QString& type, int* prefix) const {
    *prefix = 0;
    if (const ClassRow* const row = m_whole.value(type)) {
      return row;
    }
    for (const PrefixRow& each : m_prefixes) {
      if (type.startsWith(each.text)) {
        *prefix = each.text.size();
        return each.row;
      }
    }
    return nullptr;
  }

private:
  struct PrefixRow {
    QLatin1String text;
    const ClassRow* row;
  };

  QHash<QString, const ClassRow*> m_byName;
  QHash<QString, const ClassRow*> m_whole;
  std::vector<PrefixRow> m_prefixes;
};

/// Whether the name may become a part of code. A page that answers for a toolkit by another text has none.
bool isExtensionName(const ClassRow& row, const QString& name) {
  static const QRegularExpression identifiers(QStringLiteral("\\A[\\w$]+(?:\\.[\\w$]+)*\\z"),
                                              QRegularExpression::UseUnicodePropertiesOption);
  return row.types.match != TypeTexts::BeforeExtension || identifiers.match(name).hasMatch();
}

const Index& index() {
  static const Index rows;
  return rows;
}

}  // namespace

const ClassRow* classRowNamed(const QString& name) { return index().named(name); }

HTML_Object* htmlObjectFromReferenceInfo(HTMLComponent* component, const QString& type, const QString& reference,
                                         const QString& name) {
  const QString lower = type.toLower();
  for (const char* text : nothing) {
    if (lower == QLatin1String(text)) {
      return nullptr;
    }
  }
  if (!isObjectReference(reference)) {
    return nullptr;
  }
  int prefix = 0;
  const ClassRow* const row = index().ofType(lower, &prefix);
  const QString extension = row && row->types.match == TypeTexts::BeforeExtension ? type.mid(prefix) : QString();
  return row && isExtensionName(*row, extension) ? row->make({component, lower, extension, reference, name})
                                                 : new HTML_Object(name, reference, component);
}

bool hasItems(const HTML_Object& object) {
  const ClassRow* const row = classRowNamed(QLatin1String(object.className()));
  return row && row->items;
}

ObjectList itemsOf(HTML_Object* object) {
  const ClassRow* const row = object ? classRowNamed(QLatin1String(object->className())) : nullptr;
  return row && row->items ? row->items(object) : ObjectList();
}

}  // namespace Corvex::WebWrapper
