#include <Zanthic/CustomSwitchButton.h>

#include "composite/CustomSwitchButton_p.h"

#include <Zanthic/CustomPushButton.h>

#include <QtWidgets/QHBoxLayout>

namespace {

const QLatin1String s_strCheckedSelector("Checked");
const QLatin1String s_strUnCheckedSelector("UnChecked");

void squareCorners(CustomPushButton *button, std::initializer_list<Custom::BorderCorner> corners)
{
    for (const Custom::BorderCorner corner : corners)
        button->cSetBorderRadius(0, corner, Custom::Normal, {});
}

} // namespace

CustomSwitchButtonPrivate::CustomSwitchButtonPrivate(CustomSwitchButton *owner)
    : QObject(owner), m_pLayout(new QHBoxLayout(owner)), q(owner)
{
    m_pLayout->setContentsMargins(0, 0, 0, 0);
    m_pLayout->setSpacing(0);
}

void CustomSwitchButtonPrivate::init(const QStringList &names)
{
    removeButtons();
    for (int i = 0; i < names.size(); ++i)
        addButton(i, names.at(i));
    resetBtnRadius();
}

void CustomSwitchButtonPrivate::removeButtons()
{
    for (int i = m_pLayout->count() - 1; i >= 0; --i)
        delete m_pLayout->takeAt(i);
    for (CustomPushButton *button : qAsConst(m_lstButtons)) {
        if (button != m_pClicked) {
            delete button;
            continue;
        }
        // The call comes from this button's own click.
        button->hide();
        button->setParent(nullptr);
        button->deleteLater();
    }
    m_lstButtons.clear();
}

void CustomSwitchButtonPrivate::addButton(int index, const QString &name)
{
    auto *button = new CustomPushButton(q, CustomPushButton::Default);
    button->cSetParentClassName(QString::fromLatin1(q->metaObject()->className()));
    button->cSetStyleSelector(selector(index));
    button->setText(name);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    button->cSetUserData(index);
    m_pLayout->addWidget(button);
    m_lstButtons.append(button);
    connect(button, &CustomPushButton::clicked, this, &CustomSwitchButtonPrivate::onButtonClicked);
}

QString CustomSwitchButtonPrivate::selector(int index) const
{
    return q->cStyleSelector() + QLatin1Char(':')
        + (index == m_nCheckedIndex ? s_strCheckedSelector : s_strUnCheckedSelector);
}

// Inner corners are square, so that the row looks like one piece.
void CustomSwitchButtonPrivate::resetBtnRadius()
{
    if (m_lstButtons.size() < 2)
        return;
    squareCorners(m_lstButtons.first(), { Custom::RightBottom, Custom::RightTop });
    squareCorners(m_lstButtons.last(), { Custom::LeftBottom, Custom::LeftTop });
    for (int i = 1; i < m_lstButtons.size() - 1; ++i)
        squareCorners(m_lstButtons.at(i), { Custom::AllCorner });
}

void CustomSwitchButtonPrivate::setCheckIndex(int index)
{
    if (index == m_nCheckedIndex)
        return;
    m_nCheckedIndex = index;
    for (int i = 0; i < m_lstButtons.size(); ++i) {
        m_lstButtons.at(i)->cSetStyleSelector(selector(i));
        m_lstButtons.at(i)->update();
    }
    resetBtnRadius();
}

QSize CustomSwitchButtonPrivate::sizeHint() const
{
    QSize greatest(0, 0);
    for (const CustomPushButton *button : m_lstButtons)
        greatest = greatest.expandedTo(button->sizeHint());
    return QSize(greatest.width() * m_lstButtons.size(), greatest.height());
}

void CustomSwitchButtonPrivate::onButtonClicked()
{
    auto *button = qobject_cast<CustomPushButton *>(sender());
    if (!button)
        return;
    const QPointer<CustomSwitchButtonPrivate> self(this);
    m_pClicked = button;
    setCheckIndex(button->cUserData().toInt());
    Q_EMIT q->checkedChanged(m_nCheckedIndex);
    if (self)
        m_pClicked.clear();
}

CustomSwitchButton::CustomSwitchButton(QWidget *parent) : CustomWidget(parent), d(new CustomSwitchButtonPrivate(this))
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
}

CustomSwitchButton::~CustomSwitchButton() = default;

void CustomSwitchButton::cSetButtonNames(const QStringList &names)
{
    if (d)
        d->init(names);
}

void CustomSwitchButton::cRenameButtons(const QStringList &names)
{
    if (!d)
        return;
    const int count = qMin(names.size(), d->m_lstButtons.size());
    for (int i = 0; i < count; ++i)
        d->m_lstButtons.at(i)->setText(names.at(i));
    updateGeometry();
}

int CustomSwitchButton::cCheckedIndex() const
{
    return d ? d->m_nCheckedIndex : 0;
}

void CustomSwitchButton::cSetCheckIndex(int index)
{
    if (d)
        d->setCheckIndex(index);
}

QSize CustomSwitchButton::sizeHint() const
{
    return d ? d->sizeHint() : QSize(0, 0);
}
