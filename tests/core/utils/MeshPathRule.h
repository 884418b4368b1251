// The meshes below a path by the rule as it is written, without any thought of speed.
#pragma once

#include <maya/MDagPath.h>

#include <list>
#include <string>

namespace tarvox::crowd::test {

/// How well a candidate continues a path: the leading characters that both names share, over at most 10,000;
/// one more for a "|" where the path's name ends first.
int literalScore(const std::string& candidate, const std::string& path);

/// What MayaUtils::collectMeshPaths is to give: depth first, and to each child along the first of those of
/// all paths to it that have the highest score.
void collectLiterally(const MDagPath& path, std::list<MDagPath>& meshes);

} // namespace tarvox::crowd::test
