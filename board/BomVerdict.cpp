#include "board/BomVerdict.h"

#include "board/BomParts.h"
#include "board/PartSuggestion.h"
#include "board/References.h"
#include "board/RowWarnings.h"
#include "find/LeftOut.h"
#include "partdata/RunTimeError.h"
#include "requests/CurveRequest.h"
#include "requests/FourDigits.h"
#include "requests/RequestError.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numeric>
#include <tuple>
#include <utility>

namespace
{
constexpr double percent = 100;

class BomJudge
{
public:
    BomJudge(const JoinedBom& joinedBom, const PartTable& partTable, const BomSettings& bomSettings,
             const WaveformSource& source, const std::function<void()>& betweenItems)
        : joined(joinedBom)
        , parts(partTable)
        , settings(bomSettings)
        , loads(source)
        , meant(joinedBom.Bill, partTable, bomSettings)
        , pause(betweenItems)
    {
    }

    JudgedBom Judge()
    {
        bom.Items.reserve(joined.Items.size());
        for (const BomItem& item : joined.Items)
        {
            pause();
            Take(item);
        }
        if (bom.Faults.empty())
        {
            JudgeNets();
            for (JudgedItem& item : bom.Items)
            {
                pause();
                JudgeItem(item);
            }
            Note();
            Order();
        }
        return std::move(bom);
    }

private:
    // ---- Parts ----

    void Take(const BomItem& item)
    {
        const auto [part, isByValue] = meant.PartOf(item);
        const bool isOther = part == nullptr && !IsCounted(item);
        if (isOther || !item.IsFitted())
        {
            ++(isOther ? bom.Skipped : bom.NotFitted);
            bom.Unjudged.push_back(&item);
            return;
        }
        JudgedItem& judged = bom.Items.emplace_back();
        judged.Item = &item;
        judged.Part = part;
        judged.IsByValue = isByValue;
        judged.Question = QuestionOf(item, settings.View, loads, bom.Faults);
        if (part == nullptr)
        {
            judged.Near = meant.NearOf(item.TextOf(BomField::Part));
        }
    }

    static bool IsCounted(const BomItem& item)
    {
        return std::ranges::any_of(item.References, IsCapacitorReference);
    }

    // ---- Nets ----

    void JudgeNets()
    {
        std::map<std::string, std::vector<std::size_t>> items;
        std::vector<std::string> names;
        for (std::size_t i = 0; i < bom.Items.size(); ++i)
        {
            const auto& name = bom.Items[i].Item->TextOf(BomField::Net);
            if (!name.empty() && items[name].empty())
            {
                names.push_back(name);
            }
            if (!name.empty())
            {
                items[name].push_back(i);
            }
        }
        for (const auto& name : names)
        {
            JudgeNet(name, items[name]);
        }
    }

    void JudgeNet(const std::string& name, const std::vector<std::size_t>& items)
    {
        JudgedNet net;
        net.Name = name;
        bool isWhole = true;
        for (const std::size_t item : items)
        {
            const JudgedItem& judged = bom.Items[item];
            isWhole = isWhole && judged.Part != nullptr;
            net.Pieces.push_back({judged.Part, &judged.Question,
                                  static_cast<int>(judged.Item->Parts()) * judged.Question.Parallel()});
            net.Items.push_back(item);
            net.Wanted = judged.Question.NetMinCapacitance;
        }
        if (isWhole)
        {
            net.Answer = AnswerOf(net.Pieces);
            for (std::size_t i = 0; i < net.Answer.Shares.size(); ++i)
            {
                bom.Items[items[i]].Share = net.Answer.Shares[i];
            }
        }
        else
        {
            net.Answer.Unknown = "a part on it is not in the range";
        }
        Conclude(net);
        bom.Nets.push_back(std::move(net));
    }

    static NetAnswer AnswerOf(const std::vector<NetPiece>& pieces)
    {
        try
        {
            return NetOf(pieces);
        }
        catch (const RunTimeError&)
        {
            NetAnswer answer;
            answer.Unknown = "cannot be calculated";
            return answer;
        }
    }

    void Conclude(JudgedNet& net) const
    {
        net.Reason = net.Answer.Refusal.empty() ? net.Answer.Unknown : net.Answer.Refusal;
        if (!net.Answer.Least)
        {
            net.Verdict = net.Answer.Refusal.empty() ? BomVerdict::Unknown : BomVerdict::Fail;
            return;
        }
        const bool isWanted = net.Wanted && *net.Wanted > 0;
        net.Reserve =
            isWanted ? std::optional((*net.Answer.Least / *net.Wanted - 1) * percent) : std::nullopt;
        const bool isMissed = isWanted && static_cast<float>(*net.Answer.Least) < *net.Wanted;
        const bool isUnshared = net.Answer.Arms && net.Answer.Shares.empty();
        net.Reason = isUnshared ? "the current cannot be shared" : "";
        net.Verdict = isMissed     ? BomVerdict::Fail
                      : isUnshared ? BomVerdict::Unknown
                                   : HeldVerdict(net.Reserve);
    }

    BomVerdict HeldVerdict(std::optional<double> reserve) const
    {
        return reserve && *reserve < settings.WarnPercent ? BomVerdict::Warn : BomVerdict::Ok;
    }

    // ---- Items ----

    void JudgeItem(JudgedItem& item)
    {
        if (item.Part == nullptr)
        {
            item.Reasons.emplace_back("not in the range");
            return;
        }
        item.Judged = JudgePart(*item.Part, item.Question, item.Share ? &*item.Share : nullptr);
        const JudgedPart& judged = *item.Judged;
        if (const auto* deciding = judged.Deciding())
        {
            item.Reserve = deciding->Reserve;
            item.Decides = deciding->Name;
        }
        const auto warnings = RowWarnings(item);
        item.Verdict = judged.IsFailing()        ? BomVerdict::Fail
                       : !judged.Unknown.empty() ? BomVerdict::Unknown
                       : !warnings.empty()       ? BomVerdict::Warn
                                                 : HeldVerdict(item.Reserve);
        TellReasons(item, warnings);
        if (settings.IsSuggesting && item.Verdict == BomVerdict::Fail)
        {
            item.WasSuggested = item.Question.NetRipple.empty();
            item.Suggestion =
                item.WasSuggested ? SuggestionFor(*item.Part, item.Question, parts, settings) : std::nullopt;
        }
    }

    /// What is missed, or cannot be judged; the limit of the least reserve where all are held.
    static void TellReasons(JudgedItem& item, const std::vector<std::string>& warnings)
    {
        const JudgedPart& judged = *item.Judged;
        item.Reasons = judged.Missed;
        for (const BomLimit& limit : judged.Limits)
        {
            if (limit.Reserve < 0)
            {
                item.Reasons.push_back(limit.Text);
            }
        }
        item.Reasons.insert(item.Reasons.end(), judged.Unknown.begin(), judged.Unknown.end());
        item.Reasons.insert(item.Reasons.end(), warnings.begin(), warnings.end());
        if (const auto* deciding = judged.Deciding(); deciding != nullptr && item.Reasons.empty())
        {
            item.Reasons.push_back(deciding->Text);
        }
        if (item.IsByValue)
        {
            item.Reasons.emplace_back("by value");
        }
    }

    /// What bears on more than a row.
    void Note()
    {
        for (const JudgedItem& item : bom.Items)
        {
            auto at = item.Question.Asked.At;
            at.Kilohertz = item.IsLoaded() ? std::optional(at.Kilohertz.value_or(0)) : std::nullopt;
            const std::string note(NoteOnHeating(at));
            if (!note.empty() && bom.Notes.empty())
            {
                bom.Notes.push_back(note);
            }
        }
        for (const JudgedNet& net : bom.Nets)
        {
            if (const auto& kilohertz = net.Answer.InductiveKilohertz)
            {
                bom.Notes.push_back("net " + net.Name + ": at " + FourDigits(static_cast<float>(*kilohertz)) +
                                    " kHz an inductance of 1 nH would decide currents and ripple voltage");
            }
        }
    }

    void Order()
    {
        for (const JudgedItem& item : bom.Items)
        {
            ++bom.Counts.at(static_cast<std::size_t>(item.Verdict));
        }
        if (settings.IsByLine)
        {
            return;
        }
        std::vector<std::size_t> order(bom.Items.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::ranges::stable_sort(
            order, {},
            [this](std::size_t index)
            {
                const JudgedItem& item = bom.Items[index];
                return std::tuple(item.Verdict, item.Reserve.value_or(std::numeric_limits<double>::max()));
            });
        Arrange(order);
    }

    /// Puts the items in an order, and tells the nets where theirs are.
    void Arrange(const std::vector<std::size_t>& order)
    {
        std::vector<JudgedItem> items;
        std::vector<std::size_t> places(order.size());
        items.reserve(order.size());
        for (const std::size_t index : order)
        {
            places[index] = items.size();
            items.push_back(std::move(bom.Items[index]));
        }
        bom.Items = std::move(items);
        for (JudgedNet& net : bom.Nets)
        {
            for (std::size_t i = 0; i < net.Items.size(); ++i)
            {
                net.Items[i] = places[net.Items[i]];
                net.Pieces[i].Question = &bom.Items[net.Items[i]].Question;
            }
        }
    }

    const JoinedBom& joined;
    const PartTable& parts;
    const BomSettings& settings;
    BomLoads loads;
    BomParts meant;
    const std::function<void()>& pause;
    JudgedBom bom;
};
} // namespace

int JudgedNet::Parts() const
{
    return std::accumulate(Pieces.begin(), Pieces.end(), 0,
                           [](int sum, const NetPiece& piece) { return sum + piece.Count; });
}

bool JudgedNet::IsTold() const
{
    return Pieces.size() > 1 || Wanted || Answer.Arms || !Answer.Least;
}

bool JudgedBom::Has(BomVerdict verdict) const
{
    return Counts.at(static_cast<std::size_t>(verdict)) > 0 ||
           std::ranges::find(Nets, verdict, &JudgedNet::Verdict) != Nets.end();
}

JudgedBom JudgeBom(const JoinedBom& joined, const PartTable& parts, const BomSettings& settings,
                   const WaveformSource& waveforms, const std::function<void()>& pause)
{
    return BomJudge(joined, parts, settings, waveforms, pause).Judge();
}
