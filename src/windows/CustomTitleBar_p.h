#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/CustomTitleBar.h>

#include <QtCore/QPointer>
#include <QtCore/QRect>

QT_BEGIN_NAMESPACE
class QBoxLayout;
class QHBoxLayout;
class QLayoutItem;
class QVBoxLayout;
QT_END_NAMESPACE

class CustomLabel;

class ZANTHIC_TEST_EXPORT CustomTitleBarPrivate
{
public:
    explicit CustomTitleBarPrivate(CustomTitleBar *owner);
    ~CustomTitleBarPrivate();

    static CustomTitleBarPrivate *get(const CustomTitleBar *bar);

    void initControlInfo();
    /// Gives the caption its look and lays the bar out, when something has changed since the last time.
    void ensureUpdated();
    void updateData();
    void initLayout();
    void showCaption();
    void setShowControls(CustomTitleBar::TitleControls controls);

    CustomPushButton *addMenu(const QString &text, CustomMenu *menu);
    CustomPushButton *addToolButton(bool left, int spacing);
    QWidget *addToolWidget(bool left, int spacing);
    CustomLineWidget *addToolSeparatorLine();
    void addMenuStretch();
    void showAdded(QWidget *item); ///< an item that was added while the bar is visible
    void forget(const QObject *item); ///< an item that was deleted
    void limitCursorRect(bool limit); ///< does nothing

    bool m_bMaximized = false; ///< by geometry
    bool m_bStayOnTop = false;
    bool m_bHasToolRow = false;
    bool m_bNeedUpdate = true; ///< the layout must be rebuilt
    bool m_bDragging = false;
    bool m_bEnableMove = true;
    bool m_bTitleIsCustom = false;
    Qt::AlignmentFlag m_eMenuPosition = Qt::AlignLeft;
    QSize m_oCustomTextSize; ///< of the caption in the custom layout
    QPoint m_oDragOffset; ///< cursor minus window origin
    CustomTitleBar::TitleControls m_fControls{ 15 };
    CustomTitleBar *q;
    QPointer<QWidget> m_pTopWidget;
    bool m_bMenuStretch = false; ///< the application has its own stretch in the row of menus
    bool m_bHasMenu = false;
    QHBoxLayout *m_pMenuLayout = nullptr;
    QHBoxLayout *m_pCustomLayout = nullptr;
    QHBoxLayout *m_pToolLayout = nullptr;
    QHBoxLayout *m_pToolRightLayout = nullptr; ///< made on demand
    QHBoxLayout *m_pCustomTitleLayout = nullptr;
    CustomPushButton *m_pMaxButton;
    CustomPushButton *m_pMinButton;
    CustomPushButton *m_pCloseButton;
    CustomPushButton *m_pStayOnTopButton;
    CustomLabel *m_pIconLabel;
    CustomLabel *m_pTitleLabel;
    QRect m_oNormalGeometry; ///< to return to from maximised
    QWidget *m_pCustomTitleWidget;
    QString m_strTitle;

private:
    void createLines();
    void connectButtons();
    void dismantleLayout();
    void dropStretch();
    void layOutCustomTitle(QBoxLayout *root, int left, int right, int spacing);
    void layOutStandardTitle(QBoxLayout *root, int left, int right, int spacing);
    void layOutToolRow(QBoxLayout *column);
    void addWindowButtons(QBoxLayout *row, int spacing);
    /// The caption's own size, but no wider than a window on the screen can be.
    QSize captionSize() const;
    CustomLineWidget *newLine(int type, const QString &color, const QSize &size);
    QHBoxLayout *toolGroup(bool left);
    int number(const char *key) const;

    int m_nPlacing = 0; // layouts that are placing their items just now
    QLayoutItem *m_pStretch = nullptr; // the bar's own, at the end of the row of menus
    // Kept from one layout to the next: a rebuild may run inside the line's own show.
    CustomLineWidget *m_pMenuLine; // before the window buttons of the custom layout
    CustomLineWidget *m_pRowLine; // between the rows of the standard layout
};
