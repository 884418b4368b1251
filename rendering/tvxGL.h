// OpenGL's header, wherever the platform keeps it.
#pragma once

#if defined(_WIN32)
#include <windows.h>

#include <GL/gl.h>
#elif defined(__APPLE__)
#define GL_SILENCE_DEPRECATION
#include <OpenGL/gl.h>
#else
#include <GL/gl.h>
#endif
