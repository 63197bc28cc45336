#pragma once

#include "shell/base/runtime_error.h"

namespace vantore::tests {

/// The number of the RuntimeError that an action ends in; 0 when it ends in none.
template <class Action>
ErrorNumber errorOf(Action action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return ErrorNumber{};
}

} // namespace vantore::tests
