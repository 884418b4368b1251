// Properties of elements of the user interface: how one is declared, and those that many kinds share.
#pragma once

#include "interfaceKinds.h"

#include <cstddef>
#include <initializer_list>

namespace tvxhost::mel::interfaceProperties {

ElementProperty property(const char* shortName, const char* longName, ArgumentType type, const char* help,
                         Value otherwise);
ElementProperty text(const char* shortName, const char* longName, const char* help);
ElementProperty script(const char* shortName, const char* longName, const char* help);
ElementProperty onOff(const char* shortName, const char* longName, const char* help, bool otherwise = false);
ElementProperty whole(const char* shortName, const char* longName, const char* help, int otherwise = 0);
ElementProperty real(const char* shortName, const char* longName, const char* help, double otherwise = 0.0);
ElementProperty wholes(const char* shortName, const char* longName, std::size_t count, const char* help);
ElementProperty colour(const char* shortName, const char* longName, const char* help);
/// A property that is given for one of several columns.
ElementProperty perColumn(const char* shortName, const char* longName, ArgumentType type, const char* help);

ElementProperties joined(std::initializer_list<ElementProperties> lists);

const ElementProperties& label();
const ElementProperties& command();
const ElementProperties& changes();
/// What controls and layouts have.
const ElementProperties& widget();
/// A picture with a text.
const ElementProperties& icon();
ElementProperties wholeRange();
ElementProperties realRange();
/// A label with fields beside it.
const ElementProperties& group();
/// Four values of a type.
ElementProperties values(ArgumentType type, const Value& otherwise);
const ElementProperties& columns();

} // namespace tvxhost::mel::interfaceProperties
