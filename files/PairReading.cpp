#include "files/PairReading.h"

#include "files/StagedPair.h"
#include "partdata/RunTimeError.h"

#include <chrono>
#include <exception>
#include <thread>

namespace fs = std::filesystem;

/// Attempts before a reader gives up, and the pause between two of them: writers are done long before.
static constexpr int MostAttempts = 200;
static constexpr std::chrono::milliseconds Pause{5};

PairSearch SearchFor(const fs::path& pair)
{
    return {.Index = [pair] { return IndexFileOf(pair); }, .Data = [pair] { return DataFileOf(pair); }};
}

PairSearch SearchFor(const PairPaths& pair)
{
    return {.Index = [file = pair.Index] { return file; }, .Data = [file = pair.Data] { return file; }};
}

PairReading::PairReading(const PairSearch& pairSearch)
    : index(pairSearch.Index)
    , data(pairSearch.Data)
{
}

std::uintmax_t PairReading::DataBytes() const
{
    const auto state = data.Look();
    return state ? state->Size : 0;
}

void PairReading::Half::Find()
{
    asked = true;
    if (path.empty())
    {
        path = find();
        staged = StagedOf(path);
    }
}

const fs::path& PairReading::Half::Place() const
{
    return IsStaged(staged) ? staged : path;
}

const fs::path& PairReading::Half::Path()
{
    const bool isNew = path.empty();
    Find();
    if (isNew)
    {
        seen = StateOf(Place());
    }
    return path;
}

InputFile& PairReading::Half::Open()
{
    if (file)
    {
        return *file;
    }
    Find();
    const auto open = [this] { return std::make_unique<InputFile>(Place(), path.filename().string()); };
    try
    {
        file = open();
    }
    catch (const RunTimeError&)
    {
        // What cannot be opened is noted before it is tried once more, so that what comes meanwhile is seen.
        seen = StateOf(Place());
        file = open();
    }
    seen = file->State();
    return *file;
}

std::optional<FileState> PairReading::Half::Look() const
{
    try
    {
        const auto found = find();
        return StateOf(found == path ? Place() : WhereRead(found));
    }
    catch (const RunTimeError&)
    {
        return std::nullopt;
    }
}

void ReadSettled(const PairSearch& search, const std::function<void(PairReading&)>& read)
{
    for (int attempt = 0; attempt < MostAttempts; ++attempt)
    {
        PairReading reading(search);
        std::exception_ptr fault;
        try
        {
            read(reading);
        }
        catch (const RunTimeError&)
        {
            fault = std::current_exception();
        }
        if (reading.IsSettled())
        {
            if (fault)
            {
                std::rethrow_exception(fault);
            }
            return;
        }
        std::this_thread::sleep_for(Pause);
    }
    throw RunTimeError(RunTimeErrorNumber::PathFileAccessError,
                       "The part files are being replaced all the time");
}
