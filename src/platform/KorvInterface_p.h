#pragma once

// Not part of the API. It may change from version to version without notice.

#include <QtWidgets/QFileDialog>

#if defined(ZANTHIC_DEVELOPER_BUILD)
#define KORV_TEST_EXPORT Q_DECL_EXPORT
#else
#define KORV_TEST_EXPORT
#endif

/// What the library wants of the platform. The dialogs block, and give an empty text when they are cancelled or when
/// \p parent, which may be null, is deleted under them.
namespace KorvInterface {

/// Asks for a directory, starting in \p dir. \p supported, which may be null, is cleared when the one chosen can't be
/// written.
KORV_TEST_EXPORT QString getExistingDirectory(
    QWidget *parent, const QString &caption, const QString &dir, bool *supported, QFileDialog::Options options);
/// Asks for the name of a file to save. \p dir is a directory or a file in it, \p initialName the name to start with.
/// \p supported, which may be null, is cleared when the directory chosen can't be written.
KORV_TEST_EXPORT QString getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
    const QString &filter, const QString &initialName, bool *supported, QString *selectedFilter,
    QFileDialog::Options options);
/// Asks for a file that exists. \p path is a directory or a file in it, which is selected.
KORV_TEST_EXPORT QString getOpenFileName(QWidget *parent, const QString &caption, const QString &path,
    const QString &filter, QString *selectedFilter, QFileDialog::Options options);

/// Whether \p flag, which isn't 0, is wholly in \p value.
constexpr bool testFlag(int flag, int value)
{
    return flag != 0 && (value & flag) == flag;
}

} // namespace KorvInterface
