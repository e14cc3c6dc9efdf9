// How an operation fails: for tests that pin the error number.
#ifndef QUILLA_PLATFORM_FAILURE_OF_H_
#define QUILLA_PLATFORM_FAILURE_OF_H_

#include <optional>

#include "platform/failure.h"

namespace quilla {

/// The number of the failure that ends `operation`; nothing if it comes to its end.
template <typename Operation>
std::optional<ErrorNumber> FailureOf(const Operation& operation) {
  try {
    operation();
  } catch (const Failure& failure) {
    return failure.number();
  }
  return std::nullopt;
}

}  // namespace quilla

#endif  // QUILLA_PLATFORM_FAILURE_OF_H_
