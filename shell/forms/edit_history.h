#pragma once

#include <string>
#include <vector>

#include "shell/forms/control.h"
#include "shell/forms/data_grid.h"

namespace vantore {

/// One change that a user made to a text box or to a cell. In a box that labels a grid the cell is the one
/// that was current.
struct Edit {
    TextBox* box = nullptr;
    DataGrid* grid = nullptr;
    int row = 0;
    int col = 0;
    std::string before, after;

    bool sameField(const Edit& other) const {
        return box == other.box && grid == other.grid && row == other.row && col == other.col;
    }
};

/// Undo and redo of what a user typed or pasted. Successive changes of one field count as one step; the
/// cells of one paste do too.
class EditHistory {
  public:
    /// Records a step of one edit, merged with the last step where that changed the same field alone.
    void record(const Edit& edit);

    /// Records several edits as one step.
    void recordStep(std::vector<Edit> edits);

    /// Ends the merging: the next edit of the same field is a step of its own.
    void breakMerging() { mergeable_ = false; }

    bool canUndo() const { return done_ > 0; }
    bool canRedo() const { return done_ < steps_.size(); }

    /// Puts back the texts before the last step, or those after the step undone last. Does nothing when
    /// there is none.
    void undo();
    void redo();

    /// Forgets all steps: rows have moved or a problem was opened.
    void clear();

  private:
    std::vector<std::vector<Edit>> steps_;
    std::size_t done_ = 0;
    bool mergeable_ = false;
};

} // namespace vantore
