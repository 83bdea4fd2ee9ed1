#pragma once

#include <QString>

#include <utility>

namespace Corvex {

/// Result of an operation that may fail. A non-empty `error`, and nothing else, means failure.
template <typename T>
struct FunctionCallResult {
  T value{};
  QString error;

  static FunctionCallResult success(T value) { return {std::move(value), QString()}; }
  static FunctionCallResult failure(const QString& message) { return {T{}, message}; }

  bool failed() const { return !error.isEmpty(); }

  /// The same result; an error, if there is one, stands after `text`.
  FunctionCallResult after(const QString& text) && { return {std::move(value), failed() ? text + error : error}; }
};

/// The same without a value.
struct VoidResult {
  QString error;

  bool failed() const { return !error.isEmpty(); }
};

}  // namespace Corvex
