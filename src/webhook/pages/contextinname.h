#pragma once

#include <QString>

#include <optional>

namespace Corvex::Webhook {

/// The context that the name of a document begins with, as in "DOCUMENT[a|html]"; nothing for other names.
std::optional<QString> contextOfDocument(const QString& name);

/// The name of a context's document.
QString documentOf(QString context);

/// Whether the name of an element or a document says in which context that is.
bool namesItsContext(const QString& name);

/// The name with that context in place of the one that it has, if any.
QString inContext(QString name, const QString& context);

}  // namespace Corvex::Webhook
