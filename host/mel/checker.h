// The checker: what a script holds, without running it.
#pragma once

#include "ast.h"
#include "scriptError.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tvxhost::mel {

/// The first error of a script.
struct CheckError
{
    std::string message; ///< "Syntax error", "Unterminated string."
    int line = 0;
    int column = 0;
    std::string text; ///< the offending line
};

/// What a script holds.
struct CheckReport
{
    struct ProcedureSummary
    {
        std::string name;
        bool isGlobal = false;
        std::string result;                  ///< as written: "string[]"; "" for none
        std::vector<std::string> parameters; ///< as written: "string $names[]"
        int line = 0;
    };

    std::string file;
    std::optional<CheckError> error;
    std::vector<ProcedureSummary> procedures; ///< in the order of the file
    std::map<std::string, int> statements; ///< by kind ("command", "if", "proc", …), nested ones included
    std::map<std::string, int> commands;   ///< calls by name, those inside expressions included

    bool ok() const { return !error; }
};

/// Parses the text and counts what is in it; what stands before an error is not counted.
CheckReport checkScript(std::string_view text, const std::string& file);
/// The report for people, several lines, ends with a line end.
std::string toText(const CheckReport& report);
/// The report as one JSON object on one line.
std::string toJson(const CheckReport& report);

} // namespace tvxhost::mel
