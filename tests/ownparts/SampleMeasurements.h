#pragma once

/// Measurements as somebody would make them on a part of the sample range.

#include "ownparts/MeasuredPart.h"
#include "partdata/PartTable.h"

#include <cstdint>

/// The sample range.
const PartTable& SampleRange();

const PartRecord& SamplePart(std::string_view partNum);

/// What a rig reads: the true value with noise of normal distribution.
struct Rig
{
    std::uint64_t Seed = 1;
    /// Relative, and for rises in °C besides.
    double Noise = 0;
    double RiseNoiseC = 0;
    int Biases = 11;
    int Temperatures = 10;
    /// A second sweep over temperature at rated voltage.
    int TemperaturesAtRated = 0;
    /// How far the sweeps go: shares of the rated voltage and of the range of temperatures about 25 °C.
    double TopBias = 1;
    double TemperatureShare = 1;
    std::vector<double> Hertz = {1e5, 3e5, 1e6};
    std::vector<double> Ambients = {25};
};

/// The part as measured, under the name OWN.
MeasuredPart MeasuredOn(const PartRecord& part, const Rig& rig);
