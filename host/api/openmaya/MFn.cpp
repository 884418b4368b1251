// MFn: the types of objects and of function sets.
#include <maya/MFn.h>

MFn::MFn() : nodeType(kInvalid) {}
