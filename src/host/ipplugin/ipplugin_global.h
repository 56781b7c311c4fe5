#pragma once

#include <QtGlobal>

#ifdef TARVO_IPPLUGIN_LIBRARY
#define TARVO_IPPLUGIN_EXPORT Q_DECL_EXPORT
#else
#define TARVO_IPPLUGIN_EXPORT Q_DECL_IMPORT
#endif
