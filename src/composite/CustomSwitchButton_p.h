#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/CustomSwitchButton.h>

#include <QtCore/QList>
#include <QtCore/QPointer>

class CustomPushButton;

QT_BEGIN_NAMESPACE
class QHBoxLayout;
QT_END_NAMESPACE

class CustomSwitchButtonPrivate : public QObject
{
    Q_OBJECT

public:
    explicit CustomSwitchButtonPrivate(CustomSwitchButton *owner);

    void init(const QStringList &names);
    void setCheckIndex(int index);
    QSize sizeHint() const;

    int m_nCheckedIndex = 0;
    QHBoxLayout *m_pLayout;
    CustomSwitchButton *q;
    QList<CustomPushButton *> m_lstButtons;

private:
    void removeButtons();
    void addButton(int index, const QString &name);
    void resetBtnRadius();
    QString selector(int index) const;
    void onButtonClicked();

    QPointer<CustomPushButton> m_pClicked; // while its click is being told
};
