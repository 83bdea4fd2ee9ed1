#pragma once

#include "corvexhook/object.h"
#include "shared/functioncallresult.h"

namespace Corvex::WebWrapper {
class HTML_Object;
}

namespace Corvex::Webhook {

/// An object of a page that a script's function was given.
struct PageObject {
  SharedPtr<Object> owner;
  WebWrapper::HTML_Object* native = nullptr;
};

/// The object that an argument is, or names; one that is named is waited for. Without a failure `native` is there.
FunctionCallResult<PageObject> pageObjectOf(const SharedPtr<Object>& argument, const char* function);

}  // namespace Corvex::Webhook
