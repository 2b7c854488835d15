#pragma once

#include <Zanthic/CustomObject.h>

#include <QtWidgets/QDialog>

#include <memory>

class CustomMainWindowPrivate;
class CustomPushButton;
class CustomTitleBar;
class CustomWidget;

/// A frameless themed window or dialog: title bar, central widget, and a bar of buttons whose clicks arrive as one
/// signal. It is moved and maximised by its title bar, stretched at the edges that cSetStrechEdges() names, and has
/// rounded corners where its style says so.
///
/// A class derived from it is styled as "CustomMainWindow" until its constructor calls cSetClassName().
///
/// Escape doesn't close the window, and Return presses no button.
class ZANTHIC_EXPORT CustomMainWindow : public QDialog, public CustomObject
{
    Q_OBJECT

public:
    enum Button : int {
        ButtonOk = 1, ///< calls cOnOKClicked()
        ButtonCancel = 2, ///< calls cOnCancelCliked()
        ButtonCustom = 4 ///< those of cAddCustomButtons(); they close nothing
    };
    Q_DECLARE_FLAGS(Buttons, Button)
    Q_FLAG(Buttons)

    enum StrechEdge : int {
        StrechLeft = 1,
        StrechRight = 2,
        StrechTop = 4,
        StrechBottom = 8,
        StrechTopLeft = 16,
        StrechTopRight = 32,
        StrechBottomLeft = 64,
        StrechBottomRight = 128
    };
    Q_DECLARE_FLAGS(StrechEdges, StrechEdge)
    Q_FLAG(StrechEdges)

    enum WindowLever : int {
        LeverNormal = 0, ///< no duty
        LeverTop = 1, ///< a window that others make room for
        LeverBottom = 2 ///< lowers itself whenever it is in the way of one with LeverTop
    };
    Q_ENUM(WindowLever)

    /// A dialog of \p parent, or a window of its own without one.
    explicit CustomMainWindow(QWidget *parent = nullptr);
    ~CustomMainWindow() override;

    /// \name Content
    /// \{
    CustomTitleBar *cTitleBar() const; ///< owned by the window
    void cSetTitleVisible(bool visible);
    /// Takes over \p widget as the content; null is ignored, and so is the window itself. A widget that was set before
    /// is hidden and stays a child of the window. With a scroll bar the widget before is deleted.
    void cSetCentralWidget(QWidget *widget);
    /// Puts the central widget into a scroll area of the fixed \p size in px. To be called before
    /// cSetCentralWidget().
    void cSetEnableScrollBar(bool enable, const QSize &size);
    /// \}

    /// \name Buttons
    /// Custom buttons have the indexes from 0 on, OK the next, Cancel the one after. OK and Cancel get theirs at the
    /// first show.
    /// \{
    /// Shows the bar, with OK and Cancel where no buttons have been chosen.
    void cSetEnableButtonBar(bool enable);
    void cSetButtons(Buttons buttons); ///< also shows the bar
    /// Adds a button for each name, once in the life of a window, and shows the bar. The names take the place of those
    /// from before, whose buttons are deleted.
    void cAddCustomButtons(const QStringList &names);
    /// New texts: for the custom buttons where they are shown, else for OK and Cancel in this order. Nothing happens
    /// while the bar isn't shown, or with more names than custom buttons.
    void cResetCustomButtonNames(const QStringList &names);
    void cSetButtonsAlign(Qt::AlignmentFlag alignment); ///< left, centre, or right as at start; for the next show
    void cSetMainButton(int index); ///< the custom button that gets the main look; 0 at start
    int cButtonCount() const;
    CustomPushButton *cButton(int index) const; ///< null for an unknown index
    /// \}

    /// \name Geometry
    /// \{
    void cShowMaximized(); ///< fills the available area of the primary screen
    void cShowNormal(); ///< back to the geometry before cShowMaximized()
    void cSetStrechEdges(StrechEdges edges); ///< where the user may stretch the window; nowhere at start
    /// The smallest size in px that stretching reaches; with a negative side, minimumSize() takes its place.
    void cSetMinStrechSize(const QSize &size);
    /// The edges that \p widget covers don't stretch. Not owned; a widget that is deleted is forgotten.
    void cAddStrechIgnoreWidget(QWidget *widget);
    /// \}

    /// \name Windows among each other
    /// \{
    /// Shows the window as a popup and returns when it is hidden. Does nothing while it is one already.
    void cPopup();
    void cSetPopup(bool popup); ///< makes a popup of the hidden window, or a dialog again
    void cSetWindowLever(WindowLever lever); ///< once told, a window keeps its duty
    /// Tells the bottom windows that \p window covers the screen, or no longer does. With \p on, all of them but
    /// \p window are hidden; switching off shows none of them.
    static void cSetIsFullScreen(bool on, QWidget *window);
    /// \p widget sees each key press that reaches the window. Not owned; a widget that is deleted is forgotten.
    void cInstallKeyPressEvent(CustomWidget *widget);
    void cEnableDefualtShadow(); ///< does nothing
    /// \p target is ignored: the shadow is that of the window's frame.
    void cSetShadowEnable(bool enable, QWidget *target = nullptr) override;
    /// \}

    /// The result is 1 after accept(), 0 after reject(), else that of the last time or -1. The window may be deleted
    /// meanwhile, which gives -1.
    int exec() override;
    void accept() override;
    void reject() override;
    void setVisible(bool visible) override;
    void cNotifyUpdateValue(const QString &attribute, const QString &value, Custom::ItemStatus status) override;

    virtual void cOnOKClicked(); ///< calls accept()
    virtual void cOnCancelCliked(); ///< calls reject(); the name is misspelled and stays

Q_SIGNALS:
    /// A button of the bar was clicked. OK and Cancel act only after this.
    void cSigButtonClick(int nIndex);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void customEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void cOnButtonClicked();

private:
    friend class CustomMainWindowPrivate;
    std::unique_ptr<CustomMainWindowPrivate> d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CustomMainWindow::Buttons)
Q_DECLARE_OPERATORS_FOR_FLAGS(CustomMainWindow::StrechEdges)
