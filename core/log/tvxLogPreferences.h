// The logger's preferences, kept in Maya option variables.
#pragma once

#include <string>

namespace tarvox::crowd {

/// The option variables by name.
namespace preference {
inline constexpr char kScriptEditor[] = "tvxPrefLogToSE";
inline constexpr char kConsole[] = "tvxPrefLogToOW";
inline constexpr char kFile[] = "tvxPrefLogToFile";
inline constexpr char kDirectory[] = "tvxPrefLogDirectory";

/// "tvxPrefLogLevelFor" and the log's name, every blank of it an underscore.
std::string levelFor(const std::string& logName);

/// The value of an option variable, or `fallback` when there is none.
bool flag(const char* name, bool fallback);
std::string text(const char* name, const std::string& fallback);
/// As flag(), but a variable that does not exist is created with the fallback.
int numberOrCreate(const std::string& name, int fallback);

/// Sets an option variable, created when there is none.
void setFlag(const char* name, bool value);
void setText(const char* name, const std::string& value);
void setNumber(const std::string& name, int value);
} // namespace preference

} // namespace tarvox::crowd
