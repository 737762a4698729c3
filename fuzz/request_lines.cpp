/// A stream of curve requests: one answer a line, a curve of finite numbers or an error that says why.

#include "cli/RequestStream.h"
#include "files/PartLoading.h"
#include "fuzz/Allocations.h"
#include "fuzz/Require.h"
#include "fuzz/StandardStreams.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdint>
#include <sstream>

using nlohmann::json;

static const PartTable& Parts()
{
    static const PartTable table =
        ReadPartPair(TEST_DATA "/calc/vectors/vectors.idx", TEST_DATA "/calc/vectors/vectors.dat");
    return table;
}

static void RequireError(const json& error)
{
    const auto number = error.at("number").get<int>();
    Require(number == 5 || number == 6 || number == 11, "an error is a refusal or one of a calculation");
    Require(!error.at("message").get<std::string>().empty(), "an error says why");
    Require(!error.at("code").get<std::string>().empty(), "an error has a code");
    Require(!error.contains("limit") || std::isfinite(error.at("limit").get<double>()), "a limit is finite");
}

/// JSON knows no number that is not finite.
static void RequireCurve(const json& curve)
{
    const bool hasOwnPoints = curve.contains("points") || curve.contains("crossings");
    for (const char* axis : {"x", "y"})
    {
        Require(curve.contains(axis) != hasOwnPoints, "a curve has its points or those asked for");
        Require(hasOwnPoints || curve.at(axis).size() == CurvePoints, "a curve has 200 points");
    }
    Require(curve.at("conditions").size() == curve.at("conditionUnits").size(), "a condition has its unit");
}

/// Whether the answer is an error.
static bool RequireAnswer(const std::string& line)
{
    Require(json::accept(line), "an answer is JSON of one line");
    const auto answer = json::parse(line);
    Require(answer.at("schemaVersion") == 1, "an answer tells its version");
    if (answer.contains("error"))
    {
        RequireError(answer.at("error"));
        return true;
    }
    RequireCurve(answer);
    return false;
}

static std::size_t CountRequests(const std::string& lines)
{
    std::istringstream text(lines);
    std::size_t count = 0;
    for (std::string line; std::getline(text, line);)
    {
        ++count;
    }
    return count;
}

/// The bits of the first character are the options: conditions that are not judged, the former numbering and
/// the JIS code. The requests stand behind it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    const unsigned options = data[0];
    const std::string lines(reinterpret_cast<const char*>(data) + 1, size - 1);
    const CurveSettings settings{.Unchecked = (options & 1U) != 0,
                                 .NumberingOffset = (options & 2U) != 0 ? 2U : 0U};
    CurveRequest defaults;
    defaults.Code = (options & 4U) != 0 ? CodeView::Jis : CodeView::Eia;
    const auto& parts = Parts();

    RequestCounts counts;
    std::string answers;
    {
        const StandardStreams streams(lines);
        ForgetAllocations();
        Output output("-");
        counts = AnswerRequests("-", defaults, parts, settings, output);
        output.Finish();
        Require(LargestAllocation() <= 65536 + 64 * size, "memory is in proportion to the requests");
        answers = streams.Output();
        Require(streams.Messages().empty(), "an answer is no message");
    }
    std::size_t answered = 0;
    std::size_t withoutCurve = 0;
    std::istringstream text(answers);
    for (std::string line; std::getline(text, line); ++answered)
    {
        withoutCurve += RequireAnswer(line) ? 1 : 0;
    }
    Require(answered == counts.Requests && answered == CountRequests(lines), "each line has one answer");
    Require(withoutCurve == counts.WithoutCurve, "what has no curve is counted");
    return 0;
}
