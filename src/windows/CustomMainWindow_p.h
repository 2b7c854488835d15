#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/CustomMainWindow.h>

#include <QtCore/QBasicTimer>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtCore/QSet>

#include <array>
#include <utility>
#include <vector>

QT_BEGIN_NAMESPACE
class QEventLoop;
class QHBoxLayout;
class QScrollArea;
class QVBoxLayout;
QT_END_NAMESPACE

class CustomFrame;
class CustomLineWidget;

class ZANTHIC_TEST_EXPORT CustomMainWindowPrivate
{
public:
    using Buttons = CustomMainWindow::Buttons;

    /// The stretch that runs, one in the whole process.
    struct StretchHelper
    {
        bool pressed = false;
        bool enableMove = true; ///< the title bar's, for the time after the stretch
        int zone = 0; ///< a CustomMainWindow::StrechEdge
        int startX = 0; ///< of the pointer, in global coordinates
        int startY = 0;
        QRect startGeometry;
        CustomMainWindow *window = nullptr;
    };

    explicit CustomMainWindowPrivate(CustomMainWindow *owner);
    ~CustomMainWindowPrivate();

    static CustomMainWindowPrivate *get(const CustomMainWindow *window);

    void init();
    void setButtonSize(CustomPushButton *button);
    void setButtonStyle(bool main, CustomPushButton *button);
    void setButtonsStatus(Buttons buttons);
    void resetCustomButtons(const QStringList &names);
    void resetButtonNames(const QStringList &names);
    void resetCentralWidget(QWidget *widget);
    void updateData();
    void updateSkinParam();
    void setIsFullScreen(bool on);
    void styleScrollArea();
    void paintResidual();
    void resetMask();
    void retranslate();
    /// OK and Cancel, as far as nobody has deleted them.
    std::vector<std::pair<CustomMainWindow::Button, CustomPushButton *>> standardButtons() const;
    /// Whether a press at these places, on a popup, is one outside.
    static bool isOutside(const CustomMainWindow &popup, const QPoint &local, const QPoint &global);
    void watchLevel();

    void judgeCursorPos(const QPoint &globalPos);
    void mousePressed(const QPoint &globalPos);
    void mouseMove(const QPoint &globalPos);
    void mouseRelease();
    /// The window goes away: a stretch of it ends, and the pointer gets its shape back.
    void leaveStretch();
    void endStretch(); ///< one that would never see its release
    void restoreCursor();

    bool m_bNeedUpdate = true; ///< layout and style must be rebuilt at the next show
    bool m_bEnableButtonBar = false;
    bool m_bCanStrech = true; ///< false while maximised
    bool m_bEnableScrollBar = false;
    int m_nResult = -1;
    Qt::AlignmentFlag m_eButtonsAlign = Qt::AlignRight;
    Buttons m_fButtons;
    CustomMainWindow::StrechEdges m_fStrechEdges;
    int m_nMainButton = 0;
    QSize m_oMinStrechSize;
    QBasicTimer m_oLowerTimer;
    QBasicTimer m_oCursorTimer;
    QEventLoop *m_pPopupLoop = nullptr; ///< while cPopup() runs
    QPointer<CustomPushButton> m_pOkButton;
    QPointer<CustomPushButton> m_pCancelButton;
    CustomMainWindow *q;
    CustomTitleBar *m_pTitleBar = nullptr;
    QVBoxLayout *m_pBodyLayout = nullptr;
    QHBoxLayout *m_pButtonLayout = nullptr;
    QWidget *m_pContentWidget = nullptr;
    QScrollArea *m_pScrollArea = nullptr;
    CustomLineWidget *m_pSplitLine = nullptr;
    CustomWidget *m_pButtonBar = nullptr;
    CustomFrame *m_pFrame = nullptr;
    // Guarded, since the application may delete what it has told the window of.
    QList<QPointer<CustomPushButton>> m_lstCustomButtons; ///< by index
    QList<QPointer<QWidget>> m_lstStrechIgnore;
    QList<QPointer<CustomWidget>> m_lstKeyPressWidgets;
    QPointer<QWidget> m_pCentralWidget;
    bool m_bOwnsCursor = false; ///< the override cursor is one of this window's zones

    static QSet<CustomMainWindow *> g_AllWindow;
    static QSet<CustomMainWindow *> g_TopLeverWindow;
    static QSet<CustomMainWindow *> g_BottomLeverWindow;
    static bool g_bIsFullScreen;
    static QPointer<QWidget> g_pFullScreenWin;
    static StretchHelper g_StretchHelper;

private:
    struct Border
    {
        std::array<int, 4> widths{};
        std::array<QSize, 4> radii;
    };

    void createParts();
    bool createButtons();
    void initLayout();
    void updateShadow();
    void updateButtonBar();
    void fillButtonRow();
    void addToButtonRow(CustomPushButton *button);
    void updateFrameMargins();
    void setTitleRadius(Custom::BorderCorner corner, int radius);
    Border border() const;
    QString text(const char *key) const;
    int number(const char *key) const;
    bool canStretch() const;
    bool isOverIgnored(const QPoint &globalPos) const;
    static void showCursor(int oldZone, const QCursor &cursor);
};
