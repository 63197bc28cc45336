#pragma once

#include <cstddef>
#include <deque>
#include <vector>

#include "shell/forms/control.h"

namespace vantore {

/// All that a user can edit in a window: the contents of its controls, in their order.
using FormState = std::vector<Content>;

/// What an action changed: a box (row and col 0), a cell, or more than a single field of the control.
struct EditedField {
    const Control* control = nullptr;
    int row = 0;
    int col = 0;
    bool single = true;

    bool operator==(const EditedField&) const = default;
};

/// The states of a window, one for each step that a user can take back. Successive changes of one field count
/// as one step.
class History {
  public:
    /// Forgets all steps.
    void clear();

    /// The state before the action that `record` will tell the outcome of; kept where it is the first.
    void begin(const FormState& state);

    /// The state after an action that changed it: a step, or where the last step changed the same single
    /// field a part of that one.
    void record(FormState state, const EditedField& field);

    /// The state after something that no step of its own stands for, such as leaving a box.
    void amend(FormState state);

    /// Ends the merging: the next change of the same field is a step of its own.
    void breakMerging() { mergeable_ = false; }

    bool canUndo() const { return now_ > 0; }
    bool canRedo() const { return now_ + 1 < steps_.size(); }

    /// A state to be put back, and the control whose change is taken back or made again.
    struct Target {
        const FormState& state;
        const Control* control;
    };

    /// One step back or forward; only where `canUndo`, `canRedo`.
    Target undo();
    Target redo();

  private:
    struct Step {
        FormState state;
        EditedField field; ///< whose change led here
    };

    static constexpr std::size_t mostSteps = 1000;

    std::deque<Step> steps_;
    std::size_t now_ = 0;
    bool mergeable_ = false;
};

} // namespace vantore
