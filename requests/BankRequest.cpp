#include "requests/BankRequest.h"

#include "calc/Bounds.h"
#include "calc/NumberText.h"
#include "find/Wants.h"
#include "requests/Names.h"
#include "requests/RangeEntry.h"
#include "requests/RequestError.h"
#include "requests/ToleranceEntry.h"
#include "requests/UnitEntry.h"
#include "simulation/BankRules.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <sstream>

static std::vector<std::string> WordsOf(std::string_view text)
{
    std::istringstream stream{std::string(text)};
    return {std::istream_iterator<std::string>(stream), {}};
}

// ---- Pieces ----

/// The N of "xN", as large as it may be at most for a larger one; nothing for another word.
static std::optional<int> CountOf(std::string_view word)
{
    if (word.empty() || LowerCase(word.front()) != 'x')
    {
        return std::nullopt;
    }
    const char* const end = word.data() + word.size();
    int count = MostInParallel + 1;
    const auto read = std::from_chars(word.data() + 1, end, count);
    return read.ec != std::errc::invalid_argument && read.ptr == end ? std::optional(count) : std::nullopt;
}

/// Throws RequestError for a value of the word that is out of its range.
static void CheckRange(bool isWithin, std::string_view word, const std::string& permitted)
{
    if (!isWithin)
    {
        throw RequestError(RequestErrorKind::Line, "", std::string(word) + ": Please enter a " + permitted);
    }
}

/// Throws RequestError for a tolerance that is not permitted.
static CapacitanceTolerance ReadTolerance(std::string_view typed, std::string_view word)
{
    const auto tolerance = ToleranceOf(typed, "");
    const auto down = NumberText(MostToleranceDown);
    const bool isEven = tolerance.Down == tolerance.Up;
    CheckRange(IsPermitted(tolerance), word,
               isEven ? "Number from 0 to " + down + " [%]"
                      : "Number from 0 to " + down + " [%] down and from 0 to " +
                            NumberText(MostToleranceUp) + " [%] up");
    return tolerance;
}

/// What stands behind a part.
struct PieceWords
{
    std::optional<int> Count;
    std::optional<CapacitanceTolerance> Tolerance;
};

/// Throws RequestError for a word where an earlier one says the same.
template <class Value> static void TakeOnce(std::optional<Value>& taken, Value value, const std::string& word)
{
    if (taken)
    {
        throw RequestError(RequestErrorKind::Syntax, "", '"' + word + "\" is one too many");
    }
    taken = value;
}

static void TakeWord(PieceWords& words, const std::string& word)
{
    constexpr std::string_view tolerance = "tolerance=";
    if (const auto count = CountOf(word))
    {
        CheckRange(*count >= 1 && *count <= MostInParallel, word,
                   "whole Number from 1 to " + std::to_string(MostInParallel));
        TakeOnce(words.Count, *count, word);
    }
    else if (std::ranges::equal(word.substr(0, tolerance.size()), tolerance, {}, LowerCase))
    {
        TakeOnce(words.Tolerance, ReadTolerance(word.substr(tolerance.size()), word), word);
    }
    else
    {
        throw RequestError(RequestErrorKind::UnknownValue, "",
                           '"' + word +
                               "\" is neither xN nor tolerance=PERCENT; a part number with blanks stands in "
                               "quotes");
    }
}

/// A part number, and what stands behind it.
struct NamedPiece
{
    std::string Part;
    std::string_view Rest;
};

/// A quote stands for itself where it does not begin the text.
static NamedPiece SplitBehindPart(std::string_view typed)
{
    constexpr std::string_view blanks = " \t\r\n";
    typed.remove_prefix(std::min(typed.find_first_not_of(blanks), typed.size()));
    const bool isQuoted = typed.starts_with('"') || typed.starts_with('\'');
    if (!isQuoted)
    {
        const auto end = std::min(typed.find_first_of(blanks), typed.size());
        return {std::string(typed.substr(0, end)), typed.substr(end)};
    }
    const auto end = typed.find(typed.front(), 1);
    if (end == std::string_view::npos)
    {
        throw RequestError(RequestErrorKind::Syntax, "", std::string(typed) + ": the quote does not end");
    }
    return {std::string(typed.substr(1, end - 1)), typed.substr(end + 1)};
}

PieceText PieceOf(std::string_view typed)
{
    const auto piece = SplitBehindPart(typed);
    if (piece.Part.empty())
    {
        throw RequestError(RequestErrorKind::UnknownValue, "", "a piece has no part number");
    }
    PieceWords said;
    try
    {
        std::ranges::for_each(WordsOf(piece.Rest), [&](const auto& word) { TakeWord(said, word); });
    }
    catch (const RequestError& error)
    {
        throw RequestError(error.Kind(), "", '"' + std::string(typed) + "\": " + error.Message());
    }
    return {.Part = piece.Part, .Count = said.Count.value_or(1), .Tolerance = said.Tolerance};
}

// ---- Ripple currents ----

/// "300kHz=4", or a current alone where it is the only word.
static RippleText RippleOfWord(const std::string& word, bool isOnly)
{
    const auto equals = word.find('=');
    if (equals == std::string::npos && !isOnly)
    {
        throw RequestError(RequestErrorKind::Syntax, "current", '"' + word + "\" is not FREQUENCY=CURRENT");
    }
    if (equals == std::string::npos)
    {
        return {.Kilohertz = {}, .Arms = ValueInUnit(word, Quantity::Current, "current")};
    }
    return {.Kilohertz = ValueInUnit(word.substr(0, equals), Quantity::Frequency, "current"),
            .Arms = ValueInUnit(word.substr(equals + 1), Quantity::Current, "current")};
}

std::vector<RippleText> RippleOf(std::string_view typed)
{
    const auto words = WordsOf(typed);
    if (words.empty())
    {
        throw RequestError(RequestErrorKind::NotANumber, "current", "\"\" is not a number");
    }
    std::vector<RippleText> ripple;
    // A blank may stand before a unit.
    const bool isOne = typed.find('=') == std::string_view::npos;
    for (const auto& word : isOne ? std::vector{std::string(typed)} : words)
    {
        const auto added = RippleOfWord(word, isOne);
        if (std::ranges::find(ripple, added.Kilohertz, &RippleText::Kilohertz) != ripple.end())
        {
            throw RequestError(RequestErrorKind::Syntax, "current",
                               '"' + std::string(typed) + "\" names a frequency twice");
        }
        ripple.push_back(added);
    }
    return ripple;
}

// ---- The question ----

static std::optional<ConditionRange> RangeOf(const BankRequest& request, Condition condition)
{
    const auto& typed = request.Conditions[condition];
    const ConditionKind& kind = KindOf(condition);
    return typed ? std::optional(ConditionRangeOf(*typed, *kind.Measures, kind.Key)) : std::nullopt;
}

static std::optional<float> HeatResistanceOf(const BankRequest& request)
{
    const auto& typed = request.Conditions[Condition::HeatResistance];
    const ConditionKind& kind = KindOf(Condition::HeatResistance);
    return typed ? std::optional(ValueInUnit(*typed, *kind.Measures, kind.Key)) : std::nullopt;
}

static std::vector<RippleCurrent> RippleOf(const BankRequest& request)
{
    const auto kilohertz = RangeOf(request, Condition::Frequency);
    std::vector<RippleCurrent> ripple;
    for (const RippleText& text : RippleOf(request.Current))
    {
        if (text.Kilohertz && kilohertz)
        {
            throw RequestError(RequestErrorKind::Syntax, std::string(KindOf(Condition::Frequency).Key),
                               "stands beside the frequencies of currents: leave it out");
        }
        if (!text.Kilohertz && !kilohertz)
        {
            throw RequestError(RequestErrorKind::Condition, std::string(KindOf(Condition::Frequency).Key),
                               RefuseFrequency("", {}, request.Code, {}).value_or(""));
        }
        ripple.push_back(
            {.Kilohertz = text.Kilohertz ? ConditionRange(*text.Kilohertz) : *kilohertz, .Arms = text.Arms});
    }
    return ripple;
}

/// Throws RequestError with the part where there is none.
static const PartRecord& PartNamed(const std::string& name, const PartTable& parts, std::size_t shownForm)
{
    try
    {
        return parts.PartData[FindPart(parts, name, shownForm)];
    }
    catch (const RequestError& error)
    {
        throw error.OfPart(name);
    }
}

static BankQuestion QuestionOf(const BankRequest& request, const PartTable& parts,
                               const CurveSettings& settings)
{
    BankQuestion question{
        .Pieces = {},
        .At = {.BiasVolts = RangeOf(request, Condition::DCBias).value_or(0),
               .AmbientC = RangeOf(request, Condition::AmbientTemperature).value_or(ReferenceC(request.Code)),
               .HeatResistance = HeatResistanceOf(request),
               .View = request.Code},
        .Ripple = RippleOf(request)};
    question.At.Kilohertz = question.Ripple.front().Kilohertz;
    question.At.Tolerance = request.Tolerance ? ToleranceOf(*request.Tolerance) : CapacitanceTolerance();
    const auto shownForm = static_cast<std::size_t>(request.Code) + settings.NumberingOffset;
    for (const PieceText& piece : request.Pieces)
    {
        question.Pieces.push_back({.Part = &PartNamed(piece.Part, parts, shownForm),
                                   .Count = piece.Count,
                                   .Tolerance = piece.Tolerance.value_or(question.At.Tolerance)});
    }
    return question;
}

// ---- Refusals ----

/// With what was typed for the key of a rule; loads and their frequencies may be typed together.
static RequestError RefusalOf(const QuestionRefusal& refusal, const BankRequest& request)
{
    for (const ConditionKind& kind : ConditionKinds())
    {
        const auto& typed = request.Conditions[kind.Id];
        if (kind.Key == refusal.Key && kind.Measures && typed)
        {
            return RequestError(RequestErrorKind::Condition, std::string(kind.Key), refusal.Message)
                .Of(*typed);
        }
    }
    const bool isTolerance = request.Tolerance && refusal.Key == "tolerance";
    return RequestError(RequestErrorKind::Condition, isTolerance ? "tolerance" : "current", refusal.Message)
        .Of(isTolerance ? *request.Tolerance : request.Current);
}

/// In the words of the form where it is a condition that the part does not permit.
static RequestError RefusalOf(const PieceRefusal& refusal, const BankRequest& request,
                              const BankQuestion& question)
{
    const PartRecord& part = *question.Pieces[refusal.Piece].Part;
    const auto& name = request.Pieces[refusal.Piece].Part;
    std::optional<RequestError> error;
    const auto judge = [&](Condition condition, const ConditionRange& range, ConditionRule rule)
    {
        const auto typed = request.Conditions[condition].value_or(NumberText(range.High));
        for (const float end : {range.High, range.Low})
        {
            const auto words = error ? std::nullopt : rule(NumberText(end), part, request.Code, {});
            if (words)
            {
                error = RequestError(RequestErrorKind::Condition, std::string(KindOf(condition).Key), *words)
                            .Of(typed)
                            .OfPart(name);
            }
        }
    };
    if (refusal.Reason == LeftOutReason::BiasTooHigh)
    {
        judge(Condition::DCBias, question.At.BiasVolts, RefuseDCBias);
    }
    if (refusal.Reason == LeftOutReason::TemperatureOutOfRange)
    {
        // Where a range reaches below the heating data, that is no reason to refuse it.
        const auto heatingC = question.At.HeatingAmbientC();
        const bool reachesBelow = heatingC != question.At.AmbientC;
        judge(Condition::AmbientTemperature, question.At.AmbientC,
              reachesBelow ? RefuseClassAmbient : RefuseHeatingAmbient);
        judge(Condition::AmbientTemperature, heatingC,
              reachesBelow ? RefuseHeatingAmbient : RefuseClassAmbient);
    }
    return error
               ? *error
               : RequestError(RequestErrorKind::NoData, "", std::string(TextOf(refusal.Reason))).OfPart(name);
}

RequestedBank BankOf(const BankRequest& request, const PartTable& parts, const CurveSettings& settings)
{
    RequestedBank bank{.Question = QuestionOf(request, parts, settings), .Answer = {}, .Warnings = {}};
    if (const auto refusal = RefuseConditions(bank.Question))
    {
        throw RefusalOf(*refusal, request);
    }
    if (const auto refusal = RefusePieces(bank.Question))
    {
        throw RefusalOf(*refusal, request, bank.Question);
    }
    bank.Answer = BankOf(bank.Question);
    bank.Warnings = WarningsOf(bank.Question, bank.Answer);
    return bank;
}
