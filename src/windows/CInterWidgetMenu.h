#pragma once

#include <Zanthic/CustomMenu.h>

#include <QtCore/QPointer>

/// A menu that shows one widget in place of actions and is as large as the widget asks for. It is styled as
/// "CustomMenu".
class ZANTHIC_EXPORT CInterWidgetMenu : public CustomMenu
{
    Q_OBJECT

public:
    /// The menu takes \p widget over; null gives an empty menu.
    explicit CInterWidgetMenu(QWidget *widget, QWidget *parent = nullptr);
    ~CInterWidgetMenu() override;

    QSize sizeHint() const override;

private:
    QPointer<QWidget> m_pWidget;
};
