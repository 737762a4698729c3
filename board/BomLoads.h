#pragma once

/// Currents of a board that are not sines: what records and converters in its cells are as loads.

#include "stress/CurrentLoad.h"
#include "stress/WaveformTable.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

/// The rows of a waveform that a cell names, as "FILE"; throws what tells why there are none.
using WaveformSource = std::function<WaveformTable(const std::string& name, bool isOfConditions)>;

/// Works out each load once, however many parts bear it. The source must outlive it.
class BomLoads
{
public:
    using Load = std::shared_ptr<const CurrentLoad>;

    explicit BomLoads(const WaveformSource& source)
        : waveforms(source)
    {
    }

    /// The load of "buck vin=12 vout=3.3 iout=5 f=500kHz l=2.2uH side=input". Throws RequestError.
    Load OfConverter(const std::string& text);

    /// The load of "FILE" or "FILE:COLUMN". Throws std::runtime_error, RequestError among them.
    Load OfWaveform(const std::string& text, bool isOfConditions);

private:
    using Key = std::pair<std::string, bool>;

    const WaveformSource& waveforms;
    std::map<std::string, Load> byConverter;
    std::map<Key, Load> byWaveform;
};
