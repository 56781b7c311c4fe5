#pragma once

#include <QtGlobal>

#ifdef TARVO_CORE_LIBRARY
#define TARVO_CORE_EXPORT Q_DECL_EXPORT
#else
#define TARVO_CORE_EXPORT Q_DECL_IMPORT
#endif
