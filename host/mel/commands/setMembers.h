// Members of sets, by the names of the commands.
#pragma once

#include "engine/setMembers.h"

namespace tvxhost::mel {

using engine::addSetMember;
using engine::Membership;
using engine::membershipOf;
using engine::removeSetMember;
using engine::setMembers;

} // namespace tvxhost::mel
