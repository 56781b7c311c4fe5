#pragma once

#include <QtGlobal>

#ifdef TARVO_UTILS_LIBRARY
#define TARVO_UTILS_EXPORT Q_DECL_EXPORT
#else
#define TARVO_UTILS_EXPORT Q_DECL_IMPORT
#endif
