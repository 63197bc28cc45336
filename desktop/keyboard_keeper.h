#pragma once

#include <QObject>

namespace vantore {

class Windows;

/// Gives the keyboard to the window in front when a dialog over it has gone: not every window manager does,
/// and a display may have none.
class KeyboardKeeper : public QObject {
  public:
    explicit KeyboardKeeper(const Windows& windows);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void giveBack() const;

    const Windows& windows_;
};

} // namespace vantore
