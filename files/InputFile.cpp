#include "files/InputFile.h"

#include "partdata/RunTimeError.h"

#include <cerrno>
#include <istream>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

InputFile::InputFile(const std::filesystem::path& path)
    : InputFile(path, path.filename().string())
{
}

InputFile::InputFile(const std::filesystem::path& path, std::string shownName)
    : name(std::move(shownName))
{
    // A pipe without a writer would keep the program waiting; a regular file knows no waiting.
    handle = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (handle < 0 && errno == ENOENT)
    {
        throw RunTimeError(RunTimeErrorNumber::FileNotFound).At(name);
    }
    const auto opened = StateOf(handle);
    if (!opened || !opened->IsRegular)
    {
        if (handle >= 0)
        {
            close(handle);
        }
        throw RunTimeError(RunTimeErrorNumber::PathFileAccessError).At(name);
    }
    state = *opened;
}

InputFile::~InputFile()
{
    close(handle);
}

std::size_t InputFile::Read(std::span<char> bytes)
{
    std::size_t done = 0;
    while (done < bytes.size())
    {
        const auto got = read(handle, bytes.data() + done, bytes.size() - done);
        if (got == 0)
        {
            break;
        }
        if (got < 0 && errno != EINTR)
        {
            throw RunTimeError(RunTimeErrorNumber::PathFileAccessError).At(name);
        }
        done += got < 0 ? 0 : static_cast<std::size_t>(got);
    }
    return done;
}

void InputFile::Rewind() const
{
    lseek(handle, 0, SEEK_SET);
}

std::string ReadBytes(InputFile& input, std::uintmax_t most)
{
    if (input.Size() > most)
    {
        throw RunTimeError(RunTimeErrorNumber::Overflow).At(input.Name());
    }
    std::string bytes(static_cast<std::size_t>(input.Size()), '\0');
    bytes.resize(input.Read({bytes.data(), bytes.size()}));
    return bytes;
}

std::string ReadBytes(const std::filesystem::path& file, std::uintmax_t most)
{
    InputFile input(file);
    return ReadBytes(input, most);
}

std::string ReadBytes(std::istream& stream, const std::string& name, std::uintmax_t most)
{
    std::string bytes;
    std::string piece(std::size_t{64} * 1024, '\0');
    while (stream.read(piece.data(), static_cast<std::streamsize>(piece.size())) || stream.gcount() > 0)
    {
        bytes.append(piece, 0, static_cast<std::size_t>(stream.gcount()));
        if (bytes.size() > most)
        {
            throw RunTimeError(RunTimeErrorNumber::Overflow).At(name);
        }
    }
    if (stream.bad())
    {
        throw RunTimeError(RunTimeErrorNumber::PathFileAccessError).At(name);
    }
    return bytes;
}
