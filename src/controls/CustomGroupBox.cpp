#include <Zanthic/CustomGroupBox.h>

#include <Zanthic/ChangeSkinEvent.h>

CustomGroupBox::CustomGroupBox(QWidget *parent) : CustomGroupBox(QString(), parent) { }

CustomGroupBox::CustomGroupBox(const QString &title, QWidget *parent) : QGroupBox(title, parent), CustomQssHelper(this)
{
    setStyleSheet(Custom::styleSheet(Custom::SheetGroupBox));
    connect(this, &QGroupBox::toggled, this, &CustomGroupBox::OnToggled);
}

CustomGroupBox::~CustomGroupBox() = default;

void CustomGroupBox::SetIndex(int index)
{
    m_nIndex = index;
}

void CustomGroupBox::OnToggled(bool bChecked)
{
    Q_EMIT Toggled(m_nIndex, bChecked);
}

void CustomGroupBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        cLanguageChange();
    QGroupBox::changeEvent(event);
}

void CustomGroupBox::customEvent(QEvent *event)
{
    if (int(event->type()) == ChangeSkinEvent::EventType)
        setStyleSheet(Custom::styleSheet(Custom::SheetGroupBox));
}
