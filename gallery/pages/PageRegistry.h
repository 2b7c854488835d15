#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVector>

class GalleryPage;
class QWidget;

/// A page as the program knows it before it is made.
struct PageEntry
{
    QString name; ///< for the command line and file names
    const char *title; ///< source texts in the context "PageRegistry"
    const char *summary;
    GalleryPage *(*create)(QWidget *parent);
};

const QVector<PageEntry> &pageEntries(); ///< in the order of the list
QStringList pageNames();
QString pageTitle(const PageEntry &entry); ///< in the user's language
QString pageSummary(const PageEntry &entry); ///< in the user's language
/// A new page with its texts written, owned by the caller or \p parent; null for an unknown name.
GalleryPage *createPage(const QString &name, QWidget *parent = nullptr);
