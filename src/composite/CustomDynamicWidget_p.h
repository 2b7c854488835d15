#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/CustomDynamicWidget.h>

QT_BEGIN_NAMESPACE
class QTimer;
QT_END_NAMESPACE

class CustomDynamicWidgetPrivate
{
public:
    void cutFrames(const QPixmap &strip);
    int frameCount() const { return qMin(int(m_nFrameCount), m_lstFrames.size()); }

    bool m_bLoop = false;
    short m_nFrameCount = 0;
    short m_nCurrentFrame = 0; ///< the next one to show
    QTimer *m_pTimer = nullptr; ///< a child of the widget, made by the first animation
    QPixmap m_oCurrent;
    QList<QPixmap> m_lstFrames;
    PixmapType m_ePixmapType = PixmapHorizontal;
    QList<QPixmap> m_lstPixmaps;
};
