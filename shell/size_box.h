#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "shell/forms/control.h"
#include "shell/forms/data_grid.h"

namespace vantore {

/// What a size box does to the grids that follow it.
struct SizeRules {
    int least = 0;
    int most = 0;
    std::function<int()> present;        ///< The size that the grids have.
    std::function<void(int size)> shape; ///< Gives them another one, or the same.
    std::function<void()> onExcess = {}; ///< Tells of a size above `most`.
    std::function<void()> onShort = {};  ///< The same below `least`.
    std::function<bool()> takes = {};    ///< False while the box doesn't reach the grids; empty: it does.
};

/// A text box that tells and sets the size of one or several grids, which follow every change of its text;
/// what is no size yet leaves them as they are.
///
/// Typing a size passes through others, 25 over 18 through 2. Each is taken from the grids as they were
/// before the typing, so that rows which the first digit cut off are there again with the second. A size out
/// of range brings back those grids and their size.
class SizeBox {
  public:
    /// Takes over the box's `onChange` and `onLeave`.
    SizeBox(TextBox& box, std::vector<DataGrid*> grids, SizeRules rules);
    SizeBox(const SizeBox&) = delete;
    SizeBox& operator=(const SizeBox&) = delete;

    /// Shows the size that the grids have; the typing is over.
    void settle();

    /// The typing is over: another control has been used, or a state was put back.
    void forget() { before_.clear(); }

    const TextBox& box() const { return box_; }

  private:
    void follow();
    bool goesOn(const std::string& typed) const;
    bool isSize(const std::string& typed) const;
    void putBack();

    TextBox& box_;
    std::vector<DataGrid*> grids_;
    SizeRules rules_;
    std::vector<Content> before_; ///< the grids before the typing; empty when nothing is being typed
    std::string seen_;            ///< the text of the last change
};

} // namespace vantore
