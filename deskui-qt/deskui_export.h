#pragma once

#include <QtGlobal>

/// Exports a class from the shared library. All other symbols of the library are hidden.
#if defined(DESKUI_BUILD)
#define DESKUI_EXPORT Q_DECL_EXPORT
#else
#define DESKUI_EXPORT Q_DECL_IMPORT
#endif
