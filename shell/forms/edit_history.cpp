#include "shell/forms/edit_history.h"

#include <algorithm>
#include <utility>

namespace vantore {

namespace {

void put(const Edit& edit, const std::string& text) {
    if (edit.box != nullptr) edit.box->setText(text);
    if (edit.grid == nullptr || edit.row >= edit.grid->rows() || edit.col >= edit.grid->cols()) return;
    edit.grid->setCell(edit.row, edit.col, text);
    // A heading is put back through the row or column that it names.
    edit.grid->setCurrent(std::max(edit.row, 1), std::max(edit.col, 1));
}

} // namespace

void EditHistory::record(const Edit& edit) {
    if (edit.before == edit.after) return;
    const bool merges = mergeable_ && done_ == steps_.size() && done_ > 0 && steps_.back().size() == 1 &&
                        steps_.back().front().sameField(edit);
    if (merges) {
        steps_.back().front().after = edit.after;
        return;
    }
    recordStep({edit});
    mergeable_ = true;
}

void EditHistory::recordStep(std::vector<Edit> edits) {
    if (edits.empty()) return;
    steps_.resize(done_);
    steps_.push_back(std::move(edits));
    done_ = steps_.size();
    mergeable_ = false;
}

void EditHistory::undo() {
    if (!canUndo()) return;
    // A copy: a text box that is put back may reshape a grid, whose window then forgets the steps.
    const std::vector<Edit> step = steps_[--done_];
    for (auto edit = step.rbegin(); edit != step.rend(); ++edit) put(*edit, edit->before);
    mergeable_ = false;
}

void EditHistory::redo() {
    if (!canRedo()) return;
    const std::vector<Edit> step = steps_[done_++];
    for (const Edit& edit : step) put(edit, edit.after);
    mergeable_ = false;
}

void EditHistory::clear() {
    steps_.clear();
    done_ = 0;
    mergeable_ = false;
}

} // namespace vantore
