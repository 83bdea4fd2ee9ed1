#include "wrappers/web/page/jsonanswer.h"

#include <json/reader.h>
#include <json/writer.h>

#include <exception>
#include <memory>
#include <string>

namespace Corvex::WebWrapper {

namespace {

QString notConvertible(const Json::Value& value, const char* wanted) {
  return QStringLiteral("the page answered %1 where %2 was expected").arg(compactJson(value), QLatin1String(wanted));
}

/// As deep as pages are made, and no deeper than the stack.
FunctionCallResult<Json::Value> parseDeepJson(const std::string& text) {
  Json::CharReaderBuilder builder;
  builder["stackLimit"] = 4000;
  const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
  Json::Value root;
  std::string errors;
  try {
    if (reader->parse(text.data(), text.data() + text.size(), &root, &errors)) {
      return FunctionCallResult<Json::Value>::success(root);
    }
  } catch (const std::exception& e) {
    errors = e.what();
  }
  return FunctionCallResult<Json::Value>::failure(QString::fromStdString(errors));
}

}  // namespace

// This reader's messages are the ones that are shown.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

FunctionCallResult<Json::Value> parseJson(const QString& text) {
  Json::Reader reader;
  Json::Value root;
  try {
    if (reader.parse(text.toStdString(), root, true)) {
      return FunctionCallResult<Json::Value>::success(root);
    }
  } catch (const std::exception&) {
    // Thrown for values that are nested deep.
    return parseDeepJson(text.toStdString());
  }
  const QString errors = QString::fromStdString(reader.getFormattedErrorMessages());
  return FunctionCallResult<Json::Value>::failure(errors.isEmpty() ? QStringLiteral("not JSON") : errors);
}

#pragma GCC diagnostic pop

QString jsonText(const Json::Value& value) {
  return value.isConvertibleTo(Json::stringValue) ? QString::fromStdString(value.asString()) : compactJson(value);
}

QString compactJson(const Json::Value& value) {
  Json::StreamWriterBuilder builder;
  builder["indentation"] = "";
  return QString::fromStdString(Json::writeString(builder, value));
}

FunctionCallResult<int> jsonInt(const Json::Value& value) {
  if (!value.isConvertibleTo(Json::intValue)) {
    return FunctionCallResult<int>::failure(notConvertible(value, "a whole number"));
  }
  return FunctionCallResult<int>::success(value.asInt());
}

FunctionCallResult<bool> jsonBool(const Json::Value& value) {
  if (!value.isConvertibleTo(Json::booleanValue)) {
    return FunctionCallResult<bool>::failure(notConvertible(value, "true or false"));
  }
  return FunctionCallResult<bool>::success(value.asBool());
}

}  // namespace Corvex::WebWrapper
