#pragma once

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QRect>
#include <QtCore/QString>

QT_BEGIN_NAMESPACE
class QFont;
class QPoint;
class QWidget;
QT_END_NAMESPACE

/// Shows tool tips in the look of the skin, one at a time, in the way of QToolTip: the tip hides when a button is
/// pressed, the focus changes or a window is activated, soon after the pointer has left, and after its time is over.
/// A text is shown as it is, never as rich text; "\r\n" parts its lines.
class ZANTHIC_EXPORT CustomToolTip
{
public:
    CustomToolTip() = delete;

    /// Shows \p text below the global position \p pos, or above it where the screen ends. An empty text hides the tip
    /// after 300 ms.
    ///
    /// \p w is the widget that the tip belongs to, not owned; a new tip goes with it. The tip stays as it is while it
    /// is asked for with the same text and widget at positions inside \p rect, in coordinates of \p w, and hides when
    /// the pointer leaves \p rect. A \p rect needs a widget: without one it is left out, with a warning. A null \p rect
    /// sets no bounds.
    ///
    /// The tip lives for \p msecShowTime ms; 0 or less stands for 10 s and another 40 ms for each character beyond
    /// the first hundred. \p forceNew makes a new tip even if one is on screen.
    static void showText(
        const QPoint &pos, const QString &text, QWidget *w, const QRect &rect, int msecShowTime, bool forceNew = false);
    static void showText(const QPoint &pos, const QString &text, QWidget *w, const QRect &rect, bool forceNew = false);
    static void showText(const QPoint &pos, const QString &text, QWidget *w = nullptr, bool forceNew = false);

    /// The font of tips to come, 11 pt at start. A new tip takes Custom::globalFontFamily() as its family.
    static void setFont(const QFont &font);
    /// Where on its top edge a tip points at the position, in percent of its width; 80 at start.
    static void setSharpCornerPosition(int percent);
    /// px between two lines of text, 3 at start.
    static void setLineDistance(int distance);
};
