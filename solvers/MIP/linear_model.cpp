#include "solvers/MIP/linear_model.h"

#include <CoinFinite.hpp>
#include <algorithm>
#include <cmath>
#include <limits>

namespace vantore::mip {

namespace {

constexpr long mostBits = 20;        // of the coefficients of a row that goes to the libraries as it is
constexpr long multiplierBits = 100; // of the largest multiplier in a proof

long bitsOf(const Integer& value) {
    return value == 0 ? 0 : static_cast<long>(mpz_sizeinbase(value.get_mpz_t(), 2));
}

CoinPackedMatrix matrixOf(const Model& model, const std::vector<long>& powers) {
    std::vector<int> rows, columns;
    std::vector<double> values;
    for (std::size_t i = 0; i < model.rowCount(); ++i)
        for (const Term& term : model.rows[i].terms) {
            rows.push_back(static_cast<int>(i));
            columns.push_back(static_cast<int>(term.column));
            values.push_back(scaledDouble(term.factor, powers[i]));
        }
    CoinPackedMatrix matrix(true, rows.data(), columns.data(), values.data(),
                            static_cast<CoinBigIndex>(values.size()));
    matrix.setDimensions(static_cast<int>(model.rowCount()), static_cast<int>(model.columnCount()));
    return matrix;
}

void addPlaceholders(const Model& model, LinearModel& linear) {
    const int row = static_cast<int>(model.rowCount());
    const int column = static_cast<int>(model.columnCount());
    const double one = 1;
    linear.matrix = CoinPackedMatrix(true, &row, &column, &one, 1);
    for (auto* values :
         {&linear.columnLower, &linear.columnUpper, &linear.objective, &linear.rowLower, &linear.rowUpper})
        values->push_back(0);
}

} // namespace

double scaledDouble(const Integer& value, long power) {
    long exponent = 0;
    const double mantissa = mpz_get_d_2exp(&exponent, value.get_mpz_t());
    constexpr long most = std::numeric_limits<double>::max_exponent;
    return std::ldexp(mantissa, static_cast<int>(std::clamp(exponent + power, -2 * most, most - 1)));
}

double boundOf(const std::optional<Integer>& bound, double none, long power) {
    return bound ? scaledDouble(*bound, power) : none;
}

LinearModel linearModel(const Model& model) {
    LinearModel linear;
    for (const Row& row : model.rows) {
        long bits = 0;
        for (const Term& term : row.terms) bits = std::max(bits, bitsOf(term.factor));
        linear.rowPowers.push_back(std::min(0L, mostBits - bits));
    }
    linear.matrix = matrixOf(model, linear.rowPowers);
    for (std::size_t i = 0; i < model.rowCount(); ++i) {
        linear.rowLower.push_back(boundOf(model.rows[i].range.lower, -COIN_DBL_MAX, linear.rowPowers[i]));
        linear.rowUpper.push_back(boundOf(model.rows[i].range.upper, COIN_DBL_MAX, linear.rowPowers[i]));
    }
    long bits = 0;
    for (const Integer& cost : model.costs) bits = std::max(bits, bitsOf(cost));
    linear.costPower = std::min(0L, mostBits - bits);
    for (const Integer& cost : model.costs) linear.objective.push_back(scaledDouble(cost, linear.costPower));
    for (const Range& range : model.box) {
        linear.columnLower.push_back(boundOf(range.lower, -COIN_DBL_MAX));
        linear.columnUpper.push_back(boundOf(range.upper, COIN_DBL_MAX));
    }
    if (linear.matrix.getNumElements() == 0) addPlaceholders(model, linear);
    return linear;
}

Multipliers multipliersOf(const LinearModel& linear, const double* rows, bool withObjective) {
    long largest = std::numeric_limits<long>::min();
    for (std::size_t i = 0; i < linear.rowPowers.size(); ++i)
        if (rows[i] != 0 && std::isfinite(rows[i]))
            largest = std::max(largest, std::ilogb(rows[i]) + linear.rowPowers[i]);
    // One power of two for all, so that the largest multiplier has this many bits.
    long power = largest == std::numeric_limits<long>::min() ? 0 : multiplierBits - largest;
    if (withObjective) power = std::max(power, -linear.costPower);
    Multipliers result;
    for (std::size_t i = 0; i < linear.rowPowers.size(); ++i) {
        Integer& whole = result.rows.emplace_back();
        if (rows[i] == 0 || !std::isfinite(rows[i])) continue;
        constexpr int doubleBits = std::numeric_limits<double>::digits;
        int exponent = 0;
        whole = std::ldexp(std::frexp(rows[i], &exponent), doubleBits);
        const long shift = exponent - doubleBits + linear.rowPowers[i] + power;
        if (shift >= 0)
            whole <<= static_cast<unsigned long>(shift);
        else
            whole >>= static_cast<unsigned long>(-shift);
    }
    if (withObjective) result.scale = Integer(1) << static_cast<unsigned long>(power + linear.costPower);
    return result;
}

} // namespace vantore::mip
