#include "cli/given_rates.h"

#include <cerrno>
#include <cstring>
#include <fstream>

#include "cli/errors.h"
#include "host/error.h"

namespace varnel::cli {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

company::GivenRate ReadRate(const std::string& where, const std::string& text) {
    try {
        return company::ParseGivenRate(text);
    } catch (const Error& error) {
        throw UsageError(where + ": " + error.Description());
    }
}

bool SaysNothing(const std::string& line) {
    const auto first = line.find_first_not_of(" \t\r");
    return first == std::string::npos || line[first] == '#';
}

}  // namespace

std::vector<company::GivenRate> ReadRates(const std::vector<std::string>& rates,
                                          const std::string& file) {
    std::vector<company::GivenRate> given;
    for (const auto& rate : rates) given.push_back(ReadRate("--rate", rate));
    if (file.empty()) return given;
    std::ifstream lines(file);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        if (number == 1 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
        if (!SaysNothing(line))
            given.push_back(ReadRate(file + ", line " + std::to_string(number), line));
    }
    if (!lines.eof())
        throw UsageError("--rates: " + file + " cannot be read: " + std::strerror(errno));
    return given;
}

}  // namespace varnel::cli
