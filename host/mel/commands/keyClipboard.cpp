// Putting pieces of curves onto others; see keyClipboard.h.
#include "keyClipboard.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::AnimCurveKeys;
using engine::AnimKey;
using engine::KeySide;

namespace {

constexpr double kSame = AnimCurveKeys::kSameInput;

void scaleInputs(AnimCurveKeys& keys, double factor)
{
    const double start = keys.keys.front().at;
    for (AnimKey& key : keys.keys) {
        key.at = start + (key.at - start) * factor;
        for (const KeySide side : {KeySide::in, KeySide::out})
            key.side(side).direction.x *= factor;
    }
}

/// Keeps what lies within a length from the start, the shape up to there included.
void cutOff(AnimCurveKeys& keys, double length)
{
    const double end = keys.keys.front().at + length;
    if (keys.keys.back().at <= end + kSame)
        return;
    keys.insertOnCurve(end);
    keys.keys.resize(keys.firstBehind(end + kSame));
}

void bringToLength(AnimCurveKeys& piece, const Paste& paste)
{
    const double wanted = paste.end - paste.start;
    const double length = piece.keys.back().at - piece.keys.front().at;
    if (paste.fitting == PasteFitting::scale && length > 0.0)
        scaleInputs(piece, wanted / length);
    if (paste.fitting == PasteFitting::fit)
        cutOff(piece, wanted);
}

void makeRoom(AnimCurveKeys& target, const Paste& paste, double length)
{
    auto& keys = target.keys;
    switch (paste.room) {
    case PasteRoom::insert:
        for (AnimKey& key : keys)
            if (key.at > paste.start + kSame)
                key.at += length;
        return;
    case PasteRoom::replace: {
        const double end = paste.includesEnd ? paste.end + kSame : paste.end - kSame;
        const auto isInRange = [&](const AnimKey& key) {
            return key.at >= paste.start - kSame && key.at <= end;
        };
        keys.erase(std::remove_if(keys.begin(), keys.end(), isInRange), keys.end());
        return;
    }
    case PasteRoom::replaceCompletely:
        keys.clear();
        return;
    case PasteRoom::merge:
        return;
    }
}

} // namespace

double pasteKeys(AnimCurveKeys& target, AnimCurveKeys piece, const Paste& paste)
{
    bringToLength(piece, paste);
    const double first = piece.keys.front().at;
    const double length = piece.keys.back().at - first;
    makeRoom(target, paste, paste.fitting == PasteFitting::none ? length : paste.end - paste.start);
    for (AnimKey key : piece.keys) {
        key.at += paste.start - first + paste.inputOffset;
        key.value += paste.valueOffset;
        target.put(key);
    }
    return length;
}

void scaleValues(AnimCurveKeys& keys, double factor)
{
    for (AnimKey& key : keys.keys) {
        key.value *= factor;
        for (const KeySide side : {KeySide::in, KeySide::out})
            key.side(side).direction.y *= factor;
    }
}

} // namespace tvxhost::mel
