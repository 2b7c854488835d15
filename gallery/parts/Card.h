#pragma once

#include <Zanthic/CustomFrame.h>

class QVBoxLayout;

/// A section of a page: a box that holds a heading and what belongs to it.
class Card : public CustomFrame
{
    Q_OBJECT

public:
    explicit Card(QWidget *parent = nullptr);
    ~Card() override;

    QVBoxLayout *body() const { return m_pBody; } ///< where the content goes, top down
    void add(QWidget *widget);
    void add(QLayout *layout);

private:
    QVBoxLayout *m_pBody;
};
