#pragma once

/// Stands in for the streams of a command that runs within a fuzz target.

#include <iostream>
#include <sstream>
#include <string>

/// Standard input gives the text, standard output and error are kept, until the end of the object.
class StandardStreams
{
public:
    explicit StandardStreams(const std::string& inputText)
        : input(inputText, std::ios::in | std::ios::binary)
        , formerInput(std::cin.rdbuf(&input))
        , formerOutput(std::cout.rdbuf(&output))
        , formerMessages(std::cerr.rdbuf(&messages))
    {
        std::cin.clear();
        std::cout.clear();
        std::cerr.clear();
    }
    ~StandardStreams()
    {
        std::cin.rdbuf(formerInput);
        std::cout.rdbuf(formerOutput);
        std::cerr.rdbuf(formerMessages);
    }
    StandardStreams(const StandardStreams&) = delete;
    StandardStreams& operator=(const StandardStreams&) = delete;

    std::string Output() const { return output.str(); }
    std::string Messages() const { return messages.str(); }

private:
    std::stringbuf input;
    std::stringbuf output;
    std::stringbuf messages;
    std::streambuf* formerInput;
    std::streambuf* formerOutput;
    std::streambuf* formerMessages;
};
