#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/Custom.h>

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QPointer>
#include <QtCore/QSet>

/// The process-wide state of the application services.
class ZANTHIC_TEST_EXPORT CustomPrivate
{
public:
    static bool isFontFamilyChange() { return m_bIsFontFamilyChange; }
    static void setIsFontFamilyChange(bool change) { m_bIsFontFamilyChange = change; }

    static void setShortcutWidget(QWidget *widget);
    static QWidget *shortcutWidget();

    /// A window opens modally; the main dialog doesn't count.
    static void addModalWidget(QWidget *widget);
    static void removeModalWidget(QWidget *widget);
    static int modalWidgetCount() { return m_AllModalWidget.size(); }

    /// The version text for a date in the form of the compiler's date macro.
    static QString versionText(const QString &date);

    static QMap<int, QList<QPair<Qt::KeyboardModifiers, Qt::Key>>> m_AllHotKey; ///< by hot key id
    static QSet<QWidget *> m_AllModalWidget; ///< the windows now open modally
    static QPointer<QWidget> m_ShortcutWidget; ///< the main dialog; null at start
    static bool m_bIsFontFamilyChange; ///< whether the last Custom::setLanguage() changed the global family
};
