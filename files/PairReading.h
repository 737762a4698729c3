#pragma once

/// Reading both files of a pair in one state, while others may be replacing it.

#include "files/InputFile.h"
#include "files/PartFiles.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

/// How the two files of a pair are found; asked anew for every attempt. Either throws RunTimeError where
/// there is no such file.
struct PairSearch
{
    std::function<std::filesystem::path()> Index;
    std::function<std::filesystem::path()> Data;
};

/// The pair of a folder, or of a named index file; see `IndexFileOf` and `DataFileOf`.
PairSearch SearchFor(const std::filesystem::path& pair);

/// Two named files.
PairSearch SearchFor(const PairPaths& pair);

/// One attempt to read a pair. Each file is found and opened when it is asked for, and stays open to the end.
class PairReading
{
public:
    explicit PairReading(const PairSearch& pairSearch);

    /// Where the file is expected, by its own name. Throws what the search throws.
    const std::filesystem::path& IndexPath() { return index.Path(); }
    const std::filesystem::path& DataPath() { return data.Path(); }

    /// The open file; at its start when it is asked for first. Throws RunTimeError as the search and
    /// `InputFile`.
    InputFile& Index() { return index.Open(); }
    InputFile& Data() { return data.Open(); }

    /// Bytes of the data file, which need not be opened for that; 0 where there is none.
    std::uintmax_t DataBytes() const;

    /// True when both files, as far as they were asked for, are still those that were found, and unchanged.
    bool IsSettled() const { return index.IsSettled() && data.IsSettled(); }

private:
    /// One of the two files.
    class Half
    {
    public:
        explicit Half(const std::function<std::filesystem::path()>& finding)
            : find(finding)
        {
        }
        const std::filesystem::path& Path();
        InputFile& Open();
        /// The file as it is now; nothing where there is none.
        std::optional<FileState> Look() const;
        bool IsSettled() const { return !asked || Look() == seen; }

    private:
        void Find();
        /// Where the found file is to be read.
        const std::filesystem::path& Place() const;

        const std::function<std::filesystem::path()>& find;
        bool asked = false;
        std::filesystem::path path;
        /// Where it stands while a commit is under way.
        std::filesystem::path staged;
        std::optional<FileState> seen;
        std::unique_ptr<InputFile> file;
    };

    Half index;
    Half data;
};

/// Calls `read` with a new attempt until the pair has stood still meanwhile, whether `read` came to its end
/// or threw a RunTimeError, which is then passed on.
///
/// Throws RunTimeError 75 "The part files are being replaced all the time" after a second or more.
void ReadSettled(const PairSearch& search, const std::function<void(PairReading&)>& read);
