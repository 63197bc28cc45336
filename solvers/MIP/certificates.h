#pragma once

#include "solvers/MIP/model.h"
#include "solvers/MIP/point.h"

namespace vantore::mip {

/// What a proof is made of: numbers that show in exact arithmetic what they prove, wherever they come from.

/// Whole multipliers of the rows over a common scale. With scale 0 the objective is left out.
struct Multipliers {
    std::vector<Integer> rows;
    Integer scale;
};

/// A bound on the cost of all that is in a box, and the costs that are left over on the variables, both times
/// the multipliers' scale.
struct SafeBound {
    Integer cost;
    std::vector<Integer> reducedCosts;
};

/// No solution of the rows within the box costs less than this, whatever the multipliers; nothing where they
/// show no bound. A multiplier whose sign doesn't go with its row counts as 0.
/// Source: Neumaier and Shcherbina, "Safe bounds in linear and mixed-integer programming" (2004).
std::optional<SafeBound> safeBound(const Model& model, const Box& box, const Multipliers& multipliers);

/// True when the sum of the rows under these multipliers can't be satisfied within the box.
/// Source: Farkas, "Theorie der einfachen Ungleichungen" (1902).
bool contradict(const Model& model, const Box& box, std::vector<Integer> multipliers);

/// True when the point keeps every row and bound of the model; whether its integers are whole is another
/// matter.
bool keepsAll(const Model& model, const ExactPoint& point);

/// True when every row and bound of the model allows to go on in this direction for ever, and the cost falls
/// all the way.
bool fallsForEver(const Model& model, const std::vector<Integer>& direction);

} // namespace vantore::mip
