#pragma once

namespace vantore {

/// The look of the program, the same on every desktop: the forms' colours are made for a light one.
void setLook();

} // namespace vantore
