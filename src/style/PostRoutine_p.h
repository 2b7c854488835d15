#pragma once

// Not part of the API. It may change from version to version without notice.

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>

/// Empties a cache of pixmaps or icons together with the application object, which they must not outlive, for each
/// application object that comes.
class PostRoutine
{
public:
    explicit PostRoutine(QtCleanUpFunction routine) : m_pRoutine(routine) { }

    /// To be called at each use of the cache.
    void ensure()
    {
        QCoreApplication *application = QCoreApplication::instance();
        if (!application || application == m_pApplication)
            return;
        m_pApplication = application;
        qAddPostRoutine(m_pRoutine);
    }

private:
    QtCleanUpFunction m_pRoutine;
    QPointer<QCoreApplication> m_pApplication;
};
