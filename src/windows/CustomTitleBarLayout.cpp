// How a title bar is built and laid out.

#include "windows/CustomTitleBar_p.h"

#include "windows/Screens_p.h"

#include <Zanthic/CustomLabel.h>
#include <Zanthic/CustomLineWidget.h>
#include <Zanthic/CustomMenu.h>
#include <Zanthic/CustomPushButton.h>

#include <QtWidgets/QBoxLayout>

namespace {

constexpr int MenuButton_Height = 31;
constexpr int MenuButton_Spacing = 10; // behind each menu
constexpr int Caption_Spacing = 10; // behind the caption
constexpr int Caption_Room = 200; // that the widest caption leaves on the screen
constexpr QSize MenuLine_Size(1, 13);
constexpr QSize RowLine_Size(420, 1);
constexpr int RowLine_Spacing = 3; // above and below
constexpr QSize ToolLine_Size(1, 18);
constexpr int ToolLine_CustomSpacing = 7; // behind a tool separator
constexpr int ToolLine_StandardSpacing = 12;
constexpr int ToolRow_Indent = 4;
constexpr int StandardTitle_RightMargin = 6;

/// A row that knows whether it is placing its items. It can't be deleted then.
class PlacingRow : public QHBoxLayout
{
public:
    explicit PlacingRow(int *placing) : m_pPlacing(placing)
    {
        setContentsMargins(0, 0, 0, 0);
        setSpacing(0);
    }

    void setGeometry(const QRect &rect) override
    {
        const QPointer<PlacingRow> self(this); // an item may delete the title bar
        ++*m_pPlacing;
        QHBoxLayout::setGeometry(rect);
        if (self)
            --*m_pPlacing;
    }

private:
    int *m_pPlacing;
};

QHBoxLayout *newRow()
{
    return static_cast<QHBoxLayout *>(Custom::createLayout(Qt::Horizontal));
}

} // namespace

CustomTitleBarPrivate::CustomTitleBarPrivate(CustomTitleBar *owner)
    : q(owner),
      m_pTopWidget(owner->parentWidget()),
      m_pMaxButton(new CustomPushButton(owner, CustomPushButton::Default)),
      m_pMinButton(nullptr),
      m_pCloseButton(new CustomPushButton(owner, CustomPushButton::Default))
{
    m_pMinButton = new CustomPushButton(owner, CustomPushButton::Default);
    m_pStayOnTopButton = new CustomPushButton(owner, CustomPushButton::Default);
    m_pCustomTitleWidget = new QWidget(owner);
    m_pMaxButton->setObjectName(QStringLiteral("MaxBtn"));
    m_pMinButton->setObjectName(QStringLiteral("MinBtn"));
    m_pCloseButton->setObjectName(QStringLiteral("CloseBtn"));
    m_pStayOnTopButton->setObjectName(QStringLiteral("StayOnTopBtn"));
    // Staying on top is left out on purpose: it answers to quick clicks.
    for (CustomPushButton *button : { m_pMaxButton, m_pCloseButton, m_pMinButton, m_pCloseButton })
        button->cSetControlClickEvent(true);
    m_pIconLabel = new CustomLabel(owner);
    m_pTitleLabel = new CustomLabel(owner);
    m_pTitleLabel->setTextFormat(Qt::PlainText); // it comes from users and file names
    m_pStayOnTopButton->hide(); // as m_fControls says at start
    createLines();
    m_pMenuLayout = newRow();
    m_pToolLayout = newRow();
    m_pCustomLayout = newRow();
    connectButtons();
}

CustomTitleBarPrivate::~CustomTitleBarPrivate()
{
    // A layout that stands in no other has no owner.
    for (QHBoxLayout *layout : { m_pMenuLayout, m_pCustomLayout, m_pToolLayout, m_pToolRightLayout }) {
        if (layout && !layout->parent())
            delete layout;
    }
}

CustomTitleBarPrivate *CustomTitleBarPrivate::get(const CustomTitleBar *bar)
{
    return bar->d.get();
}

void CustomTitleBarPrivate::createLines()
{
    m_pMenuLine = newLine(
        CustomLineWidget::VerticalLine, QStringLiteral("DB_COLOR_Custom_TitleBarLine_Background_V"), MenuLine_Size);
    m_pMenuLine->cSetIsDottedLine(false);
    m_pMenuLine->hide();
    m_pRowLine = newLine(
        CustomLineWidget::HorizontalLine, QStringLiteral("DB_COLOR_Custom_TitleBarLine_Background_H"), RowLine_Size);
    QSizePolicy policy;
    policy.setControlType(QSizePolicy::DefaultType);
    m_pRowLine->setSizePolicy(policy);
    m_pRowLine->hide();
}

void CustomTitleBarPrivate::connectButtons()
{
    const auto clicked = &QAbstractButton::clicked;
    if (!QObject::connect(m_pMaxButton, clicked, q, &CustomTitleBar::cOnMaximum))
        return;
    if (!QObject::connect(m_pMinButton, clicked, q, &CustomTitleBar::cOnMinimum))
        return;
    if (!QObject::connect(m_pCloseButton, clicked, q, &CustomTitleBar::cOnClose))
        return;
    QObject::connect(m_pStayOnTopButton, clicked, q, &CustomTitleBar::cOnStayOnStop);
}

void CustomTitleBarPrivate::initControlInfo()
{
    const QString className = QString::fromLatin1(q->metaObject()->className());
    const QPair<CustomPushButton *, QString> buttons[] = {
        { m_pStayOnTopButton, QStringLiteral("NotStayOnTop") },
        { m_pMaxButton, QStringLiteral("MaxNormal") },
        { m_pCloseButton, QStringLiteral("Close") },
        { m_pMinButton, QStringLiteral("Min") },
    };
    for (const auto &[button, selector] : buttons) {
        button->cSetParentClassName(className);
        button->cSetStyleSelector(selector);
    }
    m_pIconLabel->cSetBackgroundImage(q->cAttributeValue(QStringLiteral("Icon"), Custom::Normal, {}));
}

int CustomTitleBarPrivate::number(const char *key) const
{
    return q->cAttributeValue(QString::fromLatin1(key), Custom::Normal, {}).toInt();
}

void CustomTitleBarPrivate::setShowControls(CustomTitleBar::TitleControls controls)
{
    m_fControls = controls;
    m_bNeedUpdate = true;
    m_pIconLabel->setVisible(controls.testFlag(CustomTitleBar::TitleIcon));
    m_pStayOnTopButton->setVisible(controls.testFlag(CustomTitleBar::TitleStayOnTop));
    m_pMaxButton->setVisible(controls.testFlag(CustomTitleBar::TitleMax));
    m_pMinButton->setVisible(controls.testFlag(CustomTitleBar::TitleMin));
    m_pCloseButton->setVisible(controls.testFlag(CustomTitleBar::TitleClose));
}

void CustomTitleBarPrivate::ensureUpdated()
{
    if (!m_bNeedUpdate)
        return;
    if (m_nPlacing > 0) {
        QMetaObject::invokeMethod(q, &QWidget::updateGeometry, Qt::QueuedConnection);
        return;
    }
    m_bNeedUpdate = false;
    updateData();
}

void CustomTitleBarPrivate::updateData()
{
    QFont font = q->cFont(Custom::Normal, {});
    font.setWeight(QFont::Bold);
    // The bar itself isn't told of a change of language.
    if (!q->cHasParameter(Custom::ParamUserFontFamily) && !Custom::globalFontFamily().isEmpty())
        font.setFamily(Custom::globalFontFamily());
    m_pTitleLabel->cSetFont(font, Custom::Normal, {});
    m_pTitleLabel->cSetFontColor(q->cFontColor(Custom::Normal, {}).name(), Custom::Normal, {});
    initLayout();
}

void CustomTitleBarPrivate::showCaption()
{
    m_pTitleLabel->setText(m_strTitle);
    m_pTitleLabel->setFixedSize(0, 0);
    m_pTitleLabel->setFixedSize(captionSize());
}

QSize CustomTitleBarPrivate::captionSize() const
{
    const int widest = qMax(0, Screens::primaryAvailableGeometry().width() - Caption_Room);
    const QSize size = m_pTitleLabel->sizeHint();
    return QSize(qMin(size.width(), widest), size.height());
}

void CustomTitleBarPrivate::dismantleLayout()
{
    // The rows live on from one layout to the next.
    for (QLayout *layout : { q->layout(), m_pCustomTitleWidget->layout() }) {
        if (!layout)
            continue;
        for (QHBoxLayout *row : { m_pMenuLayout, m_pToolLayout, m_pCustomLayout, m_pToolRightLayout })
            Custom::removeChildLayoutItem(layout, row);
        delete layout;
    }
    m_pCustomTitleLayout = nullptr;
    m_pCustomLayout->removeWidget(m_pCustomTitleWidget);
    dropStretch();
    m_pMenuLine->hide();
    m_pRowLine->hide();
}

void CustomTitleBarPrivate::dropStretch()
{
    if (!m_pStretch)
        return;
    m_pMenuLayout->removeItem(m_pStretch);
    delete m_pStretch;
    m_pStretch = nullptr;
}

void CustomTitleBarPrivate::initLayout()
{
    dismantleLayout();
    auto *root = new PlacingRow(&m_nPlacing);
    q->setLayout(root);
    const int left = number("LeftIconMargin");
    const int right = number("RightIconMargin");
    const int spacing = number("ButtonSpacing");
    if (m_bTitleIsCustom)
        layOutCustomTitle(root, left, right, spacing);
    else
        layOutStandardTitle(root, left, right, spacing);
}

void CustomTitleBarPrivate::layOutCustomTitle(QBoxLayout *root, int left, int right, int spacing)
{
    m_pCustomTitleLayout = new PlacingRow(&m_nPlacing);
    m_pCustomTitleLayout->addWidget(m_pIconLabel);
    if (!m_pIconLabel->isHidden())
        m_pCustomTitleLayout->addSpacing(right);
    if (!m_pTitleLabel->text().isEmpty()) {
        m_pTitleLabel->setFixedSize(m_oCustomTextSize.expandedTo(QSize(0, 0)));
        m_pTitleLabel->setText(m_strTitle);
        m_pTitleLabel->cDisplayElidedText();
    }
    m_pCustomTitleLayout->addWidget(m_pTitleLabel);
    m_pCustomTitleLayout->addLayout(m_pToolLayout);
    m_pCustomTitleLayout->addStretch(0);
    if (m_pToolRightLayout)
        m_pCustomTitleLayout->addLayout(m_pToolRightLayout);
    m_pCustomTitleWidget->setLayout(m_pCustomTitleLayout);
    m_pCustomLayout->addWidget(m_pCustomTitleWidget);

    root->setContentsMargins(left, 0, right, 0);
    root->addLayout(m_pCustomLayout);
    root->addLayout(m_pMenuLayout);
    root->addWidget(m_pMenuLine);
    m_pMenuLine->setVisible(m_bHasMenu);
    addWindowButtons(root, spacing);
}

void CustomTitleBarPrivate::layOutStandardTitle(QBoxLayout *root, int left, int right, int spacing)
{
    QHBoxLayout *row = newRow();
    m_pTitleLabel->setFixedSize(0, 0);
    row->addWidget(m_pTitleLabel);
    if (!m_pTitleLabel->text().isEmpty()) {
        m_pTitleLabel->setText(m_strTitle);
        m_pTitleLabel->setFixedSize(captionSize());
        m_pTitleLabel->cDisplayElidedText();
        row->addSpacing(Caption_Spacing);
    }
    if (!m_bMenuStretch) {
        m_pMenuLayout->addStretch(0);
        m_pStretch = m_pMenuLayout->itemAt(m_pMenuLayout->count() - 1);
    }
    row->addLayout(m_pMenuLayout);
    row->addSpacing(spacing);
    addWindowButtons(row, spacing);

    auto *column = static_cast<QVBoxLayout *>(Custom::createLayout(Qt::Vertical));
    column->addLayout(row);
    if (m_bHasToolRow)
        layOutToolRow(column);

    root->setContentsMargins(left, 0, StandardTitle_RightMargin, 0);
    root->addWidget(m_pIconLabel);
    if (!m_pIconLabel->isHidden())
        root->addSpacing(right);
    root->addLayout(column);
}

void CustomTitleBarPrivate::layOutToolRow(QBoxLayout *column)
{
    column->addSpacing(RowLine_Spacing);
    column->addWidget(m_pRowLine);
    m_pRowLine->show();
    column->addSpacing(RowLine_Spacing);
    QHBoxLayout *row = newRow();
    row->addSpacing(ToolRow_Indent);
    row->addLayout(m_pToolLayout);
    row->addStretch(0);
    if (m_pToolRightLayout)
        row->addLayout(m_pToolRightLayout);
    column->addLayout(row);
    column->addStretch(0);
}

void CustomTitleBarPrivate::addWindowButtons(QBoxLayout *row, int spacing)
{
    row->addWidget(m_pStayOnTopButton);
    row->addSpacing(spacing);
    row->addWidget(m_pMinButton);
    row->addSpacing(spacing);
    row->addWidget(m_pMaxButton);
    row->addSpacing(spacing);
    row->addWidget(m_pCloseButton);
}

CustomLineWidget *CustomTitleBarPrivate::newLine(int type, const QString &color, const QSize &size)
{
    auto *line = new CustomLineWidget(q);
    line->cSetLineType(CustomLineWidget::LineType(type));
    line->cSetBackgroundColor(color, Custom::Normal, {});
    line->setFixedSize(size);
    return line;
}

CustomPushButton *CustomTitleBarPrivate::addMenu(const QString &text, CustomMenu *menu)
{
    auto *button = new CustomPushButton(q, CustomPushButton::LittleBase);
    button->cSetParentClassName(QString::fromLatin1(q->metaObject()->className()));
    if (menu) {
        button->cSetStyleSelector(QStringLiteral("Menu"));
        button->setFixedHeight(MenuButton_Height);
        button->setText(text);
        button->setMenu(menu);
    }
    // A bar that is laid out already has its own stretch at the end of the row.
    const int position = m_pStretch ? m_pMenuLayout->count() - 1 : m_pMenuLayout->count();
    m_pMenuLayout->insertWidget(position, button);
    m_pMenuLayout->insertSpacing(position + 1, MenuButton_Spacing);
    showAdded(button);
    m_bHasMenu = true;
    if (m_pCustomTitleLayout)
        m_pMenuLine->show();
    return button;
}

void CustomTitleBarPrivate::showAdded(QWidget *item)
{
    if (!q->isVisible())
        return;
    item->show();
    q->updateGeometry();
}

void CustomTitleBarPrivate::forget(const QObject *item)
{
    for (QHBoxLayout *row : { m_pMenuLayout, m_pCustomLayout, m_pToolLayout, m_pToolRightLayout }) {
        for (int i = row ? row->count() - 1 : -1; i >= 0; --i) {
            if (row->itemAt(i)->widget() == item)
                delete row->takeAt(i);
        }
    }
}

void CustomTitleBarPrivate::addMenuStretch()
{
    dropStretch();
    m_pMenuLayout->addStretch(0);
    m_bMenuStretch = true;
}

QHBoxLayout *CustomTitleBarPrivate::toolGroup(bool left)
{
    if (left)
        return m_pToolLayout;
    if (!m_pToolRightLayout) {
        m_pToolRightLayout = newRow();
        m_bNeedUpdate = true;
    }
    return m_pToolRightLayout;
}

CustomPushButton *CustomTitleBarPrivate::addToolButton(bool left, int spacing)
{
    if (!m_bHasToolRow)
        m_bNeedUpdate = true;
    m_bHasToolRow = true;
    auto *button = new CustomPushButton(q, CustomPushButton::MiddleBase);
    QHBoxLayout *group = toolGroup(left);
    group->addWidget(button);
    group->addSpacing(spacing);
    showAdded(button);
    return button;
}

QWidget *CustomTitleBarPrivate::addToolWidget(bool left, int spacing)
{
    toolGroup(false); // the right group exists from here on, whichever is asked for
    auto *widget = new QWidget(q);
    QHBoxLayout *group = toolGroup(left);
    group->addWidget(widget);
    group->addSpacing(spacing);
    showAdded(widget);
    return widget;
}

CustomLineWidget *CustomTitleBarPrivate::addToolSeparatorLine()
{
    const QString color = m_bTitleIsCustom ? QStringLiteral("DB_COLOR_Custom_TitleBar_Background_Custom")
                                           : QStringLiteral("DB_COLOR_Custom_TitleBar_Background");
    CustomLineWidget *line = newLine(CustomLineWidget::VerticalLine, color, ToolLine_Size);
    line->cSetIsDottedLine(!m_bTitleIsCustom);
    m_pToolLayout->addWidget(line);
    m_pToolLayout->addSpacing(m_bTitleIsCustom ? ToolLine_CustomSpacing : ToolLine_StandardSpacing);
    showAdded(line);
    return line;
}

void CustomTitleBarPrivate::limitCursorRect(bool limit)
{
    Q_UNUSED(limit)
}
