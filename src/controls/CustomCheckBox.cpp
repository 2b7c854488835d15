#include <Zanthic/CustomCheckBox.h>

#include "style/StyleImages_p.h"

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace {

QString matchCheckBoxSelector(CustomCheckBox::StyleSelector selector)
{
    switch (selector) {
    case CustomCheckBox::Default:
        return QStringLiteral("Default");
    case CustomCheckBox::GrayWhite:
        return QStringLiteral("GrayWhite");
    case CustomCheckBox::DarkBlack:
        return QStringLiteral("DarkBlack");
    case CustomCheckBox::GraySwitch:
        return QStringLiteral("GraySwitch");
    case CustomCheckBox::DarkSwitch:
        return QStringLiteral("DarkSwitch");
    }
    return QString();
}

} // namespace

CustomCheckBox::CustomCheckBox(QWidget *parent, StyleSelector selector)
    : CustomCheckBox(QString(), parent, selector) { }

CustomCheckBox::CustomCheckBox(const QString &text, QWidget *parent, StyleSelector selector)
    : QCheckBox(text, parent), CustomObject(this, QString(), QStringLiteral("Default"))
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
    cSetStyleSelector(matchCheckBoxSelector(selector));
    cResetAllValue();
}

CustomCheckBox::~CustomCheckBox() = default;

QString CustomCheckBox::cSuffixString(Qt::CheckState state) const
{
    switch (state) {
    case Qt::Checked:
        return QStringLiteral("checked");
    case Qt::Unchecked:
        return QStringLiteral("unchecked");
    default:
        return QStringLiteral("partiallyChecked");
    }
}

void CustomCheckBox::initCheckBoxOption(QStyleOptionButton *option) const
{
    if (option)
        initStyleOption(option);
}

QSize CustomCheckBox::sizeHint() const
{
    if (!styleSheet().isEmpty())
        return QCheckBox::sizeHint();
    QStyleOptionButton option;
    initCheckBoxOption(&option);
    return cSizeHint(&option);
}

bool CustomCheckBox::hitButton(const QPoint &pos) const
{
    if (!styleSheet().isEmpty())
        return QCheckBox::hitButton(pos);
    QStyleOptionButton option;
    initCheckBoxOption(&option);
    const QString image = cBackgroundImage(cGetItemStatus(option.state), { cSuffixString(checkState()) });
    if (image.isEmpty())
        return QCheckBox::hitButton(pos);
    // Without icon and text the whole control is the indicator.
    if (option.icon.isNull() && option.text.isEmpty())
        return true;
    const QRect indicator = QStyle::alignedRect(option.direction, Qt::AlignLeft | Qt::AlignVCenter,
        StyleImages::pixmap(image).size(), QRect(0, 0, width(), height()));
    return indicator.contains(pos);
}

void CustomCheckBox::paintEvent(QPaintEvent *event)
{
    if (!styleSheet().isEmpty()) {
        QCheckBox::paintEvent(event);
        return;
    }
    QStyleOptionButton option;
    initCheckBoxOption(&option);
    QPainter painter(this);
    cDrawWidget(Custom::WidgetCheckBox, &painter, QRect(0, 0, width(), height()), &option);
}

void CustomCheckBox::mouseReleaseEvent(QMouseEvent *event)
{
    const Qt::CheckState before = checkState();
    // The click fires in here and may delete the box.
    const QPointer<CustomCheckBox> self(this);
    QAbstractButton::mouseReleaseEvent(event);
    if (self && checkState() != before)
        Q_EMIT sigStateChanged(checkState());
}

void CustomCheckBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        cLanguageChange();
    QCheckBox::changeEvent(event);
}

void CustomCheckBox::customEvent(QEvent *event)
{
    cCustomEvent(event);
}
