#pragma once

#include <functional>
#include <optional>
#include <string>

#include "simulator/SCSIM/problem.h"

namespace vantore::scsim {

/// A level's specified forecast is due.
struct ForecastQuestion {
    enum class Kind { Initial, Period, Constant };

    Level level;
    Kind kind;
    int day; ///< the first that the forecast is for
};

/// A level has placed so many orders that the user may want to end the run.
struct OrdersQuestion {
    Level level;
    Parameters parameters; ///< calculated or specified
    double reorderPoint;
    double orderQuantity;
};

/// Who answers while a run goes on.
struct Answers {
    std::function<std::optional<double>(const ForecastQuestion&)> forecast; ///< none ends the run
    std::function<bool(const OrdersQuestion&)> moreOrders;                  ///< false ends the run
};

std::string titleOf(const ForecastQuestion& question);
std::string textOf(const ForecastQuestion& question);
std::string textOf(const OrdersQuestion& question);

} // namespace vantore::scsim
