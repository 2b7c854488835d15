#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QBasicTimer>
#include <QtCore/QPointer>
#include <QtWidgets/QLabel>

/// The window of CustomToolTip. One lives at a time; a new one deletes the old one.
class ZANTHIC_TEST_EXPORT TipLabel : public QLabel
{
    Q_OBJECT

public:
    TipLabel(const QString &text, QWidget *w, int msecDisplayTime);
    ~TipLabel() override;

    void reuseTip(const QString &text, int msec);
    void hideTip();
    void hideTipImmediately();
    void setTipRect(QWidget *w, const QRect &r);
    void placeTip(const QPoint &pos, QWidget *w);
    /// \p pos is in coordinates of \p o.
    bool tipChanged(const QPoint &pos, const QString &text, const QObject *o) const;
    QPainterPath creatPath() const; // spelled so

    static QFont &tipFont(); ///< the font of tips

    static TipLabel *instance;
    static int s_nSharpCornerPosition; ///< of the marker, percent of the width
    static int s_nLineDistance;
    static const QSize s_extraSize; ///< unused
    static const int s_nSharpCornerWidth; ///< the marker has no size: its three points fall together
    static const int s_nSharpCornerHeight;

    QBasicTimer hideTimer;
    QBasicTimer expireTimer;
    bool fadingOut = false; ///< never set: tips don't fade
    bool busy = false; ///< it is being shown or closed
    QPointer<QWidget> widget; ///< the owner of rect
    QRect rect; ///< where the tip stays valid, in the widget's coordinates

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void customEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void takePlaceOf(TipLabel *old);
    void restartExpireTimer(int msec);
    void doSetMask();
};
