// TypeFilter: which objects an iterator visits.
#pragma once

#include "access.h"
#include "apiTypes.h"

#include <maya/MIteratorType.h>

#include <algorithm>
#include <vector>

namespace tvxhost::api {

/// Objects to which the function set of one of some types can be attached; all objects without any type.
class TypeFilter
{
public:
    TypeFilter(MFn::Type type = MFn::kInvalid)
    {
        if (type != MFn::kInvalid)
            m_types.push_back(type);
    }
    explicit TypeFilter(const MIteratorType& info)
    {
        for (const int type : tvxAccess::filterTypes(info))
            if (type != MFn::kInvalid)
                m_types.push_back(static_cast<MFn::Type>(type));
    }

    bool accepts(const engine::Object* object) const
    {
        return m_types.empty() || std::any_of(m_types.begin(), m_types.end(),
                                              [object](MFn::Type type) { return hasFn(object, type); });
    }

    /// The first type; kInvalid when all objects are visited.
    MFn::Type first() const { return m_types.empty() ? MFn::kInvalid : m_types.front(); }
    const std::vector<MFn::Type>& types() const { return m_types; }

private:
    std::vector<MFn::Type> m_types;
};

} // namespace tvxhost::api
