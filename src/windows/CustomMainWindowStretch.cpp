// How the mouse stretches a window. The decisions are those of WindowGeometry.

#include "windows/CustomMainWindow_p.h"

#include "windows/Screens_p.h"
#include "windows/WindowGeometry_p.h"

#include <Zanthic/CustomFrame.h>
#include <Zanthic/CustomTitleBar.h>

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>

#include <algorithm>

bool CustomMainWindowPrivate::isOverIgnored(const QPoint &globalPos) const
{
    return std::any_of(m_lstStrechIgnore.cbegin(), m_lstStrechIgnore.cend(), [globalPos](const QWidget *widget) {
        return widget && widget->rect().contains(widget->mapFromGlobal(globalPos));
    });
}

bool CustomMainWindowPrivate::canStretch() const
{
    // A window that filled the screen already has not been resized, and doesn't know.
    return m_bCanStrech && !m_pTitleBar->cIsMaximized();
}

void CustomMainWindowPrivate::judgeCursorPos(const QPoint &globalPos)
{
    if (g_StretchHelper.pressed || !canStretch())
        return;
    const QRect frame(q->mapToGlobal(QPoint(0, 0)), m_pFrame->size());
    const int oldZone = g_StretchHelper.zone;
    g_StretchHelper.zone = 0;
    if (!frame.contains(globalPos))
        return;
    WindowGeometry::Zone zone = WindowGeometry::zoneAt(globalPos, frame, m_fStrechEdges);
    if (isOverIgnored(globalPos))
        zone = {};
    g_StretchHelper.zone = zone.edge;
    QCursor cursor = q->cursor();
    cursor.setShape(zone.cursor);
    showCursor(oldZone, cursor);
    m_bOwnsCursor = zone.edge != 0;
}

void CustomMainWindowPrivate::showCursor(int oldZone, const QCursor &cursor)
{
    const int zone = g_StretchHelper.zone;
    if (zone != oldZone) {
        if (QGuiApplication::overrideCursor())
            QGuiApplication::changeOverrideCursor(cursor);
        else
            QGuiApplication::setOverrideCursor(cursor);
    }
    if (zone != 0 && !QGuiApplication::overrideCursor())
        QGuiApplication::setOverrideCursor(cursor);
    else if (zone == 0 && QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
}

void CustomMainWindowPrivate::mousePressed(const QPoint &globalPos)
{
    StretchHelper &helper = g_StretchHelper;
    if (helper.pressed && helper.window && helper.window != q)
        get(helper.window)->endStretch();
    judgeCursorPos(globalPos);
    const bool running = helper.pressed && helper.window == q;
    // A maximised window is not judged, so that the zone may be one of another window.
    helper.pressed = canStretch() && helper.zone != 0;
    if (!helper.pressed)
        return;
    helper.startX = globalPos.x();
    helper.startY = globalPos.y();
    helper.startGeometry = q->geometry();
    helper.window = q;
    // A second button in the middle of a stretch finds moving switched off by the first.
    if (!running)
        helper.enableMove = m_pTitleBar->cEnableMove();
    m_pTitleBar->cSetEnableMove(false);
}

void CustomMainWindowPrivate::mouseMove(const QPoint &globalPos)
{
    const StretchHelper helper = g_StretchHelper;
    if (!helper.pressed || helper.window != q)
        return;
    const QPoint delta
        = WindowGeometry::strechDelta(QPoint(helper.startX, helper.startY), globalPos, Screens::availableGeometry(q));
    const bool ownMinimum = m_oMinStrechSize.width() >= 0 && m_oMinStrechSize.height() >= 0;
    const QSize minimum = ownMinimum ? m_oMinStrechSize : q->minimumSize();
    const QRect geometry = WindowGeometry::stretched(helper.startGeometry, helper.zone, delta, minimum);
    if (geometry == helper.startGeometry)
        return;
    const QPointer<CustomMainWindow> self(q);
    q->setGeometry(geometry);
    if (!self || q->size() == geometry.size())
        return;
    // A window of fixed size follows all the same, and keeps the new size.
    q->setFixedSize(geometry.size());
    if (self)
        q->setGeometry(geometry);
}

void CustomMainWindowPrivate::leaveStretch()
{
    m_oCursorTimer.stop();
    endStretch();
}

void CustomMainWindowPrivate::endStretch()
{
    if (g_StretchHelper.window == q) {
        if (g_StretchHelper.pressed)
            m_pTitleBar->cSetEnableMove(g_StretchHelper.enableMove);
        g_StretchHelper = StretchHelper();
    }
    restoreCursor();
}

void CustomMainWindowPrivate::restoreCursor()
{
    if (!m_bOwnsCursor)
        return;
    m_bOwnsCursor = false;
    g_StretchHelper.zone = 0;
    QGuiApplication::restoreOverrideCursor();
}

void CustomMainWindowPrivate::mouseRelease()
{
    StretchHelper &helper = g_StretchHelper;
    // The release of a stretch may come to another window.
    const CustomMainWindow *window = helper.pressed && helper.window ? helper.window : q;
    get(window)->m_pTitleBar->cSetEnableMove(helper.enableMove);
    helper.enableMove = true;
    helper.pressed = false;
}
