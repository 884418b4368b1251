// Edges, vertices and faces of a mesh that something is said of: creases, and faces that are not seen.
#pragma once

#include "node.h"
#include "outcome.h"

#include <cstdint>
#include <map>

namespace tvxhost::engine {

/// What a shape's attribute of the type "dataPolyComponent" says of some components.
struct PolyComponentKind
{
    const char* attribute;
    const char* component; ///< as files name it
    bool hasValues;
};
inline constexpr PolyComponentKind kCreasedEdges{"creaseData", "Edge", true};
inline constexpr PolyComponentKind kCreasedVertices{"creaseVertexData", "Vertex", true};
inline constexpr PolyComponentKind kUnseenFaces{"holeFaceData", "Face", false};

/// By the number of a component what is said of it: how sharp a crease is; 0 where there are no values.
using PolyComponents = std::map<std::int32_t, double>;

/// Empty, too, when the attribute's words are no such list.
PolyComponents polyComponentsOf(Node& shape, const PolyComponentKind& kind);
Outcome writePolyComponents(Node& shape, const PolyComponentKind& kind, const PolyComponents& components);

} // namespace tvxhost::engine
