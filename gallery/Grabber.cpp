#include "Grabber.h"

#include "Appearance.h"
#include "GalleryWindow.h"

#include <QtCore/QDir>

GrabResult grabAll(const GrabPlan &plan)
{
    GrabResult result;
    const QDir folder(plan.folder);
    if (!folder.mkpath(QStringLiteral("."))) {
        result.error = QStringLiteral("Can't create the folder %1.").arg(plan.folder);
        return result;
    }
    Appearance appearance;
    appearance.start(plan.skins.value(0), plan.languages.value(0), plan.documents);
    GalleryWindow window(&appearance);
    for (const QString &language : plan.languages) {
        for (const QString &skin : plan.skins) {
            appearance.applyLanguage(language);
            appearance.applySkin(skin);
            for (const QString &page : plan.pages) {
                window.openPage(page);
                const QString path = folder.filePath(QStringLiteral("%1-%2-%3.png").arg(page, skin, language));
                if (!window.picture().save(path)) {
                    result.error = QStringLiteral("Can't write %1.").arg(path);
                    return result;
                }
                result.paths << path;
            }
        }
    }
    return result;
}
