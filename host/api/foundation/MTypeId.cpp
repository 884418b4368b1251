// MTypeId: the number that names a type of node or data.
#include <maya/MTypeId.h>

#include "support/status.h"

MTypeId::MTypeId() : number(0) {}

MTypeId::MTypeId(unsigned int id) : number(id) {}

MTypeId::MTypeId(unsigned int prefix, unsigned int id) : number((prefix << 8) | id) {}

MTypeId::MTypeId(const MTypeId& src) : number(src.number) {}

MTypeId::~MTypeId() {}

MTypeId& MTypeId::operator=(const MTypeId& rhs)
{
    number = rhs.number;
    return *this;
}

bool MTypeId::operator==(const MTypeId& rhs) const
{
    return number == rhs.number;
}

bool MTypeId::operator!=(const MTypeId& rhs) const
{
    return number != rhs.number;
}

unsigned int MTypeId::id(MStatus* ReturnStatus) const
{
    tvxhost::api::giveSuccess(ReturnStatus);
    return number;
}

const char* MTypeId::className()
{
    return "MTypeId";
}
