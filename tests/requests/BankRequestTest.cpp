#include "requests/BankRequest.h"

#include "files/PartLoading.h"
#include "requests/BankFormats.h"
#include "requests/RequestError.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace
{
const PartTable& Parts()
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    return parts;
}

/// The refusal of a call, or nothing.
template <class Call> std::optional<RequestError> RefusalOf(const Call& call)
{
    try
    {
        call();
    }
    catch (const RequestError& error)
    {
        return error;
    }
    return std::nullopt;
}

// ---- What is typed ----

TEST(Piece, IsAPartWithItsCountAndTolerance)
{
    const auto plain = PieceOf("ABC");
    EXPECT_EQ(plain.Part, "ABC");
    EXPECT_EQ(plain.Count, 1);
    EXPECT_EQ(plain.Tolerance, std::nullopt);
    for (const char* typed : {"ABC x12 tolerance=2.5", "  ABC  TOLERANCE=2.5%  X12 "})
    {
        const auto piece = PieceOf(typed);
        EXPECT_EQ(piece.Part, "ABC");
        EXPECT_EQ(piece.Count, 12);
        EXPECT_EQ(piece.Tolerance, (CapacitanceTolerance{2.5F, 2.5F}));
    }
    EXPECT_EQ(PieceOf("ABC x100 tolerance=99").Count, 100);
}

TEST(Piece, MayBearItsPartNumberInQuotes)
{
    for (const char* typed : {"\"MY PART 1\" x2", " 'MY PART 1'  x2 "})
    {
        EXPECT_EQ(PieceOf(typed).Part, "MY PART 1") << typed;
        EXPECT_EQ(PieceOf(typed).Count, 2) << typed;
    }
    EXPECT_EQ(PieceOf("'ABC'").Part, "ABC");
    EXPECT_EQ(PieceOf("\"x2\"x3").Count, 3) << "a blank behind a quote may be left out";
    EXPECT_EQ(PieceOf("AB'C").Part, "AB'C") << "a quote inside stands for itself";
    EXPECT_EQ(RefusalOf([] { PieceOf("'MY PART"); })->Message(), "'MY PART: the quote does not end");
    EXPECT_EQ(RefusalOf([] { PieceOf("''"); })->Kind(), RequestErrorKind::UnknownValue);
    EXPECT_NE(RefusalOf([] { PieceOf("MY PART"); })->Message().find("stands in quotes"), std::string::npos);
}

TEST(Piece, MayHaveAToleranceOfUnlikeEnds)
{
    EXPECT_EQ(PieceOf("ABC tolerance=-20/+80").Tolerance, (CapacitanceTolerance{20, 80}));
    EXPECT_EQ(RefusalOf([] { PieceOf("ABC tolerance=-100/+80"); })->Kind(), RequestErrorKind::Line);
    EXPECT_EQ(PieceOf("ABC tolerance=-99/+999").Tolerance, (CapacitanceTolerance{99, 999}));
}

TEST(Piece, IsRefusedWithTheWordThatIsWrong)
{
    const auto kindOf = [](const char* typed)
    {
        const auto refusal = RefusalOf([&] { PieceOf(typed); });
        return refusal ? std::optional(refusal->Kind()) : std::nullopt;
    };
    for (const char* typed : {"", " ", "ABC x", "ABC xa", "ABC x2a", "ABC 2", "ABC x2.5", "ABC tolerance"})
    {
        EXPECT_EQ(kindOf(typed), RequestErrorKind::UnknownValue) << typed;
    }
    EXPECT_EQ(kindOf("ABC tolerance="), RequestErrorKind::NotANumber);
    EXPECT_EQ(kindOf("ABC tolerance=1V"), RequestErrorKind::Unit);
    for (const char* typed : {"ABC x2 x3", "ABC x2 x2", "ABC tolerance=5 x2 tolerance=6"})
    {
        EXPECT_EQ(kindOf(typed), RequestErrorKind::Syntax) << typed;
    }
    for (const char* typed : {"ABC x0", "ABC x-1", "ABC x101", "ABC x99999999999999", "ABC tolerance=-1",
                              "ABC tolerance=99.1", "ABC tolerance=1E99"})
    {
        EXPECT_EQ(kindOf(typed), RequestErrorKind::Line) << typed;
    }
    EXPECT_EQ(RefusalOf([] { PieceOf("ABC x0"); })->Message(),
              "\"ABC x0\": x0: Please enter a whole Number from 1 to 100");
}

TEST(Ripple, IsACurrentOrOneForEachFrequency)
{
    const auto one = RippleOf("4 Arms");
    ASSERT_EQ(one.size(), 1U);
    EXPECT_FALSE(one[0].Kilohertz);
    EXPECT_EQ(one[0].Arms, 4);
    const auto two = RippleOf(" 600kHz=1.2A  300=4");
    ASSERT_EQ(two.size(), 2U);
    EXPECT_EQ(two[0].Kilohertz, 600);
    EXPECT_EQ(two[0].Arms, 1.2F);
    EXPECT_EQ(two[1].Kilohertz, 300);
    EXPECT_EQ(two[1].Arms, 4);
}

TEST(Ripple, IsAWrongEntryOtherwise)
{
    for (const char* typed : {"", "A", "4V", "300kHz=4 5", "300kHz=", "=4", "300V=4", "300kHz=4 0.3MHz=1"})
    {
        const auto refusal = RefusalOf([&] { RippleOf(typed); });
        ASSERT_TRUE(refusal) << typed;
        EXPECT_TRUE(IsMistaken(refusal->Kind())) << typed;
        EXPECT_EQ(refusal->Key(), "current") << typed;
    }
}

// ---- What is answered ----

BankRequest ThreeKinds()
{
    return {.Pieces = {PieceOf("kts31nr71a226ka01 x2 tolerance=10"),
                       PieceOf("KTS31NB51A476MA01 tolerance=20"), PieceOf("KTS188R71H104KA01 tolerance=10")},
            .Conditions = {{Condition::DCBias, "5V"},
                           {Condition::AmbientTemperature, "45C"},
                           {Condition::Frequency, "300kHz"}},
            .Current = "6Arms"};
}

nlohmann::json JsonOf(const BankRequest& request)
{
    return nlohmann::json::parse(
        FormatNamed(BankFormats(), "json").Write(BankOf(request, Parts(), {}), CurveSettings{}));
}

TEST(BankOfRequest, IsTheBankOfItsWords)
{
    const auto bank = BankOf(ThreeKinds(), Parts(), {});
    ASSERT_EQ(bank.Answer.Pieces.size(), 3U);
    EXPECT_NEAR(bank.Answer.Pieces[0].Arms, 1.712086173, 1e-8);
    EXPECT_NEAR(bank.Answer.Vrms, 0.06511584747, 1e-9);
    EXPECT_EQ(bank.Question.Pieces[0].Count, 2);
    EXPECT_EQ(bank.Question.At.AmbientC, 45.0F);
}

TEST(BankOfRequest, HasTheConditionsThatFindHasWhereTheyAreLeftOut)
{
    BankRequest request{.Pieces = {PieceOf("KTS188R71H104KA01")}, .Current = "100kHz=0"};
    EXPECT_EQ(BankOf(request, Parts(), {}).Question.At.AmbientC, 25.0F);
    request.Code = CodeView::Jis;
    const auto bank = BankOf(request, Parts(), {});
    EXPECT_EQ(bank.Question.At.AmbientC, 20.0F);
    EXPECT_EQ(bank.Question.At.BiasVolts, 0.0F);
    EXPECT_FALSE(bank.Question.At.HeatResistance);
}

struct Refused
{
    const char* Name;
    Condition Which;
    const char* Typed;
    RequestErrorKind Kind;
    const char* Key;
    const char* Part;
};

TEST(BankOfRequest, IsRefusedInTheWordsOfTheForm)
{
    const std::vector<Refused> rows = {
        {"below any bias", Condition::DCBias, "-1", RequestErrorKind::Condition, "dcBias", ""},
        {"above one part's", Condition::DCBias, "10.5", RequestErrorKind::Condition, "dcBias",
         "kts31nr71a226ka01"},
        {"too hot for one", Condition::AmbientTemperature, "90", RequestErrorKind::Condition, "ambient",
         "KTS31NB51A476MA01"},
        {"as hot as one may be", Condition::AmbientTemperature, "85", RequestErrorKind::NoData, "",
         "KTS31NB51A476MA01"},
        {"too cold", Condition::AmbientTemperature, "19", RequestErrorKind::Condition, "ambient",
         "kts31nr71a226ka01"},
        {"beyond all frequencies", Condition::Frequency, "2MHz", RequestErrorKind::Condition, "frequency",
         ""},
        {"no heat resistance", Condition::HeatResistance, "0", RequestErrorKind::Condition, "heatResistance",
         ""},
        {"another unit", Condition::DCBias, "5A", RequestErrorKind::Unit, "dcBias", ""},
    };
    for (const Refused& row : rows)
    {
        SCOPED_TRACE(row.Name);
        auto request = ThreeKinds();
        request.Conditions[row.Which] = row.Typed;
        const auto refusal = RefusalOf([&] { BankOf(request, Parts(), {}); });
        ASSERT_TRUE(refusal);
        EXPECT_EQ(refusal->Kind(), row.Kind);
        EXPECT_EQ(refusal->Key(), row.Key);
        EXPECT_EQ(refusal->Part(), row.Part);
    }
}

TEST(BankOfRequest, WantsOneFrequencyForEachCurrent)
{
    auto request = ThreeKinds();
    request.Current = "300kHz=6";
    EXPECT_EQ(RefusalOf([&] { BankOf(request, Parts(), {}); })->Kind(), RequestErrorKind::Syntax);
    request.Conditions[Condition::Frequency].reset();
    EXPECT_FALSE(RefusalOf([&] { BankOf(request, Parts(), {}); }));
    request.Current = "2MHz=6";
    EXPECT_EQ(RefusalOf([&] { BankOf(request, Parts(), {}); })->Key(), "current");
    request.Current = "6";
    const auto missing = RefusalOf([&] { BankOf(request, Parts(), {}); });
    EXPECT_EQ(missing->Key(), "frequency");
    EXPECT_EQ(CodeOf(*missing), "missing-key");
}

TEST(BankOfRequest, NamesAPartThatIsUnknownOrHasNoData)
{
    auto request = ThreeKinds();
    request.Pieces[1].Part = "KTS";
    EXPECT_EQ(RefusalOf([&] { BankOf(request, Parts(), {}); })->Part(), "KTS");
    request.Pieces[1].Part = "KTU033R71E101KA01";
    const auto refusal = RefusalOf([&] { BankOf(request, Parts(), {}); });
    EXPECT_EQ(refusal->Part(), "KTU033R71E101KA01");
    EXPECT_EQ(refusal->Message(), "no heating data");
}

TEST(BankFormats, TellTheLossWhereThereIsOneFrequency)
{
    const auto one = JsonOf(ThreeKinds());
    EXPECT_EQ(one.at("pieces")[0].at("lossResistance"),
              one.at("pieces")[0].at("frequencies")[0].at("lossResistance"));
    EXPECT_FLOAT_EQ(one.at("bank").at("lossResistance").get<float>(), 0.88908265F);
    EXPECT_TRUE(one.at("warnings").empty());
    EXPECT_FALSE(one.at("conditions").contains("heatResistance"));
    auto request = ThreeKinds();
    request.Conditions[Condition::Frequency].reset();
    request.Conditions[Condition::HeatResistance] = "50";
    request.Current = "300kHz=4 600kHz=1.2";
    const auto two = JsonOf(request);
    EXPECT_FALSE(two.at("pieces")[0].contains("lossResistance"));
    EXPECT_FALSE(two.at("bank").contains("lossResistance"));
    EXPECT_EQ(two.at("pieces")[0].at("frequencies").size(), 2U);
    EXPECT_EQ(two.at("conditions").at("heatResistance"), 50);
    EXPECT_EQ(two.at("warnings").size(), 2U);
}

// ---- Ranges ----

BankRequest Ranged()
{
    return {.Pieces = {PieceOf("KTS31NR71A226KA01 x2"), PieceOf("KTS31NB51A476MA01 tolerance=-20/+80")},
            .Conditions = {{Condition::DCBias, "4.5..5.5V"},
                           {Condition::AmbientTemperature, "-10..65C"},
                           {Condition::Frequency, "300kHz\u00B110%"}},
            .Current = "6Arms",
            .Tolerance = "10"};
}

TEST(BankOfRequest, TakesRangesAndATolerance)
{
    const auto bank = BankOf(Ranged(), Parts(), {});
    EXPECT_EQ(bank.Question.At.BiasVolts, ConditionRange(4.5F, 5.5F));
    EXPECT_EQ(bank.Question.At.AmbientC, ConditionRange(-10, 65));
    EXPECT_EQ(bank.Question.Ripple.front().Kilohertz, ConditionRange(270, 330));
    EXPECT_EQ(bank.Question.Pieces[0].Tolerance, (CapacitanceTolerance{10, 10}));
    EXPECT_EQ(bank.Question.Pieces[1].Tolerance, (CapacitanceTolerance{20, 80})) << "its own goes before";
}

TEST(BankOfRequest, RefusesRangesByEitherEnd)
{
    const auto refusalOf = [](Condition condition, const char* typed)
    {
        auto request = Ranged();
        request.Conditions[condition] = typed;
        return RefusalOf([&] { BankOf(request, Parts(), {}); });
    };
    EXPECT_EQ(refusalOf(Condition::DCBias, "5..10.5")->Part(), "KTS31NR71A226KA01");
    EXPECT_EQ(refusalOf(Condition::DCBias, "-1..5")->Key(), "dcBias");
    EXPECT_EQ(refusalOf(Condition::DCBias, "5..4")->Kind(), RequestErrorKind::Condition);
    EXPECT_EQ(refusalOf(Condition::AmbientTemperature, "-60..50")->Key(), "ambient");
    EXPECT_NE(refusalOf(Condition::AmbientTemperature, "-10..90")->Message().find("from -55 to 85"),
              std::string::npos);
    EXPECT_EQ(refusalOf(Condition::AmbientTemperature, "20..85")->Message(), "no permitted rise");
    EXPECT_EQ(refusalOf(Condition::AmbientTemperature, "-10..15")->Key(), "ambient");
    EXPECT_EQ(refusalOf(Condition::Frequency, "5..100")->Key(), "frequency");
    EXPECT_TRUE(IsMistaken(refusalOf(Condition::HeatResistance, "20..30")->Kind()));
    auto request = Ranged();
    request.Tolerance = "100";
    EXPECT_EQ(RefusalOf([&] { BankOf(request, Parts(), {}); })->Key(), "tolerance");
}

TEST(BankFormats, TellPlacesOverRangesAlone)
{
    const auto json = JsonOf(Ranged());
    EXPECT_EQ(json.at("conditions").at("frequencies")[0].at("frequency").at("high"), 330);
    EXPECT_EQ(json.at("conditions").at("heatingAmbient").at("low"), 20);
    EXPECT_EQ(json.at("pieces")[1].at("tolerance").at("up"), 80);
    EXPECT_EQ(json.at("pieces")[1].at("worstRiseAt").at("ambient"), 20);
    EXPECT_EQ(json.at("pieces")[1].at("worstRiseAt").at("frequency"), 270);
    EXPECT_EQ(json.at("bank").at("leastAt").at("dcBias"), 5.5);
    const auto point = JsonOf(ThreeKinds());
    EXPECT_FALSE(point.at("pieces")[0].contains("riseAt"));
    EXPECT_FALSE(point.at("bank").contains("leastAt"));
    EXPECT_FALSE(point.at("conditions").contains("heatingAmbient"));
}

TEST(BankFormats, NoteFromWhereHeatingIsJudged)
{
    const auto notes = BankNotes(BankOf(Ranged(), Parts(), {}), {});
    ASSERT_FALSE(notes.empty());
    EXPECT_EQ(notes.back(), "rise and loads judged from 20 C up, where the heating data begins");
    EXPECT_TRUE(BankNotes(BankOf(ThreeKinds(), Parts(), {}), {}).empty());
}

TEST(BankFormats, WarnInWordsOfWhatIsTooMuch)
{
    const BankRequest request{
        .Pieces = {PieceOf("KTS188R71H104KA01 tolerance=10"), PieceOf("KTS188R71H104KA01")},
        .Conditions = {{Condition::DCBias, "50V"}, {Condition::Frequency, "1MHz"}},
        .Current = "3.2"};
    const auto lines = WarningLines(BankOf(request, Parts(), {}), {});
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_TRUE(lines[0].starts_with("KTS188R71H104KA01: rises by 2")) << lines[0];
    EXPECT_TRUE(lines[0].ends_with(" C, above the 20 C permitted")) << lines[0];
    EXPECT_EQ(lines[1].substr(0, 48), "KTS188R71H104KA01: has a ripple voltage of 4.882") << lines[1];
    EXPECT_TRUE(lines[1].ends_with(" Vrms, above the 0 Vrms permitted")) << lines[1];
}
} // namespace
