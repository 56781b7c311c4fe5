#pragma once

#include <QtGlobal>

#ifdef TARVO_DEV_LIBRARY
#define TARVO_DEV_EXPORT Q_DECL_EXPORT
#else
#define TARVO_DEV_EXPORT Q_DECL_IMPORT
#endif
