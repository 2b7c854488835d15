#pragma once

#include "style/CustomObject_p.h"

#include <Zanthic/CustomObject.h>

#include <QtWidgets/QWidget>

/// A control with nothing but the mix-in; it records what cNotifyUpdateValue() is told and when it is painted.
class StyleHost : public QWidget, public CustomObject
{
public:
    explicit StyleHost(const QString &className = QStringLiteral("Sample"),
        const QString &selector = QStringLiteral("Default"), QWidget *parent = nullptr)
        : QWidget(parent), CustomObject(this, QString(), selector)
    {
        cSetClassName(className);
    }

    CustomObjectData *data() const { return CustomObjectData::get(this); }

    void cNotifyUpdateValue(const QString &attribute, const QString &value, Custom::ItemStatus status) override
    {
        notified.append(QStringLiteral("%1=%2@%3").arg(attribute, value).arg(int(status)));
    }

    QStringList notified;
    int paints = 0;

protected:
    void customEvent(QEvent *event) override { cCustomEvent(event); }
    void paintEvent(QPaintEvent *) override { ++paints; }
};
