// Marks what leaves the core library.
#pragma once

#if defined(_WIN32)
#if defined(tvxCore_EXPORTS)
#define TVX_CORE_API __declspec(dllexport)
#else
#define TVX_CORE_API __declspec(dllimport)
#endif
#else
#define TVX_CORE_API __attribute__((visibility("default")))
#endif
