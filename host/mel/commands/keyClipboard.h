// KeyClipboard: pieces of animation curves that were copied, and how they are put onto other curves.
#pragma once

#include "engine/animCurveKeys.h"

#include <string>
#include <vector>

namespace tvxhost::mel {

/// A piece of one curve.
struct CopiedCurve
{
    /// From the object that was named to the node with the curve: kUp, or the place among the children.
    std::vector<int> way;
    static constexpr int kUp = -1;

    std::string attribute; ///< long name; empty when the curve fed nothing
    bool isTimed = true;
    double valuePerUi = 1.0;    ///< internal units of one UI unit of the values
    engine::AnimCurveKeys keys; ///< at least one

    double start() const { return keys.keys.front().at; }
    double length() const { return keys.keys.back().at - start(); }
};

/// The curves of one object that was named.
struct CopiedObject
{
    std::string name; ///< without the path
    std::vector<CopiedCurve> curves;
};

using KeyClipboard = std::vector<CopiedObject>;

/// What happens to the keys that a target has already.
enum class PasteRoom
{
    insert,            ///< those behind the start move on by the length of the piece
    replace,           ///< those in the range go
    replaceCompletely, ///< all go
    merge              ///< they stay, but for those that a new key meets
};

/// How a piece is brought to the length of the range.
enum class PasteFitting
{
    none,
    scale, ///< stretched
    fit    ///< cut off
};

/// One paste: a piece that goes from `start` on, the range being what -time says or as long as the piece.
struct Paste
{
    PasteRoom room = PasteRoom::insert;
    PasteFitting fitting = PasteFitting::none;
    double start = 0.0;
    double end = 0.0;
    bool includesEnd = true;  ///< the key at the end of the range is replaced too
    double inputOffset = 0.0; ///< added to the places of the piece
    double valueOffset = 0.0;
};

/// Puts a piece onto a curve. Returns how far the piece reached on it.
double pasteKeys(engine::AnimCurveKeys& target, engine::AnimCurveKeys piece, const Paste& paste);

/// Makes internal values of one sort those of another that look the same in the UI.
void scaleValues(engine::AnimCurveKeys& keys, double factor);

} // namespace tvxhost::mel
