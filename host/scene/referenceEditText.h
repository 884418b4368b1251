// The edits of a reference as its reference node keeps them: read, written, and told as MEL.
#pragma once

#include "engine/reference.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tvxhost::scene {

/// An edit and whose nodes it changes.
struct OwnedEdit
{
    std::string owner; ///< the reference node of the nodes that it changes
    engine::ReferenceEdit edit;
    bool hasFailed = false; ///< it could not be applied when the reference was loaded last
    std::string otherEnd;   ///< of a connection with a node of the scene itself: that node's plug, when known
};
using EditList = std::vector<OwnedEdit>;

/// The kind of edits that say what a `relationship` statement says: a kind of link, its node, and the plugs,
/// with a further number behind them.
constexpr int kRelationshipEdit = 7;

/// Takes the value of `.ed` apart; empty when it is not understood.
std::optional<EditList> readEdits(const std::string& text);
/// The value of `.ed`: first the edits that failed, then the others, by the reference nodes they concern.
std::string editsText(const std::string& referenceNode, const EditList& edits);

/// The command that an edit is named by in `-editCommand`: "setAttr", "parent", …
std::string commandOf(const engine::ReferenceEdit& edit);
/// The edit as a statement.
std::string melOf(const OwnedEdit& edit);
/// What an edit changes: nodes ("|r:body"), or plugs of them ("|r:body.translateX").
std::vector<std::string> targetsOf(const OwnedEdit& edit);

/// Gives the nodes and plugs that an edit names other names.
void renameIn(OwnedEdit& edit, const std::function<std::string(const std::string&)>& newName);

/// The positions in its words of the placeholders of a connection.
std::vector<std::size_t> placeholdersOf(const engine::ReferenceEdit& edit);
/// The index in "rRN.placeHolderList[3]"; -1 when the word is no placeholder.
int placeholderIndex(const std::string& word);
/// The placeholder as edits name it.
std::string placeholderName(const std::string& referenceNode, std::size_t index);

} // namespace tvxhost::scene
