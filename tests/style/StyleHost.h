#pragma once

#include "support/Literal.h"
#include "support/StyleTest.h"

#include "style/CustomObject_p.h"

#include <Zanthic/CustomObject.h>

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

inline QString value(const CustomObject &object, const QString &attribute, Custom::ItemStatus status = Custom::Normal,
    const QStringList &subs = {})
{
    return object.cAttributeValue(attribute, status, subs);
}

inline QString colorName(const QColor &color)
{
    return color.isValid() ? color.name(QColor::HexArgb) : "invalid"_s;
}

/// "none", the colour, or start, end and stops of a gradient.
inline QString described(const QBrush &brush)
{
    if (!brush.gradient())
        return brush.style() == Qt::SolidPattern ? colorName(brush.color()) : "none"_s;
    const auto &gradient = *static_cast<const QLinearGradient *>(brush.gradient());
    const QPointF a = gradient.start();
    const QPointF b = gradient.finalStop();
    QString text = QStringLiteral("%1,%2 %3,%4").arg(a.x()).arg(a.y()).arg(b.x()).arg(b.y());
    for (const QGradientStop &stop : gradient.stops())
        text += QStringLiteral(" %1 %2").arg(stop.first).arg(colorName(stop.second));
    return text;
}

/// The path of a file in tests/data/documents.
inline QString dataFile(const QString &name)
{
    return QStringLiteral(ZANTHIC_TEST_DATA "/documents/") + name;
}

/// Gives a file another content.
inline void overwrite(const QString &path, const QByteArray &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}
