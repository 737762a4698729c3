#pragma once

/// Polynomials as expressions of a netlist. They need no power operator, which simulators write differently.

#include "partdata/ValueNames.h"
#include "simulation/ModelNumbers.h"

#include <string>
#include <string_view>
#include <vector>

/// The texts of a group of coefficients, which parts hold from the highest power down, from the lowest power
/// up.
std::vector<std::string> CoefficientTexts(const ModelNumbers& numbers, ValueGroup group);

/// "a+X*(b+X*(c))" of the coefficients from the lowest power up, at least one, in the variable X.
std::string HornerText(const std::vector<std::string>& coefficients, std::string_view variable);

/// The polynomial of a group of coefficients.
std::string HornerText(const ModelNumbers& numbers, ValueGroup group, std::string_view variable);

/// The mean over 0 to X of X times the polynomial of the group, over X: "f/2+X*(e/3+X*(...))".
std::string MeanHornerText(const ModelNumbers& numbers, ValueGroup group, std::string_view variable);
