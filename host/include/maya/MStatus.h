// MStatus: the outcome of a call, and the macros that report a failed one.
#pragma once

#include <maya/MIOStream.h>
#include <maya/MTypes.h>

class MString;

/// The outcome of a call: success, or why it failed. Beside the public code it carries an internal one that
/// only Maya sets; the text of an error belongs to that, so one public code has many texts.
class OPENMAYA_EXPORT MStatus
{
public:
    enum MStatusCode
    {
        kSuccess = 0,
        kFailure = 1,
        kInsufficientMemory = 2,
        kInvalidParameter = 3, ///< an argument that the call cannot use
        kLicenseFailure = 4,
        kUnknownParameter = 5, ///< from `compute`: not a plug of this node type; Maya then looks further
        kNotImplemented = 6,
        kNotFound = 7,
        kEndOfFile = 8,
    };

    /// Success.
    MStatus() : fStatusCode(kSuccess), fInternalStatusCode(kNoInternalCode), fStatus(true) {}

    /// A status without an internal code.
    MStatus(MStatusCode code);

    MStatus(const MStatus& other)
        : fStatusCode(other.fStatusCode), fInternalStatusCode(other.fInternalStatusCode),
          fStatus(other.fStatus)
    {
    }

    MStatus& operator=(const MStatus& rhs)
    {
        set(rhs.fStatus, rhs.fStatusCode, rhs.fInternalStatusCode);
        return *this;
    }

    /// Compare the public codes; the internal code does not count.
    bool operator==(const MStatus& rhs) const { return fStatusCode == rhs.fStatusCode; }
    bool operator==(const MStatusCode rhs) const { return fStatusCode == rhs; }
    bool operator!=(const MStatus& rhs) const { return !(*this == rhs); }
    bool operator!=(const MStatusCode rhs) const { return !(*this == rhs); }

    /// True for a failure.
    bool error() const { return !fStatus; }

    /// True for success.
    operator bool() const { return fStatus; }

    /// Back to success.
    void clear() { setSuccess(); }
    void setSuccess() { set(true, kSuccess, kNoInternalCode); }

    MStatusCode statusCode() const { return static_cast<MStatusCode>(fStatusCode); }

    /// The code's name and a sentence, as in "(kFailure): Object does not exist".
    MString errorString() const;

    /// Writes `prefix: ` and the text of the error to the standard error stream; no colon for an empty
    /// prefix.
    void perror(const char* prefix) const;
    void perror(const MString& prefix) const;

    /// For Maya itself: all three parts at once.
    void set(bool status, unsigned char statusCode, unsigned char internalStatusCode)
    {
        fStatusCode = statusCode;
        fInternalStatusCode = internalStatusCode;
        fStatus = status;
    }

private:
    friend class tvxAccess;

    enum : unsigned char
    {
        kNoInternalCode = 0xff
    };

    unsigned char fStatusCode;
    unsigned char fInternalStatusCode;
    bool fStatus;
};

inline bool operator==(const MStatus::MStatusCode code, const MStatus& status)
{
    return status == code;
}

inline bool operator!=(const MStatus::MStatusCode code, const MStatus& status)
{
    return status != code;
}

/// Writes the text of the error. Takes a status that can change, so a temporary cannot be written.
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, MStatus& status);

#ifndef MNoMSTypedef
typedef MStatus MS;
#endif

/// Says on the standard error stream where a call failed, and how. For the macros below.
#define TVX_REPORT_MSTATUS(status)                                                                           \
    do {                                                                                                     \
        std::cerr << "\nAPI error detected in " << __FILE__ << " at line " << __LINE__ << std::endl;         \
        (status).perror("");                                                                                 \
    } while (0)

/// Evaluates its argument once, and reports a failure.
#define CHECK_MSTATUS(expression)                                                                            \
    {                                                                                                        \
        const MStatus checkedMStatus = (expression);                                                         \
        if (MStatus::kSuccess != checkedMStatus)                                                             \
            TVX_REPORT_MSTATUS(checkedMStatus);                                                              \
    }

/// Evaluates its argument once; reports a failure and returns `value`.
#define CHECK_MSTATUS_AND_RETURN(expression, value)                                                          \
    {                                                                                                        \
        const MStatus checkedMStatus = (expression);                                                         \
        if (MStatus::kSuccess != checkedMStatus) {                                                           \
            TVX_REPORT_MSTATUS(checkedMStatus);                                                              \
            return (value);                                                                                  \
        }                                                                                                    \
    }

/// Evaluates its argument once; reports a failure and returns it.
#define CHECK_MSTATUS_AND_RETURN_IT(expression)                                                              \
    {                                                                                                        \
        const MStatus checkedMStatus = (expression);                                                         \
        if (MStatus::kSuccess != checkedMStatus) {                                                           \
            TVX_REPORT_MSTATUS(checkedMStatus);                                                              \
            return checkedMStatus;                                                                           \
        }                                                                                                    \
    }
