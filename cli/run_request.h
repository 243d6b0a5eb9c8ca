#pragma once

#include <string>
#include <vector>

namespace varnel::cli {

/// What the command line of `varnel run` says, word for word; empty where it says nothing.
struct RunRequest {
    std::string report;
    std::string company;
    std::string from;
    std::string to;
    std::string account;   // Its number.
    std::string currency;  // Its code.
    std::string account_type;  // Its number.
    std::string projects;
    std::string history;  // The id of a saved bank reconciliation.
    std::string statement_date;
    std::string ending_balance;
    std::string rows_file;
    std::string cumulative_from;
    std::string cumulative_to;
    std::string segments;
    bool no_segment = false;
    std::string filter;
    bool foreign = false;
    bool revalue = false;
    std::vector<std::string> rates;  // "USD=1.3725"
    std::string rates_file;
    std::vector<std::string> properties;  // "Name=value"
    std::vector<std::string> options;     // "name=value", of the report's dialog.
    bool configure = false;
    std::string session_date;
    std::string dialect;
    std::string language;
    std::string paper;
    bool landscape = false;
    std::string format;
    std::string output;
};

}  // namespace varnel::cli
