#include "PageRegistry.h"

#include "BoxesPage.h"
#include "ButtonsPage.h"
#include "ChecksPage.h"
#include "EnginePage.h"

#include <QtCore/QCoreApplication>

namespace {

template <class Page>
GalleryPage *create(QWidget *parent)
{
    return new Page(parent);
}

} // namespace

const QVector<PageEntry> &pageEntries()
{
    static const QVector<PageEntry> entries = {
        { QStringLiteral("boxes"), QT_TRANSLATE_NOOP("PageRegistry", "Boxes and borders"),
            QT_TRANSLATE_NOOP("PageRegistry", "What every control is painted from: fills, borders, corners, images."),
            create<BoxesPage> },
        { QStringLiteral("buttons"), QT_TRANSLATE_NOOP("PageRegistry", "Push buttons"),
            QT_TRANSLATE_NOOP("PageRegistry", "Five looks, four statuses, icons at any side, and the click guard."),
            create<ButtonsPage> },
        { QStringLiteral("checks"), QT_TRANSLATE_NOOP("PageRegistry", "Checks and switches"),
            QT_TRANSLATE_NOOP("PageRegistry", "Check boxes, sliding switches and radio buttons."), create<ChecksPage> },
        { QStringLiteral("engine"), QT_TRANSLATE_NOOP("PageRegistry", "Style engine"),
            QT_TRANSLATE_NOOP("PageRegistry", "Ask for an attribute and see where its value comes from."),
            create<EnginePage> },
    };
    return entries;
}

QStringList pageNames()
{
    QStringList names;
    for (const PageEntry &entry : pageEntries())
        names << entry.name;
    return names;
}

QString pageTitle(const PageEntry &entry)
{
    return QCoreApplication::translate("PageRegistry", entry.title);
}

QString pageSummary(const PageEntry &entry)
{
    return QCoreApplication::translate("PageRegistry", entry.summary);
}

GalleryPage *createPage(const QString &name, QWidget *parent)
{
    for (const PageEntry &entry : pageEntries()) {
        if (entry.name != name)
            continue;
        GalleryPage *page = entry.create(parent);
        page->retranslate();
        return page;
    }
    return nullptr;
}
