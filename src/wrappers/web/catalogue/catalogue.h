#pragma once

#include "corvexhook/object.h"
#include "wrappers/web/glue/scriptclass.h"

#include <QString>

#include <array>

namespace Corvex::WebWrapper {

/// What the page says of one of its objects.
struct ReferenceInfo {
  HTMLComponent* component;
  /// In lower case.
  QString type;
  /// The name of an extension that follows in the type, in its own case.
  QString extension;
  QString reference;
  QString name;
};

/// The texts by which the page says that an object is of a class. Filled up with nulls.
struct TypeTexts {
  enum Match {
    Whole,
    Beginning,
    BeforeExtension,  ///< The beginning of a text that ends in the name of an extension.
  };
  static constexpr std::size_t Most = 15;

  Match match = Whole;
  std::array<const char*, Most> texts = {};
};

/// All that tells one script class from another.
struct ClassRow {
  using Make = HTML_Object* (*)(const ReferenceInfo& info);
  using Items = ObjectList (*)(HTML_Object* object);

  const char* name;
  /// Null for a root.
  const char* superClass;
  const ClassMembers* members;
  const NativeKind* kind;
  /// None for a class whose objects come from no type text.
  TypeTexts types;
  Make make = nullptr;
  /// Gives the children that the page's DOM does not show. Null for a class without such.
  Items items = nullptr;

  constexpr ClassRow withItems(Items itemsOf) const {
    ClassRow row = *this;
    row.items = itemsOf;
    return row;
  }
};

/// Every script class in the order of registration.
struct Catalogue {
  const ClassRow* begin() const;
  const ClassRow* end() const;
};

/// Null for a name that is none of a script class.
const ClassRow* classRowNamed(const QString& name);

}  // namespace Corvex::WebWrapper
