#include "shell/forms/history.h"

#include <utility>

namespace vantore {

void History::clear() {
    steps_.clear();
    now_ = 0;
    mergeable_ = false;
}

void History::begin(const FormState& state) {
    if (steps_.empty()) steps_.push_back({state, {}});
}

void History::record(FormState state, const EditedField& field) {
    const bool merges = mergeable_ && now_ > 0 && field.single && steps_[now_].field == field;
    if (merges) return amend(std::move(state));
    steps_.resize(now_ + 1);
    steps_.push_back({std::move(state), field});
    if (steps_.size() > mostSteps) steps_.pop_front();
    now_ = steps_.size() - 1;
    mergeable_ = true;
}

void History::amend(FormState state) {
    if (steps_.empty()) return;
    steps_.resize(now_ + 1);
    steps_[now_].state = std::move(state);
}

History::Target History::undo() {
    const Control* control = steps_[now_].field.control;
    mergeable_ = false;
    return {steps_[--now_].state, control};
}

History::Target History::redo() {
    mergeable_ = false;
    ++now_;
    return {steps_[now_].state, steps_[now_].field.control};
}

} // namespace vantore
