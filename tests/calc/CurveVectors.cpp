#include "tests/calc/CurveVectors.h"
#include "files/PartLoading.h"

#include <filesystem>
#include <fstream>
#include <ostream>

static const std::filesystem::path folder = std::filesystem::path(TEST_DATA) / "calc" / "vectors";

static CurveVector VectorOf(std::size_t line, const nlohmann::json& json)
{
    ChartRecord conditions;
    json.at("chartType").get_to(conditions.ChartType);
    json.at("xAxis").get_to(conditions.XAxisName);
    json.at("yAxis").get_to(conditions.YAxisName);
    json.at("partIndex").get_to(conditions.PartDataIndex);
    json.at("dcBias").get_to(conditions.DCBiasVoltage);
    json.at("heatResistance").get_to(conditions.HeatResistance);
    json.at("frequency").get_to(conditions.Frequency);
    json.at("ambientTemp").get_to(conditions.AmbientTemp);
    json.at("parameterName").get_to(conditions.ParameterName);
    json.at("parameterValue").get_to(conditions.ParameterValue);
    return {.Line = line,
            .PartIndex = json.at("partIndex"),
            .PartNum = json.at("partNum"),
            .View = json.at("codeForm") == 0 ? CodeView::Eia : CodeView::Jis,
            .Conditions = std::move(conditions),
            .Expect = json.at("expect")};
}

void PrintTo(const CurveVector& vector, std::ostream* out)
{
    const auto& record = vector.Conditions;
    *out << "line " << vector.Line << ": " << vector.PartNum << ", chart type " << record.ChartType << ", "
         << record.XAxisName << ", " << record.YAxisName << ", " << record.ParameterName << " "
         << record.ParameterValue << ", view " << static_cast<int>(vector.View);
}

const PartTable& VectorParts()
{
    static const PartTable table = ReadPartPair(folder / "vectors.idx", folder / "vectors.dat");
    return table;
}

std::vector<CurveVector> ReadCurveVectors()
{
    std::vector<CurveVector> vectors;
    std::ifstream file(folder / "curves.jsonl");
    std::string line;
    while (std::getline(file, line))
    {
        vectors.push_back(VectorOf(vectors.size() + 1, nlohmann::json::parse(line)));
    }
    return vectors;
}
