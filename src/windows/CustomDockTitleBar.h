#pragma once

#include <Zanthic/CustomWidget.h>

#include <memory>

class CustomDockTitleBarPrivate;

/// A title row for a dock widget, to be given to QDockWidget::setTitleBarWidget(): a title, a button that closes the
/// dock and one that expands or collapses it. What is expanded is up to the application, see SigExpandBtn().
class ZANTHIC_EXPORT CustomDockTitleBar : public CustomWidget
{
    Q_OBJECT

public:
    enum TitleControl : int {
        DockTitleClose = 1,
        DockTitleExpand = 2,
        DockTitleNone = 4 ///< neither, whatever stands beside it
    };
    Q_DECLARE_FLAGS(TitleControls, TitleControl)
    Q_FLAG(TitleControls)

    /// Throws std::bad_alloc when a part can't be made.
    explicit CustomDockTitleBar(QWidget *parent = nullptr);
    ~CustomDockTitleBar() override;

    void SetTitle(QString title);
    void SetTitleVisible(bool visible);
    void SetDrawHeightMinus(); ///< kept for later use; nothing reads it
    void cSetTitleControls(TitleControls controls); ///< which buttons are shown; both at start
    /// Shows what the button will do to a dock that is \p expanded, or isn't. The state itself doesn't change.
    void UpdateExpandBtnImg(bool expanded);
    void RefreshWidgetInfo(); ///< translates the tool tips anew

    /// 200 x 17 px, or 17 x 200 in a dock with QDockWidget::DockWidgetVerticalTitleBar; the row itself stays
    /// horizontal. Override these for a higher one.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

public Q_SLOTS:
    void updateMask(); ///< does nothing
    void OnClose(); ///< closes the parent, if it is a QDockWidget
    /// Expands, or collapses, which hides the title. A bar is expanded at start.
    void OnExpand();

Q_SIGNALS:
    void SigExpandBtn(bool bExpand); ///< the state is now expanded, or collapsed

protected:
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<CustomDockTitleBarPrivate> d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CustomDockTitleBar::TitleControls)
