#pragma once

#include <QtWidgets/QLabel>

/// A text in one of the gallery's type sizes whose colour follows the skin, and its family the language.
class TextLabel : public QLabel
{
    Q_OBJECT

public:
    enum Role { Title, Heading, Body, Caption };

    explicit TextLabel(Role role, QWidget *parent = nullptr);
    ~TextLabel() override;

protected:
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;

private:
    void takeFontFamily();
    void takeSkinColor();

    Role m_role;
};
