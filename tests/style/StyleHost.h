#pragma once

#include "support/StyleTest.h"

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

/// A gradient with a colour of the skin.
constexpr char kGradient[] = "qlineargradient(x1:0; y1:0; x2:1; y2:1**stop:0 #ff0000;stop:1 DB_COLOR_A;)";

/// A class "Sample" with selectors, an alias, a namesake inside "Outer" and values that are empty, absurd or broken.
inline QByteArray richDocument()
{
    const QByteArray attributes = QByteArray("<FontSize>14</FontSize><FontSize:Hover>-3</FontSize:Hover>")
        + "<FontColor>#111111</FontColor><FontColor:Hover>#Empty#</FontColor:Hover><FontFamily>F</FontFamily>"
        + "<BackgroundColor>" + kGradient + "</BackgroundColor><BackgroundColor:Hover>DB_COLOR_A"
        + "</BackgroundColor:Hover><BackgroundColor:Disabled>qlineargradient broken</BackgroundColor:Disabled>"
        + "<BackgroundColor:item>rgba(1,2,3,4)</BackgroundColor:item><BackgroundColor:item:checked:Pressed>"
        + "DB_COLOR_Shade</BackgroundColor:item:checked:Pressed><BackgroundColor:>#777777</BackgroundColor:>"
        + "<BorderWidth:AllEdge>3</BorderWidth:AllEdge><BorderWidth:Left:Hover>0</BorderWidth:Left:Hover>"
        + "<BorderWidth:Top>wide</BorderWidth:Top><BorderWidth:Right>#Empty#</BorderWidth:Right>"
        + "<BorderRadius:AllCorner>5</BorderRadius:AllCorner><BorderRadius:LeftTop>-9</BorderRadius:LeftTop>"
        + "<BorderColor:AllEdge>" + kGradient + "</BorderColor:AllEdge><BorderColor:Top>DB_COLOR_Shade"
        + "</BorderColor:Top><BorderColor:Left>no colour</BorderColor:Left><BorderImage>b.png</BorderImage>"
        + "<BackgroundImage:item>i.png</BackgroundImage:item><BaseBackgroundImage>p.png</BaseBackgroundImage>"
        + "<Icon:Hover>hover.png</Icon:Hover>";
    const QByteArray gray = "<Selector Name='Gray'><FontColor>#222222</FontColor><BackgroundColor>#Empty#"
                            "</BackgroundColor><BorderWidth:AllEdge></BorderWidth:AllEdge></Selector>";
    const QByteArray sample = "<Class Name='Sample'><Selector Name='Default'>" + attributes + "</Selector>" + gray
        + "<Selector Name='Alias' EqualSelector='Gray'/></Class>";
    return sample + "<Class Name='Outer'>" + StyleTest::classXml("Sample", "Default", "<FontSize>9</FontSize>")
        + "</Class>";
}
