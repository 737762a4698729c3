#include "files/InputFile.h"

#include "partdata/RunTimeError.h"

#include <system_error>

InputFile::InputFile(const std::filesystem::path& path)
    : name(path.filename().string())
{
    std::error_code fault;
    size = std::filesystem::file_size(path, fault);
    if (fault == std::errc::no_such_file_or_directory)
    {
        throw RunTimeError(RunTimeErrorNumber::FileNotFound).At(name);
    }
    if (!fault)
    {
        // Both files are read in large pieces, which a buffer would only copy once more.
        stream.rdbuf()->pubsetbuf(nullptr, 0);
        stream.open(path, std::ios::binary);
    }
    if (!stream.is_open())
    {
        throw RunTimeError(RunTimeErrorNumber::PathFileAccessError).At(name);
    }
}

std::size_t InputFile::Read(std::span<char> bytes)
{
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (stream.bad())
    {
        throw RunTimeError(RunTimeErrorNumber::PathFileAccessError).At(name);
    }
    return static_cast<std::size_t>(stream.gcount());
}

std::string ReadBytes(const std::filesystem::path& file, std::uintmax_t most)
{
    InputFile input(file);
    if (input.Size() > most)
    {
        throw RunTimeError(RunTimeErrorNumber::Overflow).At(input.Name());
    }
    std::string bytes(static_cast<std::size_t>(input.Size()), '\0');
    bytes.resize(input.Read({bytes.data(), bytes.size()}));
    return bytes;
}
