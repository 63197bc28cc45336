#include "simulator/SCSIM/questions.h"

#include "shell/base/number_text.h"

namespace vantore::scsim {

namespace {

std::string possessive(Level level) {
    switch (level) {
    case Level::Retailer: return "Retailer's";
    case Level::Distributor: return "Distributor's";
    case Level::Warehouse: break;
    }
    return "Warehouse's";
}

/// What the retailer's texts leave out.
std::string levelWord(Level level) {
    switch (level) {
    case Level::Retailer: return "";
    case Level::Distributor: return "distributor ";
    case Level::Warehouse: break;
    }
    return "warehouse ";
}

std::string constantText(Level level) {
    switch (level) {
    case Level::Retailer:
        return "Constant forecast of daily demand on retailer in units throughout simulation.";
    case Level::Distributor:
        return "Constant forecast of average daily demand on distributor in units throughout simulation.";
    case Level::Warehouse: break;
    }
    return "Constant forecast of average daily demand on warehouse in units throughout simulation.";
}

std::string specifiedText(const OrdersQuestion& question) {
    // The warehouse is asked in the retailer's name.
    const bool distributor = question.level == Level::Distributor;
    return "Long computational times are being encountered to build a reasonable order size.  To reduce the "
           "computational time, respecify the " +
           possessive(distributor ? Level::Distributor : Level::Retailer) +
           " data inputs, especially as to \r\n\r\n(1) the demand standard deviation,\r\n"
           "(2) the in-stock probability,\r\n(3) the choice of the inventory control method, and\r\n"
           "(4) the specified inventory control values.\r\n";
}

std::string calculatedText(const OrdersQuestion& question) {
    constexpr const char* mask = "###,###,###,##0";
    return "The reorder point at " + format(question.reorderPoint, mask) +
           " is so high and the optimal order quantity so low at " + format(question.orderQuantity, mask) +
           " that long computational times are being encountered to build a reasonable order size.  To "
           "reduce "
           "the computational time, respecify the " +
           possessive(question.level) +
           " data inputs, especially as to \r\n\r\n(1) the demand standard deviation,\r\n"
           "(2) the in-stock probability, and\r\n(3) the choice of the inventory control method.\r\n";
}

} // namespace

std::string titleOf(const ForecastQuestion& question) {
    return question.kind == ForecastQuestion::Kind::Period ? "Specified daily forecast" : "";
}

std::string textOf(const ForecastQuestion& question) {
    if (question.kind == ForecastQuestion::Kind::Constant) return constantText(question.level);
    const bool initial = question.kind == ForecastQuestion::Kind::Initial;
    // The retailer's first forecast is the one that isn't called an average.
    const bool average = !initial || question.level != Level::Retailer;
    const std::string forecast =
        "Forecast of " + levelWord(question.level) + (average ? "average " : "") + "daily demand in units ";
    if (initial) return forecast + "to initialize simulation.";
    return forecast + "at day " + str(question.day) + " into simulation";
}

std::string textOf(const OrdersQuestion& question) {
    const bool calculated = question.parameters == Parameters::Calculated;
    return (calculated ? calculatedText(question) : specifiedText(question)) +
           "Do you wish to continue computing for a while longer?";
}

} // namespace vantore::scsim
