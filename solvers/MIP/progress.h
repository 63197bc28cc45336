#pragma once

#include <atomic>
#include <mutex>

#include "solvers/MIP/outcome.h"

namespace vantore::mip {

/// What the search and whoever watches over it share. The outcome so far can be read at any time.
class Progress {
  public:
    /// Asks the search to stop with what it has.
    void stop() { stopping_ = true; }
    bool stopping() const { return stopping_; }

    Outcome outcome() const {
        const std::lock_guard lock(mutex_);
        return outcome_;
    }

    template <class Change>
    void update(Change change) {
        const std::lock_guard lock(mutex_);
        change(outcome_);
    }

  private:
    std::atomic<bool> stopping_ = false;
    mutable std::mutex mutex_;
    Outcome outcome_;
};

} // namespace vantore::mip
