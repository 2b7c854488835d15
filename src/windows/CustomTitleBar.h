#pragma once

#include <Zanthic/CustomObject.h>

#include <QtWidgets/QWidget>

#include <memory>

class CustomLineWidget;
class CustomMenu;
class CustomPushButton;
class CustomTitleBarPrivate;

/// The caption of a frameless window. It moves, maximises, minimises and closes the window, keeps it on top, and has
/// places for menus, tool buttons and widgets of the application. Every CustomMainWindow has one; with
/// cSetTopWidget() it serves any other top-level widget.
///
/// Maximising is done by geometry alone: QWidget::isMaximized() stays false, see cIsMaximized().
class ZANTHIC_EXPORT CustomTitleBar : public QWidget, public CustomObject
{
    Q_OBJECT

public:
    enum TitleControl : int {
        TitleMin = 1, ///< the minimise button
        TitleMax = 2, ///< the maximise button; without it a double click does nothing
        TitleClose = 4, ///< the close button
        TitleIcon = 8, ///< the icon; a double click on it closes the window
        TitleStayOnTop = 16 ///< the button that keeps the window on top
    };
    Q_DECLARE_FLAGS(TitleControls, TitleControl)
    Q_FLAG(TitleControls)

    /// \p parent is the window to serve until cSetTopWidget() names another.
    explicit CustomTitleBar(QWidget *parent = nullptr);
    ~CustomTitleBar() override;

    /// \name Caption and controls
    /// \{
    /// The caption, shown as plain text and as the label's tool tip; a standard title also becomes the window's title.
    /// A text that is wider than the screen has room for is elided.
    void cSetTitleText(const QString &text);
    void cSetTitleIcon(const QString &path); ///< an image path; also shows the icon
    void cSetTitleControls(TitleControls controls); ///< which controls are visible; all but the last at start
    TitleControls cTitleControls() const;
    /// Takes the layout in which the caption and the tool buttons share one row with the menus. Takes effect at the
    /// next layout, which a change of the controls or the next show brings.
    void cSetTitleIsCustom(bool custom);
    void cSetCustomTextSize(QSize size); ///< px; the size of the caption in the custom layout
    /// Shows the custom title and hides \p widget, or the other way round. A null \p widget is left out.
    void cSetCustomTitleWidgetVisible(QWidget *widget, bool visible);
    /// Overrides an attribute of the four window buttons.
    void cSetButtonAttributeValue(
        const QString &attr, const QString &value, Custom::ItemStatus status = Custom::Normal);
    /// \}

    /// \name Items
    /// What these return is owned by the title bar.
    /// \{
    /// A button that opens \p menu, which isn't taken over. Without a menu the button is left empty for the caller.
    CustomPushButton *cAddMenu(const QString &text, CustomMenu *menu);
    /// Menus added from here on stand at the right end of their row.
    void cAddMenuLayoutStretch();
    void cSetMenuPosition(Qt::AlignmentFlag position); ///< kept for later use; the layout doesn't read it
    /// A tool button in the left or right group; \p spacing px stay free behind it.
    CustomPushButton *cAddToolButton(bool left = true, int spacing = 0);
    /// An empty widget in the left or right group of tool buttons; \p spacing px stay free behind it.
    QWidget *cAddToolWidget(bool left = true, int spacing = 0);
    CustomLineWidget *cAddToolSeparatorLine(); ///< a vertical line in the left group of tool buttons
    QWidget *cAddCustomWidget(); ///< an empty widget of the application's own; shown in the custom layout
    /// \}

    /// \name The window
    /// \{
    /// The window that is moved and closed, not owned; null is ignored. Its present geometry is the one to return to
    /// from maximised.
    void cSetTopWidget(QWidget *widget);
    /// Keeps the window above all others, past the window manager; shows it again in either direction, which ends
    /// an exec() or a popup of it. The second argument has no effect.
    void cSetStayOnTop(bool on, bool unused = false);
    bool cIsStayOnTop() const;
    void cSetEnableMove(bool enable); ///< whether dragging the bar moves the window; true at start
    bool cEnableMove() const;
    void cShowMaximized(); ///< fills the available area of the primary screen
    void cShowNormal(); ///< back to the geometry before cShowMaximized()
    bool cIsMaximized() const;
    /// \}

    void setVisible(bool visible) override;
    QSize sizeHint() const override;
    void cNotifyUpdateValue(const QString &attribute, const QString &value, Custom::ItemStatus status) override;

protected Q_SLOTS:
    void cOnMaximum(); ///< maximises or restores
    void cOnMinimum();
    void cOnClose();
    void cOnStayOnStop(); ///< toggles staying on top; the name is misspelled and stays

protected:
    void customEvent(QEvent *event) override;
    void childEvent(QChildEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    friend class CustomTitleBarPrivate;
    std::unique_ptr<CustomTitleBarPrivate> d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CustomTitleBar::TitleControls)
