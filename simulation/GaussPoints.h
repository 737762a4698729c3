#pragma once

/// Where the charge of the peaked law is added up.

#include <array>

/// A place between 0 and 1, and what the value there counts.
struct GaussPoint
{
    double Place;
    double Weight;
};

/// The ten points of Gauss and Legendre, x and w on 0 to 1, as places x² of weights 2·w·x: they crowd at 0,
/// where the law has its one rough place. The weights add up to 1. Fifteen digits are what a model tells of
/// them.
inline constexpr std::array<GaussPoint, 10> GaussPoints = {{
    {.Place = 0.974076745830678, .Weight = 0.0658015008979674},
    {.Place = 0.869615340441313, .Weight = 0.139368118201496},
    {.Place = 0.705104124523579, .Weight = 0.183967866746585},
    {.Place = 0.513655588977735, .Weight = 0.192982837625621},
    {.Place = 0.32997806169262, .Weight = 0.16976009916111},
    {.Place = 0.181103722710989, .Weight = 0.125764125553643},
    {.Place = 0.0802601948484878, .Weight = 0.0762838816843755},
    {.Place = 0.0256945562245545, .Weight = 0.0351184957693976},
    {.Place = 0.00455197375232786, .Weight = 0.0100832309490842},
    {.Place = 0.000170217313506294, .Weight = 0.000869843410720287},
}};
