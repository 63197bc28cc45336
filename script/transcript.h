#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "shell/forms/chart.h"
#include "shell/forms/data_grid.h"
#include "shell/forms/picture_surface.h"
#include "shell/forms/print_job.h"
#include "shell/forms/report_screen.h"

namespace vantore {

/// The words of the transcript.

/// The text in double quotes, a line end as \n, a double quote as \".
std::string inQuotes(std::string_view text);

/// `cmdOpen: visible enabled "&Open file"`, under the name that the script gave.
std::string stateLine(const Control& control);

void writeGrid(std::ostream& out, const DataGrid& grid);
void writeReport(std::ostream& out, const ReportScreen& report);
void writeSurface(std::ostream& out, const PictureSurface& surface);
void writeChart(std::ostream& out, const ChartData& chart);
void writePrintJob(std::ostream& out, const PrintJob& job);

} // namespace vantore
