// What the function sets of attributes share: making an attribute, its flags, its numbers.
#pragma once

#include "functionSet.h"

#include <initializer_list>
#include <optional>
#include <vector>

class MTypeId;

namespace tvxhost::api {

/// Attaches the set to a new attribute and gives the handle; a null handle and a failure for names that are
/// not legal (letters, digits and underscores, no digit first).
MObject adoptAttribute(MFnBase& set, const engine::Ref<engine::Attribute>& made, MStatus* returnStatus);

/// The attribute can still change its structure: it belongs to no type and no node yet.
bool isFree(const engine::Attribute& attribute);

/// The attributes that hold the numbers: the children of a number group, or the attribute itself.
std::vector<engine::Attribute*> numbersOf(engine::Attribute& attribute);

/// The child of the attached attribute at an index. `name` is the API function on whose behalf this is done
/// ("Class::function"), for this and all below.
MObject childAt(const MFnBase& set, const char* name, unsigned int index, MStatus* returnStatus);

/// A limit of an attribute: &Attribute::minimum and alike.
using Limit = std::optional<double> engine::Attribute::*;

bool hasLimit(const MFnBase& set, const char* name, Limit limit, MStatus* returnStatus);
MStatus getLimits(const MFnBase& set, const char* name, Limit limit, std::initializer_list<double*> values);
MStatus setLimits(MFnBase& set, const char* name, Limit limit, std::initializer_list<double> values);
MStatus getDefaults(const MFnBase& set, const char* name, std::initializer_list<double*> values);
MStatus setDefaults(MFnBase& set, const char* name, std::initializer_list<double> values);

} // namespace tvxhost::api
