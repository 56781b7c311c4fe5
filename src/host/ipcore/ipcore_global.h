#pragma once

#include <QtGlobal>

#ifdef TARVO_IPCORE_LIBRARY
#define TARVO_IPCORE_EXPORT Q_DECL_EXPORT
#else
#define TARVO_IPCORE_EXPORT Q_DECL_IMPORT
#endif
