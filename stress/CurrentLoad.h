#pragma once

/// A current as a load on capacitors, whatever the part: read off a record, or a converter's.

#include "stress/Converters.h"
#include "stress/Envelope.h"
#include "stress/RippleVoltage.h"
#include "stress/Spectrum.h"
#include "stress/Stretch.h"

#include <optional>
#include <string>
#include <vector>

/// Where a load of a record comes from.
struct RecordedLoad
{
    Stretch Counted;
    /// Rows of the record in the stretch.
    std::size_t Points;
    /// What is left of the moments without every second row.
    LoadMoments Thinned;
    /// The whole record, beyond what was looked at as well.
    Envelope Course = {};

    /// By which share what heats changes without every second row, whatever the part.
    double StepErrorOf(const LoadMoments& all) const;
    double PointsPerPeriod() const
    {
        return static_cast<double>(Points) / static_cast<double>(Counted.Periods);
    }
};

/// What a stretch of a current is as a load.
struct CurrentLoad
{
    StretchFigures Figures;
    Spectrum Lines;
    /// One period, the mean left out.
    std::vector<ChargePoint> Period;
    /// In s; of `Period`.
    double PeriodLength;
    /// The same period as it is, with its mean; the last one of a record.
    Envelope Shape = {};
    /// Nothing for a converter's.
    std::optional<RecordedLoad> Record = {};

    /// In Arms, without the mean.
    double Arms() const;
    /// The largest distance from the mean, in A.
    double Peak() const;
    /// The line that carries most.
    SpectralLine MainLine() const;
};

/// The load of a record. Throws WaveformError as `StretchOf`.
CurrentLoad LoadOfRecord(const Waveform& current, const StretchWishes& wishes);

/// The load of one side of a converter that is not refused.
CurrentLoad LoadOfConverter(const Converter& converter, ConverterSide side);
