#include <Zanthic/CustomRadioButton.h>

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

CustomRadioButton::CustomRadioButton(const QString &text, QWidget *parent)
    : QRadioButton(text, parent), CustomObject(this, QString(), QStringLiteral("Default"))
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
    cResetAllValue();
}

CustomRadioButton::CustomRadioButton(QWidget *parent) : CustomRadioButton(QString(), parent) { }

CustomRadioButton::~CustomRadioButton() = default;

QString CustomRadioButton::cSuffixString(bool checked) const
{
    return checked ? QStringLiteral("checked") : QStringLiteral("unchecked");
}

void CustomRadioButton::initRadioButtonOption(QStyleOptionButton *option) const
{
    if (option)
        initStyleOption(option);
}

QSize CustomRadioButton::sizeHint() const
{
    if (!styleSheet().isEmpty())
        return QRadioButton::sizeHint();
    QStyleOptionButton option;
    initRadioButtonOption(&option);
    return cSizeHint(&option);
}

bool CustomRadioButton::hitButton(const QPoint &pos) const
{
    Q_UNUSED(pos)
    return true;
}

void CustomRadioButton::paintEvent(QPaintEvent *event)
{
    if (!styleSheet().isEmpty()) {
        QRadioButton::paintEvent(event);
        return;
    }
    QStyleOptionButton option;
    initRadioButtonOption(&option);
    QPainter painter(this);
    cDrawWidget(Custom::WidgetRadioButton, &painter, QRect(0, 0, width(), height()), &option);
}

void CustomRadioButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        cLanguageChange();
    QRadioButton::changeEvent(event);
}

void CustomRadioButton::customEvent(QEvent *event)
{
    cCustomEvent(event);
}
