#include <Zanthic/CustomDockTitleBar.h>

#include "windows/CustomDockTitleBar_p.h"

#include <Zanthic/CustomLabel.h>
#include <Zanthic/CustomPushButton.h>

#include <QtCore/QEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QStyle>

#include <new>

namespace {

constexpr int Title_FontSize = 14;
constexpr int Title_LeftSpacing = 14;
constexpr int Bar_RightSpacing = 10;
constexpr QSize kButtonSize(16, 16);
constexpr QSize kMinimumSize(200, 17);

} // namespace

CustomDockTitleBarPrivate::CustomDockTitleBarPrivate(CustomDockTitleBar *owner)
    : m_oMinPix(owner->style()->standardPixmap(QStyle::SP_TitleBarMinButton)),
      m_oClosePix(owner->style()->standardPixmap(QStyle::SP_TitleBarCloseButton)),
      m_oFloatPix(owner->style()->standardPixmap(QStyle::SP_TitleBarNormalButton)),
      q(owner)
{ }

bool CustomDockTitleBarPrivate::InitWidget()
{
    m_pCloseBtn = new CustomPushButton(q, CustomPushButton::Default);
    m_pExpandBtn = new CustomPushButton(q, CustomPushButton::Default);
    m_pLayout = new QHBoxLayout;
    m_pTitleLabel = new CustomLabel(q);
    m_pTitleLabel->cSetFontSize(Title_FontSize);
    m_pTitleLabel->cSetFontColor(QStringLiteral("DB_COLOR_Custom_DockTitleBarLabel_Font"));

    m_pCloseBtn->setToolTip(CustomDockTitleBar::tr("Close"));
    // Intended: the close button keeps the default look, and the other one gets its own selector below.
    m_pExpandBtn->cSetStyleSelector(QStringLiteral("DockTitleBarClose"));
    m_pCloseBtn->setFixedSize(kButtonSize);
    q->UpdateExpandBtnImg(true);

    m_pLayout->setContentsMargins(0, 0, 0, 0);
    m_pLayout->setSpacing(0);
    m_pLayout->addSpacing(Title_LeftSpacing);
    m_pLayout->addWidget(m_pTitleLabel);
    m_pLayout->addStretch();
    m_pLayout->addWidget(m_pCloseBtn);
    m_pLayout->addWidget(m_pExpandBtn);
    m_pLayout->addSpacing(Bar_RightSpacing);
    q->setLayout(m_pLayout);

    const auto clicked = &QAbstractButton::clicked;
    const bool closes = QObject::connect(m_pCloseBtn.data(), clicked, q, &CustomDockTitleBar::OnClose);
    const bool expands = QObject::connect(m_pExpandBtn.data(), clicked, q, &CustomDockTitleBar::OnExpand);
    return closes && expands;
}

CustomDockTitleBar::CustomDockTitleBar(QWidget *parent)
    : CustomWidget(parent), d(std::make_unique<CustomDockTitleBarPrivate>(this))
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
    if (!d->InitWidget())
        throw std::bad_alloc();
    cSetBackgroundColor(QStringLiteral("DB_COLOR_Custom_DockTitleBar_Background"));
}

CustomDockTitleBar::~CustomDockTitleBar() = default;

void CustomDockTitleBar::SetTitle(QString title)
{
    if (d->m_pTitleLabel)
        d->m_pTitleLabel->setText(title);
}

void CustomDockTitleBar::SetTitleVisible(bool visible)
{
    if (d->m_pTitleLabel)
        d->m_pTitleLabel->setVisible(visible);
}

void CustomDockTitleBar::SetDrawHeightMinus()
{
    d->m_bDrawHeightMinus = true;
}

void CustomDockTitleBar::cSetTitleControls(TitleControls controls)
{
    const bool any = !controls.testFlag(DockTitleNone);
    if (d->m_pCloseBtn)
        d->m_pCloseBtn->setVisible(any && controls.testFlag(DockTitleClose));
    if (d->m_pExpandBtn)
        d->m_pExpandBtn->setVisible(any && controls.testFlag(DockTitleExpand));
}

void CustomDockTitleBar::UpdateExpandBtnImg(bool expanded)
{
    CustomPushButton *button = d->m_pExpandBtn;
    if (!button)
        return;
    button->setToolTip(expanded ? tr("Collapse") : tr("Expand"));
    button->cSetStyleSelector(expanded ? QStringLiteral("DockTitleCollapse") : QStringLiteral("DockTitleExpand"));
    button->setFixedSize(kButtonSize);
    button->update();
}

void CustomDockTitleBar::RefreshWidgetInfo()
{
    if (d->m_pCloseBtn)
        d->m_pCloseBtn->setToolTip(tr("Close"));
    UpdateExpandBtnImg(d->m_bExpanded);
}

QSize CustomDockTitleBar::minimumSizeHint() const
{
    const auto *dock = qobject_cast<const QDockWidget *>(parentWidget());
    const bool isVertical = dock && dock->features().testFlag(QDockWidget::DockWidgetVerticalTitleBar);
    return isVertical ? kMinimumSize.transposed() : kMinimumSize;
}

QSize CustomDockTitleBar::sizeHint() const
{
    return minimumSizeHint();
}

void CustomDockTitleBar::updateMask() { }

void CustomDockTitleBar::OnClose()
{
    if (auto *dock = qobject_cast<QDockWidget *>(parentWidget()))
        dock->close();
}

void CustomDockTitleBar::OnExpand()
{
    d->m_bExpanded = !d->m_bExpanded;
    UpdateExpandBtnImg(d->m_bExpanded);
    SetTitleVisible(d->m_bExpanded);
    Q_EMIT SigExpandBtn(d->m_bExpanded);
}

void CustomDockTitleBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        RefreshWidgetInfo();
}
