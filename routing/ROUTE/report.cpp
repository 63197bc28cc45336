#include "routing/ROUTE/report.h"

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore::route {

namespace {

constexpr const char* costMask = "###,##0.00";
constexpr double pathColumn = 11;

void printPath(PrintLines& page, const Path& path) {
    page.right(pathColumn, format(path.cost, costMask)).tab(pathColumn).number(path.nodes.front());
    for (std::size_t i = 1; i < path.nodes.size(); ++i) page.text("->").number(path.nodes[i]);
    page.endLine();
}

void printPaths(PrintLines& page, const RouteNetwork& network, const Solution& solution) {
    page.line("");
    page.text("Shortest paths from origin node").number(network.originNode).endLine();
    page.line("to all destination nodes");
    page.line("      Cost Path");
    for (const Path& path : solution.paths) {
        if (path.connected()) {
            printPath(page, path);
            continue;
        }
        page.text("NODE").number(path.destination).endLine();
        page.text("IS NOT CONNECTED TO NODE").number(network.originNode).endLine();
    }
}

/// Takes numbers from lines that hold one each.
class NumberLines {
  public:
    explicit NumberLines(const std::vector<std::string>& lines) : lines_(lines) {}

    bool atEnd() const { return at_ == lines_.size(); }
    double next() {
        if (atEnd()) throw RuntimeError(ErrorNumber::InputPastEnd);
        return val(lines_[at_++]);
    }

  private:
    const std::vector<std::string>& lines_;
    std::size_t at_ = 0;
};

Path nextPath(NumberLines& lines) {
    Path path;
    path.cost = lines.next();
    const double count = lines.next();
    if (!(count >= 1 && count <= mostNodes)) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    for (int i = 1; i <= count; ++i) path.nodes.push_back(toInt32(lines.next()));
    path.destination = path.nodes.back();
    return path;
}

void printNodes(PrintLines& page, const RouteNetwork& network) {
    page.line("NODE IDENTIFICATION DATA");
    page.line("Point Node                      X coor-   Y coor-");
    page.line("  no.  no. Node name             dinate    dinate");
    for (int i = 1; i <= network.nodeCount; ++i) {
        const NodeRow& node = network.nodes(i);
        page.right(6, format(i, "###0")).right(11, format(val(node.number), "###0"));
        page.tab(12).text(node.name);
        page.right(40, format(val(node.x), "###,###.#0")).right(50, format(val(node.y), "###,###.#0"));
        page.endLine();
    }
}

void printArcs(PrintLines& page, const RouteNetwork& network) {
    page.line("CONNECTING NODE DATA");
    page.line("      From -------------------- To ----------------------");
    page.line("Point Node                      Node");
    page.line("  no.  no. Node name             no.  Node name                 Cost");
    for (int i = 1; i <= network.arcCount; ++i) {
        const ArcRow& arc = network.arcs(i);
        page.right(6, format(i, "###0")).right(11, format(arc.firstNode, "###0"));
        page.tab(12).text(arc.firstName);
        page.right(37, format(arc.secondNode, "###0")).tab(39).text(arc.secondName);
        page.right(69, format(arc.cost, costMask));
        page.endLine();
    }
}

} // namespace

PrintLines reportHead(const RouteNetwork& network) {
    PrintLines page;
    page.line(network.title);
    page.text("Origin node number =").number(network.originNode).endLine();
    return page;
}

PrintLines reportPage(const RouteNetwork& network, const Solution& solution) {
    PrintLines page = reportHead(network);
    page.text("   Number of nodes =").number(solution.nodeCount).endLine();
    page.text("   Number of arcs =").number(solution.arcCount).endLine();
    if (solution.originConnected)
        printPaths(page, network, solution);
    else
        page.line("ERROR: THE ORIGIN NODE IS NOT CONNECTED TO THE NETWORK");
    return page;
}

std::vector<std::string> warnings(const RouteNetwork& network, const Solution& solution) {
    std::vector<std::string> texts;
    if (solution.nodeCount < 2) texts.emplace_back("ERROR: At least two nodes are needed.");
    if (!solution.originConnected)
        texts.emplace_back("ERROR: The origin node is not connected to the network.");
    for (const Path& path : solution.paths)
        if (!path.connected())
            texts.push_back("Node" + str(path.destination) + " is not connected to node" +
                            str(network.originNode));
    return texts;
}

PrintLines pathFile(const Solution& solution) {
    PrintLines page;
    for (const Path& path : solution.paths) {
        if (!path.connected()) continue;
        page.line(defaultText(path.cost)).line(defaultText(static_cast<double>(path.nodes.size())));
        for (const int node : path.nodes) page.line(defaultText(node));
    }
    return page;
}

std::optional<Path> pathFrom(const std::vector<std::string>& lines, double destination) {
    NumberLines numbers(lines);
    while (!numbers.atEnd()) {
        Path path = nextPath(numbers);
        if (path.destination == destination) return path;
    }
    return std::nullopt;
}

PrintLines dataPage(const RouteNetwork& network) {
    PrintLines page;
    page.line("Title: " + network.title);
    page.line(joined("Origin node number: ", network.originNode));
    printNodes(page, network);
    printArcs(page, network);
    return page;
}

} // namespace vantore::route
