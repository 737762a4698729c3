/// The yardstick of a batch on the command line: each request is read as JSON and answered with 400 numbers,
/// none of them calculated.
///
///     batch_bare REQUESTS...

#include <nlohmann/json.hpp>

#include <array>
#include <charconv>
#include <fstream>
#include <iostream>
#include <string>

/// As many numbers as a curve has, of the same number of digits on average.
static std::array<float, 400> Numbers()
{
    std::array<float, 400> numbers;
    for (std::size_t i = 0; i < numbers.size(); ++i)
    {
        numbers[i] = 123.4567F / static_cast<float>(i + 1);
    }
    return numbers;
}

static void AppendAnswer(std::string& answer, const nlohmann::json& request,
                         const std::array<float, 400>& numbers)
{
    answer += "{\"part\":\"" + request.at("part").get<std::string>() + "\",\"values\":[";
    for (const float number : numbers)
    {
        char digits[32];
        answer.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
        answer += ',';
    }
    answer.back() = ']';
    answer += "}\n";
}

int main(int argc, char* argv[])
{
    std::ios_base::sync_with_stdio(false);
    std::ifstream requests(argc > 1 ? argv[argc - 1] : "");
    const auto numbers = Numbers();
    std::string answer;
    for (std::string line; std::getline(requests, line);)
    {
        answer.clear();
        AppendAnswer(answer, nlohmann::json::parse(line), numbers);
        std::cout.write(answer.data(), static_cast<std::streamsize>(answer.size()));
    }
    return requests.eof() && argc > 1 ? 0 : 1;
}
