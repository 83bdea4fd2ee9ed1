#pragma once

#include "corvexhook/object.h"
#include "shared/functioncallresult.h"

#include <QStringList>

namespace Corvex::Webhook {

class Connection;

/// So many objects at once: what a page finds out for one of them serves for the others.
const int objectsPerCall = 10000;

/// What the page answers for each of some objects, in their order, or why it answers nothing. The questions are those
/// of the text for pages of that name; an answer that begins with "!" is an error of that object.
FunctionCallResult<QStringList> askForEach(Connection& page, const char* question, const ObjectList& objects);

}  // namespace Corvex::Webhook
