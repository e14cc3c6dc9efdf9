// How the models run the handlers of their events. Only models include this: whoever acts for the
// user calls what the models offer for it, such as `Choose`, and whoever writes a handler that sets
// off another one calls that handler.
#ifndef QUILLA_PLATFORM_DISPATCH_H_
#define QUILLA_PLATFORM_DISPATCH_H_

#include <functional>
#include <new>
#include <type_traits>
#include <utility>

#include "platform/failure.h"

namespace quilla {

/// Carries out an action of the user or the clock. A `Failure` that no handler on the way catches
/// ends the action where it stands, and so does a lack of memory: what was written stays, and the
/// program goes on. Any other exception is a fault in the program and passes.
template <typename Action>
void CarryOut(Action&& action) {
  try {
    std::forward<Action>(action)();
  } catch (const Failure&) {
  } catch (const std::bad_alloc&) {
  }
}

/// Carries out the handler of an event, if it has one.
template <typename... Arguments>
void Dispatch(const std::function<void(Arguments...)>& handler,
              std::type_identity_t<Arguments>... arguments) {
  if (handler) CarryOut([&] { handler(arguments...); });
}

}  // namespace quilla

#endif  // QUILLA_PLATFORM_DISPATCH_H_
