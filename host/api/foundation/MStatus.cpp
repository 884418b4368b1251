// MStatus: the outcome of a call.
#include <maya/MStatus.h>
#include <maya/MString.h>

#include "support/status.h"

#include <iostream>

using tvxhost::api::describe;

MStatus::MStatus(MStatusCode code)
    : fStatusCode(static_cast<unsigned char>(code)), fInternalStatusCode(kNoInternalCode),
      fStatus(code == kSuccess)
{
}

MString MStatus::errorString() const
{
    return MString(describe(*this).c_str());
}

void MStatus::perror(const char* prefix) const
{
    if (prefix && *prefix)
        std::cerr << prefix << ": ";
    std::cerr << describe(*this) << std::endl;
}

void MStatus::perror(const MString& prefix) const
{
    perror(prefix.asChar());
}

std::ostream& operator<<(std::ostream& out, MStatus& status)
{
    return out << describe(status);
}
