#pragma once

// Not part of the API. It may change from version to version without notice.

#include <QtCore/QPointer>
#include <QtGui/QPixmap>

QT_BEGIN_NAMESPACE
class QHBoxLayout;
QT_END_NAMESPACE

class CustomDockTitleBar;
class CustomLabel;
class CustomPushButton;

class CustomDockTitleBarPrivate
{
public:
    explicit CustomDockTitleBarPrivate(CustomDockTitleBar *owner);

    bool InitWidget();

    // The pictures of the style, held for later use; the buttons have those of the theme.
    QPixmap m_oMinPix;
    QPixmap m_oClosePix;
    QPixmap m_oFloatPix;
    // Guarded, since the application may delete the children of the bar.
    QPointer<CustomPushButton> m_pCloseBtn;
    QPointer<CustomPushButton> m_pExpandBtn;
    bool m_bExpanded = true;
    QHBoxLayout *m_pLayout = nullptr;
    bool m_bDrawHeightMinus = false;
    QPointer<CustomLabel> m_pTitleLabel;

private:
    CustomDockTitleBar *q;
};
