#pragma once

#include <QObject>

namespace vantore {

class OpenWindows;

/// Gives the keyboard to the window in front when a dialog over it has gone: not every window manager does,
/// and a display may have none.
class KeyboardKeeper : public QObject {
  public:
    explicit KeyboardKeeper(const OpenWindows& windows);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void giveBack() const;

    const OpenWindows& windows_;
};

} // namespace vantore
