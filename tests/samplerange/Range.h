#pragma once

/// The range as the program reads it, and its curves as the program plots them.

#include "calc/ChartRecord.h"
#include "partdata/Characteristic.h"
#include "partdata/PartTable.h"

#include <string>
#include <string_view>
#include <vector>

/// The checked-in part files.
const PartTable& Range();

/// A file of the folder of the range, byte for byte.
std::string ReadRangeFile(std::string_view name);

/// The parts offered for capacitance charts, and for temperature rise and allowable power.
std::vector<const PartRecord*> PartsWithCapacitance();
std::vector<const PartRecord*> PartsWithPower();

/// The part of a case size, characteristic, capacitance in pF and rated voltage; the test fails without.
const PartRecord& PartOf(std::string_view size, std::string_view tcc, float picofarads, float volts);

/// True for parts that follow the peaked model.
bool IsPeaked(const PartRecord& part);

/// A share of the rated voltage that the program accepts as bias.
float BiasOf(const PartRecord& part, float share);

/// The temperatures between which a part's characteristic is judged.
TemperatureRange OperatingRange(const PartRecord& part);

/// Capacitance over temperature or over bias; `yAxis` is "Capacitance" or "Capacitance Change".
ChartRecord OverTemperature(const PartRecord& part, std::string_view yAxis, float biasVolts,
                            CodeView view = CodeView::Eia);
ChartRecord OverBias(const PartRecord& part, std::string_view yAxis, float ambientC,
                     CodeView view = CodeView::Eia);

/// B(V) in percent, added up term by term from `Data(3)` to `Data(8)`.
double BiasPolynomial(const PartRecord& part, double volts);
