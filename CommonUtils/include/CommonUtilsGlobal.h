#pragma once

#include <QtGlobal>

#ifdef VARN_COMMON_UTILS_BUILD
#define VARN_COMMON_UTILS_EXPORT Q_DECL_EXPORT
#else
#define VARN_COMMON_UTILS_EXPORT Q_DECL_IMPORT
#endif
