#pragma once

#include <QtGlobal>

/// Marks what the library offers. Everything else in it is hidden from its users.
#if defined(DESKUI_BUILD)
#define DESKUI_EXPORT Q_DECL_EXPORT
#else
#define DESKUI_EXPORT Q_DECL_IMPORT
#endif
