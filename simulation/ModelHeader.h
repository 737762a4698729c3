#pragma once

/// The comment that a model begins with: what it is of, how it is used, what it holds and what it does not.

#include "partdata/PartRecord.h"
#include "simulation/LossData.h"

#include <string>

/// What is told of a part.
struct ModelFacts
{
    const PartRecord& Part;
    /// Which of the part numbers is on display.
    std::size_t Form;
    std::string Name;
    LossData Loss;
    /// As `CheckModel` gives it.
    double Deviation;
};

/// The lines of the comment, in ASCII.
std::string ModelHeader(const ModelFacts& model);

/// " PARAMS: TDEG=25 FESR=100K TOL=0 LEAK=100": the parameters with what they are where nothing is said.
std::string ModelParameters();
