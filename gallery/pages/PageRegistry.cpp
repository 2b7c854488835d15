#include "PageRegistry.h"

#include "AnimationPage.h"
#include "BoxesPage.h"
#include "ButtonsPage.h"
#include "ChecksPage.h"
#include "CombosPage.h"
#include "DialogsPage.h"
#include "DocksPage.h"
#include "EnginePage.h"
#include "FieldsPage.h"
#include "LabelsPage.h"
#include "MenusPage.h"
#include "SlidersPage.h"
#include "SpinBoxesPage.h"
#include "SwitchesPage.h"
#include "ToolTipsPage.h"
#include "WindowsPage.h"

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
        { QStringLiteral("labels"), QT_TRANSLATE_NOOP("PageRegistry", "Labels and lines"),
            QT_TRANSLATE_NOOP("PageRegistry", "Texts with a look of their own, separators and group boxes."),
            create<LabelsPage> },
        { QStringLiteral("fields"), QT_TRANSLATE_NOOP("PageRegistry", "Text fields"),
            QT_TRANSLATE_NOOP(
                "PageRegistry", "Line edits in three looks, fields that ask for a value, and texts of several lines."),
            create<FieldsPage> },
        { QStringLiteral("combos"), QT_TRANSLATE_NOOP("PageRegistry", "Combo boxes"),
            QT_TRANSLATE_NOOP("PageRegistry", "One value or several from a list, and any widget in its place."),
            create<CombosPage> },
        { QStringLiteral("spinboxes"), QT_TRANSLATE_NOOP("PageRegistry", "Spin boxes"),
            QT_TRANSLATE_NOOP("PageRegistry", "Whole numbers up to 64 bits, with a slider or without."),
            create<SpinBoxesPage> },
        { QStringLiteral("sliders"), QT_TRANSLATE_NOOP("PageRegistry", "Sliders"),
            QT_TRANSLATE_NOOP("PageRegistry", "Values, levels and ranges, with labels, tips and stages."),
            create<SlidersPage> },
        { QStringLiteral("switches"), QT_TRANSLATE_NOOP("PageRegistry", "Switches and dots"),
            QT_TRANSLATE_NOOP("PageRegistry", "One of a few choices that are all in view, and rows of dots for steps."),
            create<SwitchesPage> },
        { QStringLiteral("animation"), QT_TRANSLATE_NOOP("PageRegistry", "Animation"),
            QT_TRANSLATE_NOOP("PageRegistry", "Frames from a strip or a list of pictures, played once or for good."),
            create<AnimationPage> },
        { QStringLiteral("menus"), QT_TRANSLATE_NOOP("PageRegistry", "Menus"),
            QT_TRANSLATE_NOOP("PageRegistry", "Everything that can stand in a menu, and what pops it up."),
            create<MenusPage> },
        { QStringLiteral("windows"), QT_TRANSLATE_NOOP("PageRegistry", "Windows"),
            QT_TRANSLATE_NOOP("PageRegistry", "Frameless windows with title bar, buttons and edges to stretch."),
            create<WindowsPage> },
        { QStringLiteral("docks"), QT_TRANSLATE_NOOP("PageRegistry", "Docks and tool bars"),
            QT_TRANSLATE_NOOP("PageRegistry", "Panels at the sides of a window or beside it, and a row of tools."),
            create<DocksPage> },
        { QStringLiteral("dialogs"), QT_TRANSLATE_NOOP("PageRegistry", "Dialogs"),
            QT_TRANSLATE_NOOP("PageRegistry", "Message boxes for every occasion, and file dialogs."),
            create<DialogsPage> },
        { QStringLiteral("tooltips"), QT_TRANSLATE_NOOP("PageRegistry", "Tool tips"),
            QT_TRANSLATE_NOOP("PageRegistry", "Tips with a marker, in one line or several."), create<ToolTipsPage> },
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
