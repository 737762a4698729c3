#include "requests/BankRequest.h"

#include "calc/Bounds.h"
#include "calc/NumberText.h"
#include "find/Wants.h"
#include "requests/Names.h"
#include "requests/RequestError.h"
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
static void CheckRange(bool isWithin, const std::string& word, const std::string& permitted)
{
    if (!isWithin)
    {
        throw RequestError(RequestErrorKind::Line, "", word + ": Please enter a " + permitted);
    }
}

/// What stands behind a part.
struct PieceWords
{
    std::optional<int> Count;
    std::optional<float> TolerancePercent;
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
        const float percent = ValueInUnit(word.substr(tolerance.size()), Quantity::CapacitanceChange);
        CheckRange(percent >= 0 && percent <= MostTolerance, word,
                   "Number from 0 to " + NumberText(MostTolerance) + " [%]");
        TakeOnce(words.TolerancePercent, percent, word);
    }
    else
    {
        throw RequestError(RequestErrorKind::UnknownValue, "",
                           '"' + word + "\" is neither xN nor tolerance=PERCENT");
    }
}

PieceText PieceOf(std::string_view typed)
{
    const auto words = WordsOf(typed);
    if (words.empty())
    {
        throw RequestError(RequestErrorKind::UnknownValue, "", "a piece has no part number");
    }
    PieceWords said;
    try
    {
        std::for_each(words.begin() + 1, words.end(), [&](const auto& word) { TakeWord(said, word); });
    }
    catch (const RequestError& error)
    {
        throw RequestError(error.Kind(), "", '"' + std::string(typed) + "\": " + error.Message());
    }
    return {.Part = words.front(),
            .Count = said.Count.value_or(1),
            .TolerancePercent = said.TolerancePercent.value_or(0)};
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

static std::optional<float> ValueOf(const BankRequest& request, Condition condition)
{
    const auto& typed = request.Conditions[condition];
    const ConditionKind& kind = KindOf(condition);
    return typed ? std::optional(ValueInUnit(*typed, *kind.Measures, kind.Key)) : std::nullopt;
}

static std::vector<RippleCurrent> RippleOf(const BankRequest& request)
{
    const auto kilohertz = ValueOf(request, Condition::Frequency);
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
        ripple.push_back({.Kilohertz = text.Kilohertz ? *text.Kilohertz : *kilohertz, .Arms = text.Arms});
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
        .At = {.BiasVolts = ValueOf(request, Condition::DCBias).value_or(0),
               .AmbientC = ValueOf(request, Condition::AmbientTemperature).value_or(ReferenceC(request.Code)),
               .HeatResistance = ValueOf(request, Condition::HeatResistance),
               .View = request.Code},
        .Ripple = RippleOf(request)};
    const auto shownForm = static_cast<std::size_t>(request.Code) + settings.NumberingOffset;
    for (const PieceText& piece : request.Pieces)
    {
        question.Pieces.push_back({.Part = &PartNamed(piece.Part, parts, shownForm),
                                   .Count = piece.Count,
                                   .TolerancePercent = piece.TolerancePercent});
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
    return RequestError(RequestErrorKind::Condition, "current", refusal.Message).Of(request.Current);
}

/// In the words of the form where it is a condition that the part does not permit.
static RequestError RefusalOf(const PieceRefusal& refusal, const BankRequest& request,
                              const BankQuestion& question)
{
    const PartRecord& part = *question.Pieces[refusal.Piece].Part;
    const auto& name = request.Pieces[refusal.Piece].Part;
    const auto judged = [&](Condition condition, float value, ConditionRule rule)
    {
        const auto typed = request.Conditions[condition].value_or(NumberText(value));
        const auto words = rule(NumberText(value), part, request.Code, {});
        return words ? std::optional(RequestError(RequestErrorKind::Condition,
                                                  std::string(KindOf(condition).Key), *words)
                                         .Of(typed)
                                         .OfPart(name))
                     : std::nullopt;
    };
    std::optional<RequestError> error;
    if (refusal.Reason == LeftOutReason::BiasTooHigh)
    {
        error = judged(Condition::DCBias, question.At.BiasVolts.High, RefuseDCBias);
    }
    if (refusal.Reason == LeftOutReason::TemperatureOutOfRange)
    {
        for (const ConditionRule rule : {RefuseHeatingAmbient, RefuseClassAmbient})
        {
            error = error ? error : judged(Condition::AmbientTemperature, question.At.AmbientC.High, rule);
        }
    }
    return error
               ? *error
               : RequestError(RequestErrorKind::NoData, "", std::string(TextOf(refusal.Reason))).OfPart(name);
}

RequestedBank BankOf(const BankRequest& request, const PartTable& parts, const CurveSettings& settings)
{
    RequestedBank bank{.Question = QuestionOf(request, parts, settings), .Answer = {}};
    if (const auto refusal = RefuseConditions(bank.Question))
    {
        throw RefusalOf(*refusal, request);
    }
    if (const auto refusal = RefusePieces(bank.Question))
    {
        throw RefusalOf(*refusal, request, bank.Question);
    }
    bank.Answer = BankOf(bank.Question);
    return bank;
}
