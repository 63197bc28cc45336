#pragma once

#include "desktop/control_view.h"

namespace vantore {

/// The view of each kind of control, on `parent`.
std::unique_ptr<ControlView> viewOf(ViewContext& context, Button& button, QWidget* parent);
std::unique_ptr<ControlView> viewOf(ViewContext& context, Chart& chart, QWidget* parent);
std::unique_ptr<ControlView> viewOf(ViewContext& context, CheckBox& box, QWidget* parent);
std::unique_ptr<ControlView> viewOf(ViewContext& context, Container& container, QWidget* parent);
std::unique_ptr<ControlView> viewOf(ViewContext& context, DataGrid& grid, QWidget* parent);
std::unique_ptr<ControlView> viewOf(ViewContext& context, Label& label, QWidget* parent);
std::unique_ptr<ControlView> viewOf(ViewContext& context, ListBox& list, QWidget* parent);
std::unique_ptr<ControlView> viewOf(ViewContext& context, Option& option, QWidget* parent);
std::unique_ptr<ControlView> viewOf(ViewContext& context, Picture& picture, QWidget* parent);
std::unique_ptr<ControlView> viewOf(ViewContext& context, PictureSurface& surface, QWidget* parent);
std::unique_ptr<ControlView> viewOf(ViewContext& context, ReportScreen& report, QWidget* parent);
std::unique_ptr<ControlView> viewOf(ViewContext& context, TextBox& box, QWidget* parent);

} // namespace vantore
