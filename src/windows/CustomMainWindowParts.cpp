// How a window is built, and what its style makes of it.

#include "windows/CustomMainWindow_p.h"

#include "style/CustomObject_p.h"
#include "windows/WindowGeometry_p.h"

#include <Zanthic/CustomFrame.h>
#include <Zanthic/CustomLineWidget.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomTitleBar.h>
#include <Zanthic/CustomWidget.h>

#include <QtCore/QEventLoop>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QApplication>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QScrollArea>

namespace {

constexpr int Title_Height = 32; // where the style has none
constexpr int Button_MinWidth = 74;
constexpr int Button_MinHeight = 24;
constexpr int Button_Spacing = 10;
constexpr int Residual_Key = 0;

void deleteItems(QLayout *layout)
{
    for (int i = layout->count() - 1; i >= 0; --i)
        delete layout->takeAt(i);
}

QBoxLayout *newBox(Qt::Orientation orientation)
{
    return static_cast<QBoxLayout *>(Custom::createLayout(orientation));
}

} // namespace

QSet<CustomMainWindow *> CustomMainWindowPrivate::g_AllWindow;
QSet<CustomMainWindow *> CustomMainWindowPrivate::g_TopLeverWindow;
QSet<CustomMainWindow *> CustomMainWindowPrivate::g_BottomLeverWindow;
bool CustomMainWindowPrivate::g_bIsFullScreen = false;
QPointer<QWidget> CustomMainWindowPrivate::g_pFullScreenWin;
CustomMainWindowPrivate::StretchHelper CustomMainWindowPrivate::g_StretchHelper;

CustomMainWindowPrivate::CustomMainWindowPrivate(CustomMainWindow *owner) : q(owner) { }

CustomMainWindowPrivate::~CustomMainWindowPrivate()
{
    leaveStretch();
    if (m_pPopupLoop)
        m_pPopupLoop->exit(0);
    g_BottomLeverWindow.remove(q);
    g_TopLeverWindow.remove(q);
    g_AllWindow.remove(q);
    m_oLowerTimer.stop();
    m_oCursorTimer.stop();
}

CustomMainWindowPrivate *CustomMainWindowPrivate::get(const CustomMainWindow *window)
{
    return window->d.get();
}

QString CustomMainWindowPrivate::text(const char *key) const
{
    return q->cAttributeValue(QString::fromLatin1(key), Custom::Normal, {});
}

int CustomMainWindowPrivate::number(const char *key) const
{
    return text(key).toInt();
}

void CustomMainWindowPrivate::init()
{
    createParts();
    const bool connected = createButtons();
    m_pFrame = new CustomFrame(q);
    m_pFrame->installEventFilter(q);
    if (!connected)
        return;
    initLayout();
    g_AllWindow.insert(q);
}

void CustomMainWindowPrivate::createParts()
{
    m_pTitleBar = new CustomTitleBar(q);
    m_pTitleBar->cSetTitleControls(CustomTitleBar::TitleMin | CustomTitleBar::TitleMax | CustomTitleBar::TitleClose);
    const int height = number("TitleHeight");
    m_pTitleBar->setFixedHeight(height < 1 ? Title_Height : height);
    m_pTitleBar->cSetTopWidget(q);

    m_pSplitLine = new CustomLineWidget(q);
    m_pSplitLine->cSetLineType(CustomLineWidget::HorizontalLine);
    m_pSplitLine->setFixedHeight(1);
    m_pSplitLine->cSetBackgroundColor(QStringLiteral("DB_COLOR_Custom_BarLine_Background"), Custom::Normal, {});

    m_pButtonBar = new CustomWidget(q);
    m_pButtonBar->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_pContentWidget = new QWidget(q);
    m_pScrollArea = new QScrollArea(q);
    m_pScrollArea->hide();
    m_pScrollArea->setWidgetResizable(true);
    m_pScrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pBodyLayout = static_cast<QVBoxLayout *>(newBox(Qt::Vertical));
    m_pButtonLayout = static_cast<QHBoxLayout *>(newBox(Qt::Horizontal));
}

bool CustomMainWindowPrivate::createButtons()
{
    const auto clicked = &QAbstractButton::clicked;
    m_pOkButton = new CustomPushButton(CustomMainWindow::tr("OK"), q);
    const auto ok = QObject::connect(m_pOkButton, clicked, q, &CustomMainWindow::cOnButtonClicked);
    setButtonSize(m_pOkButton);
    setButtonStyle(true, m_pOkButton);
    m_pCancelButton = new CustomPushButton(CustomMainWindow::tr("Cancel"), q);
    setButtonSize(m_pCancelButton);
    setButtonStyle(false, m_pCancelButton);
    const auto cancel = QObject::connect(m_pCancelButton, clicked, q, &CustomMainWindow::cOnButtonClicked);
    m_pOkButton->hide();
    m_pCancelButton->hide();
    return ok && cancel;
}

void CustomMainWindowPrivate::initLayout()
{
    QBoxLayout *outer = newBox(Qt::Vertical);
    outer->addWidget(m_pFrame);
    q->setLayout(outer);
    QBoxLayout *inner = newBox(Qt::Vertical);
    inner->addWidget(m_pTitleBar);
    inner->addLayout(m_pBodyLayout);
    m_pFrame->setLayout(inner);
    m_pBodyLayout->addWidget(m_pContentWidget);
    QBoxLayout *content = newBox(Qt::Vertical);
    content->addWidget(m_pScrollArea);
    content->addWidget(m_pSplitLine);
    content->addWidget(m_pButtonBar);
    m_pContentWidget->setLayout(content);
    m_pButtonBar->setLayout(m_pButtonLayout);
}

void CustomMainWindowPrivate::setButtonSize(CustomPushButton *button)
{
    if (!button)
        return;
    button->setFixedSize(1, 1);
    const QSize hint = button->sizeHint();
    button->setFixedSize(qMax(hint.width(), qMax(Button_MinWidth, number("ButtonMinWidth"))),
        qMax(hint.height(), qMax(Button_MinHeight, number("ButtonMinHieght"))));
}

void CustomMainWindowPrivate::setButtonStyle(bool main, CustomPushButton *button)
{
    if (!button)
        return;
    const QString selector = text(main ? "ButtonMainSelector" : "ButtonSubSelector");
    if (!selector.isEmpty()) {
        button->cSetStyleSelector(selector);
        return;
    }
    button->cSetButtonStyleSelector(CustomPushButton::GrayWhite);
    // Always those of Cancel, whichever button it is about.
    if (main || !m_pCancelButton)
        return;
    const auto color = QStringLiteral("DB_COLOR_Custom_CancelBtn_Background");
    m_pCancelButton->cSetBackgroundColor(color, Custom::Normal, {});
    m_pCancelButton->cSetBackgroundColor(color + QLatin1String("_Hover"), Custom::Hover, {});
    m_pCancelButton->cSetBackgroundColor(color + QLatin1String("_Pressed"), Custom::Pressed, {});
    m_pCancelButton->cSetBackgroundColor(color + QLatin1String("_Dis"), Custom::Disabled, {});
}

void CustomMainWindowPrivate::setButtonsStatus(Buttons buttons)
{
    m_fButtons = buttons;
    for (const QPointer<CustomPushButton> &button : qAsConst(m_lstCustomButtons)) {
        if (button)
            button->hide();
    }
    for (const auto &[flag, button] : standardButtons())
        button->hide();
}

void CustomMainWindowPrivate::resetCustomButtons(const QStringList &names)
{
    // The list keeps its entries: this is meant to run once in a window's life.
    for (const QPointer<CustomPushButton> &button : qAsConst(m_lstCustomButtons))
        delete button;
    for (int i = 0; i < names.size(); ++i) {
        auto *button = new CustomPushButton(names.at(i), q);
        if (!QObject::connect(button, &QAbstractButton::clicked, q, &CustomMainWindow::cOnButtonClicked))
            continue;
        button->cSetUserData(i);
        button->hide();
        setButtonSize(button);
        m_lstCustomButtons.append(button);
    }
}

void CustomMainWindowPrivate::resetButtonNames(const QStringList &names)
{
    if (!m_bEnableButtonBar || !m_pButtonLayout)
        return;
    if (!m_fButtons.testFlag(CustomMainWindow::ButtonCustom)) {
        int next = 0;
        for (const auto &[flag, button] : standardButtons()) {
            if (m_fButtons.testFlag(flag) && next < names.size())
                button->setText(names.at(next++));
        }
        return;
    }
    if (m_lstCustomButtons.size() < names.size())
        return;
    for (int i = 0; i < names.size(); ++i) {
        CustomPushButton *button = m_lstCustomButtons.at(i);
        if (!button)
            continue;
        button->setText(names.at(i));
        setButtonSize(button);
    }
}

std::vector<std::pair<CustomMainWindow::Button, CustomPushButton *>> CustomMainWindowPrivate::standardButtons() const
{
    std::vector<std::pair<CustomMainWindow::Button, CustomPushButton *>> buttons;
    if (m_pOkButton)
        buttons.push_back({ CustomMainWindow::ButtonOk, m_pOkButton });
    if (m_pCancelButton)
        buttons.push_back({ CustomMainWindow::ButtonCancel, m_pCancelButton });
    return buttons;
}

void CustomMainWindowPrivate::retranslate()
{
    for (const auto &[flag, button] : standardButtons()) {
        button->setText(
            flag == CustomMainWindow::ButtonOk ? CustomMainWindow::tr("OK") : CustomMainWindow::tr("Cancel"));
        setButtonSize(button);
    }
}

void CustomMainWindowPrivate::resetCentralWidget(QWidget *widget)
{
    if (!widget || widget == m_pContentWidget || widget->isAncestorOf(m_pContentWidget))
        return;
    if (m_bEnableScrollBar) {
        // A scroll area makes its content paint Qt's own background, which belongs to no skin.
        const bool fills = widget->autoFillBackground();
        m_pScrollArea->setWidget(widget);
        widget->setAutoFillBackground(fills);
        m_pScrollArea->viewport()->setAutoFillBackground(false);
        return;
    }
    if (m_pCentralWidget && m_pCentralWidget != widget && m_pCentralWidget->parentWidget() == m_pContentWidget)
        m_pCentralWidget->hide();
    m_pCentralWidget = widget;
    QLayout *layout = m_pContentWidget->layout();
    deleteItems(layout);
    layout->addWidget(widget);
    layout->addWidget(m_pScrollArea);
    layout->addWidget(m_pSplitLine);
    layout->addWidget(m_pButtonBar);
}

void CustomMainWindowPrivate::updateData()
{
    // Setting a sheet polishes all of the content again.
    if (m_bEnableScrollBar && m_pScrollArea->styleSheet() != Custom::styleSheet(Custom::SheetTableView))
        styleScrollArea();
    m_pScrollArea->setVisible(m_bEnableScrollBar);
    updateSkinParam();
    if (!q->testAttribute(Qt::WA_TranslucentBackground))
        q->cSetShadowEnable(false, nullptr);
    updateShadow();
    m_pFrame->cSetParameter(Custom::ParamColorRect, !m_pTitleBar->isHidden());
    m_pButtonLayout->setContentsMargins(0, 0, 0, 0);
    m_pButtonBar->setVisible(m_bEnableButtonBar);
    if (m_bEnableButtonBar)
        updateButtonBar();
    else
        m_pSplitLine->hide();
}

void CustomMainWindowPrivate::updateShadow()
{
    if (q->cShadowEnable())
        q->layout()->setContentsMargins(WindowGeometry::shadowMargins(q->cShadowOffset(), q->cShadowBulrRadius()));
}

void CustomMainWindowPrivate::updateButtonBar()
{
    deleteItems(m_pButtonLayout);
    m_pSplitLine->setVisible(number("ButtonBarSplitLine") != 0);
    m_pButtonBar->cSetBackgroundColor(text("ButtonBarBackgroundColor"), Custom::Normal, {});
    m_pButtonLayout->setContentsMargins(0, number("ButtonBarTopMargin"), 0, number("ButtonBarBottomMargin"));
    fillButtonRow();
}

void CustomMainWindowPrivate::fillButtonRow()
{
    m_pButtonLayout->addSpacing(Button_Spacing);
    if (m_eButtonsAlign != Qt::AlignLeft)
        m_pButtonLayout->addStretch(1);
    int index = 0;
    if (m_fButtons.testFlag(CustomMainWindow::ButtonCustom)) {
        for (; index < m_lstCustomButtons.size(); ++index) {
            CustomPushButton *button = m_lstCustomButtons.at(index);
            if (!button)
                continue;
            addToButtonRow(button);
            setButtonStyle(index == m_nMainButton, button);
        }
    }
    for (const auto &[flag, button] : standardButtons()) {
        if (!m_fButtons.testFlag(flag))
            continue;
        addToButtonRow(button);
        button->cSetUserData(index++);
    }
    if (m_eButtonsAlign == Qt::AlignLeft || m_eButtonsAlign == Qt::AlignCenter)
        m_pButtonLayout->addStretch(1);
}

void CustomMainWindowPrivate::addToButtonRow(CustomPushButton *button)
{
    m_pButtonLayout->addWidget(button);
    m_pButtonLayout->addSpacing(Button_Spacing);
    button->show();
}

CustomMainWindowPrivate::Border CustomMainWindowPrivate::border() const
{
    Border result;
    q->cGetBorderParameter(result.widths.data(), result.radii.data(), nullptr, q->rect(), Custom::Normal, {});
    return result;
}

void CustomMainWindowPrivate::updateSkinParam()
{
    // The copy of the flags would drop the frame's own, and a frame that is told of the skin after the window would
    // take its values from its own class.
    const bool hasColorRect = m_pFrame->cHasParameter(Custom::ParamColorRect);
    m_pFrame->cSetClassName(CustomObjectData::get(q)->className);
    m_pFrame->cCopyAttribute(q);
    m_pFrame->cSetParameter(Custom::ParamColorRect, hasColorRect);
    if (q->cHasParameter(Custom::ParamBorderRadius)) {
        const Border current = border();
        setTitleRadius(Custom::LeftTop, current.radii[Custom::LeftTop].width());
        setTitleRadius(Custom::RightTop, current.radii[Custom::RightTop].width());
    }
    updateFrameMargins();
    m_pFrame->update();
}

void CustomMainWindowPrivate::setTitleRadius(Custom::BorderCorner corner, int radius)
{
    // Any value that is set makes the title bar lay itself out again.
    if (!m_pTitleBar->cHasParameter(Custom::ParamBorderRadius) || m_pTitleBar->cBorderRadius(corner) != radius)
        m_pTitleBar->cSetBorderRadius(radius, corner, Custom::Normal, {});
}

void CustomMainWindowPrivate::updateFrameMargins()
{
    if (q->cHasParameter(Custom::ParamBorderWidth))
        m_pFrame->layout()->setContentsMargins(
            WindowGeometry::borderMargins(border().widths, q->cHasParameter(Custom::ParamBorderRadius)));
}

void CustomMainWindowPrivate::styleScrollArea()
{
    m_pScrollArea->setStyleSheet(Custom::styleSheet(Custom::SheetTableView));
}

void CustomMainWindowPrivate::setIsFullScreen(bool on)
{
    Q_UNUSED(on)
    updateFrameMargins();
}

void CustomMainWindowPrivate::paintResidual()
{
    if (number("IsUseTitleBorder") < 1 || m_pFrame->height() < 1)
        return;
    m_pFrame->cSetColorRect(Residual_Key, WindowGeometry::residual(m_pTitleBar->geometry(), m_pFrame->width()),
        m_pTitleBar->cBackgroundColor(Custom::Normal, QRect(), {}));
}

void CustomMainWindowPrivate::resetMask()
{
    if (q->cHasParameter(Custom::ParamBorderRadius) && !q->testAttribute(Qt::WA_TranslucentBackground)) {
        const Border current = border();
        q->setMask(WindowGeometry::mask(q->size(), current.widths, current.radii));
    }
    if (m_pTitleBar)
        m_bCanStrech = !m_pTitleBar->cIsMaximized();
    if (!m_bCanStrech)
        restoreCursor();
}

bool CustomMainWindowPrivate::isOutside(const CustomMainWindow &popup, const QPoint &local, const QPoint &global)
{
    return (local.isNull() && !global.isNull()) || !popup.rect().contains(local);
}

void CustomMainWindowPrivate::watchLevel()
{
    const Qt::ApplicationState state = QGuiApplication::applicationState();
    if (g_bIsFullScreen || state == Qt::ApplicationHidden || state == Qt::ApplicationInactive)
        return;
    const QWidget *active = QApplication::activeWindow();
    if (active && active->isModal())
        return;
    const auto global = [](const QWidget *window) { return QRect(window->mapToGlobal(QPoint(0, 0)), window->size()); };
    const QRect own = global(q);
    for (const CustomMainWindow *window : qAsConst(g_TopLeverWindow)) {
        if (window->isVisible() && global(window).intersects(own)) {
            q->lower();
            return;
        }
    }
}
