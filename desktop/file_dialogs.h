#pragma once

#include <QStringList>
#include <optional>
#include <string>
#include <string_view>

#include "shell/platform.h"

class QWidget;

namespace vantore {

/// The filters of a file dialog: "Center of gravity (COG*.dat)|COG*.dat|" gives
/// "Center of gravity (COG*.dat)". Several patterns stand between semicolons or blanks.
QStringList nameFilters(std::string_view filter);

/// The path that a typed name stands for: a file that is there, spelled in any case, with the ending or
/// without, else the name with the ending.
std::string pathForName(const std::string& path, const std::string& ending);

/// Whether Save asks before it takes a file that is there: always, or not for the name that was proposed,
/// which is the open problem's own.
enum class Overwriting { Asked, ProposedUnasked };

/// Asks for a file. Open takes a name that doesn't exist yet.
std::optional<std::string> chooseFile(QWidget* parent, const FileDialog& dialog,
                                      Overwriting overwriting = Overwriting::Asked);

} // namespace vantore
