// Option variables.
#include "core/log/tvxLogPreferences.h"

#include <maya/MGlobal.h>
#include <maya/MString.h>

#include <algorithm>

namespace tarvox::crowd::preference {

std::string levelFor(const std::string& logName)
{
    std::string name = "tvxPrefLogLevelFor" + logName;
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
}

bool flag(const char* name, bool fallback)
{
    bool exists = false;
    const int value = MGlobal::optionVarIntValue(name, &exists);
    return exists ? value != 0 : fallback;
}

std::string text(const char* name, const std::string& fallback)
{
    bool exists = false;
    const MString value = MGlobal::optionVarStringValue(name, &exists);
    return exists ? value.asChar() : fallback;
}

int numberOrCreate(const std::string& name, int fallback)
{
    bool exists = false;
    const int value = MGlobal::optionVarIntValue(name.c_str(), &exists);
    if (exists)
        return value;
    setNumber(name, fallback);
    return fallback;
}

void setFlag(const char* name, bool value)
{
    MGlobal::setOptionVarValue(name, value ? 1 : 0);
}

void setText(const char* name, const std::string& value)
{
    MGlobal::setOptionVarValue(name, MString(value.c_str()));
}

void setNumber(const std::string& name, int value)
{
    MGlobal::setOptionVarValue(name.c_str(), value);
}

} // namespace tarvox::crowd::preference
