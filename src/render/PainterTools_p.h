#pragma once

// Not part of the API. It may change from version to version without notice.

#include <QtGui/QPainter>

/// Whether a painter can paint. A window that is too large for a surface gives its widgets painters that can't.
inline bool isUsable(const QPainter *painter)
{
    return painter && painter->isActive();
}

/// Sets a render hint and puts it back.
class HintGuard
{
public:
    HintGuard(QPainter *painter, QPainter::RenderHint hint)
        : m_pPainter(painter), m_nHint(hint), m_bWasOn(painter->testRenderHint(hint))
    {
        if (!m_bWasOn)
            painter->setRenderHint(hint, true);
    }
    ~HintGuard()
    {
        if (!m_bWasOn)
            m_pPainter->setRenderHint(m_nHint, false);
    }
    Q_DISABLE_COPY(HintGuard)

private:
    QPainter *m_pPainter;
    QPainter::RenderHint m_nHint;
    bool m_bWasOn;
};
