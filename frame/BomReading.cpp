#include "frame/BomReading.h"

#include "board/FilesBeside.h"
#include "files/InputFile.h"
#include "partdata/OneLine.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <stdexcept>
#include <utility>

namespace
{
std::string NameOf(const std::string& file)
{
    return std::filesystem::path(file).filename().string();
}

class Reader
{
public:
    Reader(const BoardFiles& boardFiles, BomAsked& question)
        : files(boardFiles)
        , asked(question)
    {
    }

    ReadBoard Read(const PartTable& parts)
    {
        board.Settings = asked.Settings;
        asked.Waveforms = [this](const std::string& name, bool isOfConditions)
        { return Waveform(name, isOfConditions); };
        BomTexts texts{.Bill = TextOf(files.Bill)};
        texts.Conditions = files.Conditions.empty() ? std::nullopt : std::optional(TextOf(files.Conditions));
        if (board.Faults.empty())
        {
            board.Bom = CheckBom(std::move(texts), asked, parts);
            board.Faults = LinesOf(board.Bom->Faults);
            board.Warnings = LinesOf(board.Bom->Warnings);
        }
        return std::move(board);
    }

    ReadBoard FaultOnly(const RunTimeError& error)
    {
        board.Bom.reset();
        board.Faults = {error.Description()};
        return std::move(board);
    }

private:
    std::string TextOf(const std::string& file)
    {
        asked.Pause();
        board.Files.push_back({file, StateOf(std::filesystem::path(file))});
        try
        {
            return ReadBytes(file, MostBomBytes);
        }
        catch (const RunTimeError& error)
        {
            board.Faults.push_back(WithoutControls(NameOf(file)) + ": " + error.Description());
            return {};
        }
    }

    WaveformTable Waveform(const std::string& name, bool isOfConditions)
    {
        const auto path = PathBeside(isOfConditions ? files.Conditions : files.Bill, name);
        const auto isKnown = std::ranges::find(board.Files, path.string(), &WatchedFile::Path);
        if (isKnown == board.Files.end())
        {
            board.Files.push_back({path.string(), StateOf(path)});
        }
        try
        {
            return ReadWaveforms(ReadBytes(path, MostWaveformBytes), asked.Pause);
        }
        catch (const RunTimeError& error)
        {
            throw std::runtime_error('"' + OneLine(name) + "\": " + error.Description());
        }
    }

    std::vector<std::string> LinesOf(const std::vector<BomRemark>& remarks) const
    {
        std::vector<std::string> lines;
        const BomNames names = {.Bill = NameOf(files.Bill), .Conditions = NameOf(files.Conditions)};
        std::ranges::transform(remarks, std::back_inserter(lines),
                               [&](const BomRemark& remark)
                               { return WithoutControls(RemarkText(remark, names)); });
        return lines;
    }

    const BoardFiles& files;
    BomAsked& asked;
    ReadBoard board;
};
} // namespace

ReadBoard ReadBoardOf(const BoardFiles& files, BomAsked asked, const PartTable& parts)
{
    Reader reader(files, asked);
    try
    {
        return reader.Read(parts);
    }
    catch (const RunTimeError& error)
    {
        return reader.FaultOnly(error);
    }
    catch (const std::bad_alloc&)
    {
        return reader.FaultOnly(RunTimeError(RunTimeErrorNumber::OutOfMemory));
    }
}
