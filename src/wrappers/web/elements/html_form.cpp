#include "wrappers/web/elements/html_form.h"

#include "wrappers/web/glue/scriptclass.h"

namespace Corvex::WebWrapper {

const char* HTML_Form::className() const { return ScriptName; }

QString HTML_Form::submit() { return invoke("submit").error; }

namespace {

constexpr MethodRow methods[] = {
    method<&HTML_Form::submit>("submit"),
};

}  // namespace

const ClassMembers HTML_Form_Class = classMembers(methods);

}  // namespace Corvex::WebWrapper
