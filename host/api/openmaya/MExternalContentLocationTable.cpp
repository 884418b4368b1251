// MExternalContentLocationTable: where the files of a node are to be taken from.
#include <maya/MExternalContentLocationTable.h>
#include <maya/MString.h>

#include "support/access.h"
#include "support/apiCall.h"
#include "support/contentTable.h"

using namespace tvxhost::api;

MExternalContentLocationTable::MExternalContentLocationTable() : table(new ContentTable) {}

MExternalContentLocationTable::~MExternalContentLocationTable()
{
    delete table;
}

MStatus MExternalContentLocationTable::addEntry(const MString& key, const MString& location)
{
    TVX_API_CALL("MExternalContentLocationTable::addEntry");
    const bool isNew =
        table->entries
            .emplace(tvxAccess::text(key), ContentTable::Entry{tvxAccess::text(location), {}, {}, {}})
            .second;
    return isNew ? MStatus() : failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
}

MStatus MExternalContentLocationTable::getEntry(unsigned int index, MString& key, MString& location) const
{
    TVX_API_CALL("MExternalContentLocationTable::getEntry");
    const auto place = table->at(index);
    if (place == table->entries.end())
        return failure(StatusText::noElementAtIndex);
    key = tvxAccess::string(place->first);
    location = tvxAccess::string(place->second.location);
    return MS::kSuccess;
}

MStatus MExternalContentLocationTable::getLocation(const MString& key, MString& location) const
{
    TVX_API_CALL("MExternalContentLocationTable::getLocation");
    const auto place = table->entries.find(tvxAccess::text(key));
    if (place == table->entries.end())
        return failure(StatusText::itemNotFound);
    location = tvxAccess::string(place->second.location);
    return MS::kSuccess;
}

unsigned int MExternalContentLocationTable::length() const
{
    return static_cast<unsigned int>(table->entries.size());
}
