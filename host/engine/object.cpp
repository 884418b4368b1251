// Object: see object.h.
#include "object.h"

namespace tvxhost::engine {

Object::~Object() = default;

} // namespace tvxhost::engine
