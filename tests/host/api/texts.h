// Texts of the API and of the script editor as the standard library's.
#pragma once

#include "engine/scene.h"

#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>

#include <string>
#include <vector>

namespace tvxhost::api::test {

using Texts = std::vector<std::string>;

inline std::string text(const MString& string)
{
    return string.asChar();
}

/// "(kCode): text"
inline std::string text(const MStatus& status)
{
    return text(status.errorString());
}

inline Texts texts(const MStringArray& array)
{
    Texts all;
    for (unsigned int i = 0; i < array.length(); ++i)
        all.push_back(array[i].asChar());
    return all;
}

/// What the script editor showed, oldest first.
inline Texts shown(engine::Scene& scene, engine::MessageKind kind)
{
    Texts all;
    for (const engine::Message& message : scene.scriptEditor().history())
        if (message.kind == kind)
            all.push_back(message.text);
    return all;
}

} // namespace tvxhost::api::test
