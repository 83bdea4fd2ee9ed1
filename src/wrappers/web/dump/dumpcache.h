#pragma once

#include "corvexhook/class.h"
#include "corvexhook/dump/dumpfilter.h"
#include "corvexhook/geometry.h"
#include "shared/functioncallresult.h"

#include <QString>

#include <json/value.h>

#include <map>
#include <string>

namespace Corvex::WebWrapper {

class HTMLComponent;
class HTML_Object;

/// What a dump knows of an object.
struct ChildrenAndProperties {
  /// The JavaScript expression of each property that is wanted, by its name.
  std::map<std::string, std::string> propertyGetters;
  std::map<QString, QString> propertyValues;
  ObjectList children;
  ScreenRectangle screenRect{-1, -1, -1, -1};
  /// In the image of the whole page.
  ScreenRectangle documentRect{-1, -1, -1, -1};
};

/// By the objects of the tree, which the lists of children keep; the one at the top is its owner's.
using DumpCache = std::map<HTML_Object*, ChildrenAndProperties>;

/// The object and all below it as the page told them in `tree`, with the getters of what the filters let through. Asks
/// the page for nothing but its zoom, once.
FunctionCallResult<DumpCache> buildCache(const SharedPtr<Object>& object, const Json::Value& tree,
                                         const DumpFilter& filters);

/// Reads all that the getters of the cache give, with one evaluation. Answers an error, empty on success.
QString fetchPropertyValues(HTMLComponent* component, DumpCache* cache);

}  // namespace Corvex::WebWrapper
