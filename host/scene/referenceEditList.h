// All edits of a scene's references, as commands list and change them.
#pragma once

#include "referenceEditText.h"

#include "engine/reference.h"
#include "engine/scene.h"

#include <functional>
#include <string>
#include <vector>

namespace tvxhost::scene {

struct ListedEdit
{
    engine::Reference* storedOn = nullptr; ///< whose node keeps it
    OwnedEdit edit;
    bool isApplied = false; ///< its nodes are there and are as it says
};

/// The edits that the scene and the files of its references make, in the order in which they are applied.
std::vector<ListedEdit> listEdits(engine::Scene& scene);

/// Which edits are meant. Names that are empty mean any.
struct EditFilter
{
    std::string command;       ///< "setAttr", …
    std::string referenceNode; ///< that keeps them
    std::string target;        ///< a reference node, or a node or plug that they change
    bool successful = true;
    bool failed = true;
};
bool isMeant(engine::Scene& scene, const EditFilter& filter, const ListedEdit& edit);

/// What becomes of an edit: changed in place; false: it is removed.
using EditChange = std::function<bool(OwnedEdit&)>;
/// Changes those of the scene's own edits that are not applied and are meant; gives their number.
std::size_t changeEdits(engine::Scene& scene, const EditFilter& filter, const EditChange& change);
/// Applies what is kept with a loaded reference of the scene and can be applied now.
void applyFailedEdits(engine::Scene& scene, engine::Reference& reference);

/// Puts another node, plug or attribute (".translateX") in the place of one that an edit changes.
void changeTarget(OwnedEdit& edit, const std::string& before, const std::string& after);

} // namespace tvxhost::scene
