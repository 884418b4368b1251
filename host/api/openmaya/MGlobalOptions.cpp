// MGlobal: option variables.
#include <maya/MGlobal.h>

#include "engine/scene.h"
#include "support/access.h"

using namespace tvxhost;

namespace {

engine::OptionVars& options()
{
    return engine::Scene::current().optionVars();
}

/// The value, or a neutral one; says whether there is such a variable.
template <class Value>
Value valueOr(const std::optional<Value>& value, bool* exists)
{
    if (exists)
        *exists = value.has_value();
    return value.value_or(Value());
}

template <class Value, class Target>
bool take(const std::optional<Value>& value, Target& target)
{
    if (value)
        target = *value;
    return value.has_value();
}

} // namespace

int MGlobal::optionVarIntValue(const MString& name, bool* exists)
{
    return valueOr(options().asInt(tvxAccess::text(name)), exists);
}

double MGlobal::optionVarDoubleValue(const MString& name, bool* exists)
{
    return valueOr(options().asDouble(tvxAccess::text(name)), exists);
}

MString MGlobal::optionVarStringValue(const MString& name, bool* exists)
{
    return tvxAccess::string(valueOr(options().asString(tvxAccess::text(name)), exists));
}

bool MGlobal::setOptionVarValue(const MString& name, int value)
{
    options().set(tvxAccess::text(name), value);
    return true;
}

bool MGlobal::setOptionVarValue(const MString& name, double value)
{
    options().set(tvxAccess::text(name), value);
    return true;
}

bool MGlobal::setOptionVarValue(const MString& name, MString value)
{
    options().set(tvxAccess::text(name), tvxAccess::text(value));
    return true;
}

void MGlobal::removeOptionVar(const MString& name)
{
    options().remove(tvxAccess::text(name));
}

bool MGlobal::optionVarExists(const MString& name)
{
    return options().exists(tvxAccess::text(name));
}

bool MGlobal::getOptionVarValue(const MString& name, int& value)
{
    return take(options().asInt(tvxAccess::text(name)), value);
}

bool MGlobal::getOptionVarValue(const MString& name, double& value)
{
    return take(options().asDouble(tvxAccess::text(name)), value);
}

bool MGlobal::getOptionVarValue(const MString& name, MString& value)
{
    const auto text = options().asString(tvxAccess::text(name));
    if (text)
        value = tvxAccess::string(*text);
    return text.has_value();
}
