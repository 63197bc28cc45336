#pragma once

#include <QString>
#include <string>

namespace vantore {

/// The file among the program's resources that holds the drawing of that name; a name without a drawing gets
/// a general one.
QString pictureFile(const std::string& name);

} // namespace vantore
