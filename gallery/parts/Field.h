#pragma once

#include <QtWidgets/QLineEdit>

/// A line of input in the colours of the skin and the font of the language that leaves the window's shortcuts alone.
class Field : public QLineEdit
{
    Q_OBJECT

public:
    explicit Field(QWidget *parent = nullptr);
    ~Field() override;

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;

private:
    void takeStyle();
};
