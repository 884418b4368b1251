// Outcome: how an operation of the engine ended; callers turn it into their own status or message.
#pragma once

#include <string>
#include <utility>

namespace tvxhost::engine {

/// Why an operation was refused. The API maps each to a status code and text, MEL to an error message.
enum class Reason
{
    none,              ///< it was done
    nullArgument,      ///< a null object, plug or path was given
    wrongKind,         ///< the object is of another kind than the operation needs
    doesNotExist,      ///< the object is gone, or no object has that name
    ambiguous,         ///< more than one object matches the name
    notFound,          ///< the node has no such attribute, the list no such item
    badIndex,          ///< an index out of range
    nameTaken,         ///< a type, id or attribute name that exists already
    lockedOrConnected, ///< the plug is locked or fed by a connection
    notWritable,       ///< the attribute cannot be set or be a destination
    notReadable,       ///< the attribute cannot be a source
    notConnectable,    ///< the attribute takes no connections
    typeMismatch,      ///< the kinds of value do not fit each other
    pastMinimum,       ///< below a hard limit
    pastMaximum,       ///< above a hard limit
    alreadyConnected,  ///< the destination has another source
    sameConnection,    ///< exactly that connection exists
    notConnected,      ///< no such connection
    inUse,             ///< nodes of the type exist
    cycle,             ///< the operation would make a node its own ancestor
    readOnly,          ///< a default, shared, locked or referenced node refuses the change
    invalidName,       ///< not a legal name
    noData,            ///< the plug holds no data object yet
    failed,            ///< a node's own code refused or an outside call failed; `text` says more
    notImplemented,    ///< the host does not do this
};

/// Success, or a reason with a sentence for people (no trailing full stop, names included).
struct [[nodiscard]] Outcome
{
    Reason reason = Reason::none;
    std::string text;

    Outcome() = default;
    Outcome(Reason why, std::string sentence = {}) : reason(why), text(std::move(sentence)) {}
    explicit operator bool() const { return reason == Reason::none; }
};

/// A value, or the outcome that says why there is none (the value is then default constructed).
template <class T>
struct [[nodiscard]] Expected
{
    T value{};
    Outcome outcome;

    Expected() = default;
    Expected(T v) : value(std::move(v)) {}
    Expected(Outcome why) : outcome(std::move(why)) {}
    Expected(Reason why, std::string sentence = {}) : outcome(why, std::move(sentence)) {}
    explicit operator bool() const { return static_cast<bool>(outcome); }
};

} // namespace tvxhost::engine
