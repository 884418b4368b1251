// MExternalContentInfoTable: the files that a node needs.
#include <maya/MExternalContentInfoTable.h>
#include <maya/MFileObject.h>
#include <maya/MString.h>

#include "support/access.h"
#include "support/apiCall.h"
#include "support/contentTable.h"

using namespace tvxhost::api;

namespace {

using Entry = ContentTable::Entry;

Entry entryOf(const MString& location, const MString& resolved, const MString& context,
              const MStringArray& roles)
{
    Entry entry{tvxAccess::text(location), tvxAccess::text(resolved), tvxAccess::text(context), {}};
    for (unsigned int i = 0; i < roles.length(); ++i)
        entry.roles.push_back(tvxAccess::text(roles[i]));
    return entry;
}

/// Where a file is; empty when it is nowhere.
MString found(const MString& location)
{
    MFileObject file;
    file.setRawFullName(location);
    return file.exists() ? file.resolvedFullName() : MString();
}

MStatus add(ContentTable& table, const MString& key, Entry entry)
{
    const bool isNew = table.entries.emplace(tvxAccess::text(key), std::move(entry)).second;
    return isNew ? MStatus() : failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
}

/// Gives the entry at a place, which may be the end.
MStatus giveEntry(const ContentTable& table, ContentTable::Place place, StatusText otherwise,
                  MString& location, MString& resolved, MString& context, MStringArray& roles)
{
    if (place == table.entries.end())
        return failure(MS::kInvalidParameter, otherwise);
    const Entry& entry = place->second;
    location = tvxAccess::string(entry.location);
    resolved = tvxAccess::string(entry.resolved);
    context = tvxAccess::string(entry.context);
    roles.clear();
    for (const std::string& role : entry.roles)
        roles.append(tvxAccess::string(role));
    return MS::kSuccess;
}

} // namespace

MExternalContentInfoTable::MExternalContentInfoTable() : table(new ContentTable) {}

MExternalContentInfoTable::~MExternalContentInfoTable()
{
    delete table;
}

MStatus MExternalContentInfoTable::addResolvedEntry(const MString& key, const MString& unresolvedLocation,
                                                    const MString& resolvedLocation,
                                                    const MStringArray& roles)
{
    return addResolvedEntry(key, unresolvedLocation, resolvedLocation, MString(), roles);
}

MStatus MExternalContentInfoTable::addResolvedEntry(const MString& key, const MString& unresolvedLocation,
                                                    const MString& resolvedLocation,
                                                    const MString& contextNodeFullName,
                                                    const MStringArray& roles)
{
    TVX_API_CALL("MExternalContentInfoTable::addResolvedEntry");
    return add(*table, key, entryOf(unresolvedLocation, resolvedLocation, contextNodeFullName, roles));
}

MStatus MExternalContentInfoTable::addUnresolvedEntry(const MString& key, const MString& unresolvedLocation,
                                                      const MStringArray& roles)
{
    return addUnresolvedEntry(key, unresolvedLocation, MString(), roles);
}

MStatus MExternalContentInfoTable::addUnresolvedEntry(const MString& key, const MString& unresolvedLocation,
                                                      const MString& contextNodeFullName,
                                                      const MStringArray& roles)
{
    TVX_API_CALL("MExternalContentInfoTable::addUnresolvedEntry");
    return add(*table, key,
               entryOf(unresolvedLocation, found(unresolvedLocation), contextNodeFullName, roles));
}

MStatus MExternalContentInfoTable::getInfo(const MString& key, MString& unresolvedLocation,
                                           MString& resolvedLocation, MStringArray& roles) const
{
    MString context;
    return getInfo(key, unresolvedLocation, resolvedLocation, context, roles);
}

MStatus MExternalContentInfoTable::getInfo(const MString& key, MString& unresolvedLocation,
                                           MString& resolvedLocation, MString& contextNodeFullName,
                                           MStringArray& roles) const
{
    TVX_API_CALL("MExternalContentInfoTable::getInfo");
    return giveEntry(*table, table->entries.find(tvxAccess::text(key)), StatusText::itemNotFound,
                     unresolvedLocation, resolvedLocation, contextNodeFullName, roles);
}

MStatus MExternalContentInfoTable::getEntry(unsigned int index, MString& key, MString& unresolvedLocation,
                                            MString& resolvedLocation, MStringArray& roles) const
{
    MString context;
    return getEntry(index, key, unresolvedLocation, resolvedLocation, context, roles);
}

MStatus MExternalContentInfoTable::getEntry(unsigned int index, MString& key, MString& unresolvedLocation,
                                            MString& resolvedLocation, MString& contextNodeFullName,
                                            MStringArray& roles) const
{
    TVX_API_CALL("MExternalContentInfoTable::getEntry");
    const auto place = table->at(index);
    if (place != table->entries.end())
        key = tvxAccess::string(place->first);
    return giveEntry(*table, place, StatusText::noElementAtIndex, unresolvedLocation, resolvedLocation,
                     contextNodeFullName, roles);
}

unsigned int MExternalContentInfoTable::length() const
{
    return static_cast<unsigned int>(table->entries.size());
}
