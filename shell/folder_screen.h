#pragma once

#include <string>

#include "shell/suite_window.h"

namespace vantore {

/// `Drive`: the user chooses the input/output folder from the volumes and folders of the system, or types it.
class FolderScreen : public SuiteWindow {
  public:
    explicit FolderScreen(Suite& suite);

    void close() override { leave(); }

  protected:
    std::string errorTitle() const override { return "DRIVE"; }

  private:
    void addLists();
    void addButtons();
    void listFolders(const std::string& folder);
    void changeVolume();
    void openFolder();
    void apply();
    void takeFolder();
    bool handled(const RuntimeError& error);
    bool createFolder();
    void leave();

    ListBox* Drive1 = nullptr;
    ListBox* Dir1 = nullptr;
    TextBox* txtDir = nullptr;
    std::string folder_; ///< whose folders `Dir1` lists
};

/// Opens the folder screen over the window in front.
void openFolderScreen(Suite& suite);

} // namespace vantore
