#include "shell/printing.h"

namespace vantore {

namespace {

const Font reportTitleFont{"Arial", 12, false};
const Font reportFont{"Courier New", 10, false};
const Font dataTitleFont{"Arial", 14, false};
const Font dataFont{"Courier New", 12, false};

void printOn(PrintJob& job, const PrintLines& page) {
    for (const std::string& line : page.lines()) job.print(line, dataFont);
}

} // namespace

PrintJob reportJob(const std::string& module, const std::vector<std::string>& lines) {
    PrintJob job{.title = module + " report"};
    bool first = true;
    for (const std::string& line : lines) {
        job.print(line, first ? reportTitleFont : reportFont);
        first = false;
    }
    return job;
}

PrintJob dataJob(const std::string& module, const std::vector<std::string>& headings,
                 const PrintLines& page) {
    PrintJob job{.title = module + " data"};
    job.print("", dataFont);
    for (const std::string& heading : headings) job.print(heading, dataTitleFont);
    job.print("", dataFont);
    printOn(job, page);
    return job;
}

PrintJob dataJob(const std::string& module, const std::string& heading, const PrintLines& page) {
    return dataJob(module, std::vector<std::string>{heading}, page);
}

PrintJob plainJob(const std::string& module, const PrintLines& page) {
    PrintJob job{.title = module + " data"};
    printOn(job, page);
    return job;
}

} // namespace vantore
