#pragma once

#include "TextLabel.h"

#include <functional>

/// A label for what changes while the program runs, such as a count. It asks for its text when it is told to, and
/// with each language.
class LiveText : public TextLabel
{
    Q_OBJECT

public:
    explicit LiveText(Role role, std::function<QString()> words, QWidget *parent = nullptr);
    ~LiveText() override;

    void refresh();

protected:
    void changeEvent(QEvent *event) override;

private:
    std::function<QString()> m_words;
};
