// Object: see object.h.
#include "object.h"

namespace tvxhost::engine {

std::uint64_t Object::s_lifeChanges = 0;

Object::~Object() = default;

} // namespace tvxhost::engine
