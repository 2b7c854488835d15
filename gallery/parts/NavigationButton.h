#pragma once

#include <Zanthic/CustomPushButton.h>

/// A line of the page list: a push button of a class of its own in the style document, which writes its text at the
/// left and marks the current page.
class NavigationButton : public CustomPushButton
{
    Q_OBJECT

public:
    explicit NavigationButton(QWidget *parent = nullptr);
    ~NavigationButton() override;

    void setCurrent(bool current);
    QSize sizeHint() const override;
    bool cDrawContent(QPainter *painter, QStyleOption *option) override;

private:
    bool m_bCurrent = false;
};
