#pragma once

#include "corvexhook/class.h"

#include <QStringList>

#include <vector>

namespace Corvex {

/// What a filter says of a property that it lets through.
struct PropertyInfo {
  bool isIdentifying = false;  ///< It tells which object it is.
};

/// Which properties of the objects of a class a dump holds.
class CORVEXHOOK_EXPORT FilterObject {
public:
  /// `properties` are names, in which * stands for any characters.
  FilterObject(const QString& className, const QStringList& properties, const QStringList& identifying = {});

  const QString& className() const { return m_className; }
  /// `info`, which may be null, is filled in for a property that is matched.
  bool isMatchedProperty(const QString& name, PropertyInfo* info) const;

private:
  QString m_className;
  QStringList m_properties;
  QStringList m_identifying;
};

/// One filter for each class that has properties of its own to show.
struct DumpFilter {
  std::vector<FilterObject> objects;
  bool takesPictures = true;  ///< Whether each object gets its image.
};

/// The filter of the object's class or of its nearest super class; null where there is none: nothing is matched then.
CORVEXHOOK_EXPORT const FilterObject* filterObjectForCorvexObject(const SharedPtr<Object>& object,
                                                                  const DumpFilter& filters);

/// Whether the property is text, a number or a truth value. Others are objects of their own.
CORVEXHOOK_EXPORT bool hasSimpleValue(const Property& property);

}  // namespace Corvex
