// Version of the interface, visibility of its symbols, and the types that every other header uses.
#pragma once

#include <cstddef>
#include <cstdint>

/// The interface that these headers describe: year, and two digits for the update.
#define MAYA_API_VERSION 201602
#define MAYA_APP_VERSION 2016

/// Marks what a library gives to others. Plug-ins are built with hidden visibility, so classes that cross the
/// border between libraries say so.
#define FND_EXPORT __attribute__((visibility("default")))
#define OPENMAYA_EXPORT __attribute__((visibility("default")))
#define OPENMAYAANIM_EXPORT __attribute__((visibility("default")))
#define OPENMAYAFX_EXPORT __attribute__((visibility("default")))
#define OPENMAYARENDER_EXPORT __attribute__((visibility("default")))
#define OPENMAYAUI_EXPORT __attribute__((visibility("default")))

/// Marks the two entry points of a plug-in.
#define PLUGIN_EXPORT __attribute__((visibility("default")))

// Short vectors, as plug-ins exchange them with the data block.
typedef short short2[2];
typedef short short3[3];
typedef int long2[2];
typedef int long3[3];
typedef int int2[2];
typedef int int3[3];
typedef float float2[2];
typedef float float3[3];
typedef double double2[2];
typedef double double3[3];
typedef double double4[4];

typedef long MInt64;
typedef unsigned long MUint64;

/// Integers wide enough for a pointer.
typedef intptr_t MIntPtrSz;
typedef uintptr_t MUintPtrSz;

class MObject;
class MStatus;
class MSyntax;

/// Makes an instance of a plug-in's class; Maya owns and deletes it.
typedef void* (*MCreatorFunction)();
/// Describes the flags of a plug-in's command.
typedef MSyntax (*MCreateSyntaxFunction)();
/// Declares the attributes of a plug-in's node type.
typedef MStatus (*MInitializeFunction)();
