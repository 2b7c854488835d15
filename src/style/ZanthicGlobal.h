#pragma once

#include <QtCore/qglobal.h>

/// \file
/// Export macros of the library.

#if defined(ZANTHIC_BUILD)
#define ZANTHIC_EXPORT Q_DECL_EXPORT
#else
#define ZANTHIC_EXPORT Q_DECL_IMPORT
#endif

// Inner parts that the library's own tests look at: visible in a build with tests, hidden in a release.
#if defined(ZANTHIC_DEVELOPER_BUILD)
#define ZANTHIC_TEST_EXPORT ZANTHIC_EXPORT
#else
#define ZANTHIC_TEST_EXPORT
#endif
