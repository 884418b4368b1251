// MAnimCurveChange: edits of animation curves that can be taken back.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

namespace tvxhost {
namespace api {
struct CurveChanges;
}
} // namespace tvxhost

/// Records what MFnAnimCurve changes. undoIt() takes all of it back, the last edit first, and redoIt() makes
/// it again. Cannot be copied.
class OPENMAYAANIM_EXPORT MAnimCurveChange
{
public:
    /// Nothing recorded.
    MAnimCurveChange(MStatus* ReturnStatus = nullptr);
    ~MAnimCurveChange();

    /// Takes the edits back, makes them again. kFailure when a curve is gone.
    MStatus undoIt();
    MStatus redoIt();

    /// Whether the edits are part of an interaction that goes on; kept for the caller.
    bool isInteractive() const;
    void setInteractive(bool value);

    /// The name of this class.
    static const char* className();

private:
    friend struct tvxhost::api::CurveChanges;
    MAnimCurveChange(const MAnimCurveChange&) = delete;
    MAnimCurveChange& operator=(const MAnimCurveChange&) = delete;

    tvxhost::api::CurveChanges* changes; ///< owned
};
