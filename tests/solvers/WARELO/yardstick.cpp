#include "tests/solvers/WARELO/yardstick.h"

#include <algorithm>
#include <cmath>
#include <glpk.h>
#include <limits>
#include <memory>
#include <numbers>
#include <numeric>

namespace vantore::tests {

using namespace wareloca;

namespace {

constexpr double radius = 3958.8;
constexpr double local = 30;

struct DeleteProblem {
    void operator()(glp_prob* problem) const { glp_delete_prob(problem); }
};

/// A linear program put together column by column.
class Linear {
  public:
    Linear() : problem_(glp_create_prob()) {
        glp_term_out(GLP_OFF);
        glp_set_obj_dir(problem_.get(), GLP_MIN);
    }

    int row(int kind, double bound) {
        const int i = glp_add_rows(problem_.get(), 1);
        glp_set_row_bnds(problem_.get(), i, kind, bound, bound);
        return i;
    }

    void column(double cost, std::vector<int> rows, std::vector<double> values, double upper = -1) {
        const int j = glp_add_cols(problem_.get(), 1);
        glp_set_obj_coef(problem_.get(), j, cost);
        glp_set_col_bnds(problem_.get(), j, upper < 0 ? GLP_LO : GLP_DB, 0, upper);
        rows.insert(rows.begin(), 0);
        values.insert(values.begin(), 0);
        glp_set_mat_col(problem_.get(), j, static_cast<int>(rows.size()) - 1, rows.data(), values.data());
    }

    /// The optimum, with the values of the columns.
    double optimum(std::vector<double>& values) {
        glp_smcp parameters;
        glp_init_smcp(&parameters);
        parameters.msg_lev = GLP_MSG_OFF;
        parameters.presolve = GLP_ON;
        glp_scale_prob(problem_.get(), GLP_SF_AUTO);
        if (glp_simplex(problem_.get(), &parameters) != 0 || glp_get_status(problem_.get()) != GLP_OPT)
            return std::numeric_limits<double>::infinity();
        values.clear();
        for (int j = 1; j <= glp_get_num_cols(problem_.get()); ++j)
            values.push_back(glp_get_col_prim(problem_.get(), j));
        return glp_get_obj_val(problem_.get());
    }

  private:
    std::unique_ptr<glp_prob, DeleteProblem> problem_;
};

std::vector<int> selectedPlants(const Case& problem) {
    std::vector<int> rows;
    for (int i = 1; i <= problem.plantCount; ++i)
        if (problem.plants(i).selection == "X") rows.push_back(i);
    return rows;
}

std::vector<int> selectedWarehouses(const Case& problem) {
    std::vector<int> rows;
    for (int i = 1; i <= problem.warehouseCount; ++i)
        if (problem.warehouses(i).selection == "X") rows.push_back(i);
    return rows;
}

std::vector<int> buyers(const Case& problem) {
    std::vector<int> rows;
    for (int i = 1; i <= problem.customerCount; ++i)
        if (problem.customers(i).sales > 0) rows.push_back(i);
    return rows;
}

double milesFromPlant(const Case& problem, int p, int w) {
    return plainMiles({problem.plants(p).x, problem.plants(p).y},
                      {problem.warehouses(w).x, problem.warehouses(w).y});
}

double milesToCustomer(const Case& problem, int w, int c) {
    return plainMiles({problem.warehouses(w).x, problem.warehouses(w).y},
                      {problem.customers(c).x, problem.customers(c).y});
}

/// The cheapest flows from plants to warehouses, by plant and then by warehouse of `open`.
std::vector<double> supply(const Case& problem, const std::vector<int>& open,
                           const std::vector<double>& throughput) {
    Linear linear;
    std::vector<int> plantRows, warehouseRows;
    const std::vector<int> plants = selectedPlants(problem);
    for (const int p : plants) plantRows.push_back(linear.row(GLP_UP, problem.plants(p).capacity));
    for (const double amount : throughput) warehouseRows.push_back(linear.row(GLP_FX, amount));
    for (std::size_t p = 0; p < plants.size(); ++p)
        for (std::size_t w = 0; w < open.size(); ++w)
            linear.column(problem.plants(plants[p]).productionCost + problem.plantWarehouseFixed +
                              problem.plantWarehouseVariable * milesFromPlant(problem, plants[p], open[w]),
                          {plantRows[p], warehouseRows[w]}, {1, 1});
    std::vector<double> flows;
    linear.optimum(flows);
    return flows;
}

/// $ a year for the inventory of a throughput in a warehouse: storage and capital.
double inventoryCost(const Case& problem, int w, double throughput) {
    if (throughput <= 0) return 0;
    const double value =
        problem.inventoryConstant * std::pow(throughput, problem.inventoryExponent) * problem.productValue;
    return value * (problem.warehouses(w).storage + problem.capitalCost / 100);
}

/// $ for each cwt. that goes from a warehouse to a customer, but for the inventory.
double deliveryCost(const Case& problem, int w, int c) {
    const Warehouse& warehouse = problem.warehouses(w);
    const double distance = milesToCustomer(problem, w, c);
    double cost = warehouse.handling + warehouse.stockOrderProcessing / warehouse.stockOrderSize +
                  warehouse.customerOrderProcessing / warehouse.customerOrderSize;
    cost += distance <= local ? warehouse.localDelivery
                              : problem.warehouseCustomerFixed + problem.warehouseCustomerVariable * distance;
    return cost;
}

} // namespace

double plainMiles(Place a, Place b) {
    constexpr double degree = std::numbers::pi / 180;
    const auto vector = [](Place place) {
        return std::array<double, 3>{std::cos(place.x * degree) * std::cos(place.y * degree),
                                     std::cos(place.x * degree) * std::sin(place.y * degree),
                                     std::sin(place.x * degree)};
    };
    const auto u = vector(a);
    const auto v = vector(b);
    const double dot = u[0] * v[0] + u[1] * v[1] + u[2] * v[2];
    const double cross =
        std::hypot(u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]);
    return radius * std::atan2(cross, dot);
}

PlainPlan plainPlan(const Case& problem, const std::vector<int>& warehouseOf) {
    PlainPlan plan;
    std::vector<int> open;
    std::vector<double> throughput;
    double sales = 0, salesMiles = 0;
    for (int w = 1; w <= problem.warehouseCount; ++w) {
        double amount = 0;
        for (int c = 1; c <= problem.customerCount; ++c) {
            if (warehouseOf[static_cast<std::size_t>(c)] != w) continue;
            const double sold = problem.customers(c).sales;
            const double distance = milesToCustomer(problem, w, c);
            amount += sold;
            sales += sold;
            salesMiles += sold * distance;
            plan.longestMiles = std::max(plan.longestMiles, distance);
            if (distance <= problem.desiredDistance) plan.salesWithin += sold;
            if (distance <= problem.desiredDistance) ++plan.customersWithin;
            if (distance <= local)
                plan.costs[3] += sold * problem.warehouses(w).localDelivery;
            else
                plan.costs[2] +=
                    sold * (problem.warehouseCustomerFixed + problem.warehouseCustomerVariable * distance);
        }
        if (amount == 0) continue;
        open.push_back(w);
        throughput.push_back(amount);
        const Warehouse& warehouse = problem.warehouses(w);
        plan.costs[4] += amount * warehouse.handling;
        plan.costs[5] += amount / warehouse.stockOrderSize * warehouse.stockOrderProcessing;
        plan.costs[6] += amount / warehouse.customerOrderSize * warehouse.customerOrderProcessing;
        const double value =
            problem.inventoryConstant * std::pow(amount, problem.inventoryExponent) * problem.productValue;
        plan.costs[7] += value * warehouse.storage;
        plan.costs[8] += value * problem.capitalCost / 100;
    }
    const std::vector<int> plants = selectedPlants(problem);
    const std::vector<double> flows = supply(problem, open, throughput);
    for (std::size_t i = 0; i < flows.size(); ++i) {
        const int p = plants[i / open.size()];
        const int w = open[i % open.size()];
        plan.costs[0] += flows[i] * problem.plants(p).productionCost;
        plan.costs[1] += flows[i] * (problem.plantWarehouseFixed +
                                     problem.plantWarehouseVariable * milesFromPlant(problem, p, w));
    }
    plan.averageMiles = salesMiles / sales;
    plan.total = std::accumulate(plan.costs.begin(), plan.costs.end(), 0.0);
    return plan;
}

double leastCostByEnumeration(const Case& problem) {
    const std::vector<int> warehouses = selectedWarehouses(problem);
    const std::vector<int> customers = buyers(problem);
    std::vector<std::size_t> digits(customers.size());
    double least = std::numeric_limits<double>::infinity();
    while (true) {
        std::vector<int> warehouseOf(static_cast<std::size_t>(problem.customerCount) + 1);
        for (std::size_t i = 0; i < customers.size(); ++i)
            warehouseOf[static_cast<std::size_t>(customers[i])] = warehouses[digits[i]];
        least = std::min(least, plainPlan(problem, warehouseOf).total);
        std::size_t i = 0;
        while (i < digits.size() && ++digits[i] == warehouses.size()) digits[i++] = 0;
        if (i == digits.size()) return least;
    }
}

double linearBound(const Case& problem, int points) {
    Linear linear;
    const std::vector<int> plants = selectedPlants(problem);
    const std::vector<int> warehouses = selectedWarehouses(problem);
    const std::vector<int> customers = buyers(problem);
    double sales = 0, smallest = std::numeric_limits<double>::infinity();
    std::vector<int> customerRows, plantRows;
    for (const int c : customers) {
        customerRows.push_back(linear.row(GLP_FX, 1));
        sales += problem.customers(c).sales;
        smallest = std::min(smallest, problem.customers(c).sales);
    }
    for (const int p : plants) plantRows.push_back(linear.row(GLP_UP, problem.plants(p).capacity));
    const double ratio = std::pow(sales / smallest, 1.0 / points);
    for (const int w : warehouses) {
        const int balance = linear.row(GLP_FX, 0);
        for (std::size_t p = 0; p < plants.size(); ++p)
            linear.column(problem.plants(plants[p]).productionCost + problem.plantWarehouseFixed +
                              problem.plantWarehouseVariable * milesFromPlant(problem, plants[p], w),
                          {plantRows[p], balance}, {1, -1});
        for (int k = 0; k < points; ++k) {
            // A chord of the inventory's cost over the throughputs that a warehouse in use can have.
            const double from = smallest * std::pow(ratio, k);
            const double to = from * ratio * (1 + 1E-9);
            const double slope =
                (inventoryCost(problem, w, to) - inventoryCost(problem, w, from)) / (to - from);
            const double fixed = inventoryCost(problem, w, from) - slope * from;
            std::vector<int> openRows;
            for (std::size_t c = 0; c < customers.size(); ++c) {
                const double sold = problem.customers(customers[c]).sales;
                openRows.push_back(linear.row(GLP_UP, 0));
                linear.column(sold * (slope + deliveryCost(problem, w, customers[c])),
                              {customerRows[c], balance, openRows.back()}, {1, sold, 1});
            }
            linear.column(fixed, openRows, std::vector<double>(openRows.size(), -1));
        }
    }
    std::vector<double> values;
    return linear.optimum(values);
}

} // namespace vantore::tests
