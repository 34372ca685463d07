#pragma once

#include <QtGlobal>

#ifdef VARN_COMMON_THEME_BUILD
#define VARN_COMMON_THEME_EXPORT Q_DECL_EXPORT
#else
#define VARN_COMMON_THEME_EXPORT Q_DECL_IMPORT
#endif
