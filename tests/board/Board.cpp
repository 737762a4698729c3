#include "tests/board/Board.h"

#include "files/InputFile.h"
#include "files/PartLoading.h"

#include <stdexcept>

const PartTable& Range()
{
    static const PartTable parts = LoadPartData(RANGE_FOLDER);
    return parts;
}

WaveformTable NoWaveform(const std::string& /*name*/, bool /*isOfConditions*/)
{
    throw std::runtime_error("no waveform");
}

std::string BoardFile(const std::string& name)
{
    return ReadBytes(std::string(TEST_DATA) + "/board/boards/" + name, MostBomBytes);
}

Board::Board(const std::string& billText, const std::string& conditionText, const BomSettings& settings)
    : Bill(ReadBomTable(billText, BomTableKind::Bill))
    , Joined(JoinBom(
          Bill, conditionText.empty() ? BomTable() : ReadBomTable(conditionText, BomTableKind::Conditions),
          {}))
    , Judged(JudgeBom(Joined, Range(), settings, NoWaveform))
{
}
